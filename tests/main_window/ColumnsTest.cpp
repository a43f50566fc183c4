// Which columns there are, by menu and by preference.
#include "consolidator/PSHeaders.h"
#include "main_window/MainWindowTest.h"
#include "platform/linux/PropertyListDomain.h"
#include "support/MachineOf.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

class ColumnsTest : public MainWindowTest {
 protected:
  void Reopen() {
    window.reset();
    Open();
  }

  void Toggle(FilterMenu& menu, const char* key) {
    window->menus().ValidateAll();
    auto* item = ColumnItem(menu, key);
    ASSERT_NE(item, nullptr) << key;
    ASSERT_TRUE(item->isEnabled());
    item->trigger();
  }

  ColumnMenus& Menus() { return window->menus().columnMenus(); }
  int Width(const char* key) { return window->table().columnWidth(ColumnOf(key)); }
};

TEST_F(ColumnsTest, WhatIsChosenComesBack) {
  machine.tools.SetOutput("/bin/ps -Lww", "PID RSZ UID\n");
  machine.tools.SetOutput("/bin/ps 0 -o PID", "PID\n");
  machine.tools.SetOutput("/bin/ps 0 -o RSZ", "RSZ\n");
  machine.tools.SetOutput("/bin/ps 0 -o UID", "UID\n");
  machine.tools.SetOutput("/bin/ps -axww -o pid,UID", "  PID UID\n    1   0\n  300  42\n");
  machine.processTable.Birth(300, "p");
  Open();
  Toggle(Menus().BuiltInMenu(), "pid_p_nice");
  Toggle(Menus().PSAvailableMenu(), "UID");
  Menus().TopLevelItem(kInternalIcon).trigger();
  Turn(4000);
  const std::string keys =
      "meta_pid internal_Indicator meta_name meta_active_time internal_CPUPercent "
      "internal_MemGraph pid_p_nice UID";
  EXPECT_EQ(Keys(), keys);
  EXPECT_EQ(Cell(2, ColumnOf("UID")), "42") << "filled for the rows that were there";
  EXPECT_EQ(ColumnItem(Menus().PSAvailableMenu(), "PID"), nullptr) << "there already";
  const auto isOld = [this] {
    const auto cell = controller().index(2, ColumnOf("UID"));
    const bool isGrey = cell.data(kIsFaintRole).toBool();
    EXPECT_EQ(!cell.data(Qt::ToolTipRole).toString().isEmpty(), isGrey);
    return isGrey;
  };
  EXPECT_FALSE(isOld());
  const std::string command = "/bin/ps -axww -o pid,UID";
  machine.tools.SetOutput(command, "");
  Turn(4000);
  EXPECT_TRUE(isOld());
  EXPECT_EQ(Cell(2, ColumnOf("UID")), "42");
  machine.tools.SetOutput(command, "  PID UID\n    1   0\n  300  42\n");
  Turn(4000);
  EXPECT_FALSE(isOld());
  EXPECT_TRUE(ColumnItem(Menus().BuiltInMenu(), "pid_p_nice")->isChecked());
  EXPECT_FALSE(Menus().TopLevelItem(kInternalIcon).isChecked());
  // Badges stand beside icons.
  Menus().TopLevelItem(kInternalIndicator).trigger();
  Menus().TopLevelItem(kInternalIcon).trigger();
  Menus().TopLevelItem(kInternalIndicator).trigger();
  EXPECT_TRUE(Keys().ends_with("UID internal_Icon internal_Indicator")) << Keys();

  window->table().setColumnWidth(ColumnOf("meta_name"), 333);
  window->table().horizontalHeader()->moveSection(ColumnOf("UID"), 0);
  ClickHeader("UID");
  ClickHeader("UID");
  const auto before = Table();
  Reopen();
  EXPECT_TRUE(Keys().starts_with("UID meta_pid meta_name meta_active_time")) << Keys();
  EXPECT_EQ(Width("meta_name"), 333);
  EXPECT_EQ(Width("internal_Icon"), 24);
  EXPECT_EQ(controller().sortColumn(), InternKey("UID"));
  Turn();
  EXPECT_EQ(Table(), before);
}

TEST_F(ColumnsTest, TheNameHasTwoItemsThatAgree) {
  Open();
  auto& top = Menus().TopLevelItem(kMetaName);
  auto* item = ColumnItem(Menus().BuiltInMenu(), "meta_name");
  EXPECT_TRUE(top.isChecked() && item->isChecked());
  top.trigger();
  EXPECT_FALSE(top.isChecked() || item->isChecked() || controller().isTracked("meta_name"));
  Toggle(Menus().BuiltInMenu(), "meta_name");
  EXPECT_TRUE(top.isChecked() && item->isChecked() && controller().isTracked("meta_name"));
  EXPECT_EQ(ColumnItem(Menus().BuiltInMenu(), "meta_pid"), nullptr);
  EXPECT_EQ(Menus().BuiltInMenu().Items().size(), CountBuiltInProcPropertyHeaders() - 1);
}

TEST_F(ColumnsTest, PreferencesThatAreOddAreMadeToFit) {
  const auto add = [](int i, const char* key) {
    SetPrefArrayString("MAIN_WINDOW_COLUMNS", i, "COLUMN_KEY", key);
  };
  SetPrefInt("HAS_RUN_TWO_POINT_THREE", 1);
  SetPrefInt("HAS_RUN_TWO_POINT_FOUR", 1);
  add(0, "meta_name");
  add(1, "meta_name");
  add(2, "NOSUCHCOLUMN");
  add(3, "internal_cpu_usage");
  add(4, "internal_CPUPercent");
  SetPrefArrayInt("MAIN_WINDOW_COLUMNS", 0, "COLUMN_WIDTH", -7);
  SetPrefArrayInt("MAIN_WINDOW_COLUMNS", 4, "COLUMN_SORT_DIRECTION", 17);
  Open();
  EXPECT_EQ(Keys(), "meta_name internal_CPUPercent meta_pid") << "pids are there for good";
  EXPECT_GT(Width("meta_name"), 40);
  EXPECT_GE(Width("meta_pid"), 45);
  window.reset();
  EXPECT_EQ(GetPrefArrayCount("MAIN_WINDOW_COLUMNS"), 4);
}

TEST_F(ColumnsTest, AColumnOfPsIsFilledWhenPsHasAnswered) {
  auto& tools = machine.tools;
  tools.SetOutput("/bin/ps -Lww", "ppid uid\n");
  tools.SetOutput("/bin/ps 0 -o ppid", "PPID\n");
  tools.SetOutput("/bin/ps 0 -o uid", "UID\n");
  tools.SetOutput("/bin/ps -axww -o pid,ppid", "PID PPID\n1 0\n300 1\n");
  tools.SetOutput("/bin/ps -axww -o pid,uid", "PID UID\n1 0\n300 42\n");
  tools.SetStuck("/bin/ps -Lww");
  machine.processTable.Birth(300, "p");
  SetPrefInt("MAIN_WINDOW_INTERVAL", 3'600'000);
  int count = 0;
  for (const char* key : {"meta_pid", "UID", "GONE", "meta_name"})
    SetPrefArrayString("MAIN_WINDOW_COLUMNS", count++, "COLUMN_KEY", key);
  SetPrefArrayInt("MAIN_WINDOW_COLUMNS", 1, "COLUMN_WIDTH", 99);
  SetPrefInt("MAIN_WINDOW_SORT_COLUMN_INDEX", 1);
  Open();
  Turn(100);
  EXPECT_TRUE(Keys().starts_with("meta_pid UID GONE meta_name")) << Keys();
  EXPECT_EQ(controller().sortColumn(), InternKey("UID"));
  tools.SetStuck("/bin/ps -Lww", false);
  Turn(100);
  EXPECT_TRUE(Keys().starts_with("meta_pid UID meta_name")) << "each in its place: " << Keys();
  EXPECT_EQ(controller().sortColumn(), InternKey("UID"));
  EXPECT_EQ(Width("UID"), 99);
  EXPECT_EQ(Pids(), "1 300 0") << "ps knows no idle task";
  EXPECT_EQ(Cell(1, ColumnOf("UID")), "42");
  // A parent stays, as far as that column goes; it comes after its row all the same.
  Toggle(Menus().PSAvailableMenu(), "PPID");
  Turn(100);
  EXPECT_EQ(Cell(1, ColumnOf("PPID")), "1");
  machine.processTable.Birth(301, "q");
  tools.SetOutput("/bin/ps -axww -o pid,ppid", "PID PPID\n1 0\n300 1\n301 300\n");
  controller().updateNow();
  Turn(100);
  EXPECT_EQ(Cell(3, ColumnOf("PPID")) + Cell(3, ColumnOf("meta_pid")), "300301");
  window.reset();
  char key[64];
  GetPrefArrayString("MAIN_WINDOW_COLUMNS", GetPrefArrayCount("MAIN_WINDOW_COLUMNS") - 1,
                     "COLUMN_KEY", key, sizeof key, false, "");
  EXPECT_STREQ(key, "GONE") << "kept for another ps";
}

TEST_F(ColumnsTest, NumbersSizesAndTimesOfPsSortAsSuch) {
  auto& tools = machine.tools;
  using Kind = ToolColumn::Kind;
  tools.SetColumn("SZ", {Kind::kSize, 4096});
  tools.SetColumn("ELAPSED", {Kind::kClock});
  tools.SetColumn("LSTART", {Kind::kDate});
  tools.SetColumn("PSR", {Kind::kInteger});
  // What ps prints of a process that is none of the user's is no figure.
  tools.SetColumn("WOPS", {Kind::kInteger, 1, true});
  tools.SetClosed(300);
  struct Column {
    std::string name, one, other, shown;
  };
  const Column columns[] = {{"SZ", "9", "10", "36 K"},
                            {"ELAPSED", "59:59", "1-00:00:00", "00:59:59"},
                            {"LSTART", "Sun Nov  1 09:00:00 2026", "Mon Nov  2 08:00:00 2026", ""},
                            {"PSR", "9", "10", "9"},
                            {"WOPS", "0", "0", "×"},
                            {"NEW", "9", "10", "9"}};
  std::string keywords;
  for (const auto& [name, one, other, shown] : columns) {
    keywords += name + ' ';
    tools.SetOutput("/bin/ps 0 -o " + name, name + "\n");
    tools.SetOutput("/bin/ps -axww -o pid," + name,
                    "PID " + name + "\n300 " + one + "\n301 " + other + "\n");
  }
  tools.SetOutput("/bin/ps -Lww", keywords);
  machine.processTable.Birth(300, "p");
  machine.processTable.Birth(301, "p");
  Open();
  for (const auto& [name, one, other, shown] : columns) {
    Toggle(Menus().PSAvailableMenu(), name.c_str());
    Turn(100);
    ClickHeader(name.c_str());
    Turn(100);
    const auto pids = Pids();
    const auto order = window->table().horizontalHeader()->sortIndicatorOrder();
    const bool isLess = (pids.find("300") < pids.find("301")) == (order == Qt::AscendingOrder);
    if (name == "WOPS") {
      EXPECT_LT(pids.find("301"), pids.find("300")) << Table();
    } else {
      EXPECT_EQ(isLess, name != "NEW") << name << ": " << Table();
    }
    const auto row =
        pids.starts_with("300")
            ? 0
            : static_cast<int>(std::ranges::count(pids.substr(0, pids.find("300")), ' '));
    if (name == "LSTART") {
      const auto date = Cell(row, ColumnOf("LSTART")).toStdString();
      EXPECT_TRUE(date.ends_with("2026")) << "cut by its own width: " << date;
    }
    if (!shown.empty()) {
      EXPECT_EQ(Cell(row, ColumnOf(name.c_str())).toStdString(), shown) << name;
    }
  }
  // Whom ps may look into is asked with its run, not with each look at what it printed.
  tools.SetClosed(301);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType("*");
  EXPECT_EQ(Cell(controller().rows().Find(301)->shownIndex, ColumnOf("WOPS")), "0");
}

/// Every item that can be chosen now, in the menu itself.
std::string Offered(QMenu& menu) {
  QStringList titles;
  for (const auto* item : menu.actions())
    if (item->isVisible() && !item->text().isEmpty()) titles.append(item->text());
  return titles.join(QLatin1Char('|')).toStdString();
}

TEST_F(ColumnsTest, ColumnsAreFoundByGroupAndByWhatIsTyped) {
  auto& tools = machine.tools;
  std::string keywords;
  for (const char* name : {"RSS", "EXE", "QQ"}) {
    tools.SetOutput("/bin/ps 0 -o " + std::string(name), std::string(name) + "\n");
    keywords += std::string(name) + ' ';
  }
  tools.SetOutput("/bin/ps -Lww", keywords + "newest\n");
  tools.SetOutput("/bin/ps 0 -o newest", "QQ\n");
  Open();
  window->menus().ValidateAll();
  auto& ps = Menus().PSAvailableMenu();
  EXPECT_EQ(Offered(ps), "Identity|Memory|Other");
  const auto builtIn = Offered(Menus().BuiltInMenu());
  EXPECT_TRUE(builtIn.starts_with("Identity|CPU|Memory|")) << builtIn;
  EXPECT_TRUE(builtIn.ends_with("Classic Environment|Not Counted on This System")) << builtIn;
  // An unknown column still says what it is.
  EXPECT_EQ(ColumnItem(ps, "QQ")->text(), "QQ");
  EXPECT_TRUE(ColumnItem(ps, "QQ")->toolTip().contains("QQ, newest"));

  ps.popup({0, 0});
  QTest::keyClicks(&ps, "nEwE");
  EXPECT_EQ(Offered(ps), "QQ");
  QTest::keyClick(&ps, Qt::Key_Return);
  EXPECT_FALSE(ps.isVisible());
  EXPECT_TRUE(controller().isTracked("QQ"));
  EXPECT_TRUE(ColumnItem(ps, "QQ")->isChecked());
  const auto tip = controller().headerData(ColumnOf("QQ"), Qt::Horizontal, Qt::ToolTipRole);
  EXPECT_FALSE(tip.toString().contains("_tip")) << tip.toString().toStdString();
  ps.popup({0, 0});
  EXPECT_EQ(Offered(ps), "Identity|Memory|Other") << "what was typed is gone";
  QTest::keyClicks(&ps, "xyzzy");
  EXPECT_TRUE(Offered(ps).starts_with("No column")) << Offered(ps);
  // Typed while a group is open, too.
  QTest::keyClick(&ps, Qt::Key_Escape);
  auto* group = ps.actions().at(1)->menu();
  group->popup({0, 0});
  QTest::keyClick(group, 'e');
  EXPECT_TRUE(Offered(ps).find("EXE") != std::string::npos && !group->isVisible()) << Offered(ps);
  QTest::keyClick(&ps, Qt::Key_Escape);
  EXPECT_TRUE(ps.isVisible());
  QTest::keyClick(&ps, Qt::Key_Escape);
  EXPECT_FALSE(ps.isVisible());

  // Columns keep their numbers when they are moved.
  window->table().horizontalHeader()->moveSection(ColumnOf("QQ"), 0);
  const int column = ColumnOf("QQ");
  controller().saveColumnPrefs();
  ASSERT_NE(ColumnOf("QQ"), column);
  auto* hide = window->menus().HeaderMenu(column).actions().constFirst();
  EXPECT_EQ(hide->text(), "&Hide “QQ”");
  hide->trigger();
  EXPECT_FALSE(controller().isTracked("QQ") || ColumnItem(ps, "QQ")->isChecked());
  EXPECT_FALSE(
      window->menus().HeaderMenu(ColumnOf("meta_pid")).actions().constFirst()->isEnabled());
}

TEST_F(ColumnsTest, AnotherInstanceMayHaveStoredFewerColumns) {
  const TemporaryFolder folder;
  PropertyListDomain mine(folder.Path()), theirs(folder.Path());
  Machine shared = MachineOf(machine, mine);
  const MachineInstallation sharedInstallation(shared);
  const auto stored = [&folder] {
    PropertyListDomain domain(folder.Path());
    const auto* value = domain.Value("MAIN_WINDOW_COLUMNS");
    return value != nullptr ? std::get<PreferenceArray>(*value).size() : 0;
  };
  Open();
  EXPECT_EQ(stored(), 7U) << "before anything can kill the program";
  theirs.SetValue("MAIN_WINDOW_COLUMNS",
                  PreferenceArray{{{"COLUMN_KEY", std::string("meta_pid")}}});
  EXPECT_TRUE(theirs.Synchronize());
  ClickHeader("meta_active_time");
  window.reset();
  EXPECT_EQ(stored(), 7U);
  Open();
  EXPECT_EQ(controller().sortColumn(), kMetaActiveTime);
  window.reset();
}

TEST_F(ColumnsTest, WhenTheSortColumnGoesPidsTakeItsPlace) {
  OpenWith({300, 302, 301});
  Toggle(Menus().BuiltInMenu(), "pid_p_nice");
  ClickHeader("pid_p_nice");
  ClickHeader("pid_p_nice");
  EXPECT_EQ(Pids(), "302 301 300 1 0");
  Filter("30");
  Toggle(Menus().BuiltInMenu(), "pid_p_nice");
  EXPECT_EQ(controller().sortColumn(), kMetaPid);
  Turn();
  EXPECT_EQ(Pids(), "300 301 302");
  EXPECT_EQ(GetPrefInt("MAIN_WINDOW_SORT_COLUMN_INDEX", nullptr, false, -1), 0);
}

TEST_F(ColumnsTest, HeadersObeyTheKeyboard) {
  Open();
  ClickHeader("meta_name");
  const int width = Width("meta_name");
  Choose("menu_view_column_left");
  Choose("menu_view_column_wider");
  EXPECT_EQ(Width("meta_name"), width + 20);
  EXPECT_EQ(window->table().horizontalHeader()->visualIndex(ColumnOf("meta_name")), 2);
  Choose("menu_view_column_fit");
  EXPECT_LT(Width("meta_name"), width) << "short names";
  EXPECT_GE(Width("meta_name"), window->table().sizeHintForColumn(ColumnOf("meta_name")));
  window.reset();
  Open();
  EXPECT_TRUE(Keys().starts_with("meta_pid internal_Icon meta_name internal_Indicator")) << Keys();
}

TEST_F(ColumnsTest, PointsOfOneColumnStandBelowEachOther) {
  OpenWith({300});
  Toggle(Menus().BuiltInMenu(), "pid_cpu_wait");
  Filter("pid:300");
  auto& row = *controller().rows().Find(300);
  row.Set(InternKey("pid_cpu_wait"), TimeValue{1, 35'728});
  controller().commitChanges();
  EXPECT_EQ(Cell(0, ColumnOf("pid_cpu_wait")), "1.03");
}

TEST_F(ColumnsTest, SelectionAndRowsSurviveANewColumn) {
  OpenWith({300, 301, 302});
  Select({300, 302});
  Toggle(Menus().BuiltInMenu(), "pid_p_priority");
  EXPECT_EQ(Selected(), "300 302");
  EXPECT_EQ(Pids(), "0 1 300 301 302");
  Turn(10);
  EXPECT_NE(Cell(2, ColumnOf("pid_p_priority")), "") << "at once";
}

}  // namespace
}  // namespace lurkwell
