// What is done to the selected processes, seen from what reaches the machine.
#include "main_window/CommandsTest.h"

#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>

#include "main_window/ToolbarItems.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

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
  EXPECT_TRUE(validateToolbarItem("vqToolbarProcessContinue", controller().selectionFacts()));
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

/// Notes whose details are asked for.
class NotedProcesses final : public ProcessWindows {
 public:
  bool ShowDetails(std::int32_t pid) override {
    asked += std::to_string(pid) + " ";
    return pid != 301;
  }
  std::vector<MonitorWindows::OpenWindow> OpenWindows() const override {
    return {{QStringLiteral("p300 (300): Details"), {}, [] {}, [] {}}};
  }
  std::string asked;
};

TEST_F(CommandsTest, DetailsAreShownWhereThereIsNothingToBringToTheFront) {
  NotedProcesses windows;
  OpenWith({300, 301});
  controller().processCommands().SetProcessWindows(&windows);
  Select({300, 301});
  Choose("menu_file_details");
  EXPECT_EQ(std::exchange(windows.asked, {}), "300 301 ");
  EXPECT_EQ(Said(), "There are no details of p301: it is no process of the system.");
  Select({300});
  QTest::keyClick(&window->table(), Qt::Key_Return);
  EXPECT_EQ(std::exchange(windows.asked, {}), "300 ");
  machine.processManager.Launch({5, 300}, 300, "Editor");
  Turn();
  QTest::keyClick(&window->table(), Qt::Key_Return);
  EXPECT_EQ(windows.asked, "");
  EXPECT_EQ(Done(), "ProcessManager.SetFrontProcess 5 300\n");
  QTest::keyClick(window.get(), Qt::Key_I, Qt::ControlModifier);
  EXPECT_EQ(std::exchange(windows.asked, {}), "300 ");
  // A desktop that lets nobody bring others' windows to the front.
  machine.processManager.reachesWindows = machine.screen.abilities.reachesOthers = false;
  QTest::keyClick(&window->table(), Qt::Key_Return);
  EXPECT_EQ(std::exchange(windows.asked, {}), "300 ");
  Choose("menu_process_bring_to_front");
  EXPECT_EQ(
      Said(),
      "Nothing was done to Editor (300): this desktop lets no program do that to another one’s "
      "windows.");
  EXPECT_EQ(windows.asked, "");
}

TEST_F(CommandsTest, AWindowOfAProcessHasItsCommandsAsLongAsItLives) {
  OpenWith({390, 391});
  Select({391});
  QMenu menu(window.get());
  QString said;
  const auto fill = [&] {
    menu.clear();
    window->FillProcessMenu(menu, {390, GetPidsStartStamp(390)},
                            [&](const QString& text) { said = text; });
    return menu.findChild<QAction*>(QStringLiteral("menu_process_low_priority"));
  };
  auto* lower = fill();
  ASSERT_NE(lower, nullptr);
  lower->trigger();
  EXPECT_EQ(Done(), "Helper Lkw Action Request:\\nrenice 390 20\n");
  EXPECT_THAT(said.toStdString(), testing::HasSubstr("p390 (390)"));
  const auto stamp = GetPidsStartStamp(390);
  machine.processTable.Death(390);
  machine.processTable.Birth(390, "other");
  Turn();
  menu.clear();
  window->FillProcessMenu(menu, {390, stamp}, [](const QString&) {});
  EXPECT_FALSE(menu.findChild<QAction*>(QStringLiteral("menu_process_low_priority"))->isEnabled());
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
  EXPECT_TRUE(validateToolbarItem("vqToolbarShowPreferences", controller().selectionFacts()));
  for (const char* item : {"vqToolbarKill", "vqToolbarHighPriority", "vqToolbarHideProcess",
                           "vqToolbarProcessContinue", "vqToolbarShowTopHeaderStuffCPU", "unheard"})
    EXPECT_FALSE(validateToolbarItem(item, controller().selectionFacts())) << item;
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

TEST_F(CommandsTest, AProcessIsKilledWithAllThatItStartedParentsFirst) {
  for (const auto& [pid, parent] : {std::pair(301, 300), std::pair(302, 300), std::pair(303, 301)})
    machine.processTable.Birth(pid, "p" + std::to_string(pid), parent);
  OpenWith({300, 304});
  Select({300});
  ChooseAndAgree("menu_process_kill_with_children", "Kill");
  EXPECT_NE(question.find("Kill 4 processes?"), std::string::npos) << question;
  const auto done = Done();
  EXPECT_EQ(done.find("Signals.Send 300 15\n"), 0u) << done;
  EXPECT_EQ(std::ranges::count(done, '\n'), 4) << done;
  EXPECT_LT(done.find("301"), done.find("303")) << done;
}

TEST_F(CommandsTest, AnySignalCanBeSentAndTheHelperSendsWhatItKnows) {
  OpenWith({300, 301});
  Select({300});
  const auto choose = [](const char* name) {
    return [name](QDialog& box) {
      auto* list = box.findChild<QTableWidget*>(QStringLiteral("signal_list"));
      ASSERT_EQ(list->item(list->currentRow(), 0)->text(), QLatin1String("TERM"));
      const auto found = list->findItems(QLatin1String(name), Qt::MatchExactly);
      ASSERT_EQ(found.size(), 1) << name;
      list->setCurrentItem(found.front());
    };
  };
  ChooseAndAgree("menu_process_signal", "Send", choose("HUP"));
  EXPECT_NE(question.find("RTMIN+0|"), std::string::npos) << question;
  EXPECT_EQ(question.find("signal_"), std::string::npos) << "every signal has a text: " << question;
  EXPECT_EQ(Said(), "p300 (300) was sent SIGHUP.");
  ChooseAndAgree("menu_process_signal", "Send", choose("STOP"));
  EXPECT_NE(Badge(300), "");
  EXPECT_EQ(Done(), "Signals.Send 300 1\nSignals.Send 300 19\n");
  machine.signals.refuses = true;
  ChooseAndAgree("menu_process_signal", "Send", choose("CONT"));
  EXPECT_EQ(Badge(300), "");
  ChooseAndAgree("menu_process_signal", "Send", choose("USR1"));
  EXPECT_EQ(
      Done(),
      "Signals.Send 300 18\nHelper Lkw Action Request:\\nkill_cont 300\nSignals.Send 300 10\n");
  EXPECT_TRUE(QString::fromStdString(Said()).startsWith("Nothing was done to p300 (300):"))
      << Said();
  ChooseAndAgree("menu_process_signal", "Cancel", choose("KILL"));
  EXPECT_EQ(Done(), "");
}

TEST_F(CommandsTest, PriorityAndProcessorsBecomeWhatWasChanged) {
  OpenWith({300, 301});
  Select({300});
  const auto number = [](QDialog& box, const char* name, int value) {
    box.findChild<QSpinBox*>(QLatin1String(name))->setValue(value);
  };
  const auto pick = [](QDialog& box, const char* name, int data) {
    auto* choices = box.findChild<QComboBox*>(QLatin1String(name));
    choices->setCurrentIndex(choices->findData(data));
  };
  const auto processors = [](QDialog& box) {
    return box.findChild<QLineEdit*>(QStringLiteral("scheduling_processors"));
  };
  ChooseAndAgree("menu_process_scheduling", "Apply");
  EXPECT_EQ(Done(), "") << "nothing was changed";
  ChooseAndAgree("menu_process_scheduling", "Apply", [&](QDialog& box) {
    number(box, "scheduling_nice", 5);
    pick(box, "scheduling_policy", 2);
    number(box, "scheduling_priority", 7);
    pick(box, "scheduling_io_class", 2);
    number(box, "scheduling_io_level", 6);
    processors(box)->setText(QStringLiteral("0-1, 3"));
  });
  EXPECT_EQ(Done(),
            "Helper Lkw Action Request:\\nrenice 300 5\nScheduler.Policy 300 2 7\n"
            "Scheduler.IOPriority 300 16390\nScheduler.Processors 300 0-1,3\n");
  EXPECT_NE(Said().find("p300 (300) now has the nice value 5."), std::string::npos) << Said();
  EXPECT_NE(Said().find("runs on the processors 0-1,3."), std::string::npos) << Said();
  RemoveProcessAction(300, kProcessActionRenice);
  machine.scheduler.answer = SchedulingAnswer::kRefused;
  Select({300, 301});
  ChooseAndAgree("menu_process_scheduling", "Apply", [&](QDialog& box) {
    EXPECT_TRUE(processors(box)->text().isEmpty()) << "they may differ";
    processors(box)->setText(QStringLiteral("2-9"));
    box.accept();
    EXPECT_TRUE(box.isVisible());
    const auto* complaint = box.findChild<QLabel*>(QStringLiteral("scheduling_complaint"));
    EXPECT_TRUE(complaint->text().contains(QLatin1String("among 0-3")));
    processors(box)->setText(QStringLiteral("2"));
  });
  EXPECT_EQ(Done(), "Scheduler.Processors 300 2\nScheduler.Processors 301 2\n");
  EXPECT_TRUE(QString::fromStdString(Said()).startsWith("Nothing was done to 2 processes"))
      << Said();
}

TEST_F(CommandsTest, ProgramsAreShownAndSearchedFor) {
  OpenWith({300, 301});
  machine.processTable.Find(301)->executable = "/opt/a b/tool";
  Select({300});
  Choose("menu_process_show_executable");
  EXPECT_EQ(Done(), "");
  EXPECT_TRUE(QString::fromStdString(Said()).startsWith("What program")) << Said();
  Select({300, 301});
  Choose("menu_process_show_executable");
  EXPECT_EQ(Done(), "ShowFile /opt/a b/tool\n");
  machine.processTable.Birth(305, "a&b %1#c", 300);
  Turn();
  Select({305});
  Choose("menu_process_search_web");
  EXPECT_EQ(Done(), "ShowAddress https://duckduckgo.com/?q=a%26b%20%251%23c+linux+process\n");
  StoreText("WEB_SEARCH_ADDRESS", "file:///etc/passwd?%1");
  Choose("menu_process_search_web");
  EXPECT_EQ(Done(), "");
  EXPECT_NE(Said().find("file:///etc/passwd"), std::string::npos) << Said();
  machine.processManager.hasFileManager = false;
  StoreText("WEB_SEARCH_ADDRESS", "http://search.example/%1");
  Choose("menu_process_search_web");
  EXPECT_NE(Said().find("http://search.example/a"), std::string::npos) << Said();
}

TEST_F(CommandsTest, RowsAreCopiedAsOthersProgramsReadThem) {
  OpenWith({300, 301});
  machine.processTable.Birth(302, "=cmd|',\"", 300);
  Turn();
  Select({302});
  Choose("menu_edit_copy_csv");
  const auto csv = QApplication::clipboard()->text();
  EXPECT_TRUE(csv.startsWith(QLatin1String("time,pid,"))) << csv.toStdString();
  EXPECT_TRUE(csv.contains(QLatin1String(",\"'=cmd|',\"\"\","))) << csv.toStdString();
  Choose("menu_edit_copy_json");
  const auto json = QJsonDocument::fromJson(QApplication::clipboard()->text().toUtf8());
  const auto process = json[QLatin1String("processes")][0];
  EXPECT_EQ(process[QLatin1String("pid")].toInt(), 302);
  EXPECT_EQ(process[QLatin1String("values")][QLatin1String("meta_name")].toString(),
            QLatin1String("=cmd|',\""));
  EXPECT_TRUE(process[QLatin1String("values")].toObject().contains(QLatin1String("pid_cpu_share")));
}

}  // namespace
}  // namespace lurkwell
