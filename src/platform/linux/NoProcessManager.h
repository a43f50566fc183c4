#pragma once

#include "platform/ProcessManager.h"

namespace lurkwell {

/// A machine without a desktop: there are no applications, and nothing can be asked of them.
class NoProcessManager final : public ProcessManager {
 public:
  std::optional<ProcessSerialNumber> GetNextProcess(ProcessSerialNumber) override { return {}; }
  std::optional<ApplicationInformation> GetProcessInformation(ProcessSerialNumber) override {
    return {};
  }
  std::optional<std::int32_t> GetProcessPID(ProcessSerialNumber) override { return {}; }
  std::optional<ProcessSerialNumber> GetProcessForPID(std::int32_t) override { return {}; }
  bool Quit(ProcessSerialNumber) override { return false; }
  bool CanQuit(ProcessSerialNumber) override { return false; }
  bool ShowHideProcess(ProcessSerialNumber, bool) override { return false; }
  bool SetFrontProcess(ProcessSerialNumber) override { return false; }
  bool Reveal(ProcessSerialNumber) override { return false; }
  void WhenRevealFails(std::function<void(const std::string&)>) override {}
};

}  // namespace lurkwell
