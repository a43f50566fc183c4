#pragma once

#include <QAccessible>
#include <QElapsedTimer>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>

#include "windows/Accessibility.h"
#include "windows/AccessibleTable.h"
#include "windows/TableHeader.h"

namespace lurkwell {

/// The view of a table of processes, or of what is shown like one: stripes over its whole height,
/// vertical grid lines, and a context menu for rows on a right click, the menu key or Shift+F10.
/// Home and End go to the first and the last row, the space bar selects a row besides others, or
/// not any more. Main thread only.
class StripedTableView : public QTableView, public InterfaceMaker, public SpokenTable {
  Q_OBJECT

 public:
  /// What stands in the middle while there are no rows; nothing for an empty text.
  void setEmptyText(const QString& text);

  /// A model answers this role with whether the cell shows anything else than at the last
  /// announcement.
  static constexpr int kCellHasChangedRole = Qt::UserRole + 100;

  explicit StripedTableView(QWidget* parent = nullptr);

  /// For so long after it has come up under the pointer, in milliseconds, the context menu takes no
  /// click: it was meant for something else.
  static constexpr int kDeadTime = 300;

  TableHeader& header() const;

  /// The context menu; belongs to its maker.
  void setContextMenu(QMenu* menu);

  /// Typing finds rows by the text in this column; -1 for none.
  void setSearchColumn(int column) { mSearchColumn = column; }
  int searchColumn() const override { return mSearchColumn; }

  /// The column that shows which rows stand below others; -1 for none.
  void setTreeColumn(int column) { mTreeColumn = column; }
  int treeColumn() const override { return mTreeColumn; }
  void activateRows() override { Q_EMIT doubleAction(); }
  QAccessibleInterface* MakeInterface() override { return MakeAccessibleTable(*this, *this); }

  /// Opens the context menu at a point of the viewport, when a right click there hits a row; with
  /// `needToSelect` that row becomes the selection, unless it is a part of it. A click in another
  /// window, for which a row has been selected, need not hit one.
  void showTheSpecialContextMenu(const QPoint& position, bool isRightClick, bool needToSelect,
                                 bool needToHit = true);

  /// Repaints the cells between that show something else, as far as they can be seen. While an
  /// assistive program listens, the row with the focus is told again, once in a few seconds, where
  /// it reads differently and the user has not asked for quiet.
  void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                   const QList<int>& roles = {}) override;

  /// The longest of all texts, up to half of the table.
  int sizeHintForColumn(int column) const override;

  void keyboardSearch(const QString& search) override;

  /// Selects that row and no other, whatever keys are held, and scrolls up or down to it.
  void SelectAlone(int row);
  /// The same for a row that was looked for: until the user scrolls or selects another, it is kept
  /// in sight wherever it goes.
  void SelectFound(int row);
  /// Rows have changed places.
  void KeepFoundInSight();
  /// Scrolls as little as shows the row, and to no side.
  void ScrollToRow(const QModelIndex& place);

  /// Whether the pointer presses on the rows, which then stay where they are.
  bool IsPressed() const;

 Q_SIGNALS:
  /// A double click on a row, or Return.
  void doubleAction();
  /// The pointer does not press on the rows any more.
  void released();
  /// A click on an arrow, or a key: Right unfolds and Left folds a row, the asterisk unfolds `all`
  /// that lies below, too.
  void foldWanted(int row, bool folded, bool all);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void focusInEvent(QFocusEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void highlightSelectionInClipRect(QPainter& painter, const QRect& clip) const;
  void drawGridInClipRect(QPainter& painter, const QRect& clip) const;
  void DrawEmptyText(QPainter& painter) const;
  void ShowMenuForKey();
  bool RowMatches(int row, const QString& text) const;
  bool IsSearching() const;
  /// Of the current cell.
  void Tell(QAccessible::Event event);
  /// In the viewport.
  QRect RowRect(int row) const;
  void DrawFocus(QPainter& painter) const;
  void TellRowAgain();
  QModelIndex InTree(int row) const { return model()->index(row, mTreeColumn); }
  /// Whether there was an arrow, which has been served.
  bool ClickArrow(const QPoint& position);
  /// The same for a key.
  bool ServeTreeKey(const QKeyEvent& event);
  /// The row that the other stands below, -1 for none.
  int RowAbove(int row) const;

  QPointer<QMenu> fMenu;
  /// The same, to be compared alone: events come while the menu ends, when it is none any more.
  const QObject* mWatched = nullptr;
  QElapsedTimer mSinceMenuCame;
  bool mIsPressed = false;
  QPersistentModelIndex mFound;
  int mSearchColumn = -1;
  int mTreeColumn = -1;
  QString mSearched;
  QElapsedTimer mSinceLastKey;
  QString mEmptyText;
  /// What an assistive program was told of the row with the focus.
  QString mTold;
  UnaskedTellings mTellings;
};

}  // namespace lurkwell
