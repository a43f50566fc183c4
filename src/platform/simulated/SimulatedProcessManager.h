#pragma once

#include <list>
#include <optional>
#include <string>

#include "platform/ProcessManager.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// One application of a simulated desktop.
struct SimulatedApplication {
  ProcessSerialNumber psn;
  /// None for an application of the Classic environment.
  std::optional<std::int32_t> pid;
  ApplicationInformation information;
  /// Listed, but gone when it is asked about.
  bool cannotBeDescribed = false;
  /// It has no windows.
  bool cannotBeAskedToQuit = false;
};

/// A desktop whose applications a test adds, changes and removes; actions on them are recorded.
class SimulatedProcessManager final : public ProcessManager {
 public:
  explicit SimulatedProcessManager(AccessLog& log) : mLog(log) {}

  SimulatedApplication& Launch(ProcessSerialNumber psn, std::optional<std::int32_t> pid,
                               std::string name, FourCharCode signature = {'T', 'E', 'S', 'T'});
  void Remove(ProcessSerialNumber psn);
  SimulatedApplication* Find(ProcessSerialNumber psn);

  std::optional<ProcessSerialNumber> GetNextProcess(ProcessSerialNumber previous) override;
  std::optional<ApplicationInformation> GetProcessInformation(ProcessSerialNumber psn) override;
  std::optional<std::int32_t> GetProcessPID(ProcessSerialNumber psn) override;
  std::optional<ProcessSerialNumber> GetProcessForPID(std::int32_t pid) override;
  ProcessSerialNumber GetCurrentProcess() override { return {0x4242, 4242}; }
  bool Quit(ProcessSerialNumber psn) override { return Act("Quit", psn) && CanQuit(psn); }
  bool CanQuit(ProcessSerialNumber psn) override {
    const auto* application = Find(psn);
    return application != nullptr && !application->cannotBeAskedToQuit;
  }
  bool ShowHideProcess(ProcessSerialNumber psn, bool show) override {
    return Act(show ? "Show" : "Hide", psn);
  }
  bool SetFrontProcess(ProcessSerialNumber psn) override { return Act("SetFrontProcess", psn); }
  bool Reveal(ProcessSerialNumber psn) override { return Act("Reveal", psn); }
  void WhenRevealFails(std::function<void(const std::string&)> tell) override {
    revealFails = std::move(tell);
  }

  void ShowFile(const std::string& path, std::function<void()> failed) override {
    mLog.Add("ShowFile " + path);
    if (!hasFileManager) failed();
  }

  std::function<void(const std::string&)> revealFails;
  bool hasFileManager = true;

 private:
  bool Act(const std::string& action, ProcessSerialNumber psn);

  AccessLog& mLog;
  std::list<SimulatedApplication> mApplications;
};

}  // namespace lurkwell
