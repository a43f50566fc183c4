#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "alerts_window/AlertNotifier.h"
#include "alerts_window/AlertsWindow.h"
#include "animated_view/QuintessentialWindows.h"
#include "app/RecordingSwitch.h"
#include "main_window/MainWindow.h"
#include "monitor_windows/FollowingWindows.h"
#include "process_details/DetailsWindows.h"

namespace lurkwell {

class TrayIcon;

/// Starts the program's parts in their order and ends them in theirs, and serves the commands that
/// concern the application as a whole. One per process; main thread only.
class vqAppDelegate final : public QObject, public ApplicationCommands, public StartUpWindows {
  Q_OBJECT

 public:
  /// How far to start.
  enum class Launch {
    kUsual,
    /// Without the about panel, what the user left open, and figures for debugging: for taking a
    /// picture.
    kForPicture,
    /// The same without the helper, as nothing is done to what has been.
    kOfRecording,
  };

  explicit vqAppDelegate(Launch launch = Launch::kUsual);
  ~vqAppDelegate() override;

  /// Starts the consolidator, before any window can want something of it, and makes the windows.
  void init();

  /// Starts everything else. When a tool of the system is missing, says so and ends the process
  /// with status 255, with nothing started but the consolidator.
  void applicationDidFinishLaunching();

  /// Ends everything. Clients hear that every process is gone before the helper is asked to go, and
  /// go themselves after it.
  void applicationWillTerminate();

  void doThePrefs() override;
  void doAboutPanel() override;
  void doShowMainWindow() override;
  /// Brings the main window to the front, with the process that the address is about.
  void doShowAddress(const QString& address);
  void doQuit() override;
  void doShowQuintessentialView() override;
  void doShowMachineWindow() override;
  void doShowAlerts() override;
  void doAlertAbout(std::int32_t pid) override;
  void showQuintessentialViewFullScreen() override;
  void doToggleQuintessentialViewFullScreen() override;
  void doRecord() override;
  void doOpenRecording() override;
  void doOpenFleet() override;
  QString recordingStatus() const override { return mRecording.Status(); }
  bool isLastWindow(const QWidget& window) const override;

  /// From the end of the launch to the beginning of the end.
  bool isRunning() const { return mHasLaunched && mIsRunning; }

  /// The toolkit ends the process when it loses the display: keeps what the user arranged and sends
  /// the helper away, without the windows, which are gone.
  void displayWasLost();

  RecordingSwitch& recording() { return mRecording; }
  MainWindow& mainWindow() { return *fMainWindow; }
  QuintessentialWindows& quintessentialWindows() { return *fQuintessentialWindows; }
  MonitorWindowKinds& monitorWindows() { return mFollowingWindows; }

  /// The desktop asks programs to quit by an event that would close the windows first, as if the
  /// user had done it. A user who closes the last window quits; when it goes because its process
  /// has ended, the main window comes.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void OpenFirstWindows();
  void ShowSomething();
  void KeepArrangement();
  void OpenRecording(const QString& path);
  void Complain(const char* title, const std::string& words);
  void CheckGraphicsOnce();
  /// Begins to watch.
  void StartAlerts();
  void ShowAlert(const AlertOccurrence& occurrence);
  bool ShowInTable(std::int32_t pid);
  void OnceNothingIsVisible(void (vqAppDelegate::*then)());
  void ComeBack();
  bool IsAnythingVisibleBut(const QWidget* window) const;
  bool IsWidgetVisibleBut(const QWidget* window) const;

  Launch mLaunch;
  /// Null where nobody wants one.
  std::unique_ptr<TrayIcon> mTrayIcon;
  bool mIsRunning = false;
  bool mHasLaunched = false;
  bool mIsQuitting = false;
  /// Until the watchdog has brought back what it remembers.
  std::unique_ptr<RunLoopTimer> mHelperStart;
  std::unique_ptr<RunLoopTimer> mFirstLook;
  /// Serves the main window and the watchdog, which go before it.
  FollowingWindows mFollowingWindows;
  DetailsWindows mDetailsWindows;
  RecordingSwitch mRecording;
  std::unique_ptr<AlertCentre> mAlerts;
  /// Knows the centre.
  std::unique_ptr<AlertNotifier> mNotifier;
  std::unique_ptr<Alert> mComplaint;
  std::unique_ptr<MainWindow> fMainWindow;
  std::unique_ptr<QuintessentialWindows> fQuintessentialWindows;
};

extern vqAppDelegate* gAppDelegate;

/// Whether the programs that Lurkwell runs beside itself are there: /bin/ps, /bin/kill,
/// /usr/bin/renice.
bool SystemHasNecessaryTools();
bool ToolExists(const std::string& path);

/// The window with figures for debugging, for those whose preferences want it.
void QubsDebugging();
void QubsDebuggingCleanup();

}  // namespace lurkwell
