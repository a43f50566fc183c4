#include "app/appDelegate.h"

#include <QApplication>
#include <algorithm>
#include <cstdlib>

#include "app/SplashScreen.h"
#include "consolidator/PI_Consolidator.h"
#include "main_window/Preferences.h"
#include "platform/Alerts.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "platform/Tools.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/DaemonCommunication.h"
#include "resources/Resources.h"

namespace lurkwell {

vqAppDelegate* gAppDelegate = nullptr;

bool ToolExists(const std::string& path) {
  const int statRes = TheMachine().tools.Stat(path);
  Require(statRes == 0 || statRes == -1, "appDelegate", "statRes == -1");
  return statRes == 0;
}

bool SystemHasNecessaryTools() {
  return ToolExists("/bin/ps") && ToolExists("/bin/kill") && ToolExists("/usr/bin/renice");
}

vqAppDelegate::vqAppDelegate(Launch launch) : mLaunch(launch) {}

vqAppDelegate::~vqAppDelegate() {
  fMainWindow.reset();
  if (gAppDelegate == this) gAppDelegate = nullptr;
}

void vqAppDelegate::init() {
  InitializeProcessInformationConsolidator();
  gAppDelegate = this;
  qApp->installEventFilter(this);
  fMainWindow = std::make_unique<MainWindow>(*this);
  // A picture needs no place on the screen, and is no use that the user makes of the window.
  fMainWindow->setAttribute(Qt::WA_DontShowOnScreen, mLaunch == Launch::kForPicture);
}

void vqAppDelegate::applicationDidFinishLaunching() {
  if (!SystemHasNecessaryTools()) {
    TheMachine().alerts.RunAlertPanel(LocalizedString("darwin_tools_not_found").toStdString(), " ",
                                      "OK", "", "");
    std::exit(-1);
  }
  mIsRunning = true;
  // To come, in this place: the state machines of the animated view.
  LaunchHelperDaemon();
  // To come: reports of the Classic environment, its helper, the watchdog of remembered windows.
  if (mLaunch == Launch::kUsual) ReopenWindows();
  // To come: the client for debugging.
  if (mLaunch == Launch::kUsual) ShowSplashScreen();
  // To come: the hot key.
}

void vqAppDelegate::ReopenWindows() {
  const bool remembered = GetPrefInt(kShowProcessListKey, nullptr, true, 1) != 0;
  const auto windows = QApplication::topLevelWidgets();
  const bool anyVisible =
      std::ranges::any_of(windows, [](const auto* window) { return window->isVisible(); });
  // A start that shows nothing would leave a program that nobody can reach.
  if (remembered || !anyVisible) doShowMainWindow();
}

void vqAppDelegate::applicationWillTerminate() {
  if (!std::exchange(mIsRunning, false)) return;
  if (fMainWindow != nullptr && mLaunch == Launch::kUsual) fMainWindow->SaveFrame();
  gApplicationQuitting = true;
  for (const std::int32_t pid : PidBlob())
    ProcessInformationClient::NotifyAllPidHasBeenRemoved(pid, true);
  // To come: the Classic helper's end.
  QuitHelperDaemon();
  // To come: the end of the client for debugging.
  ProcessInformationClient::DeleteAllProcessInformationClients();
  // To come: the end of the state machines.
  SplashScreen::destroy();
  fMainWindow.reset();
  DestroyProcessInformationConsolidator();
}

void vqAppDelegate::doThePrefs() {
  Q_EMIT fMainWindow->controller().notYetAvailable();
}

void vqAppDelegate::doAboutPanel() {
  ShowSplashScreen();
}

void vqAppDelegate::doShowMainWindow() {
  fMainWindow->setWindowState(fMainWindow->windowState() & ~Qt::WindowMinimized);
  fMainWindow->show();
  fMainWindow->raise();
  fMainWindow->activateWindow();
}

bool vqAppDelegate::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Quit) return false;
  doQuit();
  return true;
}

void vqAppDelegate::doQuit() {
  TheMachine().runLoop.Stop();
}

bool vqAppDelegate::isLastWindow(const QWidget& window) const {
  return std::ranges::none_of(QApplication::topLevelWidgets(), [&](const QWidget* other) {
    return other != &window && other->isVisible() && other != SplashScreen::window() &&
           other->windowType() != Qt::Popup;
  });
}

}  // namespace lurkwell
