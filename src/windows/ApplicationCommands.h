#pragma once

#include <QString>
#include <cstdint>

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
  virtual void doShowAlerts() {}
  /// Asks for a rule of an alert, to begin with one for what is like this process.
  virtual void doAlertAbout(std::int32_t) {}
  virtual void doToggleQuintessentialViewFullScreen() {}
  /// Begins to record, after asking for a file, or ends it.
  virtual void doRecord() {}
  /// Shows a recording that the user chooses, in another instance.
  virtual void doOpenRecording() {}
  /// Shows the machines that a metrics server knows, after asking for its address.
  virtual void doOpenFleet() {}
  /// What is to be said of a recording that is being made; empty without one.
  virtual QString recordingStatus() const { return {}; }
  virtual void doQuit() = 0;
  /// Whether nothing of the program would be seen without this window; closing it then quits.
  virtual bool isLastWindow(const QWidget& window) const = 0;
};

}  // namespace lurkwell
