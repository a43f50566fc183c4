// What is done to the selected processes, seen from what reaches the machine.
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include "main_window/MainWindowTest.h"
#include "process_control/ProcessActions.h"

namespace lurkwell {
namespace {

class CommandsTest : public MainWindowTest {
 protected:
  /// What was done since the last call; asking for icons and time is not doing.
  std::string Done() {
    std::string text;
    for (const auto& line : machine.log.Lines())
      if (line.starts_with("Helper Lkw") || line.starts_with("Signals") ||
          line.starts_with("ProcessManager"))
        text += line + "\n";
    machine.log.Clear();
    return text;
  }

  std::string Badge(int pid) {
    const char* name = ProcessIndicatorImageName(pid);
    return name != nullptr ? name : "";
  }

  /// Answers the next question with a button, after noting what it says.
  void Answer(const char* button) {
    QTimer::singleShot(10, &machineRoom, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return Answer(button);
      question = box->text().toStdString();
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      for (auto* candidate : box->buttons())
        if (candidate->text().remove(QLatin1Char('&')) == QLatin1String(button))
          return candidate->click();
      ADD_FAILURE() << "no button " << button;
      box->reject();
    });
  }

  /// A window manager would give the keyboard back after a question.
  void PressDelete() {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(&window->table(), Qt::Key_Delete);
  }

  std::string question;
  /// Answers that nobody asked for end with it.
  QObject machineRoom;
};

TEST_F(CommandsTest, EachKillIsHarsherThanTheOneBefore) {
  OpenWith({300, 301});
  Select({300});
  for (int i = 0; i < 4; ++i) Choose("menu_process_quit_or_kill");
  EXPECT_EQ(Done(),
            "Signals.Send 300 15\n"
            "Helper Lkw Action Request:\\nkill_normal 300\n"
            "Helper Lkw Action Request:\\nkill_harsh 300\n"
            "Helper Lkw Action Request:\\nkill_harsh 300\n");
  machine.processManager.Launch({5, 301}, 301, "Editor");
  Turn();
  Select({300, 301});
  Choose("menu_process_quit_or_kill");
  Choose("menu_process_quit_or_kill");
  EXPECT_EQ(Done(),
            "Helper Lkw Action Request:\\nkill_harsh 300\nProcessManager.Quit 5 301\n"
            "Helper Lkw Action Request:\\nkill_harsh 300\nSignals.Send 301 15\n");
}

// The table is not due yet when another client hears of the end; numbers beyond 127 are forgotten.
TEST_F(CommandsTest, AGuestThatHasEndedIsNotAskedToQuit) {
  for (std::uint32_t i = 1; i <= 130; ++i)
    machine.processManager.Launch({9, i}, std::nullopt, "Guest" + std::to_string(i));
  OpenWith({300});
  Add("other", 100);
  Turn();
  const PidBlob pids;
  const auto guest =
      std::ranges::find(pids, "Guest130", [](std::int32_t pid) { return Value(pid, "meta_name"); });
  ASSERT_NE(guest, pids.end());
  Select({*guest});
  machine.processManager.Remove({9, 130});
  Turn(200);
  ASSERT_EQ(Selected(), std::to_string(*guest));
  ASSERT_EQ(Value(*guest, "meta_pid"), "[]");
  machine.log.Clear();
  Choose("menu_process_quit_or_kill");
  EXPECT_EQ(Done(), "");
}

TEST_F(CommandsTest, DeleteAsksFirstAndNamesTheProcess) {
  OpenWith({300, 301});
  Select({300});
  Answer("Cancel");
  PressDelete();
  EXPECT_NE(question.find("300"), std::string::npos) << question;
  EXPECT_NE(question.find("p300"), std::string::npos) << question;
  EXPECT_EQ(Done(), "");
  Answer("Kill");
  PressDelete();
  EXPECT_EQ(Done(), "Signals.Send 300 15\n");
  Select({300, 301});
  Answer("Kill");
  PressDelete();
  EXPECT_NE(question.find("2"), std::string::npos) << question;
  EXPECT_EQ(Done(), "Helper Lkw Action Request:\\nkill_normal 300\nSignals.Send 301 15\n");
}

TEST_F(CommandsTest, TheQuestionHoldsForWhatIsLeftWhenItIsAnswered) {
  OpenWith({300, 301, 302});
  machine.processTable.Find(302)->SetName("<b>&\n");
  // Asked for by name, whether names are shown or not.
  controller().removeFromKeysWeTrackForUI(kMetaName);
  Turn();
  Select({302});
  Answer("Cancel");
  PressDelete();
  EXPECT_EQ(question, "Kill process 302 (<b>&\\012)?");
  Select({300, 301});
  QTimer::singleShot(0, &machineRoom, [this] {
    machine.processTable.Death(300);
    Turn();
    Answer("Kill");
  });
  machine.log.Clear();
  PressDelete();
  EXPECT_EQ(Done(), "Signals.Send 301 15\n");
  Turn();
  EXPECT_EQ(controller().rowCount(), 4) << "the order is held no longer";
}

TEST_F(CommandsTest, PrioritiesAndHaltsShowBadgesAtOnce) {
  OpenWith({300, 301});
  Select({300});
  Choose("menu_process_high_priority");
  EXPECT_EQ(Badge(300), "process_niced_high");
  Choose("menu_process_halt");
  EXPECT_EQ(Badge(300), "process_niced_high") << "a priority hides a halt";
  EXPECT_FALSE(controller().index(2, 2).data(Qt::DecorationRole).value<QIcon>().isNull());
  Choose("menu_process_low_priority");
  EXPECT_EQ(Badge(300), "process_niced_low");
  Choose("menu_process_normal_priority");
  EXPECT_EQ(Badge(300), "process_halted");
  EXPECT_EQ(Done(),
            "Helper Lkw Action Request:\\nrenice 300 -19\n"
            "Helper Lkw Action Request:\\nkill_halt 300\n"
            "Helper Lkw Action Request:\\nrenice 300 20\n"
            "Helper Lkw Action Request:\\nrenice 300 0\n");

  // With one halted and one running.
  Select({300, 301});
  EXPECT_FALSE(Action("menu_process_halt").isEnabled());
  EXPECT_TRUE(controller().validateToolbarItem("vqToolbarProcessContinue"));
  Choose("menu_process_continue");
  EXPECT_TRUE(Action("menu_process_halt").isEnabled());
  EXPECT_FALSE(Action("menu_process_continue").isEnabled());
  EXPECT_EQ(Badge(300), "");
  EXPECT_FALSE(controller().index(2, 2).data(Qt::DecorationRole).isValid());
  EXPECT_EQ(
      Done(),
      "Helper Lkw Action Request:\\nkill_cont 300\nHelper Lkw Action Request:\\nkill_cont 301\n");
}

TEST_F(CommandsTest, AProcessThatSomebodyElseStoppedShowsItsBadge) {
  OpenWith({300});
  machine.processTable.Stop(300);
  QSignalSpy changed(&controller(), &QAbstractItemModel::dataChanged);
  Turn();
  EXPECT_EQ(Badge(300), "process_halted");
  EXPECT_EQ(changed.count(), 1) << "the row is drawn again";
}

TEST_F(CommandsTest, ApplicationCommandsReachApplicationsAlone) {
  OpenWith({300, 301});
  Select({300});
  for (const char* id : {"menu_process_bring_to_front", "menu_process_hide", "menu_process_reveal"})
    EXPECT_FALSE(Action(id).isEnabled()) << id;
  machine.processManager.Launch({5, 301}, 301, "Editor");
  Turn();
  Select({300, 301});
  Choose("menu_process_bring_to_front");
  Choose("menu_process_hide");
  Choose("menu_process_reveal");
  EXPECT_EQ(Done(),
            "ProcessManager.SetFrontProcess 5 301\nProcessManager.Hide 5 301\n"
            "ProcessManager.Reveal 5 301\n");
  QTest::keyClick(&window->table(), Qt::Key_Return);
  EXPECT_EQ(Done(), "ProcessManager.SetFrontProcess 5 301\n");
  const auto place = window->table().visualRect(controller().index(3, 3)).center();
  QTest::mouseClick(window->table().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(window->table().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Done(), "ProcessManager.SetFrontProcess 5 301\n");
}

TEST_F(CommandsTest, WithoutASelectionNothingCanBeDone) {
  OpenWith({300});
  window->table().clearSelection();
  for (const char* id :
       {"menu_process_quit_or_kill", "menu_process_kill", "menu_process_halt",
        "menu_process_continue", "menu_process_high_priority", "menu_process_low_priority",
        "menu_process_normal_priority", "menu_process_hide", "menu_file_new_cpu_history",
        "menu_file_new_logging", "menu_edit_copy"})
    EXPECT_FALSE(Action(id).isEnabled()) << id;
  EXPECT_TRUE(controller().validateToolbarItem("vqToolbarShowPreferences"));
  for (const char* item : {"vqToolbarKill", "vqToolbarHighPriority", "vqToolbarHideProcess",
                           "vqToolbarProcessContinue", "vqToolbarShowTopHeaderStuffCPU", "unheard"})
    EXPECT_FALSE(controller().validateToolbarItem(item)) << item;
}

TEST_F(CommandsTest, CopyTakesTheSelectedRowsAsTheyAreShown) {
  OpenWith({300, 301});
  machine.processTable.Find(301)->UseCPU(1500);
  Turn();
  Select({300, 301});
  Choose("menu_edit_copy");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
            "300\t\tp300\t0.00\t0.0 %\t0 / 0\n"
            "301\t\tp301\t1.50\t0.0 %\t0 / 0\n");
}

TEST_F(CommandsTest, UpdateNowDoesNotWaitForTheInterval) {
  OpenWith({300});
  machine.processTable.Birth(301, "new");
  Turn(10);
  EXPECT_EQ(controller().rowCount(), 3);
  Choose("menu_view_update_now");
  Turn(10);
  EXPECT_EQ(controller().rowCount(), 4);
}

TEST_F(CommandsTest, WindowsThatFollowAProcessOpenForEachSelectedOne) {
  struct Windows : MonitorWindows {
    void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid) override {
      opened += "history " + std::to_string(interval) + " " + std::to_string(pid) + "\n";
    }
    void CreateLoggingWindow(std::int32_t interval, std::int32_t pid) override {
      opened += "log " + std::to_string(interval) + " " + std::to_string(pid) + "\n";
      SetPrefInt("remembered", pid);
    }
    int CountRoom() const override { return room; }
    std::string opened;
    int room = 200;
  } windows;
  OpenWith({300, 301});
  Select({300, 301});
  Choose("menu_file_new_logging");
  controller().setMonitorWindows(&windows);
  Choose("menu_file_new_logging");
  Choose("menu_file_new_cpu_history");
  EXPECT_EQ(windows.opened, "log 1000 300\nlog 1000 301\nhistory 250 300\nhistory 250 301\n");
  for (int pid = 400; pid < 430; ++pid) machine.processTable.Birth(pid, "many");
  Turn();
  windows.opened.clear();
  window->table().selectAll();
  Answer("Cancel");
  Choose("menu_file_new_logging");
  EXPECT_EQ(question, "Open 34 new windows?");
  EXPECT_EQ(windows.opened, "");
  windows.room = 25;
  const auto writes = machine.preferenceDomain.SynchronizeCount();
  question.clear();
  Answer("Open");
  const std::function<void()> agree = [&] {
    if (!question.empty()) return Answer("OK");
    QTimer::singleShot(10, &machineRoom, agree);
  };
  agree();
  Choose("menu_file_new_logging");
  EXPECT_EQ(question, "25 of 34 windows were opened.");
  EXPECT_EQ(std::ranges::count(windows.opened, '\n'), 25);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes + 1);
}

TEST_F(CommandsTest, ARightClickTakesItsRowAndOpensTheMenu) {
  OpenWith({300, 301});
  auto& menu = window->menus().ContextMenu();
  auto* viewport = window->table().viewport();
  const auto at = [&](int row) {
    return window->table().visualRect(controller().index(row, 3)).center();
  };
  Select({300, 301});
  QTest::mouseClick(viewport, Qt::RightButton, {}, at(1));
  EXPECT_EQ(Selected(), "1");
  EXPECT_TRUE(menu.isVisible());
  menu.close();
  QTest::mouseClick(viewport, Qt::RightButton, {}, QPoint(50, at(3).y() + 60));
  EXPECT_FALSE(menu.isVisible()) << "below the last row";
  EXPECT_EQ(Selected(), "1");
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, at(2));
  EXPECT_EQ(Selected(), "1 300") << "the click's own selection stays";
  EXPECT_TRUE(menu.isVisible());
  menu.close();
}

}  // namespace
}  // namespace lurkwell
