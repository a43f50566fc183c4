#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QWidget>
#include <span>
#include <vector>

#include "process_details/DetailsTableModel.h"

namespace lurkwell {

/// A list about one process: rows to sort, filter and copy, a line below it, and a notice in their
/// place when there are none. Main thread only.
class DetailsTable final : public QWidget {
  Q_OBJECT

 public:
  /// Sorted by `sortColumn`; -1 keeps the rows' own order, and no click sorts them. The title names
  /// it for screen readers.
  DetailsTable(const QString& title, std::span<const DetailsColumn> columns, int sortColumn,
               Qt::SortOrder order, QWidget* parent);

  void SetRows(std::vector<DetailsRow> rows);
  /// The line below; an empty one takes no room.
  void SetFooter(const QString& text);
  /// In place of the rows; an empty one shows them.
  void SetNotice(const QString& text);

  /// Opens the filter's field.
  void BeginFilter();
  /// Closes it again and shows all rows; false when it is not open.
  bool EndFilter();
  /// Puts the selected rows on the clipboard, a line each, cells with tabs between them.
  void CopySelection() const;
  /// Gives the keyboard to the rows.
  void TakeFocus();

  QTreeView& View() { return *mView; }
  QString Notice() const { return mNotice->isHidden() ? QString() : mNotice->text(); }
  QString Footer() const { return mFooter->text(); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void SetWidths();
  /// At a point of the rows' part: copying, filtering, sorting.
  void ShowMenu(const QPoint& place);
  /// As a click on its title does.
  void SortBy(int column);

  DetailsTableModel* mModel;
  DetailsSorting* mSorting;
  QLineEdit* mFilter;
  QTreeView* mView;
  QLabel* mNotice;
  QLabel* mFooter;
};

}  // namespace lurkwell
