#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <optional>
#include <vector>

#include "fleet/FleetTable.h"

namespace lurkwell {

/// The rows of a fleet's table, sorted by any column. What is not known comes last in both orders.
/// Rows keep their selection by their names. Main thread only.
class FleetModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kNameColumn = 0;

  using QAbstractTableModel::QAbstractTableModel;

  /// Other columns are a table of its own: nothing stays of the one before.
  void SetTable(const FleetTable& table);
  /// Nothing is shown, with the columns of a level.
  void Clear(FleetLevel level);
  /// Old figures are fainter.
  void SetOld(bool isOld);

  void Sort(int column, Qt::SortOrder order);
  int SortColumn() const { return mSortColumn; }
  Qt::SortOrder SortOrder() const { return mSortOrder; }

  FleetLevel Level() const { return mTable.view.level; }
  /// The table has no further one.
  const FleetRow& RowAt(int row) const { return mTable.rows[static_cast<std::size_t>(row)]; }
  /// Nothing for the name.
  std::optional<FleetFigure> FigureOf(int column) const;
  int ColumnOf(FleetFigure figure) const;
  QString TitleOf(int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString TextOf(const FleetRow& row, int column) const;
  void SortRows(std::vector<FleetRow>& rows) const;
  /// Puts others in the places of the rows, of which there are as many at least.
  void Arrange(std::vector<FleetRow> rows);

  FleetTable mTable;
  int mSortColumn = 1;
  Qt::SortOrder mSortOrder = Qt::DescendingOrder;
  bool mIsOld = false;
};

}  // namespace lurkwell
