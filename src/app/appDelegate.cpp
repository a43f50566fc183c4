#include "app/appDelegate.h"

#include <QApplication>
#include <algorithm>
#include <cstdlib>

#include "animated_view/FlowControlFSMMgr.h"
#include "animated_view/HotKey.h"
#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/flowcontrolfsm.h"
#include "app/SplashScreen.h"
#include "consolidator/PI_Consolidator.h"
#include "monitor_windows/CPUHistoryWindow.h"
#include "monitor_windows/ProcessWatchdog.h"
#include "monitor_windows/SystemWideInfo.h"
#include "platform/Alerts.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "platform/Screen.h"
#include "platform/Tools.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/PreferencesRetrieval.h"
#include "preferences_window/PreferencesUI.h"
#include "process_control/DaemonCommunication.h"
#include "resources/Resources.h"

namespace lurkwell {

vqAppDelegate* gAppDelegate = nullptr;

namespace {
constexpr char kDebuggingKey[] = "QUBS_DEBUGGING_AND_TESTING";
}  // namespace

bool ToolExists(const std::string& path) {
  const int statRes = TheMachine().tools.Stat(path);
  Require(statRes == 0 || statRes == -1, "appDelegate", "statRes == -1");
  return statRes == 0;
}

bool SystemHasNecessaryTools() {
  return ToolExists("/bin/ps") && ToolExists("/bin/kill") && ToolExists("/usr/bin/renice");
}

vqAppDelegate::vqAppDelegate(Launch launch)
    : mLaunch(launch),
      mFollowingWindows(
          TheMachine().logFiles,
          {&CreateCPUHistoryWindow, &CountOpenCPUHistoryWindows, &RememberCPUHistoryPlaces}) {}

vqAppDelegate::~vqAppDelegate() {
  fQuintessentialWindows.reset();
  fMainWindow.reset();
  if (gAppDelegate == this) gAppDelegate = nullptr;
}

void vqAppDelegate::init() {
  InitializeProcessInformationConsolidator();
  gAppDelegate = this;
  qApp->installEventFilter(this);
  fMainWindow = std::make_unique<MainWindow>(*this);
  fMainWindow->controller().setMonitorWindows(&mFollowingWindows);
  fQuintessentialWindows = std::make_unique<QuintessentialWindows>(ViewCommands{
      [this] { doShowQuintessentialView(); }, [this] { doToggleQuintessentialViewFullScreen(); },
      [this] { doShowMainWindow(); }, [this] { doQuit(); },
      [this] {
        if (!IsAnythingVisibleBut(nullptr)) doQuit();
      }});
}

void vqAppDelegate::applicationDidFinishLaunching() {
  if (!SystemHasNecessaryTools()) {
    TheMachine().alerts.RunAlertPanel(LocalizedString("darwin_tools_not_found").toStdString(), " ",
                                      "OK", "", "");
    std::exit(-1);
  }
  mIsRunning = true;
  CreateFlowControlFSMMgr();
  LaunchHelperDaemon();
  // To come: reports of the Classic environment, its helper.
  if (mLaunch == Launch::kUsual) OpenFirstWindows();
  QubsDebugging();
  if (mLaunch == Launch::kUsual) ShowSplashScreen();
  if (mLaunch == Launch::kUsual) SetUpHotKey();
}

void vqAppDelegate::OpenFirstWindows() {
  InitializeProcessWatchdog(GetPrefInt("DEFAULT_WATCHDOG_INTERVAL", nullptr, true, 500),
                            mFollowingWindows, *this);
  // A start that shows nothing would leave a program that nobody can reach.
  if (!IsAnythingVisibleBut(nullptr)) doShowMainWindow();
}

void QubsDebugging() {
  if (GetPrefInt(kDebuggingKey, nullptr, true, 0) == 0) return;
  CreateSystemWideInfo(GetPrefInt("QUBS_DEBUGGING_SWI_INTERVAL", nullptr, true, 500));
}

void QubsDebuggingCleanup() {
  if (GetPrefInt(kDebuggingKey, nullptr, true, 0) != 0) CleanupSystemWideInfo();
}

void vqAppDelegate::applicationWillTerminate() {
  if (!std::exchange(mIsRunning, false)) return;
  if (fMainWindow != nullptr && mLaunch == Launch::kUsual) fMainWindow->SaveFrame();
  vqPreferencesUI::closeIfOpen();
  fQuintessentialWindows->SaveFrame();
  gApplicationQuitting = true;
  {
    const PreferenceBatch batch;
    for (const std::int32_t pid : PidBlob())
      ProcessInformationClient::NotifyAllPidHasBeenRemoved(pid, true);
  }
  // To come: the Classic helper's end.
  QuitHelperDaemon();
  QubsDebuggingCleanup();
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyFlowControlFSMMgr();
  fQuintessentialWindows.reset();
  SplashScreen::destroy();
  fMainWindow.reset();
  DestroyProcessInformationConsolidator();
}

void vqAppDelegate::doThePrefs() {
  const auto* before = gThePreferencesUI;
  vqPreferencesUI::runWithTab(vqPreferencesUI::kRememberedTab);
  if (gThePreferencesUI == before) return;
  connect(gThePreferencesUI, &vqPreferencesUI::closed, this,
          [this, &window = gThePreferencesUI->window()] {
            if (isLastWindow(window)) doQuit();
          });
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

void vqAppDelegate::CheckGraphicsOnce() {
  constexpr char kCheckedKey[] = "QUIVA_CHECK_QUARTZ_EXTREME";
  if (GetPrefInt(kCheckedKey, nullptr, true, 0) != 0) return;
  SetPrefInt(kCheckedKey, 1);
  if (TheMachine().screen.UsesOpenGLAcceleration()) return;
  TheMachine().alerts.RunAlertPanel(LocalizedString("no_quartz_extreme").toStdString(), " ", "OK",
                                    "", "");
}

void vqAppDelegate::doShowQuintessentialView() {
  CheckGraphicsOnce();
  fQuintessentialWindows->ShowCurrentWindow();
}

void vqAppDelegate::showQuintessentialViewFullScreen() {
  doToggleQuintessentialViewFullScreen();
}

void vqAppDelegate::doToggleQuintessentialViewFullScreen() {
  ToggleQuintessentialFullScreen();
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
  return !IsAnythingVisibleBut(&window);
}

bool vqAppDelegate::IsAnythingVisibleBut(const QWidget* window) const {
  // Between window and overlay there is neither.
  if (gToggleFullscreenInProgress || fQuintessentialWindows->IsAnyVisible()) return true;
  return std::ranges::any_of(QApplication::topLevelWidgets(), [&](const QWidget* other) {
    return other != window && other->isVisible() && other != SplashScreen::window() &&
           other->windowType() != Qt::Popup;
  });
}

}  // namespace lurkwell
