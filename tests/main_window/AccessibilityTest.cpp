// What a screen reader is told of the main window, asked as the toolkit's bridge asks.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QMap>

#include "main_window/MainWindowTest.h"
#include "main_window/ToolbarGauge.h"

namespace lurkwell {
namespace {

class AccessibilityTest : public MainWindowTest {
 protected:
  QAccessibleInterface& TableInterface() {
    return *QAccessible::queryAccessibleInterface(&window->table());
  }
  QAccessibleInterface* CellAt(int row, const char* key) {
    return TableInterface().tableInterface()->cellAt(row, ColumnOf(key));
  }
  int RowOf(int pid) { return controller().rows().Find(pid)->shownIndex; }
  void MoveTo(int pid) {
    window->table().setFocus();
    window->table().setCurrentIndex(controller().index(RowOf(pid), ColumnOf("meta_name")));
  }
};

TEST_F(AccessibilityTest, RowsAreSentencesAndCellsStayWhatTheyAre) {
  machine.helper.SetRecordsFigures(false);
  auto& worker = machine.processTable.Birth(300, "worker");
  worker.owner = "ann";
  machine.processTable.Birth(301, "other");
  Open();
  ClickHeader("meta_pid");
  auto& table = TableInterface();
  EXPECT_EQ(table.role(), QAccessible::Table);
  EXPECT_EQ(table.text(QAccessible::Name), "Processes");
  const int columns = controller().columnCount();
  EXPECT_EQ(table.childCount(), (controller().rowCount() + 1) * columns);
  for (int number = 0; number < table.childCount(); ++number)
    ASSERT_EQ(table.indexOfChild(table.child(number)), number);
  auto* title = table.child(ColumnOf("meta_pid"));
  EXPECT_EQ(title->role(), QAccessible::ColumnHeader);
  EXPECT_EQ(title->text(QAccessible::Description), "sorted, smallest first");
  title->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(title->text(QAccessible::Description), "sorted, largest first");

  auto* name = CellAt(RowOf(300), "meta_name");
  const auto sentence = name->text(QAccessible::Description);
  EXPECT_EQ(name->text(QAccessible::Name), "worker");
  EXPECT_TRUE(sentence.contains("worker, ")) << sentence.toStdString();
  const auto pid = CellAt(RowOf(300), "meta_pid")->text(QAccessible::Name);
  EXPECT_TRUE(pid.endsWith(" 300") && pid.size() > 5) << pid.toStdString();
  EXPECT_TRUE(sentence.contains(pid)) << sentence.toStdString();

  // It is the same object wherever the row goes, and none when the process has ended.
  const int before = RowOf(300);
  title->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  ASSERT_NE(RowOf(300), before);
  EXPECT_EQ(CellAt(RowOf(300), "meta_name"), name);
  EXPECT_EQ(table.indexOfChild(name), (RowOf(300) + 1) * columns + ColumnOf("meta_name"));
  const auto place = name->rect().center();
  EXPECT_EQ(table.childAt(place.x(), place.y()), name);
  EXPECT_TRUE(window->geometry().contains(name->rect()));
  MoveTo(300);
  EXPECT_TRUE(name->state().focused);
  EXPECT_EQ(table.focusChild(), name);
  worker.entry.state = RunState::kZombie;
  Turn();
  EXPECT_EQ(name->text(QAccessible::Name), "worker, zombie");
  machine.processTable.Death(300);
  Turn();
  EXPECT_FALSE(name->isValid());
  EXPECT_EQ(table.child(table.childCount()), nullptr);
  // So many that were looked at are not kept.
  for (int many = 1000; many < 1400; ++many) machine.processTable.Birth(many, "many");
  Turn();
  for (int number = 0; number < table.childCount(); ++number)
    ASSERT_NE(table.child(number), nullptr);
  machine.processTable.Death(1000);
  Turn();
  EXPECT_EQ(CellAt(RowOf(1399), "meta_pid")->text(QAccessible::Name).right(4), "1399");
}

TEST_F(AccessibilityTest, GaugesTellTheirFigures) {
  Open();
  QString figures;
  for (auto* gauge : window->findChildren<ToolbarGauge*>()) {
    auto* asked = QAccessible::queryAccessibleInterface(gauge);
    EXPECT_EQ(asked->role(), QAccessible::Chart);
    EXPECT_FALSE(asked->text(QAccessible::Name).isEmpty());
    figures += asked->text(QAccessible::Description) + '\n';
  }
  EXPECT_TRUE(figures.contains("CPU: ")) << figures.toStdString();
}

TEST_F(AccessibilityTest, TheToolbarIsOneStopAndArrowsGoThroughIt) {
  OpenWith({300});
  window->resize(1400, 600);
  Turn(0);
  Select({300});
  Turn(0);
  auto& table = window->table();
  table.setFocus();
  const auto isInToolbar = [&] {
    const auto* focused = QApplication::focusWidget();
    return focused != nullptr && controller().toolbar()->isAncestorOf(focused);
  };
  int stops = 0;
  int tabs = 0;
  do {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    stops += isInToolbar();
    if (stops == 1 && isInToolbar()) {
      QMap<const QWidget*, int> visited;
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
      for (int step = 0; step < 30; ++step) {
        ++visited[QApplication::focusWidget()];
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
      }
      for (auto* button : controller().toolbar()->findChildren<QToolButton*>())
        EXPECT_EQ(visited.contains(button), button->isVisible() && button->isEnabled())
            << button->text().toStdString();
      QApplication::processEvents();
    }
  } while (QApplication::focusWidget() != &table && ++tabs < 30);
  EXPECT_EQ(QApplication::focusWidget(), &table);
  EXPECT_EQ(stops, 1);
}

}  // namespace
}  // namespace lurkwell
