// What is done to the selected processes, seen from what reaches the machine.
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>

#include "main_window/MainWindowTest.h"
#include "process_control/ProcessActions.h"
#include "resources/Resources.h"

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

  /// Answers the next question with a button, after noting all that it says.
  void Answer(const char* button) {
    QTimer::singleShot(10, &machineRoom, [this, button] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr) return Answer(button);
      question.clear();
      for (const auto* label : box->findChildren<QLabel*>()) {
        EXPECT_NE(label->textFormat(), Qt::RichText);
        if (!label->text().isEmpty()) question += label->text().toStdString() + "\n";
      }
      for (const auto* field : box->findChildren<QPlainTextEdit*>())
        question += field->toPlainText().toStdString() + "\n";
      for (const auto* list : box->findChildren<QTableWidget*>())
        for (int row = 0; row < list->rowCount(); ++row)
          for (int column = 0; column < list->columnCount(); ++column)
            question += list->item(row, column)->text().toStdString() +
                        (column + 1 == list->columnCount() ? "\n" : "|");
      for (auto* candidate : box->findChildren<QPushButton*>())
        if (candidate->text().remove(QLatin1Char('&')) == QLatin1String(button))
          return candidate->click();
      ADD_FAILURE() << "no button " << button;
      box->reject();
    });
  }

  /// Chooses an item whose question is agreed to.
  void ChooseAndAgree(const char* id, const char* button) {
    question.clear();
    Answer(button);
    Choose(id);
    EXPECT_NE(question, "") << id << " asked nothing";
  }

  /// A window manager would give the keyboard back after a question.
  void PressDelete() {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(&window->table(), Qt::Key_Delete);
  }

  std::string Said() { return window->statusBar()->currentMessage().toStdString(); }

  std::string question;
  /// Answers that are never needed end with it.
  QObject machineRoom;
};

TEST_F(CommandsTest, EachKillIsHarsherThanTheOneBeforeAndSaysSo) {
  OpenWith({300, 301});
  Select({300});
  const auto kill = [this] {
    ChooseAndAgree("menu_process_quit_or_kill", "Kill");
    return question;
  };
  EXPECT_NE(kill().find("asked to end (SIGTERM)"), std::string::npos) << question;
  EXPECT_EQ(Said(), "p300 (300) was asked to end.");
  EXPECT_NE(kill().find("asked to end once and is still there"), std::string::npos) << question;
  EXPECT_NE(kill().find("asked to end twice; now it is ended by force"), std::string::npos)
      << question;
  EXPECT_EQ(Said(), "p300 (300) was ended by force.");
  kill();
  EXPECT_EQ(Done(),
            "Signals.Send 300 15\n"
            "Helper Lkw Action Request:\\nkill_normal 300\n"
            "Helper Lkw Action Request:\\nkill_harsh 300\n"
            "Helper Lkw Action Request:\\nkill_harsh 300\n");
  machine.processManager.Launch({5, 301}, 301, "Editor");
  Turn();
  Select({300, 301});
  EXPECT_NE(kill().find("is ended by force"), std::string::npos) << question;
  kill();
  EXPECT_EQ(Done(),
            "Helper Lkw Action Request:\\nkill_harsh 300\nProcessManager.Quit 5 301\n"
            "Helper Lkw Action Request:\\nkill_harsh 300\nSignals.Send 301 15\n");
}

TEST_F(CommandsTest, OneApplicationQuitsWithoutAQuestion) {
  OpenWith({300, 301});
  machine.processManager.Launch({5, 301}, 301, "Editor");
  Turn();
  Select({301});
  PressDelete();
  EXPECT_EQ(Done(), "ProcessManager.Quit 5 301\n");
  EXPECT_EQ(Said(), "Editor (301) was asked to quit.");
}

TEST_F(CommandsTest, WhatWasRefusedIsSaid) {
  OpenWith({300, 301});
  Select({1, 300});
  machine.namedPipes.SetHelper([](std::string_view) { return "!Error \x1b<b> not so"; });
  ChooseAndAgree("menu_process_halt", "Halt");
  EXPECT_EQ(Said(),
            "Nothing was done to launchd (1): the system depends on it. "
            "Nothing was done to p300 (300): the helper says “\\033<b> not so”.");
  EXPECT_EQ(Badge(300), "");
  Select({1});
  Choose("menu_process_low_priority");
  EXPECT_EQ(Said(), "Nothing was done to launchd (1): the system depends on it.");
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
  EXPECT_EQ(Said(), "");
}

TEST_F(CommandsTest, DeleteAsksFirstAndNamesTheProcess) {
  OpenWith({300, 301});
  Select({300});
  machine.processTable.Find(300)->owner = "root";
  machine.processTable.Find(300)->commandLine = "/bin/p300 --all\n<b>";
  Answer("Cancel");
  PressDelete();
  for (const char* part : {"process 300 (p300)?", "root", "/bin/p300 --all\\012<b>"})
    EXPECT_NE(question.find(part), std::string::npos) << part << " in " << question;
  EXPECT_EQ(Done(), "");
  Answer("Kill");
  PressDelete();
  EXPECT_EQ(Done(), "Signals.Send 300 15\n");
  Select({300, 301});
  Answer("Kill");
  PressDelete();
  for (const char* part :
       {"Kill 2 processes?", "1 of them belongs to another user.",
        "p300|300|root|is asked to end again|", "p301|301|user|is asked to end|not known"})
    EXPECT_NE(question.find(part), std::string::npos) << part << " in " << question;
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
  EXPECT_TRUE(question.starts_with("Kill process 302 (<b>&\\012)?\n")) << question;
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
  ChooseAndAgree("menu_process_halt", "Halt");
  EXPECT_EQ(Badge(300), "process_niced_high") << "a priority hides a halt";
  EXPECT_FALSE(controller().index(2, 2).data(Qt::DecorationRole).value<QIcon>().isNull());
  Choose("menu_process_low_priority");
  Choose("menu_process_normal_priority");
  EXPECT_EQ(Badge(300), "process_halted");
  EXPECT_EQ(Done(),
            "Helper Lkw Action Request:\\nrenice 300 -19\n"
            "Helper Lkw Action Request:\\nkill_halt 300\n"
            "Helper Lkw Action Request:\\nrenice 300 20\n"
            "Helper Lkw Action Request:\\nrenice 300 0\n");

  // With one halted and one running.
  Select({300, 301});
  EXPECT_TRUE(controller().validateToolbarItem("vqToolbarProcessContinue"));
  ChooseAndAgree("menu_process_halt", "Halt");
  EXPECT_TRUE(question.starts_with("Halt process 301 (p301)?")) << "the other is: " << question;
  EXPECT_EQ(Done(), "Helper Lkw Action Request:\\nkill_halt 301\n");
  EXPECT_FALSE(Action("menu_process_halt").isEnabled());
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

TEST_F(CommandsTest, EveryRowOfTheTableHasItsTextsItsPictureAndAKeyOfItsOwn) {
  Open();
  QStringList keys;
  QList<int> places;
  for (const auto& command : Commands()) {
    EXPECT_TRUE(HasLocalizedString(command.text)) << command.text;
    EXPECT_EQ(FindCommand(command.text), &command) << "the text is another command's";
    EXPECT_FALSE(Action(command.text).associatedObjects().isEmpty());
    if (!command.Shortcut().isEmpty()) keys += command.Shortcut().toString();
    if (!command.HasButton()) continue;
    const auto& button = command.button;
    places += button.place;
    for (const auto& id : {std::string(button.text), std::string(button.text) + "_tip"})
      EXPECT_TRUE(HasLocalizedString(id.c_str())) << id;
    EXPECT_FALSE(NamedImage(button.picture).isNull()) << button.picture;
    EXPECT_EQ(FindToolbarItem(std::string_view(button.identifier))->command, &command);
  }
  EXPECT_EQ(keys.removeDuplicates(), 0);
  EXPECT_EQ(QSet(places.begin(), places.end()).size(), places.size());
}

TEST_F(CommandsTest, WithoutASelectionNothingCanBeDone) {
  OpenWith({300});
  window->table().clearSelection();
  for (const char* id : {"menu_process_quit_or_kill", "menu_process_halt", "menu_process_continue",
                         "menu_process_high_priority", "menu_process_low_priority",
                         "menu_process_normal_priority", "menu_process_hide",
                         "menu_file_new_cpu_history", "menu_file_new_logging", "menu_edit_copy"})
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
  QObject menu;
  controller().holdOrder(&menu, true);
  for (const int pid : {300, 301}) machine.processTable.Death(pid);
  Turn();
  Choose("menu_edit_copy");
  EXPECT_NE(QApplication::clipboard()->text(), QString())
      << "nothing to copy is no reason to forget";
  controller().holdOrder(&menu, false);
}

TEST_F(CommandsTest, ChildrenAreSelectedInsteadOfTheirParents) {
  for (const auto& [pid, parent] : {std::pair(301, 300), std::pair(302, 300), std::pair(303, 301)})
    machine.processTable.Birth(pid, "p" + std::to_string(pid), parent);
  OpenWith({300});
  Select({300});
  Choose("menu_edit_select_children");
  EXPECT_EQ(Selected(), "301 302");
  Choose("menu_edit_select_children");
  EXPECT_EQ(Selected(), "303");
  Choose("menu_edit_select_children");
  EXPECT_EQ(Selected(), "303") << "there are none";
  EXPECT_TRUE(window->statusBar()->currentMessage().startsWith("None of"));
  Select({300});
  window->filterField().setText(QStringLiteral("p30"));
  machine.processTable.Birth(304, "hidden", 300);
  Turn();
  controller().toolbar()->SetItems({QStringLiteral("vqToolbarSelectChildren")});
  controller().toolbar()->items().first()->trigger();
  EXPECT_EQ(Selected(), "301 302");
  EXPECT_TRUE(window->statusBar()->currentMessage().startsWith("1 of the children"));
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
    std::vector<OpenWindow> OpenWindows() const override {
      std::vector<OpenWindow> list;
      for (const char* title : {"Log of b & c", "CPU history of a"})
        list.push_back({QString::fromLatin1(title), {}, {}, [this, title] {
                          SetPrefInt(title, 1);
                          ++closed;
                        }});
      return list;
    }
    mutable int closed = 0;
    std::string opened;
    int room = 200;
  } windows;
  OpenWith({300, 301});
  Select({300, 301});
  Choose("menu_file_new_logging");
  controller().processCommands().SetMonitorWindows(&windows);
  Choose("menu_file_new_logging");
  Choose("menu_file_new_cpu_history");
  EXPECT_EQ(windows.opened, "log 1000 300\nlog 1000 301\nhistory 250 300\nhistory 250 301\n");
  QMenu* menu = nullptr;
  for (auto* place : Action("menu_window_close_all").associatedObjects())
    if (auto* found = qobject_cast<QMenu*>(place)) menu = found;
  ASSERT_NE(menu, nullptr);
  Q_EMIT menu->aboutToShow();
  const auto items = menu->actions();
  Q_EMIT menu->aboutToHide();
  EXPECT_EQ(items.at(items.size() - 2)->text(), QLatin1String("CPU history of a"));
  EXPECT_EQ(items.constLast()->text(), QLatin1String("Log of b && c"));
  auto before = machine.preferenceDomain.SynchronizeCount();
  Choose("menu_window_close_all");
  EXPECT_EQ(windows.closed, 2);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), before + 1) << "all of them at once";
  for (int pid = 400; pid < 430; ++pid) machine.processTable.Birth(pid, "many");
  Turn();
  windows.opened.clear();
  window->table().selectAll();
  Answer("Cancel");
  Choose("menu_file_new_logging");
  EXPECT_NE(question.find("Open 34 new windows?"), std::string::npos) << question;
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
  EXPECT_NE(question.find("25 of 34 windows were opened."), std::string::npos) << question;
  EXPECT_EQ(std::ranges::count(windows.opened, '\n'), 25);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes + 1);
}

TEST_F(CommandsTest, ClicksSelectAndOnlyTheSecondButtonOrAKeyOpensTheMenu) {
  OpenWith({300, 301});
  auto& menu = window->menus().ContextMenu();
  auto& table = window->table();
  const auto at = [&](int row) { return table.visualRect(controller().index(row, 3)).center(); };
  const auto click = [&](Qt::MouseButton button, const QPoint& place,
                         Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(table.viewport(), button, keys, place);
  };
  Select({300, 301});
  click(Qt::RightButton, at(3));
  EXPECT_EQ(Selected(), "300 301") << "a click on a part of the selection leaves it";
  EXPECT_TRUE(menu.isVisible());
  const auto kill = [&] {
    const auto place = menu.actionGeometry(&Action("menu_process_quit_or_kill")).center();
    // Later releases of the toolkit close a menu on which the mouse has not moved yet.
    for (int step = 0; step < 10; ++step) QTest::mouseMove(&menu, place + QPoint(step % 2, 0));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, place);
  };
  kill();
  EXPECT_TRUE(menu.isVisible()) << "a click that was meant for the table";
  EXPECT_EQ(Done(), "");
  QTest::qWait(StripedTableView::kDeadTime);
  Answer("Cancel");
  kill();
  EXPECT_FALSE(menu.isVisible());
  EXPECT_NE(question.find("2 processes"), std::string::npos) << question;
  click(Qt::RightButton, at(1));
  EXPECT_EQ(Selected(), "1");
  menu.close();
  click(Qt::RightButton, QPoint(50, at(3).y() + 60));
  EXPECT_FALSE(menu.isVisible()) << "below the last row";
  EXPECT_EQ(Selected(), "1");
  for (const int row : {2, 3}) click(Qt::LeftButton, at(row), Qt::ControlModifier);
  EXPECT_EQ(Selected(), "1 300 301");
  EXPECT_FALSE(menu.isVisible());
  QTest::keyClick(&table, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(Selected(), "1 300 301");
  menu.close();
}

TEST_F(CommandsTest, AFoundRowStaysInSightUntilTheUserScrolls) {
  machine.helper.SetRecordsFigures(false);
  for (int pid = 300; pid < 400; ++pid)
    machine.processTable.Birth(pid, "p" + std::to_string(pid)).UseCPU(1);
  Open();
  ClickHeader("internal_CPUPercent");
  auto& table = window->table();
  const auto inSight = [&] {
    const auto* row = controller().rows().Find(350);
    return table.viewport()->rect().contains(
        table.visualRect(controller().index(row->shownIndex, 0)).center());
  };
  const auto move = [&](bool up) {
    for (int pid = 300; pid < 400; ++pid)
      if ((pid == 350) == up) machine.processTable.Find(pid)->UseCPU(500);
    Turn();
    return controller().rows().Find(350)->shownIndex;
  };
  ASSERT_TRUE(controller().selectPid(350));
  const int low = move(false);
  EXPECT_TRUE(inSight()) << low;
  const int high = move(true);
  EXPECT_GT(std::abs(low - high), 90);
  EXPECT_TRUE(inSight()) << high;
  table.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
  const int place = table.verticalScrollBar()->value();
  move(false);
  EXPECT_EQ(table.verticalScrollBar()->value(), place);
  QTest::keyClick(&table, Qt::Key_End);
  EXPECT_EQ(table.currentIndex().row(), controller().rowCount() - 1);
  QTest::keyClick(&table, Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(controller().selectedPids().size(), static_cast<std::size_t>(controller().rowCount()));
  QTest::keyClick(&table, Qt::Key_Home);
  EXPECT_EQ(table.currentIndex().row(), 0);
}

TEST_F(CommandsTest, FindByIdTakesWholeNumbersOfLiveProcesses) {
  OpenWith({300, 999});
  QStringList complaints;
  QTimer::singleShot(10, &machineRoom, [&] {
    auto* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    auto* field = dialog->findChild<QLineEdit*>();
    for (const char* text : {"9999", "99999", "abc", "12a", "-3", " 999 "}) {
      field->selectAll();
      QTest::keyClicks(field, QLatin1String(text));
      QTest::keyClick(field, Qt::Key_Return);
      if (!dialog->isVisible()) return;
      EXPECT_EQ(field->text(), QLatin1String(text)) << "nothing typed is lost";
      for (const auto* label : dialog->findChildren<QLabel*>())
        if (label->wordWrap()) complaints.append(label->text());
    }
    ADD_FAILURE() << "999 is there";
    dialog->close();
  });
  Choose("menu_process_by_id");
  EXPECT_EQ(Selected(), "999");
  const auto noNumber = QLatin1String("A process ID is a number from 0 to 65535.");
  EXPECT_EQ(complaints,
            QStringList({"There is no process 9999.", noNumber, noNumber, noNumber, noNumber}));
}

}  // namespace
}  // namespace lurkwell
