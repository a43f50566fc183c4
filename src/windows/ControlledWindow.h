#pragma once

#include <QWidget>
#include <functional>

namespace lurkwell {

/// A window beside the main one: Ctrl+W closes it, Ctrl+Q asks the application to quit, and closed,
/// it deletes itself. Main thread only.
class ControlledWindow : public QWidget {
 public:
  explicit ControlledWindow(QWidget* parent = nullptr);

  /// Called when the window is being closed, once.
  std::function<void()> willClose;

 protected:
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace lurkwell
