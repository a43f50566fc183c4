#pragma once

#include <QString>

class QAccessibleInterface;
class QTableView;

namespace lurkwell {

/// What a table of rows knows about itself; -1 for no such column.
class SpokenTable {
 public:
  virtual ~SpokenTable() = default;
  /// Its texts need no title: they are what the rows are about.
  virtual int searchColumn() const = 0;
  /// The one that shows what is folded.
  virtual int treeColumn() const = 0;
  /// What a double click on a row does, for those that are selected.
  virtual void activateRows() = 0;
};

/// What assistive programs see of a table: its titles, then its cells row by row. A cell is named
/// by what it shows together with its column's title, so that cells read one after the other make a
/// sentence; it is described by the sentence of its whole row. The cell that has the focus stays
/// the same object wherever its row goes, and nothing is made for cells that nobody asked for.
/// Belongs to Qt, which deletes it before the table. Main thread only.
QAccessibleInterface* MakeAccessibleTable(QTableView& view, SpokenTable& table);

/// The child that stands for a cell there, for events of the table.
int AccessibleChildOf(const QTableView& view, int row, int column);

/// The shown columns of a row in their order on the screen: "firefox, PID 1234, CPU 12.0 %".
/// Empty where there is no such row.
QString SpokenRow(const QTableView& view, const SpokenTable& table, int row);

}  // namespace lurkwell
