// What keeps rows in their places: a pause, a selection that is followed, the pointer.
#include <QLabel>
#include <QScrollBar>
#include <QWindow>
#include <string>

#include "main_window/MainWindowTest.h"

namespace lurkwell {
namespace {

class StillTest : public MainWindowTest {
 protected:
  std::string Says() {
    for (const auto* label : window->findChildren<QLabel*>())
      if (label->text().contains(QLatin1String("process"))) return label->text().toStdString();
    return {};
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window->table(), key, modifiers);
    QApplication::processEvents();
  }
  int RowOf(int pid) {
    for (int row = 0; row < controller().rowCount(); ++row)
      if (PidAt(row) == pid) return row;
    return -1;
  }
  QModelIndex At(int pid, const char* key) { return controller().index(RowOf(pid), ColumnOf(key)); }
  void Work(int pid, int milliseconds) { machine.processTable.Find(pid)->UseCPU(milliseconds); }
};

TEST_F(StillTest, APausedTableShowsWhatItShowedAndReachesNobodyElse) {
  OpenWith({300, 301, 302});
  ClickHeader("internal_CPUPercent");
  for (const int pid : {300, 301, 302}) Work(pid, 10);
  Turn();
  for (const int pid : {300, 301, 302}) Work(pid, (pid - 299) * 200);
  Turn();
  const auto before = Table();
  ASSERT_EQ(Pids(), "302 301 300 1 0");
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(window->windowTitle(), QLatin1String("Processes (paused)"));
  EXPECT_TRUE(Action("menu_view_pause").isChecked());
  Select({301, 302});
  machine.processTable.Death(301);
  Work(300, 1900);
  Turn();
  // Who has the pid now is not who was chosen.
  machine.processTable.Birth(301, "other");
  machine.processTable.Birth(310, "late");
  Turn();
  window->table().clearSelection();
  EXPECT_EQ(Pids(), "302 301 300 1 0");
  EXPECT_EQ(Table(), before);
  EXPECT_EQ(Says().substr(0, 31), "Paused: 1 ended, 2 new since. 5") << Says();
  EXPECT_TRUE(At(301, "meta_name").data(kHasEndedRole).toBool());
  EXPECT_FALSE(At(300, "meta_name").data(kHasEndedRole).toBool());
  EXPECT_TRUE(At(300, "internal_CPUPercent").data(kIsFaintRole).toBool());
  EXPECT_NEAR(At(300, "internal_CPUPercent").data(kCpuShareRole).toDouble(), 0.1, 0.001);
  EXPECT_TRUE(Cell(RowOf(301), ColumnOf("meta_name")).startsWith(QLatin1String("p301")));
  window->table().selectAll();
  EXPECT_EQ(Selected(), "302 300 1 0");
  // What the user asks for is done with what there is.
  ClickHeader("meta_pid");
  EXPECT_EQ(Pids(), "0 1 300 301 302");
  Filter("p30");
  EXPECT_EQ(Pids(), "300 301 302");
  Choose("menu_view_shape_tree");
  Turn();
  EXPECT_EQ(Pids(), "1 300 301 302");
  Choose("menu_view_shape_list");
  Filter("");
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(window->windowTitle(), QLatin1String("Processes"));
  Turn();
  EXPECT_EQ(Pids(), "0 1 300 301 302 310");
  EXPECT_EQ(Cell(3, ColumnOf("meta_name")), QLatin1String("other"));
  EXPECT_EQ(Selected(), "300 302") << "what the filter left, without who ended";
  EXPECT_FALSE(At(300, "internal_CPUPercent").data(kIsFaintRole).toBool());
  EXPECT_EQ(Says().substr(0, 33), "6 processes, 6 shown, 2 selected:");
}

TEST_F(StillTest, WhatIsAskedForDuringAPauseIsReadOnceForThoseThatAreStillThere) {
  machine.processTable.TellFigures(true);
  machine.helper.SetRecordsFigures(false);
  for (const int pid : {300, 301, 302}) {
    auto& process = machine.processTable.Birth(pid, "p" + std::to_string(pid), 1);
    process.texts.Set(FigureCalled("pid_unit"), "web.service");
    process["pid_threads"] = 303 - pid;
  }
  Open();
  ClickHeader("meta_pid");
  Press(Qt::Key_Space, Qt::ControlModifier);
  machine.processTable.Death(301);
  machine.processTable.Birth(310, "late")["pid_threads"] = 9;
  Turn();
  controller().addToKeysWeTrackForUI(InternKey("pid_threads"));
  ClickHeader("pid_threads");
  Turn();
  const auto threads = [&](int pid) {
    return At(pid, "pid_threads").data().toString().toStdString();
  };
  EXPECT_EQ(threads(300), "3");
  EXPECT_EQ(threads(302), "1");
  EXPECT_EQ(threads(301), "") << "it had ended";
  EXPECT_TRUE(Pids().ends_with("302 300 301")) << "sorted by what came: " << Pids();
  EXPECT_TRUE(At(300, "pid_threads")
                  .data(Qt::ToolTipRole)
                  .toString()
                  .startsWith(QLatin1String("This column was added while")));
  (*machine.processTable.Find(300))["pid_threads"] = 19;
  Turn();
  EXPECT_EQ(threads(300), "3") << "held from then on";
  Choose("menu_view_shape_applications");
  Turn();
  EXPECT_NE(Table().find("web.service (2)"), std::string::npos) << Table();
  Choose("menu_view_shape_list");
  Press(Qt::Key_Space, Qt::ControlModifier);
  Turn();
  EXPECT_EQ(threads(300), "19");
  EXPECT_EQ(threads(310), "9");
  EXPECT_EQ(RowOf(301), -1);
}

TEST_F(StillTest, AFollowedSelectionStaysWhereItIsOnTheScreen) {
  machine.helper.SetRecordsFigures(false);
  for (int pid = 400; pid < 500; ++pid) machine.processTable.Birth(pid, "p");
  Open();
  window->resize(500, 300);
  ClickHeader("internal_CPUPercent");
  auto& table = window->table();
  const auto place = [&] { return table.rowViewportPosition(RowOf(450)); };
  table.SelectAlone(RowOf(450));
  const int before = place();
  const auto move = [&] {
    for (int pid = 400; pid < 500; ++pid) Work(pid, pid == 450 ? 5 : pid % 17 + pid % 7);
    Turn();
    for (int pid = 400; pid < 500; ++pid) Work(pid, pid == 450 ? 150 : 100 + pid * 7 % 90);
    Turn();
  };
  move();
  EXPECT_NE(place(), before);
  Press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Action("menu_view_follow").isChecked());
  EXPECT_TRUE(table.viewport()->rect().contains(QPoint(0, place()))) << "it comes into sight";
  for (int pid = 420; pid < 440; ++pid) machine.processTable.Death(pid);
  const int kept = place();
  const int row = RowOf(450);
  Turn();
  EXPECT_EQ(place(), kept);
  for (int pid = 510; pid < 540; ++pid) machine.processTable.Birth(pid, "q");
  for (int pid = 440; pid < 500; ++pid) Work(pid, pid == 450 ? 400 : 100 + pid * 7 % 900);
  Turn();
  EXPECT_NE(RowOf(450), row);
  EXPECT_EQ(place(), kept);
  window.reset();
  Open();
  EXPECT_TRUE(Action("menu_view_follow").isChecked()) << "remembered";
}

TEST_F(StillTest, RowsStayUnderThePressedPointer) {
  OpenWith({300, 301});
  ClickHeader("internal_CPUPercent");
  for (const int pid : {300, 301}) Work(pid, 10);
  Turn();
  Work(301, 500);
  Turn();
  ASSERT_EQ(Pids(), "301 300 1 0");
  auto& table = window->table();
  const auto point =
      table.viewport()->mapTo(window.get(), table.visualRect(At(300, "meta_name")).center());
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, point);
  machine.processTable.Death(301);
  Work(300, 900);
  Turn();
  EXPECT_EQ(Pids(), "301 300 1 0");
  EXPECT_EQ(Selected(), "300");
  EXPECT_TRUE(At(301, "meta_name").data(kHasEndedRole).toBool());
  QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, point);
  QApplication::processEvents();
  EXPECT_EQ(Pids(), "300 1 0");
  // The space bar selects besides, since the control key has another meaning with it.
  table.SelectAlone(0);
  table.selectionModel()->setCurrentIndex(controller().index(1, 0), QItemSelectionModel::NoUpdate);
  Press(Qt::Key_Space, {});
  EXPECT_EQ(Selected(), "300 1");
  Press(Qt::Key_Space, {});
  EXPECT_EQ(Selected(), "300");
}

}  // namespace
}  // namespace lurkwell
