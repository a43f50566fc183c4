#pragma once

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <memory>
#include <string>

#include "main_window/MainWindow.h"
#include "platform/ApplicationQuitting.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {

/// The main window over a simulated machine, with a model tester on its table. Time passes only
/// when a test lets it.
class MainWindowTest : public ConsolidatorTest, public ApplicationCommands {
 protected:
  ~MainWindowTest() override { window.reset(); }

  void Open() {
    if (!helper) Start();
    window = std::make_unique<MainWindow>(*this);
    tester = std::make_unique<QAbstractItemModelTester>(
        &controller(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Turn(0);
  }

  /// With processes that are called p300 and so on, by their pids.
  void OpenWith(std::initializer_list<int> pids) {
    machine.helper.SetRecordsFigures(false);
    for (const int pid : pids) machine.processTable.Birth(pid, "p" + std::to_string(pid));
    Open();
    ClickHeader("meta_pid");
    machine.log.Clear();
  }

  vqMainTableController& controller() { return window->controller(); }

  void Filter(const char* text) { controller().setFilter(std::get<Query>(Query::Read(text))); }

  /// Lets time pass and the window hear of it.
  void Turn(std::int64_t milliseconds = 2000) {
    machine.runLoop.RunFor(milliseconds);
    QApplication::processEvents();
  }

  QString Cell(int row, int column) {
    const auto index = controller().index(row, column);
    auto text = index.data(Qt::DisplayRole).toString();
    return text.isEmpty() ? index.data(Qt::AccessibleTextRole).toString() : text;
  }

  /// The table as it is shown: a line per row, cells between bars, selected rows with a star.
  std::string Table() {
    QString text;
    const auto* header = window->table().horizontalHeader();
    for (int row = 0; row < controller().rowCount(); ++row) {
      QStringList cells;
      for (int place = 0; place < header->count(); ++place)
        cells.append(Cell(row, header->logicalIndex(place)));
      const bool selected = window->table().selectionModel()->isRowSelected(row);
      text += (selected ? "*" : " ") + cells.join(QLatin1Char('|')) + QLatin1Char('\n');
    }
    return text.toStdString();
  }

  /// The pids in the order of the rows.
  std::string Pids() {
    std::string text;
    for (int row = 0; row < controller().rowCount(); ++row)
      text += (row == 0 ? "" : " ") + std::to_string(PidAt(row));
    return text;
  }

  int PidAt(int row) { return controller().rows().Shown()[static_cast<std::size_t>(row)]->Pid(); }

  void Select(std::initializer_list<int> pids) {
    window->table().clearSelection();
    for (const int pid : pids) {
      const auto* row = controller().rows().Find(pid);
      ASSERT_NE(row, nullptr) << pid;
      window->table().selectionModel()->select(
          controller().index(row->shownIndex, 0),
          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
  }

  std::string Selected() {
    std::string text;
    for (const auto pid : controller().selectedPids())
      text += (text.empty() ? "" : " ") + std::to_string(pid);
    return text;
  }

  int ColumnOf(const char* key) {
    const auto& keys = controller().keysWeTrackForUI();
    return static_cast<int>(std::ranges::find(keys, InternKey(key)) - keys.begin());
  }

  std::string Keys() {
    std::string text;
    for (const auto key : controller().keysWeTrackForUI())
      text += (text.empty() ? "" : " ") + std::string(KeyText(key));
    return text;
  }

  /// A click in the middle of a column's header.
  void ClickHeader(const char* key) {
    auto* header = window->table().horizontalHeader();
    const int column = ColumnOf(key);
    const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                       header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
  }

  QAction& Action(const char* id) {
    auto* action = window->findChild<QAction*>(QLatin1String(id));
    EXPECT_NE(action, nullptr) << id;
    window->menus().ValidateAll();
    return *action;
  }

  /// Chooses an item that can be chosen.
  void Choose(const char* id) {
    auto& action = Action(id);
    EXPECT_TRUE(action.isEnabled()) << id;
    action.trigger();
  }

  QAction* ColumnItem(FilterMenu& menu, const char* key) {
    for (auto* item : menu.Items())
      if (item->data().toByteArray() == key) return item;
    return nullptr;
  }

  void doThePrefs() override { commands.Add("preferences"); }
  void doAboutPanel() override { commands.Add("about"); }
  void doShowMainWindow() override { commands.Add("show"); }
  void doQuit() override { commands.Add("quit"); }
  bool isLastWindow(const QWidget&) const override { return closingQuits; }

  AccessLog commands;
  bool closingQuits = false;
  std::unique_ptr<MainWindow> window;
  std::unique_ptr<QAbstractItemModelTester> tester;
};

}  // namespace lurkwell
