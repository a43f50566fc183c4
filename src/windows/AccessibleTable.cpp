#include "windows/AccessibleTable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHash>
#include <QHeaderView>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QTableView>
#include <memory>
#include <utility>

#include "resources/Resources.h"
#include "windows/CustomCells.h"
#include "windows/RowDictionary.h"

namespace lurkwell {
namespace {

/// Each cell that was asked for has a place to be kept up when rows move. More of them than a
/// reader steps through are let go.
constexpr qsizetype kMostCells = 2000;

QString TextOf(const QModelIndex& index) {
  const auto spoken = index.data(Qt::AccessibleTextRole);
  return (spoken.isValid() ? spoken : index.data(Qt::DisplayRole)).toString();
}

QString TitleOf(const QAbstractItemModel& model, int column) {
  const auto spoken = model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole);
  const auto shown = model.headerData(column, Qt::Horizontal, Qt::DisplayRole);
  return (spoken.isValid() ? spoken : shown).toString();
}

/// Empty for a cell that shows nothing.
QString SpokenCell(const SpokenTable& table, const QModelIndex& index) {
  const auto text = TextOf(index);
  if (text.isEmpty() || index.column() == table.searchColumn()) return text;
  return LocalizedString("cell_spoken").arg(TitleOf(*index.model(), index.column()), text);
}

QRect OnScreen(const QWidget& widget, const QRect& rect) {
  return rect.isEmpty() ? QRect() : QRect(widget.mapToGlobal(rect.topLeft()), rect.size());
}

/// A cell or a title; the table is there as long as this is valid.
class Part : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Part(QTableView& view, SpokenTable& table) : mView(&view), mTable(table) {}

  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return mView->window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return mView != nullptr ? QAccessible::queryAccessibleInterface(mView) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  void setText(QAccessible::Text, const QString&) override {}
  QStringList keyBindingsForAction(const QString&) const override { return {}; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

 protected:
  QTableView& View() const { return *mView; }
  QHeaderView& Header() const { return *mView->horizontalHeader(); }
  /// The same object.
  SpokenTable& Table() const { return mTable; }
  bool IsThere() const { return mView != nullptr && mView->model() != nullptr; }

 private:
  QPointer<QTableView> mView;
  SpokenTable& mTable;
};

class AccessibleTitle final : public Part {
 public:
  AccessibleTitle(QTableView& view, SpokenTable& table, int column)
      : Part(view, table), mColumn(column) {}

  int Column() const { return mColumn; }
  bool isValid() const override { return IsThere() && mColumn < View().model()->columnCount(); }
  QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
  QAccessible::State state() const override {
    QAccessible::State state;
    const auto& header = Header();
    state.invisible = header.isSectionHidden(mColumn) || !View().isVisible();
    state.offscreen = rect().isEmpty();
    return state;
  }
  QRect rect() const override {
    const auto& header = Header();
    if (header.isSectionHidden(mColumn)) return {};
    const QRect section(header.sectionViewportPosition(mColumn), 0, header.sectionSize(mColumn),
                        header.height());
    return OnScreen(*header.viewport(), section & header.viewport()->rect());
  }
  QString text(QAccessible::Text kind) const override {
    const auto& header = Header();
    if (kind == QAccessible::Name) return TitleOf(*View().model(), mColumn);
    if (kind != QAccessible::Description) return {};
    if (!header.isSortIndicatorShown() || header.sortIndicatorSection() != mColumn) return {};
    return LocalizedString(header.sortIndicatorOrder() == Qt::AscendingOrder ? "sorted_ascending"
                                                                             : "sorted_descending");
  }
  QStringList actionNames() const override { return {pressAction()}; }
  /// What a click does.
  void doAction(const QString& action) override {
    if (action == pressAction()) Q_EMIT Header().sectionClicked(mColumn);
  }

 private:
  int mColumn;
};

class AccessibleCell final : public Part, public QAccessibleTableCellInterface {
 public:
  AccessibleCell(QTableView& view, SpokenTable& table, const QModelIndex& index)
      : Part(view, table), mIndex(index) {}

  const QPersistentModelIndex& Index() const { return mIndex; }
  bool IsInSight() const { return View().visualRect(mIndex).intersects(View().viewport()->rect()); }

  bool isValid() const override { return IsThere() && mIndex.isValid(); }
  QAccessible::Role role() const override { return QAccessible::Cell; }
  QAccessible::State state() const override {
    QAccessible::State state;
    const auto flags = mIndex.flags();
    state.selectable = flags.testFlag(Qt::ItemIsSelectable);
    state.selected = isSelected();
    state.focusable = state.selectable;
    state.active = View().currentIndex() == mIndex;
    state.focused = state.active && View().hasFocus();
    state.offscreen = !IsInSight();
    state.invisible = View().isColumnHidden(mIndex.column()) || !View().isVisible();
    if (mIndex.column() != Table().treeColumn()) return state;
    const auto fold = static_cast<RowStanding::Fold>(mIndex.data(kFoldRole).toInt());
    state.expandable = fold != RowStanding::Fold::kNone;
    state.expanded = fold == RowStanding::Fold::kUnfolded;
    state.collapsed = fold == RowStanding::Fold::kFolded;
    return state;
  }
  QRect rect() const override {
    return OnScreen(*View().viewport(), View().visualRect(mIndex) & View().viewport()->rect());
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return SpokenCell(Table(), mIndex);
    return kind == QAccessible::Description ? SpokenRow(View(), Table(), mIndex.row()) : QString();
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableCellInterface
               ? static_cast<QAccessibleTableCellInterface*>(this)
               : Part::interface_cast(type);
  }

  bool isSelected() const override { return View().selectionModel()->isSelected(mIndex); }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    return {parent()->child(mIndex.column())};
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return mIndex.column(); }
  int rowIndex() const override { return mIndex.row(); }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override {
    return {setFocusAction(), pressAction(), showMenuAction()};
  }
  void doAction(const QString& action) override {
    if (!isValid()) return;
    View().setFocus(Qt::OtherFocusReason);
    View().selectionModel()->setCurrentIndex(
        mIndex, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (action == pressAction()) Table().activateRows();
    if (action != showMenuAction()) return;
    // Later: menus have event loops of their own, and who asked waits for an answer.
    QApplication::postEvent(&View(),
                            new QContextMenuEvent(QContextMenuEvent::Keyboard, QPoint(), QPoint()));
  }

 private:
  QPersistentModelIndex mIndex;
};

class AccessibleTable final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  AccessibleTable(QTableView& view, SpokenTable& table)
      : QAccessibleWidget(&view, QAccessible::Table),
        mTable(table),
        mHaveMoved(std::make_shared<bool>(false)) {}

  ~AccessibleTable() override {
    for (const auto id : std::as_const(mCells)) QAccessible::deleteAccessibleInterface(id);
    for (const auto id : std::as_const(mTitles)) QAccessible::deleteAccessibleInterface(id);
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }

  // ---- The tree ---------------------------------------------------------------------------------

  int childCount() const override { return (rowCount() + 1) * columnCount(); }
  QAccessibleInterface* child(int number) const override {
    const int columns = columnCount();
    if (number < 0 || columns == 0) return nullptr;
    return number < columns ? Title(number) : cellAt(number / columns - 1, number % columns);
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    if (const auto* title = dynamic_cast<const AccessibleTitle*>(part)) return title->Column();
    const auto* cell = dynamic_cast<const AccessibleCell*>(part);
    if (cell == nullptr || !cell->Index().isValid()) return -1;
    return AccessibleChildOf(View(), cell->rowIndex(), cell->columnIndex());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const auto& header = Header();
    const auto above = header.viewport()->mapFromGlobal(QPoint(x, y));
    if (header.viewport()->rect().contains(above)) return child(header.logicalIndexAt(above.x()));
    const auto place = View().indexAt(View().viewport()->mapFromGlobal(QPoint(x, y)));
    return place.isValid() ? cellAt(place.row(), place.column()) : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    const auto current = View().currentIndex();
    return current.isValid() ? cellAt(current.row(), current.column()) : nullptr;
  }
  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
  }

  // ---- Rows and columns -------------------------------------------------------------------------

  int rowCount() const override { return HasModel() ? View().model()->rowCount() : 0; }
  int columnCount() const override { return HasModel() ? View().model()->columnCount() : 0; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    if (!HasModel()) return nullptr;
    const auto index = View().model()->index(row, column);
    return index.isValid() ? Cell(index) : nullptr;
  }
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QString columnDescription(int column) const override {
    return HasModel() ? TitleOf(*View().model(), column) : QString();
  }
  QString rowDescription(int row) const override { return SpokenRow(View(), mTable, row); }

  // ---- What is selected -------------------------------------------------------------------------

  int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows())
      for (int column = 0; column < columnCount(); ++column) cells.append(cellAt(row, column));
    return cells;
  }
  int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
  QList<int> selectedRows() const override {
    QList<int> rows;
    if (!HasModel()) return rows;
    for (const auto& index : View().selectionModel()->selectedRows()) rows.append(index.row());
    return rows;
  }
  bool isRowSelected(int row) const override {
    return HasModel() && View().selectionModel()->isRowSelected(row);
  }
  bool selectRow(int row) override { return Select(row, QItemSelectionModel::Select); }
  bool unselectRow(int row) override { return Select(row, QItemSelectionModel::Deselect); }
  // Whole rows are selected, and nothing else.
  int selectedColumnCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectColumn(int) override { return false; }

  void modelChange(QAccessibleTableModelChangeEvent*) override { *mHaveMoved = true; }

 private:
  QTableView& View() const { return static_cast<QTableView&>(*widget()); }
  QHeaderView& Header() const { return *View().horizontalHeader(); }
  bool HasModel() const {
    if (View().model() == nullptr) return false;
    if (std::exchange(mWatched, View().model()) == View().model()) return true;
    // This may end before the model does.
    const auto note = [moved = mHaveMoved] { *moved = true; };
    QObject::connect(mWatched, &QAbstractItemModel::layoutChanged, widget(), note);
    QObject::connect(mWatched, &QAbstractItemModel::rowsInserted, widget(), note);
    QObject::connect(mWatched, &QAbstractItemModel::rowsRemoved, widget(), note);
    QObject::connect(mWatched, &QAbstractItemModel::modelReset, widget(), note);
    return true;
  }

  QAccessibleInterface* Title(int column) const {
    const auto known = mTitles.constFind(column);
    if (known != mTitles.constEnd()) return QAccessible::accessibleInterface(*known);
    auto* title = new AccessibleTitle(View(), mTable, column);
    mTitles.insert(column, QAccessible::registerAccessibleInterface(title));
    return title;
  }

  QAccessibleInterface* Cell(const QModelIndex& index) const {
    if (std::exchange(*mHaveMoved, false)) FindAgain();
    const QPair<int, int> place(index.row(), index.column());
    const auto known = mCells.constFind(place);
    if (known != mCells.constEnd()) return QAccessible::accessibleInterface(*known);
    auto* cell = new AccessibleCell(View(), mTable, index);
    mCells.insert(place, QAccessible::registerAccessibleInterface(cell));
    return cell;
  }

  /// Rows have moved, and the cells with them.
  void FindAgain() const {
    const bool areTooMany = mCells.size() > kMostCells;
    const auto current = View().currentIndex();
    for (const auto id : std::exchange(mCells, {})) {
      const auto* cell = static_cast<AccessibleCell*>(QAccessible::accessibleInterface(id));
      const bool stays = cell->isValid() &&
                         (!areTooMany || cell->rowIndex() == current.row() || cell->IsInSight());
      if (stays)
        mCells.insert({cell->rowIndex(), cell->columnIndex()}, id);
      else
        QAccessible::deleteAccessibleInterface(id);
    }
  }

  bool Select(int row, QItemSelectionModel::SelectionFlags how) {
    if (row < 0 || row >= rowCount()) return false;
    View().selectionModel()->select(View().model()->index(row, 0), how | QItemSelectionModel::Rows);
    return true;
  }

  /// The same object as the view.
  SpokenTable& mTable;
  mutable QPointer<QAbstractItemModel> mWatched;
  std::shared_ptr<bool> mHaveMoved;
  mutable QHash<QPair<int, int>, QAccessible::Id> mCells;
  mutable QHash<int, QAccessible::Id> mTitles;
};

}  // namespace

QAccessibleInterface* MakeAccessibleTable(QTableView& view, SpokenTable& table) {
  return new AccessibleTable(view, table);
}

int AccessibleChildOf(const QTableView& view, int row, int column) {
  return (row + 1) * view.model()->columnCount() + column;
}

QString SpokenRow(const QTableView& view, const SpokenTable& table, int row) {
  const auto* model = view.model();
  if (model == nullptr || row < 0 || row >= model->rowCount()) return {};
  QStringList parts;
  const auto& header = *view.horizontalHeader();
  for (int place = 0; place < header.count(); ++place) {
    const int column = header.logicalIndex(place);
    if (header.isSectionHidden(column)) continue;
    if (const auto text = SpokenCell(table, model->index(row, column)); !text.isEmpty())
      parts.append(text);
  }
  return parts.join(QStringLiteral(", "));
}

}  // namespace lurkwell
