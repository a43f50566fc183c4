#pragma once

#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <vector>

#include "monitor_windows/RememberedWindows.h"
#include "platform/LogFiles.h"
#include "platform/Uuid.h"
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

/// The remembered histories and logs, whether their programs run or not, to be forgotten. It looks
/// again every second while it is open. Deletes itself when it is closed. Main thread only.
class RememberedWindowsPanel final : public QDialog {
  Q_OBJECT

 public:
  /// Shows the panel, a new one or the one that is open.
  static void ShowFor(QWidget* parent);

  explicit RememberedWindowsPanel(QWidget* parent);

  QTreeWidget* List() const { return mList; }
  /// Forgets the selected ones. A window that is open stays so until it is closed.
  void ForgetSelected();

 private:
  void Fill();
  void Validate();

  static QPointer<RememberedWindowsPanel> sPanel;

  QTreeWidget* mList;
  QPushButton* mForget;
  QTimer mTimer;
};

}  // namespace lurkwell
