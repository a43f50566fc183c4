#pragma once

#include <QAbstractTableModel>
#include <QPointer>
#include <QTableView>
#include <QWidget>
#include <string_view>

#include "windows/Keys.h"
#include "windows/RowSorting.h"

namespace lurkwell {

/// A table that can be sorted by one of its columns, and the model that its view shows. What rows
/// and columns there are is the subclass's. Main thread only.
///
/// Directions are numbers everywhere: 1 ascending, 0 descending.
class vqTableController : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit vqTableController(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  /// Null before the view exists and after it has gone.
  QTableView* table() const { return fTable; }
  QWidget* window() const { return fWindow; }

  /// The column that the rows are sorted by, kNoKey for none.
  KeyId sortColumn() const { return fSortColumn; }

  /// Makes a column the sort column and marks its header; the rows stay as they are. A key that
  /// cannot be sorted by changes nothing; kNoKey ends sorting.
  void setSortColumn(KeyId key, char ascending);

  bool hasSelection() const;

  /// Shows the rows as they are now.
  virtual void triggerReload() = 0;

  /// The comparison for a column; null when it cannot be sorted by, as here.
  virtual RowComparison sortSelectorForColumn(std::string_view key) const;
  /// How typing finds rows by a column; null, as here, for not at all.
  virtual RowComparison keyScrollSelectorForColumn(std::string_view key) const;

  /// The header's arrow for a direction.
  static Qt::SortOrder indicatorForSortDirection(char ascending);

 protected:
  /// The place of a column in the model, -1 when it is not shown.
  virtual int columnIndexOf(KeyId key) const = 0;

  /// Puts the arrow on the sort column's header, or takes it away.
  void showSortIndicator();

  QPointer<QTableView> fTable;
  QPointer<QWidget> fWindow;
  KeyId fSortColumn = kNoKey;
  char fSortAscending = 1;
};

}  // namespace lurkwell
