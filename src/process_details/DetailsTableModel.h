#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <cstdint>
#include <span>
#include <vector>

#include "consolidator/TypedValue.h"

namespace lurkwell {

/// A column of a list about one process.
struct DetailsColumn {
  /// Of its title.
  const char* title;
  PropertyType type;
  /// In characters; 0 takes what is left.
  int width;
  /// Its texts are of the keys, which it is sorted by.
  bool sortsByKey = false;

  bool IsNumber() const { return type != kPropertyTypeString && !sortsByKey; }
};

struct DetailsRow {
  /// What stays while the thing that the row is about does: a number, or its place.
  std::uint64_t key = 0;
  /// One for each column.
  std::vector<TypedValue> cells;
};

/// Rows about one process, as others' bytes; shown on one line each, escaped and cut where they are
/// long. Main thread only.
class DetailsTableModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  DetailsTableModel(std::span<const DetailsColumn> columns, QObject* parent);

  /// Replaces the rows. Those whose keys were there before stay the same to views: selected, and
  /// scrolled to. Of several with one key the first counts.
  void SetRows(std::vector<DetailsRow> rows);
  const std::vector<DetailsRow>& Rows() const { return mRows; }
  std::span<const DetailsColumn> Columns() const { return mColumns; }

  /// The whole text of a cell, however long.
  QString WholeText(int row, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void AppendNewOnes(const std::vector<DetailsRow>& rows);
  void Arrange(std::vector<DetailsRow> rows);

  std::span<const DetailsColumn> mColumns;
  std::vector<DetailsRow> mRows;
};

/// Sorts and filters them. What is missing comes last in both directions, and
/// rows that are the same stand by their keys.
class DetailsSorting final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  DetailsSorting(DetailsTableModel& model, QObject* parent);

  /// Shows rows that have the words, each in any column; the case does not count.
  void SetFilter(const QString& words);

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  const DetailsTableModel& mModel;
  QStringList mWords;
};

}  // namespace lurkwell
