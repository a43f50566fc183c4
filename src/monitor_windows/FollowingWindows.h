#pragma once

#include <functional>
#include <vector>

#include "monitor_windows/MonitorWindowKinds.h"
#include "platform/LogFiles.h"
#include "windows/MonitorWindows.h"

namespace lurkwell {

/// The windows that follow a process, as the main table and the watchdog open them. Main thread
/// only.
class FollowingWindows final : public MonitorWindows, public MonitorWindowKinds {
 public:
  /// CPU history windows, which are made elsewhere.
  struct Histories {
    /// As MonitorWindowKinds::CreateCPUHistoryWindow.
    std::function<void(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                       const WindowRect* rect)>
        create;
    /// Those for processes that have not ended.
    std::function<std::vector<OpenWindow>()> list;
    std::function<bool(const Uuid& uuid)> isOpen;
    std::function<void(std::int32_t pid)> processHasEnded;
    std::function<void()> rememberPlaces;
  };

  /// `logFiles` outlives this.
  FollowingWindows(LogFiles& logFiles, Histories histories);

  void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid) override;
  void CreateLoggingWindow(std::int32_t interval, std::int32_t pid) override;

  void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                              const WindowRect* rect) override;
  void CreateLoggingWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                           const WindowRect* rect, std::int32_t prefsIndex) override;
  int CountOpenWindows() const override;
  int CountRoom() const override;
  bool IsCPUHistoryWindowOpen(const Uuid& uuid) const override;
  bool IsLoggingWindowOpen(const Uuid& uuid) const override;
  void ProcessHasEnded(std::int32_t pid) override;
  std::vector<OpenWindow> OpenWindows() const override;
  void ShowRememberedWindows(QWidget* parent) override;
  /// Writes the places of windows that were moved.
  void RememberPlaces();

 private:
  /// A remembered place, so that the window covers none of `others`: those of its kind, since a
  /// history that lies on its log was put there by the user.
  static WindowRect Apart(const WindowRect& rect, const std::vector<OpenWindow>& others);
  static std::vector<OpenWindow> OpenLogs();

  LogFiles& mLogFiles;
  Histories mHistories;
};

}  // namespace lurkwell
