#pragma once

#include <QRect>
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

class QWidget;

namespace lurkwell {

/// Opens the windows that follow a process. Main thread.
class MonitorWindows {
 public:
  virtual ~MonitorWindows() = default;
  /// `interval` in milliseconds.
  virtual void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid) = 0;
  virtual void CreateLoggingWindow(std::int32_t interval, std::int32_t pid) = 0;
  /// How many more may be opened.
  virtual int CountRoom() const = 0;

  /// One that is open. The functions do nothing once it is closed.
  struct OpenWindow {
    QString title;
    QRect place;
    std::function<void()> show;
    /// As its user would: it is not remembered any more if its process runs.
    std::function<void()> close;
  };
  virtual std::vector<OpenWindow> OpenWindows() const { return {}; }
  /// Shows what is remembered, to be forgotten or looked for, beside `parent`.
  virtual void ShowRememberedWindows(QWidget* parent) { static_cast<void>(parent); }
};

}  // namespace lurkwell
