#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/EventBus.h"
#include "platform/HotKeys.h"
#include "platform/IconServices.h"
#include "platform/Notifications.h"
#include "platform/ProcessManager.h"
#include "platform/Screen.h"

namespace lurkwell {

// What a program in a terminal has in place of a desktop.

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

/// A machine without a desktop has no pictures.
class NoIconServices final : public IconServices {
 public:
  std::shared_ptr<const Picture> ApplicationIcon(ProcessSerialNumber, int) override { return {}; }
};

/// A program in a terminal takes no part in the session's events.
class NoEventBus final : public EventBus {
 public:
  Status Send(const EventAddress&, const Event&) override { return kNoSuchProcess; }
  void InstallEventHandler(FourCharCode, FourCharCode, Handler) override {}
  std::string Address() const override { return {}; }
};

/// A terminal has no keys to give away.
class NoHotKeys final : public HotKeys {
 public:
  bool RegisterEventHotKey(std::uint32_t, std::uint32_t, std::function<void()>) override {
    return false;
  }
  std::string KeyName(std::uint32_t) const override { return {}; }
  HotKeyState State() const override { return {}; }
};

/// Nobody would see a notification.
class NoNotifications final : public Notifications {
 public:
  void Show(const std::string&, const Notification&, std::function<void()>) override {
    if (mFailed) mFailed("there is no desktop");
  }
  void WhenOneFails(std::function<void(const std::string&)> failed) override {
    mFailed = std::move(failed);
  }

 private:
  std::function<void(const std::string&)> mFailed;
};

/// A terminal shows no windows.
class NoScreen final : public Screen {
 public:
  bool UsesOpenGLAcceleration() override { return false; }
  bool BlendsWindows() override { return false; }
  SessionAbilities Abilities() override { return {}; }
  FloatingWay Floating() override { return FloatingWay::kByManager; }
  void MakeFloating(std::uint64_t) override {}
  void MakeOverlay(std::uint64_t) override {}
  void PutAboveManaged(std::uint64_t) override {}
  bool IsCovered(std::uint64_t) override { return false; }
  bool IsKeyboardElsewhere() override { return true; }
  bool WantsLessMotion() const override { return false; }
};

}  // namespace lurkwell
