// Sets of columns: what each keeps, the user's own, and what a preference file may bring.
#include <QLineEdit>
#include <QToolButton>

#include "main_window/CommandsTest.h"

namespace lurkwell {
namespace {

const std::string kStandard =
    "meta_pid internal_Icon internal_Indicator meta_name meta_active_time internal_CPUPercent "
    "internal_MemGraph";

class ColumnSetsTest : public CommandsTest {
 protected:
  void Reopen() {
    window.reset();
    Open();
  }

  void Press(int number) {
    // A window manager would give the keyboard back after a question.
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), static_cast<Qt::Key>(Qt::Key_0 + number), Qt::ControlModifier);
    QApplication::processEvents();
  }

  /// What the buttons of the status line say.
  std::string Switches() {
    QStringList texts;
    for (const auto* button : window->statusBar()->findChildren<QToolButton*>())
      if (button->isVisible()) texts.append(button->text());
    return texts.join(QLatin1Char('|')).toStdString();
  }

  std::string SortedBy() { return std::string(KeyText(controller().sortColumn())); }

  /// The own sets in the menu, with their keys; a star before the one that is shown.
  std::string OwnSets() {
    QStringList texts;
    for (const auto* item : window->menus().ColumnSetMenu().actions())
      if (item->objectName().isEmpty() && !item->isSeparator())
        texts.append((item->isChecked() ? QStringLiteral("*") : QString()) + item->text() +
                     QLatin1Char(' ') + item->shortcut().toString());
    return texts.join(QLatin1Char('|')).toStdString();
  }

  /// Types a title into the next question; what is said about it is added to `complaints`.
  std::function<void(QDialog&)> Type(const QStringList& refused, const QString& title) {
    return [this, refused, title](QDialog& box) {
      auto& field = *box.findChild<QLineEdit*>();
      for (const auto& text : refused) {
        field.setText(text);
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_TRUE(box.isVisible());
        complaints.append(field.accessibleDescription());
      }
      field.setText(title);
    };
  }

  QStringList complaints;
};

TEST_F(ColumnSetsTest, EachKeepsItsColumnsWidthsOrderSortingAndShape) {
  OpenWith({300, 301, 302});
  EXPECT_EQ(Keys(), kStandard);
  EXPECT_EQ(Switches(), "Standard|List|All Processes");
  window->table().setColumnWidth(ColumnOf("meta_name"), 333);
  Select({301});
  Press(2);
  EXPECT_TRUE(Keys().starts_with("meta_pid internal_Icon meta_name internal_CPUPercent")) << Keys();
  EXPECT_EQ(Switches(), "CPU|List|All Processes");
  EXPECT_EQ(SortedBy(), "internal_CPUPercent");
  EXPECT_EQ(Selected(), "301");
  EXPECT_TRUE(Action("menu_set_cpu").isChecked() && !Action("menu_set_standard").isChecked());
  auto& columns = window->menus().columnMenus();
  EXPECT_TRUE(ColumnItem(columns.BuiltInMenu(), "pid_csw")->isChecked());
  EXPECT_FALSE(columns.TopLevelItem(kInternalMemGraph).isChecked());

  ColumnItem(columns.BuiltInMenu(), "pid_csw")->trigger();
  window->table().horizontalHeader()->moveSection(ColumnOf("pid_threads"), 0);
  window->table().setColumnWidth(ColumnOf("meta_name"), 222);
  ClickHeader("meta_name");
  ClickHeader("meta_name");
  Choose("menu_view_shape_tree");
  Turn();
  const auto changed = Table();
  Press(1);
  EXPECT_EQ(Keys(), kStandard);
  EXPECT_EQ(Switches(), "Standard|List|All Processes");
  EXPECT_EQ(SortedBy(), "meta_pid");
  EXPECT_EQ(window->table().columnWidth(ColumnOf("meta_name")), 333);
  EXPECT_TRUE(columns.TopLevelItem(kInternalMemGraph).isChecked());
  Press(2);
  Turn();
  EXPECT_TRUE(Keys().starts_with("pid_threads meta_pid")) << Keys();
  EXPECT_EQ(Table(), changed);
  Reopen();
  Turn();
  EXPECT_EQ(Switches(), "CPU|Tree|All Processes");
  Select({301});
  EXPECT_EQ(Table(), changed) << "at the next start, too";
  EXPECT_EQ(window->table().columnWidth(ColumnOf("meta_name")), 222);
  // Each of the others comes with figures that there are.
  for (int number = 3; number <= 7; ++number) {
    Press(number);
    const auto keys = controller().keysWeTrackForUI();
    EXPECT_GE(keys.size(), 7U) << number;
    EXPECT_EQ(static_cast<int>(keys.size()), controller().columnCount());
    EXPECT_TRUE(controller().isTracked(SortedBy())) << number;
  }

  ChooseAndAgree("menu_set_restore", "Cancel");
  Press(2);
  ChooseAndAgree("menu_set_restore", "Restore");
  EXPECT_TRUE(Keys().ends_with("pid_csw")) << Keys();
  EXPECT_EQ(Switches(), "CPU|List|All Processes");
  Press(1);
  window->menus().columnMenus().TopLevelItem(kInternalMemGraph).trigger();
  Choose("menu_view_shape_applications");
  ChooseAndAgree("menu_set_restore", "Restore");
  EXPECT_EQ(Keys(), kStandard);
  EXPECT_EQ(Switches(), "Standard|List|All Processes");
  EXPECT_FALSE(Action("menu_set_delete").isEnabled() || Action("menu_set_rename").isEnabled());
}

TEST_F(ColumnSetsTest, OwnSetsAreMadeRenamedAndDeleted) {
  OpenWith({300});
  Press(3);
  const auto memory = Keys();
  const QString title = QStringLiteral("Grün & 50 %: own");
  ChooseAndAgree("menu_set_save_as", "Save",
                 Type({QStringLiteral("  cpu "), QString(41, QLatin1Char('x'))}, title));
  ASSERT_EQ(complaints.size(), 2);
  EXPECT_EQ(complaints[0].toStdString(), "There is a set “CPU” already.");
  EXPECT_TRUE(complaints[1].contains(QLatin1String("40 letters"))) << complaints[1].toStdString();
  EXPECT_EQ(OwnSets(), "*Grün && 50 %: own Ctrl+8");
  EXPECT_TRUE(Switches().starts_with("Grün && 50 %: own|")) << Switches();
  window->menus().columnMenus().TopLevelItem(kInternalMemGraph).trigger();
  const auto own = Keys();
  EXPECT_NE(own, memory);
  Press(3);
  EXPECT_EQ(Keys(), memory) << "what it was made of stays";
  ChooseAndAgree("menu_set_save_as", "Save", Type({title.toUpper()}, QStringLiteral("second")));
  EXPECT_EQ(complaints.size(), 3);
  ChooseAndAgree("menu_set_rename", "Save", Type({title}, QStringLiteral("Second")));
  EXPECT_EQ(complaints.size(), 4);
  Reopen();
  EXPECT_EQ(OwnSets(), "Grün && 50 %: own Ctrl+8|*Second Ctrl+9");
  Press(8);
  EXPECT_EQ(Keys(), own);
  EXPECT_FALSE(Action("menu_set_restore").isEnabled());

  ChooseAndAgree("menu_set_delete", "Cancel");
  EXPECT_NE(question.find(title.toStdString()), std::string::npos) << question;
  EXPECT_EQ(Keys(), own);
  ChooseAndAgree("menu_set_delete", "Delete");
  EXPECT_EQ(Keys(), kStandard);
  EXPECT_EQ(OwnSets(), "Second Ctrl+8");
  Reopen();
  EXPECT_EQ(OwnSets(), "Second Ctrl+8");
  Press(8);
  EXPECT_EQ(Keys(), memory);
}

TEST_F(ColumnSetsTest, WhatIsDamagedCountsAsNeverStored) {
  constexpr char kSets[] = "MAIN_WINDOW_COLUMN_SETS";
  int count = 0;
  const auto add = [&](const std::string& key, const std::string& columns) {
    SetPrefArrayString(kSets, count, "SET_KEY", key.c_str());
    SetPrefArrayString(kSets, count, "SET_COLUMNS", columns.c_str());
    SetPrefArrayString(kSets, count, "SET_SORT_COLUMN", "no such");
    SetPrefArrayInt(kSets, count++, "SET_SHAPE", 77);
  };
  add("cpu", "::: meta_pid:x:1 meta_name:10:7 " + std::string(70, 'k') + ":10:1");
  add("memory", "pid_rsz:99:0 nonsense:50:1 internal_no:50:1");
  add("own:" + std::string(2000, 'a'), "meta_pid:60:1");
  add("own:", "meta_pid:60:1");
  add("own:CPU", "meta_pid:60:1");
  add("own:mine", std::string(20'000, 'a'));
  SetPrefArrayInt(kSets, count, "SET_KEY", 3);
  SetPrefString("MAIN_WINDOW_COLUMN_SET", "own:gone");
  OpenWith({300});
  EXPECT_EQ(Switches(), "Standard|List|All Processes");
  EXPECT_EQ(OwnSets(), "mine Ctrl+8");
  Press(2);
  EXPECT_TRUE(Keys().ends_with("pid_csw")) << Keys();
  Press(3);
  EXPECT_EQ(Keys(), "pid_rsz meta_pid");
  EXPECT_EQ(window->table().columnWidth(0), 99);
  EXPECT_EQ(SortedBy(), "pid_rsz");
  Press(8);
  EXPECT_EQ(Keys(), kStandard);
}

TEST_F(ColumnSetsTest, WhatIsSelectedStaysInSight) {
  for (int pid = 300; pid < 400; ++pid) machine.processTable.Birth(pid, "p" + std::to_string(pid));
  machine.processTable.TellFigures(true);
  for (int pid = 300; pid < 400; ++pid)
    (*machine.processTable.Find(pid))["pid_rsz"] = std::int64_t{pid} << 20;
  OpenWith({});
  window->table().scrollToBottom();
  Select({398});
  const auto place = [&] {
    const auto* row = controller().rows().Find(398);
    return window->table().rowViewportPosition(row->shownIndex);
  };
  window->table().setCurrentIndex(controller().index(controller().rows().Find(398)->shownIndex, 0));
  const int before = place();
  Press(3);
  Turn(100);
  EXPECT_EQ(SortedBy(), "pid_rsz");
  EXPECT_EQ(PidAt(0), 399) << Pids();
  EXPECT_TRUE(window->table().viewport()->rect().contains(5, place())) << before << " " << place();
  window->table().clearSelection();
  Press(1);
  Press(3);
  Turn(100);
  EXPECT_EQ(window->table().rowAt(0), 0) << "who has selected nothing sees the largest";
}

}  // namespace
}  // namespace lurkwell
