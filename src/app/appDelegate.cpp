#include "app/appDelegate.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QProcess>
#include <algorithm>
#include <cstdlib>
#include <variant>

#include "alerts_window/AlertTexts.h"
#include "animated_view/FlowControlFSMMgr.h"
#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialWindows.h"
#include "animated_view/flowcontrolfsm.h"
#include "app/SplashScreen.h"
#include "app/TrayIcon.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/PI_Consolidator.h"
#include "fleet_window/FleetWindow.h"
#include "fleet_window/OpenFleetDialog.h"
#include "machine_window/MachineWindow.h"
#include "main_window/VQTarvMainWindowInfoSynch.h"
#include "monitor_windows/CPUHistoryWindow.h"
#include "monitor_windows/ClassicWatchdog.h"
#include "monitor_windows/FloatingWindow.h"
#include "monitor_windows/ProcessWatchdog.h"
#include "monitor_windows/RememberedWindows.h"
#include "monitor_windows/SystemWideInfo.h"
#include "platform/Alerts.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "platform/Screen.h"
#include "platform/Tools.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "preferences_window/PreferencesUI.h"
#include "recording/Recording.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"

namespace lurkwell {

vqAppDelegate* gAppDelegate = nullptr;

namespace {
/// The windows come first: they can do without the helper.
constexpr double kHelperStartSeconds = 0.1;
/// The watchdog looks at the processes sooner.
constexpr double kFirstLookSeconds = 2.0;
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
      mFollowingWindows(TheMachine().logFiles,
                        {&CreateCPUHistoryWindow, &ListCPUHistoryWindows, &IsCPUHistoryWindowOpen,
                         &CPUHistoryProcessHasEnded, &RememberCPUHistoryPlaces}),
      mDetailsWindows([this](QMenu& menu, ProcessIdentity process, const auto& report) {
        fMainWindow->FillProcessMenu(menu, process, report);
      }) {}

vqAppDelegate::~vqAppDelegate() {
  SetWayBack(nullptr);
  fQuintessentialWindows.reset();
  fMainWindow.reset();
  if (gAppDelegate == this) gAppDelegate = nullptr;
}

void vqAppDelegate::init() {
  InitializeProcessInformationConsolidator();
  gAppDelegate = this;
  qApp->installEventFilter(this);
  fMainWindow = std::make_unique<MainWindow>(*this);
  fMainWindow->controller().processCommands().SetMonitorWindows(&mFollowingWindows);
  fMainWindow->controller().processCommands().SetProcessWindows(&mDetailsWindows);
  SetWayBack([this] { doShowMainWindow(); });
  fQuintessentialWindows = std::make_unique<QuintessentialWindows>(ViewCommands{
      [this] { doShowQuintessentialView(); }, [this] { doToggleQuintessentialViewFullScreen(); },
      [this] { doShowMainWindow(); }, [this] { doQuit(); },
      [this] {
        if (!IsAnythingVisibleBut(nullptr)) doQuit();
      },
      [this] { return IsWidgetVisibleBut(nullptr); },
      [this](std::int32_t pid, const QPoint& place, bool wantsMenu) {
        fMainWindow->ChooseProcess(pid, place, wantsMenu);
      }});
  connect(&fMainWindow->controller(), &vqMainTableController::contentsChanged, this, [this] {
    // Nobody sees what is selected in a window that is not there.
    const auto& main = *fMainWindow;
    fQuintessentialWindows->SetMarked(main.isVisible() ? fMainWindow->controller().selectedPids()
                                                       : std::vector<std::int32_t>());
  });
}

void vqAppDelegate::applicationDidFinishLaunching() {
  if (!SystemHasNecessaryTools()) {
    TheMachine().alerts.RunAlertPanel(LocalizedString("darwin_tools_not_found").toStdString(), " ",
                                      LocalizedString("alert_ok").toStdString(), "", "");
    std::exit(-1);
  }
  mIsRunning = true;
  CreateFlowControlFSMMgr();
  if (mLaunch != Launch::kOfRecording)
    mHelperStart = TheMachine().runLoop.AddTimer(
        TheMachine().clock.AbsoluteTime() + kHelperStartSeconds, 0.0, [] { LaunchHelperDaemon(); });
  if (mLaunch == Launch::kUsual) {
    ClassicPSNSetupProcessExtractionAppleEvent();
    TurnOnClassicNub();
  }
  if (mLaunch == Launch::kUsual) StartAlerts();
  if (mLaunch == Launch::kUsual) OpenFirstWindows();
  if (mLaunch == Launch::kUsual) {
    QubsDebugging();
    fMainWindow->ShowHint();
    ShowSplashScreenAtStart();
    SetUpHotKey();
  } else {
    gHaveShownSplashScreen = true;
  }
  mHasLaunched = true;
}

void vqAppDelegate::OpenFirstWindows() {
  if (ReadSwitch("MACHINE_HISTORY_ALWAYS")) MachineRecorder::Running();
  if (ReadSwitch("TRAY_ICON"))
    mTrayIcon = std::make_unique<TrayIcon>(*this, [this](std::int32_t pid) { ShowInTable(pid); });
  if (MachineWindow::WasOpen()) doShowMachineWindow();
  if (AlertsWindow::WasOpen()) doShowAlerts();
  InitializeProcessWatchdog(ReadInt("DEFAULT_WATCHDOG_INTERVAL"), mFollowingWindows, *this);
  // A start that shows nothing would leave a program that nobody can reach.
  if (IsAnythingVisibleBut(nullptr)) return;
  const bool remembersAny =
      GetPrefArrayCount(kCPUHistoryWindowKind) > 0 || GetPrefArrayCount(kLoggingWindowKind) > 0;
  if (!remembersAny) return ShowSomething();
  mFirstLook = TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime() + kFirstLookSeconds,
                                             0.0, [this] { ShowSomething(); });
}

void vqAppDelegate::ShowSomething() {
  if (!IsAnythingVisibleBut(nullptr)) doShowMainWindow();
}

void QubsDebugging() {
  if (!ReadSwitch(kDebuggingKey)) return;
  CreateSystemWideInfo(ReadInt("QUBS_DEBUGGING_SWI_INTERVAL"));
}

void QubsDebuggingCleanup() {
  if (ReadSwitch(kDebuggingKey)) CleanupSystemWideInfo();
}

void vqAppDelegate::applicationWillTerminate() {
  if (!std::exchange(mIsRunning, false)) return;
  SetWayBack(nullptr);
  mFirstLook.reset();
  mTrayIcon.reset();
  vqPreferencesUI::closeIfOpen();
  mDetailsWindows.CloseAll();
  if (mLaunch == Launch::kUsual) KeepArrangement();
  delete MachineWindow::IfOpen();
  delete AlertsWindow::IfOpen();
  mNotifier.reset();
  mAlerts.reset();
  FleetWindow::CloseAll();
  gApplicationQuitting = true;
  {
    const PreferenceBatch batch;
    for (const std::int32_t pid : PidBlob())
      ProcessInformationClient::NotifyAllPidHasBeenRemoved(pid, true);
  }
  if (gClassicWatchdog != nullptr) TurnOffClassicNub();
  mHelperStart.reset();
  QuitHelperDaemon();
  QubsDebuggingCleanup();
  mRecording.End();
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyFlowControlFSMMgr();
  fQuintessentialWindows.reset();
  SplashScreen::destroy();
  fMainWindow.reset();
  DestroyProcessInformationConsolidator();
}

void vqAppDelegate::KeepArrangement() {
  const PreferenceBatch batch;
  fMainWindow->SaveFrame();
  fQuintessentialWindows->SaveFrame();
  mFollowingWindows.RememberPlaces();
  if (auto* machine = MachineWindow::IfOpen()) machine->Remember();
  if (auto* alerts = AlertsWindow::IfOpen()) alerts->Remember();
}

void vqAppDelegate::displayWasLost() {
  if (!std::exchange(mIsRunning, false)) return;
  gApplicationQuitting = true;
  if (mLaunch == Launch::kUsual) {
    const PreferenceBatch batch;
    KeepArrangement();
    fMainWindow->controller().saveColumnPrefs();
  }
  if (gClassicWatchdog != nullptr) TurnOffClassicNub();
  mHelperStart.reset();
  QuitHelperDaemon();
}

void vqAppDelegate::doThePrefs() {
  vqPreferencesUI::runWithTab(vqPreferencesUI::kRememberedTab);
}

void vqAppDelegate::doAboutPanel() {
  ShowSplashScreen();
}

void vqAppDelegate::doShowMainWindow() {
  BringToFront(*fMainWindow);
}

void vqAppDelegate::doShowAddress(const QString& address) {
  doShowMainWindow();
  fMainWindow->ShowAddress(address);
}

void vqAppDelegate::doRecord() {
  if (mLaunch == Launch::kOfRecording)
    return Complain("record_failed", LocalizedString("replay_no_actions").toStdString());
  mRecording.Toggle(fMainWindow.get());
}

void vqAppDelegate::doOpenRecording() {
  auto* dialog = new QFileDialog(fMainWindow.get(), LocalizedString("replay_open_title"),
                                 QDir::homePath(), LocalizedString("record_filter"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setFileMode(QFileDialog::ExistingFile);
  connect(dialog, &QFileDialog::fileSelected, this, &vqAppDelegate::OpenRecording);
  dialog->open();
}

void vqAppDelegate::doOpenFleet() {
  auto* dialog = new OpenFleetDialog(fMainWindow.get());
  connect(dialog, &OpenFleetDialog::chosen, this,
          [](const QUrl& address) { FleetWindow::Open(address); });
  dialog->open();
}

/// In a program of its own: there is one machine in each.
void vqAppDelegate::OpenRecording(const QString& path) {
  const auto file = QFile::encodeName(path).toStdString();
  const auto opened = Recording::Open(file);
  if (const auto* words = std::get_if<std::string>(&opened))
    return Complain("replay_failed", *words);
  // With this program's environment, which has the display.
  const auto program = QCoreApplication::applicationFilePath();
  if (!QProcess::startDetached(program, {QStringLiteral("--replay"), path}))
    Complain("replay_failed", QFile::encodeName(program).toStdString());
}

void vqAppDelegate::Complain(const char* title, const std::string& words) {
  AlertText text;
  text.title = LocalizedString(title).toStdString();
  text.message = words;
  text.otherButton = LocalizedString("alert_ok").toStdString();
  mComplaint = TheMachine().alerts.Ask(text, [](AlertAnswer) {});
}

void vqAppDelegate::CheckGraphicsOnce() {
  constexpr char kCheckedKey[] = "QUIVA_CHECK_QUARTZ_EXTREME";
  if (ReadSwitch(kCheckedKey)) return;
  // A question takes the keyboard; there will be another time.
  if (TheMachine().screen.IsKeyboardElsewhere()) return;
  StoreInt(kCheckedKey, 1);
  // A question asked inside a timer would hold all others up.
  QMetaObject::invokeMethod(
      this,
      [] {
        if (TheMachine().screen.UsesOpenGLAcceleration()) return;
        TheMachine().alerts.RunAlertPanel(LocalizedString("no_quartz_extreme").toStdString(), " ",
                                          LocalizedString("alert_ok").toStdString(), "", "");
      },
      Qt::QueuedConnection);
}

void vqAppDelegate::doShowQuintessentialView() {
  CheckGraphicsOnce();
  fQuintessentialWindows->ShowCurrentWindow();
}

bool vqAppDelegate::ShowInTable(std::int32_t pid) {
  doShowMainWindow();
  return VQTarvMainWindowInfoSynch::SelectPID(pid);
}

void vqAppDelegate::doShowMachineWindow() {
  MachineWindow::Open([this](std::int32_t pid) { return ShowInTable(pid); });
}

void vqAppDelegate::StartAlerts() {
  if (mAlerts != nullptr) return;
  const bool isForPicture = mLaunch != Launch::kUsual;
  mAlerts = std::make_unique<AlertCentre>(isForPicture ? AlertCentre::Duty::kWatch
                                                       : AlertCentre::Duty::kAll);
  if (isForPicture) return;
  mNotifier = std::make_unique<AlertNotifier>(
      *mAlerts, [this](const AlertOccurrence& occurrence) { ShowAlert(occurrence); });
}

void vqAppDelegate::doShowAlerts() {
  if (mLaunch == Launch::kOfRecording)
    return Complain("alerts_title", LocalizedString("alerts_not_of_recordings").toStdString());
  StartAlerts();
  AlertsWindow::Open(*mAlerts, {[this](std::int32_t pid) { return ShowInTable(pid); },
                                [this] {
                                  return mNotifier != nullptr
                                             ? QString::fromStdString(mNotifier->Problem())
                                             : QString();
                                }});
}

void vqAppDelegate::doAlertAbout(std::int32_t pid) {
  const auto rule = ProposedAlertRule(pid);
  doShowAlerts();
  if (auto* window = AlertsWindow::IfOpen(); window != nullptr && !rule.isEmpty())
    window->AskForRule(rule);
}

void vqAppDelegate::ShowAlert(const AlertOccurrence& occurrence) {
  const auto& process = occurrence.subject.process;
  const bool isThere =
      process.pid != kInvalidPID && GetPidsStartStamp(process.pid) == process.startStamp;
  if (isThere && ShowInTable(process.pid)) return;
  doShowAlerts();
  if (auto* window = AlertsWindow::IfOpen()) window->ShowProcessOf(occurrence);
}

void vqAppDelegate::showQuintessentialViewFullScreen() {
  doToggleQuintessentialViewFullScreen();
}

void vqAppDelegate::doToggleQuintessentialViewFullScreen() {
  ToggleQuintessentialFullScreen();
}

bool vqAppDelegate::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Close && object->isWidgetType())
    OnceNothingIsVisible(&vqAppDelegate::doQuit);
  if (event->type() == QEvent::Hide && qobject_cast<FloatingWindow*>(object) != nullptr)
    OnceNothingIsVisible(&vqAppDelegate::ComeBack);
  if (event->type() != QEvent::Quit) return false;
  doQuit();
  return true;
}

void vqAppDelegate::OnceNothingIsVisible(void (vqAppDelegate::*then)()) {
  if (!isRunning()) return;
  // Not before the window has gone.
  QMetaObject::invokeMethod(
      this,
      [this, then] {
        if (isRunning() && !mIsQuitting && !IsAnythingVisibleBut(nullptr)) (this->*then)();
      },
      Qt::QueuedConnection);
}

void vqAppDelegate::ComeBack() {
  // Unasked, it takes the keyboard from no other program.
  const bool isActive = QGuiApplication::applicationState() == Qt::ApplicationActive;
  fMainWindow->setAttribute(Qt::WA_ShowWithoutActivating, !isActive);
  fMainWindow->show();
  fMainWindow->setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void vqAppDelegate::doQuit() {
  mIsQuitting = true;
  TheMachine().runLoop.Stop();
}

bool vqAppDelegate::isLastWindow(const QWidget& window) const {
  return !IsAnythingVisibleBut(&window);
}

bool vqAppDelegate::IsAnythingVisibleBut(const QWidget* window) const {
  // Between window and overlay there is neither.
  if (gFCFSMMgr != nullptr && gFCFSMMgr->IsBusy()) return true;
  if (mTrayIcon != nullptr && mTrayIcon->IsSeen()) return true;
  return fQuintessentialWindows->IsAnyVisible() || IsWidgetVisibleBut(window);
}

bool vqAppDelegate::IsWidgetVisibleBut(const QWidget* window) const {
  const auto* forDebugging = gSystemWideInfo != nullptr ? gSystemWideInfo->Window() : nullptr;
  return std::ranges::any_of(QApplication::topLevelWidgets(), [&](const QWidget* other) {
    return other != window && other->isVisible() && other != SplashScreen::window() &&
           static_cast<const QWidget*>(other) != forDebugging && other->windowType() != Qt::Popup;
  });
}

}  // namespace lurkwell
