#pragma once

class QWidget;

namespace lurkwell {

/// What windows ask of the application as a whole. Main thread.
class ApplicationCommands {
 public:
  virtual ~ApplicationCommands() = default;
  virtual void doThePrefs() = 0;
  virtual void doAboutPanel() = 0;
  virtual void doShowMainWindow() = 0;
  virtual void doShowQuintessentialView() {}
  virtual void doShowMachineWindow() {}
  virtual void doToggleQuintessentialViewFullScreen() {}
  virtual void doQuit() = 0;
  /// Whether nothing of the program would be seen without this window; closing it then quits.
  virtual bool isLastWindow(const QWidget& window) const = 0;
};

}  // namespace lurkwell
