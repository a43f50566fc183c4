// Start-up and shutdown in their order, on a simulated machine.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "alerts_window/AlertsWindow.h"
#include "animated_view/FlowControlFSMMgr.h"
#include "app/SplashScreen.h"
#include "app/TrayIcon.h"
#include "app/WindowMode.h"
#include "app/appDelegate.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/PI_Consolidator.h"
#include "machine_window/MachineWindow.h"
#include "monitor_windows/ClassicWatchdog.h"
#include "monitor_windows/FloatingWindow.h"
#include "monitor_windows/SystemWideInfo.h"
#include "platform/ApplicationQuitting.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/PreferencesRetrieval.h"
#include "preferences_window/PreferencesUI.h"
#include "recording/Recording.h"
#include "resources/Resources.h"
#include "support/RecordingClient.h"
#include "support/TemporaryFolder.h"
#include "windows/FigureHistory.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace lurkwell {
namespace {

using Note = std::function<void(const std::string&)>;

/// In what is allocated from now on.
void StopLookingForLeaks() {
#ifdef __SANITIZE_ADDRESS__
  __lsan_disable();
#endif
}

/// Notes what it hears at the end.
class Witness final : private AccessLog, public RecordingClient {
 public:
  explicit Witness(Note note)
      : RecordingClient("client", 1000, static_cast<AccessLog&>(*this)), mNote(std::move(note)) {}
  ~Witness() override { mNote("clients go"); }
  void NotifyPidHasBeenRemoved(int pid) override { mNote("end of " + std::to_string(pid)); }

 private:
  Note mNote;
};

/// Notes each window that comes.
class Doorman final : public QObject {
 public:
  explicit Doorman(Note note) : mNote(std::move(note)) { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow())
      mNote(widget->windowTitle().toStdString() + " comes");
    return false;
  }

 private:
  Note mNote;
};

class ShellTest : public testing::Test {
 protected:
  ShellTest() {
    gApplicationQuitting = false;
    machine.namedPipes.SetHelper(
        [this](std::string_view request) { return machine.helper.Answer(request); });
    machine.helper.SetRecordsFigures(false);
  }

  void Launch() {
    delegate = std::make_unique<vqAppDelegate>();
    delegate->init();
    delegate->applicationDidFinishLaunching();
    Pass(0);
  }

  void Pass(std::int64_t milliseconds) {
    machine.runLoop.RunFor(milliseconds);
    QApplication::processEvents();
  }

  bool MainWindowIsVisible() { return delegate->mainWindow().isVisible(); }
  bool SplashIsVisible() {
    return SplashScreen::window() != nullptr && SplashScreen::window()->isVisible();
  }
  /// Notes what happens, and what there is of the program at that moment.
  void Tell(const std::string& what) {
    const bool hasKeys = std::ranges::any_of(
        machine.log.Lines(), [](const std::string& line) { return line.starts_with("HotKeys"); });
    const std::pair<bool, const char*> parts[] = {
        {gFCFSMMgr != nullptr, "machines"},
        {gClassicWatchdog != nullptr, "nub"},
        {gSystemWideInfo != nullptr, "debugging"},
        {SplashScreen::window() != nullptr, "panel"},
        {hasKeys, "keys"},
        {gFd_a2d >= 0, "helper"},
        {gThePreferencesUI != nullptr, "preferences"},
        {machine.preferenceDomain.Values().contains("MAIN_WINDOW_FRAME"), "frame"},
        {gApplicationQuitting, "quitting"}};
    std::string text = what + ':';
    for (const auto& [isThere, name] : parts)
      if (isThere) text += std::string(" ") + name;
    told.Add(text);
  }
  static int Remembered() {
    return GetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", nullptr, false, -1);
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  AccessLog told;
  std::unique_ptr<vqAppDelegate> delegate;
};

TEST_F(ShellTest, StartsAndEndsInOrder) {
  machine.processTable.Birth(300, "p");
  SetPrefInt("QUBS_DEBUGGING_AND_TESTING", 1);
  const auto note = [this](const std::string& what) { Tell(what); };
  {
    const Doorman doorman(note);
    Launch();
  }
  EXPECT_EQ(told.Take(),
            "Processes comes: machines nub\nSystem Info comes: machines nub\n"
            "About Lurkwell comes: machines nub debugging panel\n");
  Tell("start");
  EXPECT_EQ(delegate->mainWindow().controller().rowCount(), 3) << "filled at once";
  Pass(100);
  Tell("a moment later");
  EXPECT_EQ(told.Take(),
            "start: machines nub debugging panel keys\n"
            "a moment later: machines nub debugging panel keys helper\n");
  const auto& lines = machine.log.Lines();
  std::string checks;
  for (const auto& line : lines)
    if (line.starts_with("Tools.Stat ")) checks += line.substr(11) + ' ';
  EXPECT_EQ(checks, "/bin/ps /bin/kill /usr/bin/renice ");

  delegate->doThePrefs();
  AddProcessInformationClient(new Witness(note));
  QObject::connect(SplashScreen::window(), &QObject::destroyed, [&] { Tell("panel goes"); });
  QObject::connect(&delegate->mainWindow(), &QObject::destroyed, [&] { Tell("main window goes"); });
  RemovePref("MAIN_WINDOW_FRAME");
  told.Clear();
  Tell("before");
  delegate->applicationWillTerminate();
  EXPECT_EQ(told.Take(),
            "before: machines nub debugging panel keys helper preferences\n"
            "end of 300: machines nub debugging panel keys helper frame quitting\n"
            "end of 1: machines nub debugging panel keys helper frame quitting\n"
            "end of 0: machines nub debugging panel keys helper frame quitting\n"
            "clients go: machines panel keys frame quitting\n"
            "panel goes: panel keys frame quitting\nmain window goes: keys frame quitting\n");
  EXPECT_EQ(Remembered(), 1);
  EXPECT_GT(GetPrefArrayCount("MAIN_WINDOW_COLUMNS"), 6);
  EXPECT_TRUE(IsPrefArrayValuePresent("MAIN_WINDOW_COLUMNS", 0, "COLUMN_WIDTH"));
  delegate->applicationWillTerminate();
}

TEST_F(ShellTest, ARememberedAlertLeadsToItsProcess) {
  machine.processTable.Birth(300, "p");
  SetPrefArrayString("ALERT_RULES", 0, "RULE", "name=p for 30s");
  Launch();
  Pass(20'000);
  EXPECT_EQ(machine.notifications.Count(), 0u);
  delegate->mainWindow().hide();
  Pass(20'000);
  ASSERT_EQ(machine.notifications.Count(), 1u);
  machine.notifications.Choose("alert-1");
  EXPECT_TRUE(MainWindowIsVisible());
  EXPECT_EQ(delegate->mainWindow().controller().selectedPids(), std::vector<std::int32_t>{300});
  EXPECT_EQ(AlertsWindow::IfOpen(), nullptr);
  // Once it has ended, the window for alerts says so.
  machine.processTable.Death(300);
  Pass(10'000);
  machine.notifications.Choose("alert-1");
  ASSERT_NE(AlertsWindow::IfOpen(), nullptr);
  bool isSaid = false;
  for (const auto* label : AlertsWindow::IfOpen()->findChildren<QLabel*>())
    isSaid = isSaid || label->text().contains(QLatin1String("p (300) has ended."));
  EXPECT_TRUE(isSaid);
  delegate->doAlertAbout(1);
  EXPECT_NE(AlertsWindow::IfOpen()->findChild<QDialog*>(), nullptr);
  delegate->applicationWillTerminate();
  EXPECT_EQ(AlertsWindow::IfOpen(), nullptr);
  // It comes back with the next start.
  gApplicationQuitting = false;
  Launch();
  EXPECT_NE(AlertsWindow::IfOpen(), nullptr);
  delegate->applicationWillTerminate();
  // Nobody is left to be told.
  machine.notifications.Choose("alert-1");
}

TEST_F(ShellTest, ThePanelComesByItselfOnceForAVersionOrWhereItIsWanted) {
  const auto restart = [this] {
    delegate->applicationWillTerminate();
    gApplicationQuitting = false;
    Launch();
  };
  Launch();
  ASSERT_TRUE(SplashIsVisible());
  QString said;
  for (const auto* label : SplashScreen::window()->findChildren<QLabel*>()) said += label->text();
  EXPECT_TRUE(said.contains(QLatin1String("Lurkwell"))) << said.toStdString();
  EXPECT_TRUE(said.contains(QLatin1String(LURKWELL_VERSION))) << said.toStdString();
  // Three seconds, whatever is clicked.
  QTest::mouseClick(SplashScreen::window(), Qt::LeftButton);
  Pass(2900);
  EXPECT_TRUE(SplashIsVisible());
  Pass(200);
  EXPECT_FALSE(SplashIsVisible());
  restart();
  EXPECT_FALSE(SplashIsVisible());
  // Asked for, it stays until it is clicked.
  delegate->doAboutPanel();
  Pass(20'000);
  EXPECT_TRUE(SplashIsVisible());
  QTest::mouseClick(SplashScreen::window(), Qt::LeftButton);
  EXPECT_FALSE(SplashIsVisible());
  machine.preferenceDomain.SetValue("ABOUT_PANEL_SEEN_VERSION", std::string("0.0.1"));
  restart();
  EXPECT_TRUE(SplashIsVisible()) << "a new version";
  SetPrefInt("ABOUT_PANEL_AT_EVERY_START", 1);
  for (int start = 0; start < 2; ++start) {
    restart();
    EXPECT_TRUE(SplashIsVisible()) << "wanted";
  }
  delegate->applicationWillTerminate();
}

TEST_F(ShellTest, TheProcessesAreRecordedWhileTheWindowsAreThere) {
  Launch();
  Pass(3000);
  const TemporaryFolder folder;
  const auto file = QString::fromStdString(folder / "day.lwr");
  auto& recording = delegate->recording();
  const auto isSaid = [this](const char* text) {
    const auto labels = delegate->mainWindow().findChildren<QLabel*>();
    return std::ranges::any_of(labels, [text](const QLabel* label) {
      return label->isVisible() && label->text() == QLatin1String(text);
    });
  };
  recording.Begin(QString::fromStdString(folder.Make("within")));
  EXPECT_NE(machine.log.Take().find("RunAlertPanel \"The processes are not recorded.\""),
            std::string::npos);
  EXPECT_EQ(recording.Status(), QString());
  recording.Begin(file);
  Pass(10'000);
  EXPECT_TRUE(isSaid("Recording to day.lwr"));
  delegate->doRecord();
  Pass(3000);
  EXPECT_FALSE(isSaid("Recording to day.lwr"));
  // The end of the program ends it, too.
  recording.Begin(file);
  Pass(5000);
  delegate->applicationWillTerminate();
  const auto opened = Recording::Open(folder / "day.lwr");
  ASSERT_EQ(opened.index(), 0u);
  const auto& minutes = std::get<0>(opened)->Minutes();
  ASSERT_EQ(minutes.size(), 2u);
  EXPECT_GE(minutes[0].lastSequence, 5u);
}

TEST_F(ShellTest, AtTheSessionsEndTheWindowCountsAsOpen) {
  Launch();
  QWidget other;
  other.show();
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &quit);
  EXPECT_TRUE(MainWindowIsVisible());
  delegate->applicationWillTerminate();
  EXPECT_EQ(Remembered(), 1);
}

TEST_F(ShellTest, AWindowClosedByHandStaysClosedUnlessNothingElseWouldBeSeen) {
  Launch();
  QWidget other;
  other.show();
  delegate->mainWindow().close();
  EXPECT_EQ(Remembered(), 0);
  delegate->applicationWillTerminate();
  gApplicationQuitting = false;
  Launch();
  EXPECT_FALSE(MainWindowIsVisible());
  delegate->doShowMainWindow();
  EXPECT_TRUE(MainWindowIsVisible());
  delegate->mainWindow().close();
  delegate->applicationWillTerminate();
  gApplicationQuitting = false;
  other.hide();
  SplashScreen::destroy();
  Launch();
  EXPECT_TRUE(MainWindowIsVisible()) << "a program without any window could not be reached";
  machine.processTable.Birth(300, "p");
  Pass(2000);
  delegate->monitorWindows().CreateCPUHistoryWindow(250, 300, nullptr, nullptr);
  Pass(500);
  delegate->mainWindow().close();
  Pass(10);
  EXPECT_FALSE(MainWindowIsVisible());
  // The graph's own menu leads back.
  for (auto* graph : QApplication::topLevelWidgets()) {
    if (qobject_cast<FloatingWindow*>(graph) == nullptr) continue;
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, graph->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(graph, &asked);
    for (auto* action : graph->findChildren<QAction*>())
      if (action->text() == LocalizedString("quintessential_menu_processes")) action->trigger();
    for (auto* menu : graph->findChildren<QMenu*>()) menu->close();
  }
  EXPECT_TRUE(MainWindowIsVisible());
  delegate->mainWindow().close();
  Pass(10);
  EXPECT_FALSE(MainWindowIsVisible());
  machine.processTable.Death(300);
  Pass(2000);
  EXPECT_TRUE(MainWindowIsVisible()) << "nor one whose last window went with its process";
  delegate->applicationWillTerminate();
}

TEST_F(ShellTest, TheTraysBarsStandOnPixelsAtEverySize) {
  const std::vector<float> shares{1.0F, 0.5F, FigureHistory::kMissing, 0.0F, 2.0F, 1.0F};
  for (const int size : {16, 22, 24, 33, 44, 72}) {
    const auto picture = TrayPicture(shares, size);
    ASSERT_EQ(picture.size(), QSize(size, size));
    std::map<QRgb, int> colours;
    std::vector<int> heights;
    for (int x = 0; x < size; ++x) {
      int height = 0;
      for (int y = 0; y < size; ++y) {
        ++colours[picture.pixel(x, y)];
        height += picture.pixel(x, y) == picture.pixel(size - 1, size - 1) ? 1 : 0;
      }
      heights.push_back(height);
    }
    EXPECT_EQ(colours.size(), 2U) << "no edge between two pixels, at " << size;
    EXPECT_EQ(heights.back(), size);
    EXPECT_EQ(heights.front(), 0) << "no moment yet";
    const auto middle = [&](int bar) {
      return heights[static_cast<std::size_t>((2 * bar + 1) * size / 32)];
    };
    EXPECT_EQ((std::vector{middle(10), middle(12), middle(13), middle(14)}),
              (std::vector{size, 0, 0, size}));
    EXPECT_NEAR(middle(11), size / 2.0, 0.51);
  }
  BusyProcess busy[2];
  busy[0].SetName("make & co");
  busy[0].share = 0.25F;
  busy[1].SetName("<b>bold</b>");
  EXPECT_EQ(TrayTip(0.5F, busy),
            QString::fromUtf8("CPU 50.0 %\nmake & co: 25.0 %\n‹b>bold‹/b>: 0.0 %"));
}

TEST_F(ShellTest, WithoutAToolItEndsBeforeTheHelperStarts) {
  machine.tools.SetMissing("/usr/bin/renice");
  // Whatever would start the helper ends that process with another status.
  machine.tools.OnStart([](const auto&) -> bool { std::_Exit(7); });
  // It ends amid everything that is open then: what the toolkit keeps is not looked for.
  EXPECT_EXIT((StopLookingForLeaks(), Launch()), testing::ExitedWithCode(255), "");
  EXPECT_FALSE(SystemHasNecessaryTools());
  machine.log.Clear();
  machine.tools.SetMissing("/bin/ps");
  EXPECT_FALSE(SystemHasNecessaryTools());
  EXPECT_EQ(machine.log.Take(), "Tools.Stat /bin/ps\n") << "the first missing one ends the check";
}

TEST_F(ShellTest, TheMachinesWindowComesBackAndShowsProcessesInTheTable) {
  machine.processTable.Birth(300, "worker");
  SetPrefInt("DEFAULT_SHOW_MACHINE_WINDOW", 1);
  Launch();
  ASSERT_NE(MachineWindow::IfOpen(), nullptr);
  Pass(3000);
  machine.processTable.Find(300)->UseCPU(1000);
  Pass(2000);
  auto* table = MachineWindow::IfOpen()->findChild<BusiestTable*>();
  ASSERT_EQ(table->item(0, 0)->text(), "worker");
  Q_EMIT table->cellClicked(0, 0);
  EXPECT_EQ(delegate->mainWindow().controller().selectedPids(), std::vector<std::int32_t>{300});
  delegate->applicationWillTerminate();
  EXPECT_EQ(MachineWindow::IfOpen(), nullptr);
  EXPECT_TRUE(machine.preferenceDomain.Values().contains("MACHINE_WINDOW_FRAME"));
  EXPECT_TRUE(MachineWindow::WasOpen());
}

}  // namespace
}  // namespace lurkwell

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  qunsetenv("LANGUAGE");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  lurkwell::InstallResources(*qApp);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
