#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// Four characters that name a type or a creator.
using FourCharCode = std::array<char, 4>;

/// What the desktop knows of one application.
struct ApplicationInformation {
  std::string name;
  FourCharCode type = {' ', ' ', ' ', ' '};
  FourCharCode signature = {' ', ' ', ' ', ' '};
  std::uint32_t mode = 0;
};

/// The desktop's list of applications. Main thread only.
class ProcessManager {
 public:
  virtual ~ProcessManager() = default;

  /// The application after `previous` in the desktop's order, the first one after {0, 0}; nothing
  /// after the last. A serial number that has gone meanwhile ends the walk.
  virtual std::optional<ProcessSerialNumber> GetNextProcess(ProcessSerialNumber previous) = 0;

  /// What is known of an application; nothing when it has gone.
  virtual std::optional<ApplicationInformation> GetProcessInformation(ProcessSerialNumber psn) = 0;

  /// The kernel pid of an application; nothing when it has none or has gone.
  virtual std::optional<std::int32_t> GetProcessPID(ProcessSerialNumber psn) = 0;

  /// The serial number of the application that a kernel pid runs; nothing when it is none.
  virtual std::optional<ProcessSerialNumber> GetProcessForPID(std::int32_t pid) = 0;

  /// This program's own serial number, whether it is listed or not; {0, 0} on machines that give
  /// none.
  virtual ProcessSerialNumber GetCurrentProcess() { return {}; }

  // The actions are asked for, not waited for: true means that the application, or the desktop on
  // its behalf, has been asked; false that it is gone or that this desktop cannot do it.

  /// Asks the application to quit, as its own menu would.
  virtual bool Quit(ProcessSerialNumber psn) = 0;

  /// Whether it has anything (a window, say) by way of which Quit could ask.
  virtual bool CanQuit(ProcessSerialNumber psn) = 0;

  /// Shows or hides all its windows.
  virtual bool ShowHideProcess(ProcessSerialNumber psn, bool show) = 0;

  /// Brings its windows to the front.
  virtual bool SetFrontProcess(ProcessSerialNumber psn) = 0;

  /// Shows the application's file, selected, in the file manager.
  virtual bool Reveal(ProcessSerialNumber psn) = 0;

  /// Whom to tell that the file manager, asked to show a file, did not do so after all, or that
  /// there is none; its argument is the file. Called by the run loop. Replaces the one before.
  virtual void WhenRevealFails(std::function<void(const std::string& file)> tell) = 0;

  /// Has the desktop show a file, selected in its folder, or at least that folder. `failed` is
  /// called, before or after this returns, when neither can be shown; it may outlive its caller.
  // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it.
  virtual void ShowFile(const std::string& path, std::function<void()> failed) {
    static_cast<void>(path);
    failed();
  }

  /// Has the desktop open an address of the web; otherwise as ShowFile.
  // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it.
  virtual void ShowAddress(const std::string& url, std::function<void()> failed) {
    static_cast<void>(url);
    failed();
  }
};

}  // namespace lurkwell
