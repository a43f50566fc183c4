// Start-up and shutdown in their order, on a simulated machine.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <algorithm>
#include <cstdint>
#include <memory>

#include "app/SplashScreen.h"
#include "app/WindowMode.h"
#include "app/appDelegate.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/PI_Consolidator.h"
#include "monitor_windows/FloatingWindow.h"
#include "platform/ApplicationQuitting.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"
#include "resources/Resources.h"
#include "support/RecordingClient.h"

namespace lurkwell {
namespace {

/// Notes what it hears at shutdown, and what had happened by then.
class Witness final : private AccessLog, public RecordingClient {
 public:
  explicit Witness(AccessLog& log)
      : RecordingClient("client", 1000, static_cast<AccessLog&>(*this)), mLog(log) {}
  ~Witness() override { Note("deleted"); }
  void NotifyPidHasBeenRemoved(int pid) override { Note("removed " + std::to_string(pid)); }

 private:
  void Note(const std::string& what) {
    mLog.Add("client " + what + (gApplicationQuitting ? ", quitting" : "") +
             (gFd_a2d >= 0 ? ", helper there" : ", helper gone"));
  }

  AccessLog& mLog;
};

class ShellTest : public testing::Test {
 protected:
  ShellTest() {
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
  static int Remembered() {
    return GetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", nullptr, false, -1);
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  AccessLog told;
  std::unique_ptr<vqAppDelegate> delegate;
};

TEST_F(ShellTest, ChecksToolsThenShowsTheWindowThenStartsTheHelper) {
  machine.processTable.Birth(300, "p");
  Launch();
  Pass(100);
  const auto& lines = machine.log.Lines();
  const auto at = [&](const std::string& what) {
    return std::ranges::find_if(lines, [&](const auto& line) { return line.starts_with(what); }) -
           lines.begin();
  };
  EXPECT_LT(at("Tools.Stat /bin/ps"), at("Tools.Stat /bin/kill"));
  EXPECT_LT(at("Tools.Stat /bin/kill"), at("Tools.Stat /usr/bin/renice"));
  EXPECT_LT(at("Tools.Stat /usr/bin/renice"), at("ProcessTable.Read"));
  EXPECT_LT(at("ProcessTable.Read"), at("Tools.StartInBackground"));
  EXPECT_EQ(gAppDelegate, delegate.get());
  EXPECT_TRUE(MainWindowIsVisible());
  EXPECT_EQ(delegate->mainWindow().controller().rowCount(), 3) << "filled at once";

  delegate->applicationWillTerminate();
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

TEST_F(ShellTest, EndsInOrderAndRemembersTheWindow) {
  machine.processTable.Birth(300, "p");
  Launch();
  Pass(100);
  auto* client = new Witness(told);
  AddProcessInformationClient(client);
  told.Clear();
  machine.log.Clear();
  delegate->applicationWillTerminate();
  EXPECT_TRUE(gApplicationQuitting);
  EXPECT_EQ(told.Take(),
            "client removed 300, quitting, helper there\nclient removed 1, quitting, helper there\n"
            "client removed 0, quitting, helper there\nclient deleted, quitting, helper gone\n");
  EXPECT_EQ(Remembered(), 1);
  EXPECT_GT(GetPrefArrayCount("MAIN_WINDOW_COLUMNS"), 6);
  EXPECT_TRUE(IsPrefArrayValuePresent("MAIN_WINDOW_COLUMNS", 0, "COLUMN_WIDTH"));
  delegate->applicationWillTerminate();
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

TEST_F(ShellTest, WithoutAToolItEndsBeforeTheHelperStarts) {
  machine.tools.SetMissing("/usr/bin/renice");
  // Whatever would start the helper ends that process with another status.
  machine.tools.OnStart([](const auto&) -> bool { std::_Exit(7); });
  EXPECT_EXIT(Launch(), testing::ExitedWithCode(255), "");
  EXPECT_FALSE(SystemHasNecessaryTools());
  machine.log.Clear();
  machine.tools.SetMissing("/bin/ps");
  EXPECT_FALSE(SystemHasNecessaryTools());
  EXPECT_EQ(machine.log.Take(), "Tools.Stat /bin/ps\n") << "the first missing one ends the check";
}

}  // namespace
}  // namespace lurkwell

/// The font library's own, seen where a process ends from within a call.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  lurkwell::InstallResources(*qApp);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
