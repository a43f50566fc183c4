#pragma once

#include <list>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/EventBus.h"
#include "platform/HotKeys.h"
#include "platform/IconServices.h"
#include "platform/ProcessManager.h"
#include "platform/Screen.h"
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
    return Act(show ? "Show" : "Hide", psn) && reachesWindows;
  }
  bool SetFrontProcess(ProcessSerialNumber psn) override {
    return Act("SetFrontProcess", psn) && reachesWindows;
  }
  bool Reveal(ProcessSerialNumber psn) override { return Act("Reveal", psn); }
  void WhenRevealFails(std::function<void(const std::string&)> tell) override {
    revealFails = std::move(tell);
  }

  void ShowFile(const std::string& path, std::function<void()> failed) override {
    mLog.Add("ShowFile " + path);
    if (!hasFileManager) failed();
  }
  void ShowAddress(const std::string& url, std::function<void()> failed) override {
    mLog.Add("ShowAddress " + url);
    if (!hasFileManager) failed();
  }

  std::function<void(const std::string&)> revealFails;
  bool hasFileManager = true;
  /// Whether it can show and hide what belongs to others.
  bool reachesWindows = true;

 private:
  bool Act(const std::string& action, ProcessSerialNumber psn);

  AccessLog& mLog;
  std::list<SimulatedApplication> mApplications;
};

/// Plain squares in colours that a test gives to applications; every question is recorded.
class SimulatedIconServices final : public IconServices {
 public:
  explicit SimulatedIconServices(AccessLog& log) : mLog(log) {}

  /// Opaque: 0xFFRRGGBB.
  void SetColour(ProcessSerialNumber psn, std::uint32_t colour) { mColours[psn] = colour; }

  std::shared_ptr<const Picture> ApplicationIcon(ProcessSerialNumber psn, int size) override {
    mLog.Add("ApplicationIcon " + std::to_string(psn.low) + " " + std::to_string(size));
    const auto found = mColours.find(psn);
    if (found == mColours.end()) return nullptr;
    const auto area = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
    return std::make_shared<Picture>(
        Picture{size, size, std::vector<std::uint32_t>(area, found->second)});
  }

 private:
  AccessLog& mLog;
  std::map<ProcessSerialNumber, std::uint32_t> mColours;
};

/// Hot keys that a test presses.
class SimulatedHotKeys final : public HotKeys {
 public:
  explicit SimulatedHotKeys(AccessLog& log) : mLog(log) {}

  bool RegisterEventHotKey(std::uint32_t virtualKeyCode, std::uint32_t modifiers,
                           std::function<void()> pressed) override {
    mLog.Add("HotKeys.RegisterEventHotKey " + std::to_string(virtualKeyCode) + " " +
             std::to_string(modifiers));
    mKeys.push_back({virtualKeyCode, modifiers, std::move(pressed)});
    return true;
  }

  std::string KeyName(std::uint32_t virtualKeyCode) const override {
    return "F" + std::to_string(virtualKeyCode == 98 ? 7 : 12);
  }

  HotKeyState State() const override { return state; }

  HotKeyState state{HotKeyStanding::kGiven, ""};

  /// Calls all that have registered that key; how many they were.
  int Press(std::uint32_t virtualKeyCode, std::uint32_t modifiers) {
    int count = 0;
    for (const auto& key : mKeys) {
      if (key.code != virtualKeyCode || key.modifiers != modifiers) continue;
      key.pressed();
      ++count;
    }
    return count;
  }

 private:
  struct Key {
    std::uint32_t code;
    std::uint32_t modifiers;
    std::function<void()> pressed;
  };

  AccessLog& mLog;
  std::vector<Key> mKeys;
};

/// A screen that is what a test says.
class SimulatedScreen final : public Screen {
 public:
  explicit SimulatedScreen(AccessLog& log) : mLog(log) {}

  bool UsesOpenGLAcceleration() override {
    mLog.Add("Screen.UsesOpenGLAcceleration");
    return isAccelerated;
  }
  bool BlendsWindows() override { return blends; }
  SessionAbilities Abilities() override { return abilities; }
  FloatingWay Floating() override { return floating; }
  void MakeFloating(std::uint64_t) override { mLog.Add("Screen.MakeFloating"); }
  void MakeOverlay(std::uint64_t) override { mLog.Add("Screen.MakeOverlay"); }
  void PutAboveManaged(std::uint64_t) override { mLog.Add("Screen.PutAboveManaged"); }
  bool IsCovered(std::uint64_t) override { return isCovered; }
  bool IsKeyboardElsewhere() override { return isKeyboardElsewhere; }
  bool WantsLessMotion() const override { return wantsLessMotion; }

  bool isAccelerated = true;
  bool blends = true;
  SessionAbilities abilities;
  FloatingWay floating = FloatingWay::kByManager;
  bool isCovered = false;
  bool isKeyboardElsewhere = false;
  bool wantsLessMotion = false;

 private:
  AccessLog& mLog;
};

/// A bus whose other end is the test: what is sent is recorded, what is delivered is handled at
/// once.
class SimulatedEventBus final : public EventBus {
 public:
  explicit SimulatedEventBus(AccessLog& log) : mLog(log) {}

  Status Send(const EventAddress& address, const Event& event) override {
    std::string line =
        "EventBus.Send " + Text(address) + " " + Text(event.eventClass) + "/" + Text(event.id);
    for (const auto& parameter : event.parameters)
      line += " " + Text(parameter.keyword) + "=" + Text(parameter.value);
    mLog.Add(std::move(line));
    return status;
  }
  void InstallEventHandler(FourCharCode eventClass, FourCharCode id, Handler handler) override {
    mHandlers[{eventClass, id}] = std::move(handler);
  }
  std::string Address() const override { return "simulated"; }

  /// False when it has no handler.
  bool Deliver(const Event& event) {
    const auto found = mHandlers.find({event.eventClass, event.id});
    if (found == mHandlers.end()) return false;
    found->second(event);
    return true;
  }

  /// What Send gives.
  Status status = kNoSuchProcess;

 private:
  static std::string Text(FourCharCode code) { return {code.data(), code.size()}; }
  static std::string Text(const std::string& text) { return text; }
  static std::string Text(std::int32_t value) { return std::to_string(value); }
  static std::string Text(ProcessSerialNumber psn) {
    return "{" + std::to_string(psn.high) + "," + std::to_string(psn.low) + "}";
  }
  static std::string Text(const std::vector<std::byte>& bytes) {
    return std::to_string(bytes.size()) + " bytes";
  }
  template <typename... T>
  static std::string Text(const std::variant<T...>& value) {
    return std::visit([](const auto& alternative) { return Text(alternative); }, value);
  }

  AccessLog& mLog;
  std::map<std::pair<FourCharCode, FourCharCode>, Handler> mHandlers;
};

}  // namespace lurkwell
