// What stands below what, what is folded, what is added up, and which processes are shown at all.
#include <QLabel>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolButton>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>

#include "main_window/MainWindowTest.h"
#include "main_window/RowTotals.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

class ShapeTest : public MainWindowTest {
 protected:
  SimulatedProcess& Birth(int pid, const char* name, int parent = 1, const char* owner = "user") {
    auto& process = machine.processTable.Birth(pid, name, parent);
    process.texts.Set(FigureCalled("pid_owner"), owner);
    process.owner = owner;
    return process;
  }

  void OpenTree() {
    machine.processTable.TellFigures(true);
    machine.processTable.SetOwnPid(300);
    Open();
    ClickHeader("meta_pid");
    Choose("menu_view_shape_tree");
    Turn();
  }

  void OpenApplications() {
    machine.processTable.TellFigures(true);
    machine.processTable.SetOwnPid(300);
    Open();
    ClickHeader("meta_pid");
    Choose("menu_view_shape_applications");
    Turn();
  }

  QModelIndex NameAt(int row) { return controller().index(row, ColumnOf("meta_name")); }

  int RowOf(int pid) {
    const auto* row = controller().rows().Find(pid);
    return row != nullptr ? row->shownIndex : -1;
  }

  /// The names below each other: a blank per level, "+" where something is folded, "-" where it is
  /// unfolded, in brackets what is there for those below it alone, with a star what is selected.
  std::string Tree() {
    std::string text;
    for (int row = 0; row < controller().rowCount(); ++row) {
      const auto name = NameAt(row);
      const int fold = name.data(kFoldRole).toInt();
      const bool isContext = !name.flags().testFlag(Qt::ItemIsSelectable);
      const bool isSelected = window->table().selectionModel()->isRowSelected(row);
      text +=
          std::string(static_cast<std::size_t>(std::max(name.data(kLevelRole).toInt(), 0)), ' ') +
          (fold == 1   ? "+"
           : fold == 2 ? "-"
                       : "") +
          (isContext ? "[" : "") + name.data(Qt::DisplayRole).toString().toStdString() +
          (isContext ? "]" : "") + (isSelected ? "*" : "") + "\n";
    }
    return text;
  }

  std::string Says() {
    for (const auto* label : window->findChildren<QLabel*>())
      if (label->text().contains(QLatin1String("process"))) return label->text().toStdString();
    return {};
  }

  void Press(int pid, Qt::Key key) {
    auto& table = window->table();
    table.SelectAlone(RowOf(pid));
    QTest::keyClick(&table, key);
  }
};

TEST_F(ShapeTest, ChildrenStandBelowTheirParentsAndStaySoAsTheyComeAndGo) {
  Birth(300, "shell");
  Birth(301, "make", 300);
  Birth(302, "cc", 301);
  Birth(303, "ld", 301);
  Birth(310, "other");
  OpenTree();
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n -shell\n  -make\n   cc\n   ld\n other\n");
  Select({302});
  ClickHeader("meta_name");
  ClickHeader("meta_name");
  EXPECT_EQ(Tree(), "-launchd\n -shell\n  -make\n   ld\n   cc*\n other\nkernel_task\n")
      << "among themselves";
  machine.processTable.Death(301);
  Birth(304, "vi", 300);
  Turn();
  EXPECT_EQ(Tree(), "-launchd\n -shell\n  vi\n other\n ld\n cc*\nkernel_task\n");
  // The pid of the parent is a younger process's by now, and what names each other has no end.
  machine.processTable.Death(310);
  auto& late = Birth(305, "late", 300);
  Birth(310, "young", 305);
  late.entry.parentPid = 310;
  Turn();
  Turn();
  EXPECT_NE(Tree().find("late"), std::string::npos) << Tree();
  EXPECT_NE(Tree().find("young"), std::string::npos) << Tree();
  EXPECT_EQ(Selected(), "302");
}

TEST_F(ShapeTest, FoldedRowsShowTotalsAndAreRememberedByName) {
  Birth(300, "shell")["pid_rsz"] = 1 << 20;
  Birth(301, "make", 300)["pid_rsz"] = 2 << 20;
  auto& cc = Birth(302, "cc", 301);
  cc["pid_rsz"] = 4 << 20;
  cc.UseCPU(10);
  Birth(310, "shell")["pid_rsz"] = 8 << 20;
  OpenTree();
  controller().addToKeysWeTrackForUI(InternKey("pid_rsz"));
  Turn();
  const auto memory = [&](int pid) { return Cell(RowOf(pid), ColumnOf("pid_rsz")).toStdString(); };
  Press(300, Qt::Key_Left);
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n +shell (2)*\n shell\n");
  EXPECT_EQ(memory(300), "7.0 M");
  EXPECT_EQ(memory(310), "8.0 M");
  cc.UseCPU(500);
  cc["pid_rsz"] = 9 << 20;
  Turn();
  EXPECT_EQ(memory(300), "12.0 M");
  EXPECT_EQ(NameAt(RowOf(300))
                .siblingAtColumn(ColumnOf("internal_CPUPercent"))
                .data(kCpuShareRole)
                .toDouble(),
            0.25);
  EXPECT_EQ(Selected(), "300") << "the process alone, whatever is folded away in its row";
  // What is found is to be seen.
  EXPECT_TRUE(VQTarvMainWindowInfoSynch::SelectPID(302));
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n -shell\n  -make\n   cc*\n shell\n");
  EXPECT_EQ(memory(300), "1.0 M");
  Press(300, Qt::Key_Left);
  window.reset();
  Open();
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n +shell (2)\n shell\n");
  Press(300, Qt::Key_Right);
  Press(301, Qt::Key_Left);
  Press(302 - 1, Qt::Key_Left);
  EXPECT_EQ(Selected(), "300") << "from a folded row to its parent";
  Choose("menu_view_fold_all");
  EXPECT_EQ(Tree(), "kernel_task\n+launchd (4)\n");
  Choose("menu_view_shape_list");
  EXPECT_EQ(memory(300), "1.0 M");
  EXPECT_FALSE(Action("menu_view_fold_all").isEnabled());
}

TEST_F(ShapeTest, ArrowsAndKeysFoldAndAreSpoken) {
  Birth(300, "shell");
  Birth(301, "make", 300);
  Birth(302, "cc", 301);
  OpenTree();
  auto& table = window->table();
  const auto click = [&](int pid) {
    const auto place = NameAt(RowOf(pid));
    const auto cell = table.visualRect(place);
    const auto arrow = TreeCell::ArrowPlace(cell, place, table.layoutDirection());
    EXPECT_EQ(arrow.center().x() > cell.center().x(), table.isRightToLeft());
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, arrow.center());
  };
  Select({302});
  click(301);
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n -shell\n  +make (1)\n");
  EXPECT_EQ(Selected(), "") << "what is not seen is not acted upon";
  EXPECT_EQ(NameAt(RowOf(301)).data(Qt::AccessibleTextRole).toString(),
            QLatin1String("make (1), level 3, folded, 1 below"));
  click(301);
  EXPECT_EQ(RowOf(302), 4);
  Press(1, Qt::Key_Left);
  EXPECT_EQ(Tree(), "kernel_task\n+launchd (3)*\n");
  QTest::keyClick(&table, Qt::Key_Asterisk);
  EXPECT_EQ(Tree(), "kernel_task\n-launchd*\n -shell\n  -make\n   cc\n");
  QTest::keyClick(&table, Qt::Key_Right);
  EXPECT_EQ(Selected(), "300");
  // Where texts are written from the right, branches begin there.
  table.setLayoutDirection(Qt::RightToLeft);
  QApplication::processEvents();
  QTest::keyClick(&table, Qt::Key_Right);
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n +shell (2)*\n");
  QTest::keyClick(&table, Qt::Key_Left);
  click(301);
  EXPECT_EQ(Tree(), "kernel_task\n-launchd\n -shell*\n  +make (1)\n");
  click(301);
  table.unsetLayoutDirection();
  QTest::keyClick(&table, Qt::Key_2, Qt::AltModifier);
  QTest::keyClick(&table, Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(controller().shape(), TableShape::kList);
  EXPECT_EQ(NameAt(2).data(Qt::AccessibleTextRole).toString(), QLatin1String("shell"));
}

TEST_F(ShapeTest, AFilterKeepsTheAncestorsOfWhatItFindsForTheirPlaceAlone) {
  Birth(300, "shell");
  Birth(301, "make", 300);
  Birth(302, "cc", 301);
  Birth(310, "other");
  OpenTree();
  Press(1, Qt::Key_Left);
  Filter("name:cc");
  EXPECT_EQ(Tree(), "-[launchd]\n -[shell]\n  -[make]\n   cc\n") << "found below a folded row";
  EXPECT_EQ(Says(), "1 of 6 processes: filter; 0 selected");
  window->table().selectAll();
  EXPECT_EQ(Selected(), "302");
  controller().foldRow(RowOf(300), true, false);
  EXPECT_EQ(Tree(), "-[launchd]\n +[shell (2)]\n");
  Filter("name:make");
  EXPECT_EQ(Tree(), "-[launchd]\n -[shell]\n  make\n");
  Filter("");
  EXPECT_EQ(Tree(), "kernel_task\n+launchd (4)\n");
}

TEST_F(ShapeTest, ApplicationsHaveTheirProcessesBelowThem) {
  machine.processManager.Launch({7, 320}, 320, "Editor");
  const auto text = [](SimulatedProcess& process, FigureName figure, const char* value) {
    process.texts.Set(figure.figure, value);
  };
  Birth(300, "lurkwell");
  Birth(320, "editor")["pid_pss"] = 1 << 20;
  Birth(321, "spell", 320)["pid_pss"] = 2 << 20;
  for (const int pid : {320, 321}) (*machine.processTable.Find(pid))["pid_rsz"] = 64 << 20;
  for (const int pid : {330, 331}) {
    auto& process = Birth(pid, pid == 330 ? "web" : "worker", 1, "www");
    text(process, "pid_unit", "web.service");
    process["pid_rsz"] = 4 << 20;
  }
  text(*machine.processTable.Find(321), "pid_container", "own pid namespace");
  for (const int pid : {340, 341}) text(Birth(pid, "db"), "pid_container", "Docker 3f2a");
  for (const int pid : {350, 351}) text(Birth(pid, "sh"), "pid_unit", "session-2.scope");
  for (const int pid : {360, 361})
    text(Birth(pid, "player"), "pid_app_scope", "org.example.Player");
  for (const int pid : {2, 20}) Birth(pid, pid == 2 ? "kthreadd" : "kworker", pid == 2 ? 0 : 2);
  OpenApplications();
  EXPECT_EQ(Tree(),
            "kernel_task\nlaunchd\n+Kernel threads (2)\nlurkwell\n+Editor (2)\n+web.service (2)\n"
            "+Docker 3f2a (2)\n+sh (2)\n+org.example.Player (2)\n");
  controller().addToKeysWeTrackForUI(InternKey("pid_rsz"));
  controller().addToKeysWeTrackForUI(InternKey("pid_owner"));
  Turn();
  const auto at = [&](int row, const char* key) { return Cell(row, ColumnOf(key)).toStdString(); };
  Turn();
  EXPECT_EQ(at(4, "pid_rsz"), "3.0 M") << "what they share counts once";
  EXPECT_EQ(at(5, "pid_rsz"), "8.0 M") << "of other users' processes that is not known";
  EXPECT_EQ(at(5, "pid_owner"), "www") << "what all of them have";
  EXPECT_EQ(at(5, "meta_pid"), "");
  // The group is what is chosen, and what is done is done to all of it.
  window->table().SelectAlone(5);
  EXPECT_EQ(Selected(), "330 331");
  auto& late = Birth(332, "worker", 1, "www");
  text(late, "pid_unit", "web.service");
  Turn();
  EXPECT_EQ(Selected(), "330 331 332");
  controller().foldRow(5, false, false);
  EXPECT_EQ(Selected(), "330 331 332") << "nothing counts twice";
  for (const int pid : {330, 331}) machine.processTable.Death(pid);
  Turn();
  EXPECT_EQ(RowOf(332), 5) << "one alone needs no row above it";
  EXPECT_EQ(NameAt(5).data(kLevelRole).toInt(), 0);
  // A row that stands alone and is selected stays in sight when it gets company.
  Select({332});
  text(Birth(333, "worker", 1, "www"), "pid_unit", "web.service");
  Turn();
  EXPECT_EQ(Selected(), "332");
  EXPECT_EQ(NameAt(RowOf(332)).data(kLevelRole).toInt(), 1);
}

TEST_F(ShapeTest, WhatIsSelectedStaysWhereItIsWhenTheShapeChanges) {
  for (int pid = 400; pid < 600; ++pid)
    Birth(pid, pid % 10 == 0 ? "parent" : "child", pid % 10 == 0 ? 1 : pid / 10 * 10);
  OpenTree();
  window->resize(500, 300);
  auto& table = window->table();
  const auto place = [&] { return table.visualRect(NameAt(RowOf(555))).top(); };
  table.SelectAlone(RowOf(555));
  const int before = place();
  for (const char* shape :
       {"menu_view_shape_applications", "menu_view_shape_list", "menu_view_shape_tree"}) {
    Choose(shape);
    EXPECT_EQ(Selected(), "555") << shape;
    EXPECT_EQ(place(), before) << shape;
    Turn();
    EXPECT_EQ(place(), before) << shape;
  }
}

TEST_F(ShapeTest, WhateverHappensRowsShowAndAreSortedByWhatIsBelowThem) {
  std::minstd_rand random(7);
  const auto any = [&](int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
  };
  const KeyId owner = InternKey("pid_owner");
  std::set<int> pids;
  int last = 400;
  const auto birth = [&] {
    const int parent = pids.empty() || any(0, 3) == 0
                           ? 1
                           : *std::next(pids.begin(), any(0, static_cast<int>(pids.size()) - 1));
    const std::string name = "p" + std::to_string(any(0, 4));
    auto& born = Birth(last, name.c_str(), parent, any(0, 4) == 0 ? "other" : "user");
    born["pid_rsz"] = born["pid_pss"] = any(1, 99);
    pids.insert(last++);
  };
  while (pids.size() < 40) birth();
  OpenTree();
  controller().addToKeysWeTrackForUI(kPidRsz);
  controller().addToKeysWeTrackForUI(owner);
  for (int step = 0; step < 120; ++step) {
    SCOPED_TRACE(step);
    if (step == 40) Choose("menu_view_shape_applications");
    if (step == 80) ClickHeader("pid_rsz");
    if (step == 20) ClickHeader("internal_CPUPercent");
    const int pid = *std::next(pids.begin(), any(0, static_cast<int>(pids.size()) - 1));
    auto& process = *machine.processTable.Find(pid);
    switch (any(0, 5)) {
      case 0:
        machine.processTable.Death(pid);
        pids.erase(pid);
        birth();
        break;
      case 1:
        process.texts.Set(FigureCalled("pid_owner"), any(0, 1) == 0 ? "user" : "other");
        break;
      case 2:
        controller().foldRow(any(0, controller().rowCount() - 1), any(0, 1) == 0, any(0, 3) == 0);
        break;
      default:
        process["pid_rsz"] = process["pid_pss"] = any(1, 99);
        process.UseCPU(any(1, 400));
    }
    Turn();
    std::map<const RowDictionary*, std::pair<std::int64_t, double>> sums;
    std::map<const RowDictionary*, std::set<RowValue>> owners;
    for (const auto* row : controller().pidEntries())
      for (const auto* above = row; above != nullptr; above = above->above) {
        sums[above].first += IntegerOf(Addend(*row, kPidRsz));
        sums[above].second += NumberOf(row->Get(kInternalCpuUsage));
        owners[above].insert(row->Get(owner));
      }
    std::map<const RowDictionary*, const RowDictionary*> lastBelow;
    for (const auto* row : controller().rows().Shown()) {
      const auto& [memory, share] = sums[row];
      const bool isFolded = row->Standing().fold == RowStanding::Fold::kFolded;
      if (isFolded || row->Group() != nullptr) {
        EXPECT_EQ(IntegerOf(row->Shown(kPidRsz)), memory) << row->OrderPid();
        EXPECT_NEAR(NumberOf(row->Shown(kInternalCpuUsage)), share, 1e-9) << row->OrderPid();
      }
      if (row->Group() != nullptr) {
        EXPECT_EQ(row->Get(owner), owners[row].size() == 1 ? *owners[row].begin() : RowValue())
            << row->Group()->key;
      }
      const auto* before = std::exchange(lastBelow[row->above], row);
      if (before == nullptr || step < 20 || row->Pid() == 0 || before->Pid() == 0) continue;
      if (step < 80)
        EXPECT_GE(sums[before].second, share - 1e-9) << row->OrderPid();
      else
        EXPECT_GE(sums[before].first, memory) << row->OrderPid();
    }
  }
}

TEST_F(ShapeTest, ScopesSayWhatIsMissing) {
  Birth(2, "kthreadd", 0, "root");
  Birth(20, "kworker", 2, "root");
  Birth(300, "lurkwell");
  Birth(301, "sudo", 300, "user as root");
  Birth(302, "daemon", 1, "root").UseCPU(10);
  machine.processManager.Launch({7, 303}, 303, "Editor");
  Birth(303, "editor");
  machine.processTable.TellFigures(true);
  machine.processTable.SetOwnPid(300);
  Open();
  ClickHeader("meta_pid");
  EXPECT_EQ(Says(), "8 processes, 8 shown, 0 selected");
  const auto scope = [&](const char* command) {
    Choose(command);
    EXPECT_TRUE(Action(command).isChecked()) << command;
    Turn();
    return Pids() + "; " + Says();
  };
  EXPECT_EQ(scope("menu_scope_mine"), "300 301 303; 3 of 8 processes: mine; 0 selected");
  Filter("sud");
  EXPECT_EQ(Pids() + "; " + Says(), "301; 1 of 8 processes: mine, filter; 0 selected");
  Filter("");
  EXPECT_EQ(scope("menu_scope_others"), "2 20 302; 3 of 8 processes: other users’; 0 selected");
  EXPECT_EQ(scope("menu_scope_applications"), "303; 1 of 8 processes: applications; 0 selected");
  EXPECT_EQ(scope("menu_scope_without_kernel"),
            "1 300 301 302 303; 5 of 8 processes: without kernel threads; 0 selected");
  EXPECT_EQ(scope("menu_scope_busy"), "; 0 of 8 processes: busy; 0 selected");
  machine.processTable.Find(302)->UseCPU(10);
  Turn();
  EXPECT_EQ(Pids(), "302");
  // The status line has it at hand.
  auto* button = window->statusBar()->findChildren<QToolButton*>().constLast();
  EXPECT_EQ(button->text(), QLatin1String("Busy Processes"));
  button->menu()->actions().constFirst()->trigger();
  EXPECT_EQ(button->text(), QLatin1String("All Processes"));
  EXPECT_EQ(controller().rowCount(), 8);
  Choose("menu_scope_mine");
  window.reset();
  Open();
  EXPECT_EQ(Says(), "3 of 8 processes: mine; 0 selected");
  EXPECT_EQ(controller().rowCount(), 3);
}

}  // namespace
}  // namespace lurkwell
