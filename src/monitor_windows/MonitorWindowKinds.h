#pragma once

#include <cstdint>

#include "monitor_windows/RememberedWindows.h"
#include "platform/Uuid.h"

namespace lurkwell {

/// Opens the windows that follow a process, be it as new ones or as they were remembered. Main
/// thread only.
class MonitorWindowKinds {
 public:
  /// No more than so many of both kinds together are opened.
  static constexpr int kMostOpenWindows = 200;

  virtual ~MonitorWindowKinds() = default;

  /// `interval` in milliseconds. Without `uuid` the window is a new one, which is remembered from
  /// now on; without `rect` it goes where new ones go.
  virtual void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                                      const WindowRect* rect) = 0;
  /// The same; `prefsIndex` is the remembered window's element, -1 for none.
  virtual void CreateLoggingWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                                   const WindowRect* rect, std::int32_t prefsIndex) = 0;
  /// How many there are of both kinds at present.
  virtual int CountOpenWindows() const = 0;
  /// Whether the window of that identifier is open for a process that has not ended. A log whose
  /// process has ended stays on the screen, and goes on with the next one when it is created again.
  virtual bool IsCPUHistoryWindowOpen(const Uuid& uuid) const = 0;
  virtual bool IsLoggingWindowOpen(const Uuid& uuid) const = 0;
  /// Tells the windows of a process that it has ended: they hear of it at their own intervals only,
  /// and its program, or its pid, may be back before that.
  virtual void ProcessHasEnded(std::int32_t pid) = 0;
};

/// Shows the windows that are there from the start.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;
  virtual void doShowMainWindow() = 0;
  virtual void doShowQuintessentialView() = 0;
  virtual void showQuintessentialViewFullScreen() = 0;
};

}  // namespace lurkwell
