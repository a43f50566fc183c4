// Rows: what they show from turn to turn, and how little the view hears of it.
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <set>

#include "main_window/MainWindowTest.h"
#include "main_window/ToolbarGauge.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

using TableTest = MainWindowTest;

/// What the view was told in one turn.
struct Heard {
  explicit Heard(QAbstractItemModel& model)
      : inserted(&model, &QAbstractItemModel::rowsInserted),
        removed(&model, &QAbstractItemModel::rowsRemoved),
        moved(&model, &QAbstractItemModel::layoutChanged),
        changed(&model, &QAbstractItemModel::dataChanged),
        reset(&model, &QAbstractItemModel::modelReset) {}

  std::string Take() {
    std::string text;
    for (auto* spy : {&inserted, &moved, &removed, &changed, &reset}) {
      text += std::to_string(spy->count()) + " ";
      spy->clear();
    }
    return text;
  }

  QSignalSpy inserted, removed, moved, changed, reset;
};

TEST_F(TableTest, ANewUserSeesSevenColumnsAndSharesFromTheSecondTurnOn) {
  auto& table = machine.processTable;
  auto& busy = table.Birth(300, "busy");
  table.Birth(301, "idle");
  busy.UseCPU(5000);
  busy["pid_rsz"] = 3 << 20;
  busy["pid_vsz"] = 0x20000000 + (8 << 20);
  Open();
  EXPECT_EQ(Keys(),
            "meta_pid internal_Icon internal_Indicator meta_name meta_active_time "
            "internal_CPUPercent internal_MemGraph");
  ClickHeader("meta_pid");
  EXPECT_EQ(Table(),
            " 0|||kernel_task|0.00|0.0 %|0 / 0\n"
            " 1|||launchd|0.00|0.0 %|0 / 0\n"
            " 300|||busy|5.00|0.0 %|3.0 M / 8.0 M\n"
            " 301|||idle|0.00|0.0 %|0 / 0\n")
      << "whatever it used before it was first seen";
  busy.UseCPU(500);
  table.Find(0)->UseCPU(2000);
  Turn();
  EXPECT_EQ(Cell(2, 4), "5.50");
  EXPECT_EQ(Cell(2, 5), "25.0 %");
  EXPECT_EQ(gBiggestVSZ, 8 << 20);
  busy.UseCPU(9000);
  Turn();
  EXPECT_EQ(Cell(2, 5), "100.0 %") << "never more than one CPU";
  EXPECT_EQ(Cell(2, 4), "14.50");
}

TEST_F(TableTest, NumbersStandOnBarsInTheStatusLineAndInGroups) {
  machine.processTable.TellFigures(true);
  machine.processTable.SetOwnPid(300);
  for (const int pid : {300, 301, 302}) {
    auto& process = machine.processTable.Birth(pid, "p");
    process["pid_rsz"] = (pid - 299) << 20;
    process["pid_pss"] = (pid - 299) << 19;
    process["pid_vsz"] = 0x20000000 + ((303 - pid) << 24);
    process["pid_faults"] = 1'234'567;
  }
  (*machine.processTable.Find(301))["pid_vsz"] = std::int64_t{1} << 40;
  Open();
  ClickHeader("meta_pid");
  controller().addToKeysWeTrackForUI(InternKey("pid_faults"));
  for (const int pid : {300, 302}) machine.processTable.Find(pid)->UseCPU(10);
  Turn();
  for (const int pid : {300, 302}) machine.processTable.Find(pid)->UseCPU((pid - 299) * 100);
  Turn();
  const auto bar = [&](int row, const char* key, int role) {
    return controller().index(row, ColumnOf(key)).data(role);
  };
  EXPECT_EQ(bar(2, "internal_CPUPercent", kBarTextRole).toString(), QLatin1String("5.0"));
  EXPECT_EQ(gBiggestVSZ, 3 << 24) << "a terabyte is no measure for others";
  EXPECT_EQ(bar(2, "internal_MemGraph", kBarTextRole).toString(), QLatin1String("48.0 M"));
  Select({300, 302});
  const auto says = [&] {
    for (const auto* label : window->findChildren<QLabel*>())
      if (label->text().contains(QLatin1String("process"))) return label->text().toStdString();
    return std::string();
  };
  EXPECT_EQ(says(), "5 processes, 5 shown, 2 selected: CPU 20.0 %, memory 4.0 M");
  // Other figures have other lengths and another order.
  ClickHeader("internal_MemGraph");
  EXPECT_EQ(Pids().substr(0, 11), "301 300 302");
  const auto show = [&](int figure) {
    SetPrefInt("MEMORY_BAR_FIGURE", figure);
    controller().synchronizer()->NotifyPreferencesHaveBeenUpdated();
    Turn();
    return Pids().substr(0, 11) + ": " +
           bar(0, "internal_MemGraph", kBarTextRole).toString().toStdString();
  };
  EXPECT_EQ(show(1), "302 301 300: 3.0 M");
  EXPECT_EQ(gBiggestVSZ, 3 << 20);
  EXPECT_EQ(bar(0, "internal_MemGraph", Qt::AccessibleTextRole).toString(), QLatin1String("3.0 M"));
  EXPECT_EQ(show(2), "302 301 300: 1.5 M");
  EXPECT_EQ(show(0).substr(0, 11), "301 300 302");
  // In the user's signs, while the texts stay English.
  qputenv("LC_ALL", "de_DE.UTF-8");
  UseUserLocale();
  EXPECT_EQ(bar(2, "internal_MemGraph", kBarTextRole).toString(), QLatin1String("16,0 M"));
  EXPECT_TRUE(Cell(0, ColumnOf("meta_active_time")).contains(QLatin1Char(',')));
  EXPECT_EQ(Cell(0, ColumnOf("pid_faults")), QLatin1String("1.234.567"));
  SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 1);
  EXPECT_EQ(bar(1, "internal_MemGraph", kBarTextRole).toString(), QLatin1String("50.331.648"));
  qputenv("LC_ALL", "C.UTF-8");
  UseUserLocale();
}

TEST_F(TableTest, ATurnReachesTheViewInOnePiece) {
  auto& table = machine.processTable;
  for (int pid = 100; pid < 400; ++pid) table.Birth(pid, "p" + std::to_string(pid % 7));
  Open();
  ClickHeader("meta_name");
  Heard heard(controller());
  EXPECT_EQ(heard.Take(), "0 0 0 0 0 ");
  Turn();
  EXPECT_EQ(heard.Take(), "0 0 0 0 0 ") << "nothing has changed";
  table.Find(200)->UseCPU(1000);
  Turn();
  EXPECT_EQ(heard.Take(), "0 0 0 1 0 ");
  for (int pid = 101; pid < 300; pid += 2) table.Death(pid);
  for (int pid = 500; pid < 560; ++pid) table.Birth(pid, "p3");
  for (int pid = 300; pid < 330; ++pid) table.Find(pid)->UseCPU(10);
  Turn();
  EXPECT_EQ(heard.Take(), "1 1 1 1 0 ");
  EXPECT_EQ(controller().rowCount(), 302 - 100 + 60);
  for (int row = 1; row < controller().rowCount(); ++row)
    EXPECT_LE(Cell(row - 1, 3), Cell(row, 3)) << row;
}

TEST_F(TableTest, TheSelectionFollowsProcessesNotPlaces) {
  auto& table = machine.processTable;
  for (int pid = 10; pid < 30; ++pid) table.Birth(pid, "name" + std::to_string(40 - pid));
  Open();
  ClickHeader("meta_pid");
  Select({12, 20, 28});
  ClickHeader("meta_name");
  EXPECT_EQ(Selected(), "28 20 12");
  table.Death(20);
  for (int pid = 40; pid < 60; ++pid) table.Birth(pid, "a" + std::to_string(pid));
  Turn();
  EXPECT_EQ(Selected(), "28 12");
  EXPECT_TRUE(VQTarvMainWindowInfoSynch::SelectPID(55));
  EXPECT_EQ(Selected(), "55");
  EXPECT_FALSE(VQTarvMainWindowInfoSynch::SelectPID(20));
  EXPECT_EQ(Selected(), "55");
  // The pid of a selected process passes to another one: that was not selected.
  table.Death(55);
  table.Birth(55, "stranger");
  Turn();
  Turn();
  EXPECT_NE(controller().rows().Find(55), nullptr);
  EXPECT_EQ(Selected(), "");
}

TEST_F(TableTest, TheTableStaysWhereItsUserLooks) {
  auto& table = machine.processTable;
  for (int pid = 100; pid < 400; ++pid) table.Birth(pid, "p");
  Open();
  window->resize(300, 300);
  ClickHeader("meta_pid");
  auto& view = window->table();
  const auto focused = [&] { return PidAt(view.currentIndex().row()); };
  view.horizontalScrollBar()->setValue(70);
  EXPECT_TRUE(VQTarvMainWindowInfoSynch::SelectPID(330));
  const int top = view.verticalScrollBar()->value();
  EXPECT_GT(top, 1000);
  EXPECT_EQ(view.horizontalScrollBar()->value(), 70) << "up and down only";
  for (const int pid : {329, 330, 331}) table.Death(pid);
  Turn();
  EXPECT_EQ(focused(), 332) << "the nearest that is left";
  EXPECT_EQ(view.verticalScrollBar()->value(), top);
  EXPECT_EQ(Selected(), "");
  Filter("3");
  Filter("1");
  EXPECT_EQ(focused(), 331 - 10);
  Filter("");
  view.verticalScrollBar()->setValue(top);
  controller().addToKeysWeTrackForUI(InternKey("pid_p_nice"));
  EXPECT_EQ(focused(), 321);
  for (int pid = 100; pid < 400; ++pid)
    if (table.Find(pid) != nullptr && pid != 150) table.Death(pid);
  Turn();
  EXPECT_EQ(focused(), 150);
}

TEST_F(TableTest, ARowThatChangesIsReadAgainWithItsIcon) {
  machine.processTable.Birth(300, "editor");
  Open();
  ClickHeader("meta_pid");
  EXPECT_FALSE(controller().index(2, 1).data(Qt::DecorationRole).isValid());
  machine.processManager.Launch({7, 300}, 300, "Text Editor");
  machine.iconServices.SetColour({7, 300}, 0xFF336699);
  Turn();
  Turn();
  EXPECT_EQ(Cell(2, 3), "Text Editor");
  const auto icon = controller().index(2, 1).data(Qt::DecorationRole).value<QPixmap>();
  ASSERT_FALSE(icon.isNull());
  EXPECT_EQ(icon.toImage().pixelColor(5, 5), QColor(0x33, 0x66, 0x99));
  machine.log.Clear();
  controller().index(2, 1).data(Qt::DecorationRole);
  EXPECT_EQ(machine.log.Take(), "") << "fetched once";
}

TEST_F(TableTest, HostileNamesStayOnOneLineAndAreNoMarkup) {
  machine.processTable.Birth(300, "<b>x</b>\n\x1b[1m\xff");
  Open();
  ClickHeader("meta_pid");
  EXPECT_EQ(Cell(2, 3), "<b>x</b>\\012\\033[1m\\377");
  Select({300});
  EXPECT_EQ(controller().selectionAsText().count(QLatin1Char('\n')), 1);
}

TEST_F(TableTest, WhileAMenuIsOpenRowsKeepTheirPlaces) {
  auto& table = machine.processTable;
  OpenWith({300, 301, 302, 303, 304});
  ClickHeader("internal_CPUPercent");
  const auto before = Pids();
  Select({301, 302});
  window->menus().ContextMenu().popup(window->pos());
  table.Find(303)->UseCPU(1000);
  table.Death(301);
  table.Birth(310, "new");
  Turn();
  EXPECT_EQ(Pids(), before);
  EXPECT_EQ(Selected(), "302") << "what has ended cannot be acted upon";
  // Its pid may even be another's by now.
  table.Birth(301, "stranger");
  Turn();
  Turn();
  machine.log.Clear();
  controller().processCommands().processHighPriorityMenuItem();
  EXPECT_EQ(machine.log.Take(), "Helper Lkw Action Request:\\nrenice 302 -19\n");
  window->menus().ContextMenu().hide();
  table.Find(303)->UseCPU(1000);
  Turn();
  EXPECT_EQ(Pids().substr(0, 4), "303 ");
  EXPECT_NE(controller().rows().Find(310), nullptr);
}

TEST_F(TableTest, EveryMenuLetsTheRowsGoAgain) {
  auto& table = machine.processTable;
  table.Birth(300, "p");
  Open();
  QList<QMenu*> menus{&window->menus().HeaderMenu(0), &window->menus().ContextMenu(),
                      &window->menus().columnMenus().BuiltInMenu()};
  for (const auto* action : window->menuBar()->actions()) menus.append(action->menu());
  ASSERT_GT(menus.size(), 8);
  int pid = 400;
  for (auto* menu : menus) {
    menu->popup(window->pos());
    table.Birth(++pid, "new");
    Turn();
    EXPECT_EQ(controller().rows().Find(pid)->shownIndex, -1) << menu->title().toStdString();
    menu->hide();
    Turn();
    EXPECT_GE(controller().rows().Find(pid)->shownIndex, 0) << menu->title().toStdString();
  }
}

TEST_F(TableTest, AClosedWindowHasNoRowsAndStartsAfreshWhenShownAgain) {
  machine.processTable.Birth(300, "old");
  Open();
  EXPECT_EQ(controller().rowCount(), 3);
  EXPECT_EQ(gNSMainWindow, window.get());
  window->close();
  EXPECT_EQ(controller().rowCount(), 0);
  EXPECT_TRUE(gNSMainWindow.isNull());
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", nullptr, false, 0), 0);
  machine.processTable.Birth(301, "new");
  SetPrefInt("MAIN_WINDOW_INTERVAL", 500);
  machine.hostStatistics.virtualMemory->pageouts += 1000;
  Turn(20'000);
  EXPECT_EQ(controller().rowCount(), 0);
  window->show();
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", nullptr, false, 0), 1);
  Turn(10);
  EXPECT_EQ(controller().rowCount(), 4) << "not only when the heart beats next";
  EXPECT_EQ(controller().synchronizer()->Interval(), 500);
  QString said;
  for (const auto* gauge : window->findChildren<ToolbarGauge*>())
    said += gauge->SpokenFigures() + "\n";
  EXPECT_TRUE(said.contains("\n0 pages swapped out")) << said.toStdString() << "none of one update";
  // The last window is the program's end, and comes back with it.
  closingQuits = true;
  window->close();
  EXPECT_EQ(commands.Take(), "quit\n");
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", nullptr, false, 0), 1);
}

TEST_F(TableTest, PreferencesShowAtOnce) {
  auto& process = machine.processTable.Birth(300, "p");
  process["pid_rsz"] = 3 << 20;
  Open();
  ClickHeader("meta_pid");
  EXPECT_TRUE(Cell(2, 6).startsWith("3.0 M"));
  SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 2);
  SetPrefInt("MAIN_WINDOW_INTERVAL", 500);
  process.UseCPU(100);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType("VQTarvMainWindowInfoSynch");
  EXPECT_TRUE(Cell(2, 6).startsWith("3072")) << Cell(2, 6).toStdString();
  EXPECT_EQ(controller().synchronizer()->Interval(), 500);
}

TEST_F(TableTest, AFilterHidesRowsAndChangesNothingElse) {
  auto& table = machine.processTable;
  table.Birth(300, "alpha");
  table.Birth(301, "beta");
  table.Birth(302, "ALPHABET");
  Open();
  ClickHeader("meta_name");
  Select({301});
  Choose("menu_edit_filter");
  QTest::keyClicks(&window->filterField(), "alp");
  EXPECT_EQ(Pids(), "300 302");
  EXPECT_EQ(Selected(), "") << "what is not seen is not acted upon";
  table.Birth(303, "alps");
  table.Birth(304, "other");
  Turn();
  EXPECT_EQ(Pids(), "300 302 303");
  QTest::keyClick(&window->filterField(), Qt::Key_Escape);
  EXPECT_FALSE(window->filterField().isVisible());
  EXPECT_EQ(Pids(), "300 302 303 301 0 1 304");
  EXPECT_EQ(Selected(), "");
}

TEST_F(TableTest, AFilterLooksAtWhatNoColumnShows) {
  auto& table = machine.processTable;
  for (const auto& [pid, nice] : {std::pair(300, 5), std::pair(301, -5), std::pair(302, 10)})
    table.Birth(pid, "some").entry.nice = nice;
  Open();
  Choose("menu_edit_filter");
  auto& field = window->filterField();
  auto& error = *field.parentWidget()->findChild<QLabel*>();
  field.setText("some nice>=5");
  Turn(0);
  EXPECT_EQ(Pids(), "300 302");
  field.setText("some nice>=5 -pid:302");
  EXPECT_EQ(Pids(), "300");
  field.setText("some nice>");
  EXPECT_EQ(Pids(), "300") << "what was asked for last still holds";
  EXPECT_FALSE(field.accessibleDescription().isEmpty());
  EXPECT_FALSE(error.isVisible()) << "he may be typing still";
  EXPECT_TRUE(QTest::qWaitFor([&] { return error.isVisible(); }));
  EXPECT_NE(error.text().indexOf("nice>"), -1) << error.text().toStdString();
  QTest::keyClick(&field, Qt::Key_Escape);
  field.setText(QString::fromUtf8("nice:10 -\xD0\xBC"));
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_TRUE(window->table().hasFocus());
  char last[100] = "";
  GetPrefString("MAIN_WINDOW_RECENT_FILTERS", last, sizeof last, nullptr, false, "");
  EXPECT_STREQ(last, "nice:10%20-%D0%BC");
}

TEST_F(TableTest, TypingFindsNames) {
  auto& table = machine.processTable;
  for (const auto& [pid, name] :
       {std::pair(300, "apple"), std::pair(301, "apricot"), std::pair(302, "banana")})
    table.Birth(pid, name);
  Open();
  ClickHeader("meta_name");
  window->table().setFocus();
  QTest::keyClicks(&window->table(), "ban");
  EXPECT_EQ(Selected(), "302");
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(&window->table(), "a");
  EXPECT_EQ(Selected(), "300");
  QTest::keyClicks(&window->table(), "a");
  EXPECT_EQ(Selected(), "301") << "again and again: from match to match";
}

TEST_F(TableTest, NamesAreShownWholeWhereTheyCanBeKnown) {
  machine.processManager.Launch({1, 300}, 300, "An application whose name is long");
  auto& table = machine.processTable;
  const auto birth = [&](int pid, const char* name, const char* commandLine) {
    table.Birth(pid, name).commandLine = commandLine;
  };
  birth(300, "app", "/usr/bin/app");
  birth(301, "at-spi-bus-launc", "/usr/libexec/at-spi-bus-launcher --launch-immediately");
  birth(302, "a-script-of-lengt",
        "python3 -u /opt/a-script-of-length.d/a-script-of-lengthy.py x/y");
  birth(303, "Isolated Web Co", "/usr/lib/firefox -contentproc");
  birth(304, "fifteen-letters", "/bin/not-fifteen-letters-at-all");
  birth(305, "short", "/bin/shorter");
  Open();
  const auto name = [this](int pid, int role = Qt::DisplayRole) {
    const int row = controller().rows().Find(pid)->shownIndex;
    return controller().index(row, ColumnOf("meta_name")).data(role).toString().toStdString();
  };
  EXPECT_EQ(name(300), "An application whose name is long");
  EXPECT_EQ(name(301), "at-spi-bus-launcher");
  EXPECT_EQ(name(302), "a-script-of-lengthy.py");
  EXPECT_EQ(name(303), "Isolated Web Co");
  EXPECT_EQ(name(304), "fifteen-letters");
  EXPECT_EQ(name(305), "short");
  EXPECT_EQ(name(301, Qt::ToolTipRole), "/usr/libexec/at-spi-bus-launcher --launch-immediately");
  EXPECT_EQ(Value(301, "meta_name"), "at-spi-bus-launc") << "stays what it is";
  // It runs another program by now.
  birth(306, "fifteen-letters", "/bin/fifteen-letters-or-more");
  Turn();
  EXPECT_EQ(name(306), "fifteen-letters-or-more");
  StoreText(table.Find(306)->entry.commandName, "another-program");
  table.Find(306)->commandLine = "another-program-of-long-name";
  Turn();
  EXPECT_EQ(name(306), "another-program-of-long-name");
}

TEST_F(TableTest, RowsInSightAreReadFirstAndOldFiguresSayHowOldTheyAre) {
  machine.processTable.TellFigures(true);
  for (int pid = 300; pid < 400; ++pid) machine.processTable.Birth(pid, "p");
  Open();
  ClickHeader("meta_pid");
  controller().addToKeysWeTrackForUI(InternKey("pid_descriptors"));
  Turn();
  Turn();
  std::set<std::int32_t> inSight, wanted;
  for (const auto& wish : machine.costlyFigures.wishes)
    if (wish.isInSight) inSight.insert(wish.process.pid);
  EXPECT_GT(machine.costlyFigures.wishes.size(), 100u);
  const auto& table = window->table();
  for (int row = 0; row < controller().rowCount(); ++row)
    if (table.visualRect(controller().index(row, 0)).intersects(table.viewport()->rect()))
      wanted.insert(Cell(row, ColumnOf("meta_pid")).toInt());
  wanted.erase(0);
  EXPECT_GT(wanted.size(), 3u);
  EXPECT_EQ(inSight, wanted);
  const auto tip = [&] {
    return controller()
        .index(controller().rowCount() - 1, ColumnOf("pid_descriptors"))
        .data(Qt::ToolTipRole)
        .toString();
  };
  Turn();
  EXPECT_EQ(tip(), "");
  machine.costlyFigures.isBusy = true;
  Turn(20'000);
  EXPECT_TRUE(tip().contains("20 seconds")) << tip().toStdString();
}

}  // namespace
}  // namespace lurkwell
