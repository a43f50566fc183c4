#include "windows/StripedTableView.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "windows/Contrast.h"
#include "windows/CustomCells.h"
#include "windows/FocusStyle.h"
#include "windows/RowDictionary.h"

namespace lurkwell {

namespace {

/// A column that is fitted to its texts may become so wide in a narrow window, too.
constexpr int kMostFittedCharacters = 40;

QColor GridColour(const QPalette& palette) {
  return IsDark(palette) ? QColor(82, 86, 94) : QColor(Qt::lightGray);
}

}  // namespace

StripedTableView::StripedTableView(QWidget* parent) : QTableView(parent) {
  ServeAssistivePrograms();
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  setTabKeyNavigation(false);
  setFrameShape(NoFrame);
  // A user who scrolls wants to see something else.
  connect(verticalScrollBar(), &QAbstractSlider::actionTriggered, this,
          [this] { mFound = QPersistentModelIndex(); });
  auto& rows = *verticalHeader();
  rows.hide();
  rows.setSectionResizeMode(QHeaderView::Fixed);
  rows.setMinimumSectionSize(1);
  rows.setDefaultSectionSize(std::max(fontMetrics().height() + 4, ImageCell::kSize + 4));
  setHorizontalHeader(new TableHeader(this));
}

// ---- The context menu ---------------------------------------------------------------------------

void StripedTableView::setContextMenu(QMenu* menu) {
  fMenu = menu;
  mWatched = menu;
  if (menu != nullptr) menu->installEventFilter(this);
}

bool StripedTableView::eventFilter(QObject* object, QEvent* event) {
  if (object == mWatched) {
    const auto type = event->type();
    if (type == QEvent::Show) mSinceMenuCame.start();
    const bool isClick = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                         type == QEvent::MouseButtonDblClick;
    if (isClick && mSinceMenuCame.isValid() && mSinceMenuCame.elapsed() < kDeadTime) return true;
  }
  return QTableView::eventFilter(object, event);
}

void StripedTableView::ScrollToRow(const QModelIndex& place) {
  const int left = horizontalScrollBar()->value();
  scrollTo(place);
  horizontalScrollBar()->setValue(left);
}

void StripedTableView::SelectAlone(int row) {
  const auto place = model()->index(row, std::max(currentIndex().column(), 0));
  mFound = QPersistentModelIndex();
  setAutoScroll(false);
  selectionModel()->setCurrentIndex(
      place, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  setAutoScroll(true);
  ScrollToRow(place);
}

void StripedTableView::SelectFound(int row) {
  SelectAlone(row);
  mFound = model()->index(row, 0);
}

void StripedTableView::KeepFoundInSight() {
  if (!mFound.isValid()) return;
  if (!selectionModel()->isRowSelected(mFound.row())) {
    mFound = QPersistentModelIndex();
    return;
  }
  ScrollToRow(mFound);
}

void StripedTableView::showTheSpecialContextMenu(const QPoint& position, bool isRightClick,
                                                 bool needToSelect, bool needToHit) {
  if (!isRightClick) return;
  const int row = rowAt(position.y());
  if (needToSelect && row >= 0) {
    if (!selectionModel()->isRowSelected(row)) SelectAlone(row);
    setFocus(Qt::MouseFocusReason);
  }
  const bool hits = row >= 0 && model() != nullptr && row < model()->rowCount();
  if (needToHit && !hits) return;
  if (fMenu != nullptr) fMenu->popup(viewport()->mapToGlobal(position));
}

void StripedTableView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && ClickArrow(event->pos())) return event->accept();
  if (event->button() == Qt::LeftButton) mIsPressed = true;
  if (event->button() != Qt::RightButton) return QTableView::mousePressEvent(event);
  showTheSpecialContextMenu(event->pos(), true, true);
  event->accept();
}

void StripedTableView::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && std::exchange(mIsPressed, false)) Q_EMIT released();
}

bool StripedTableView::IsPressed() const {
  // Where the release went elsewhere, the buttons know.
  return mIsPressed && (QGuiApplication::mouseButtons() & Qt::LeftButton) != 0;
}

void StripedTableView::contextMenuEvent(QContextMenuEvent* event) {
  // The mouse has been served by the press.
  if (event->reason() == QContextMenuEvent::Keyboard) ShowMenuForKey();
}

void StripedTableView::ShowMenuForKey() {
  if (fMenu == nullptr || fMenu->isVisible()) return;
  if (!selectionModel()->hasSelection()) {
    if (!currentIndex().isValid()) return;
    SelectAlone(currentIndex().row());
  }
  const auto rows = selectionModel()->selectedRows();
  const bool isCurrentSelected =
      currentIndex().isValid() && selectionModel()->isRowSelected(currentIndex().row());
  const auto place =
      isCurrentSelected ? currentIndex() : *std::min_element(rows.begin(), rows.end());
  ScrollToRow(place);
  const auto corner = visualRect(place).bottomLeft();
  fMenu->popup(viewport()->mapToGlobal(
      QPoint(std::clamp(corner.x(), 0, viewport()->width() - 1), corner.y())));
}

void StripedTableView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second of two quick clicks.
  if (event->button() == Qt::LeftButton && ClickArrow(event->pos())) return event->accept();
  QTableView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && rowAt(event->pos().y()) >= 0) Q_EMIT doubleAction();
}

// ---- Keys ---------------------------------------------------------------------------------------

void StripedTableView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (selectionModel()->hasSelection()) Q_EMIT doubleAction();
    return;
  }
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
    return ShowMenuForKey();
  if (ServeTreeKey(*event)) return;
  // With the control key it pauses.
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && !IsSearching()) {
    const auto current = currentIndex();
    if (current.isValid())
      selectionModel()->select(current, QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
    return;
  }
  QTableView::keyPressEvent(event);
}

// ---- Rows below rows ----------------------------------------------------------------------------

bool StripedTableView::ClickArrow(const QPoint& position) {
  const auto index = indexAt(position);
  if (!index.isValid() || index.column() != mTreeColumn) return false;
  if (!TreeCell::ArrowPlace(visualRect(index), index, layoutDirection()).contains(position))
    return false;
  using Fold = RowStanding::Fold;
  const bool isFolded = index.data(kFoldRole).toInt() == static_cast<int>(Fold::kFolded);
  Q_EMIT foldWanted(index.row(), !isFolded, false);
  return true;
}

int StripedTableView::RowAbove(int row) const {
  const int level = InTree(row).data(kLevelRole).toInt();
  for (int above = row - 1; above >= 0 && level > 0; --above)
    if (InTree(above).data(kLevelRole).toInt() < level) return above;
  return -1;
}

bool StripedTableView::ServeTreeKey(const QKeyEvent& event) {
  const auto index = currentIndex();
  if (mTreeColumn < 0 || !index.isValid() || InTree(index.row()).data(kLevelRole).toInt() < 0)
    return false;
  if ((event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != 0) return false;
  using Fold = RowStanding::Fold;
  const int row = index.row();
  const auto fold = static_cast<Fold>(InTree(row).data(kFoldRole).toInt());
  const bool isPlain = (event.modifiers() & Qt::ShiftModifier) == 0;
  // Branches grow to where texts go on.
  const auto deeper = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
  const auto back = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
  if (event.key() == deeper && isPlain) {
    if (fold == Fold::kFolded)
      Q_EMIT foldWanted(row, false, false);
    else if (fold == Fold::kUnfolded)
      SelectAlone(row + 1);
  } else if (event.key() == back && isPlain) {
    if (fold == Fold::kUnfolded)
      Q_EMIT foldWanted(row, true, false);
    else if (const int above = RowAbove(row); above >= 0)
      SelectAlone(above);
  } else if (event.key() == Qt::Key_Asterisk && !IsSearching()) {
    Q_EMIT foldWanted(row, false, true);
  } else {
    return false;
  }
  return true;
}

/// In a list of whole rows there is no other beginning and end than those of the list.
QModelIndex StripedTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (action == MoveHome || action == MoveEnd) {
    if (model() == nullptr || model()->rowCount() == 0) return {};
    const int row = action == MoveHome ? 0 : model()->rowCount() - 1;
    return model()->index(row, std::max(currentIndex().column(), 0));
  }
  return QTableView::moveCursor(action, modifiers);
}

bool StripedTableView::RowMatches(int row, const QString& text) const {
  const auto shown = model()->index(row, mSearchColumn).data(Qt::DisplayRole).toString();
  return shown.startsWith(text, Qt::CaseInsensitive);
}

bool StripedTableView::IsSearching() const {
  return mSinceLastKey.isValid() && mSinceLastKey.elapsed() < QApplication::keyboardInputInterval();
}

void StripedTableView::keyboardSearch(const QString& search) {
  if (mSearchColumn < 0 || model() == nullptr || model()->rowCount() == 0) return;
  const bool goesOn = IsSearching();
  mSinceLastKey.restart();
  // One letter again and again goes from match to match.
  const bool repeats = goesOn && mSearched.size() == 1 && mSearched == search;
  mSearched = goesOn && !repeats ? mSearched + search : search;
  const int count = model()->rowCount();
  const int current = std::max(currentIndex().row(), 0);
  const int first = mSearched.size() == 1 && currentIndex().isValid() ? current + 1 : current;
  for (int i = 0; i < count; ++i) {
    const int row = (first + i) % count;
    if (!RowMatches(row, mSearched)) continue;
    return SelectFound(row);
  }
}

TableHeader& StripedTableView::header() const {
  return *static_cast<TableHeader*>(horizontalHeader());
}

int StripedTableView::sizeHintForColumn(int column) const {
  const auto* cell = qobject_cast<const TextCell*>(itemDelegateForIndex(model()->index(0, column)));
  if (cell == nullptr || model()->rowCount() == 0) return QTableView::sizeHintForColumn(column);
  int longest = 0;
  for (int row = 0; row < model()->rowCount(); ++row) {
    const auto text = model()->index(row, column).data(Qt::DisplayRole).toString();
    const int inset = column == mTreeColumn ? TreeCell::InsetOf(model()->index(row, column)) : 0;
    longest = std::max(longest, fontMetrics().horizontalAdvance(text) + inset);
  }
  // Command lines are longer than any screen.
  const int most =
      std::max(viewport()->width() / 2, kMostFittedCharacters * fontMetrics().averageCharWidth());
  return std::min(longest + TextCell::kWidthBesideText, most);
}

// ---- What assistive programs are told -----------------------------------------------------------

void StripedTableView::Tell(QAccessible::Event event) {
  if (!QAccessible::isActive() || !hasFocus() || !currentIndex().isValid()) return;
  QAccessibleEvent told(this, event);
  told.setChild(AccessibleChildOf(*this, currentIndex().row(), currentIndex().column()));
  QAccessible::updateAccessibility(&told);
}

// The base class does nothing but tell, and counts children in a way of its own.
void StripedTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);
  for (const auto& changed : {current, previous})
    if (changed.isValid() && ShowsFocus(*this)) viewport()->update(RowRect(changed.row()));
  if (!QAccessible::isActive()) return;
  Tell(QAccessible::Focus);
  mTold = SpokenRow(*this, *this, current.row());
  mTellings.HasTold();
}

void StripedTableView::selectionChanged(const QItemSelection& selected,
                                        const QItemSelection& deselected) {
  QAbstractItemView::selectionChanged(selected, deselected);
  const bool isSelected = currentIndex().isValid() && selectionModel()->isSelected(currentIndex());
  Tell(isSelected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
}

void StripedTableView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  // After the table itself, which is told when this has returned.
  if (QAccessible::isActive())
    QMetaObject::invokeMethod(
        this, [this] { Tell(QAccessible::Focus); }, Qt::QueuedConnection);
}

void StripedTableView::TellRowAgain() {
  if (!hasFocus() || !currentIndex().isValid() || !mTellings.IsTime()) return;
  mTellings.HasTold();
  auto row = SpokenRow(*this, *this, currentIndex().row());
  if (row == mTold) return;
  mTold = std::move(row);
  Tell(QAccessible::DescriptionChanged);
}

// ---- Drawing ------------------------------------------------------------------------------------

void StripedTableView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                   const QList<int>&) {
  if (!isVisible() || model() == nullptr) return;
  const int first = std::max(rowAt(0), topLeft.row());
  const int lastVisible = rowAt(viewport()->height() - 1);
  const int last = std::min(lastVisible < 0 ? bottomRight.row() : lastVisible, bottomRight.row());
  for (int row = first; row <= last; ++row)
    for (int column = topLeft.column(); column <= bottomRight.column(); ++column)
      if (model()->index(row, column).data(kCellHasChangedRole).toBool())
        viewport()->update(columnViewportPosition(column), rowViewportPosition(row),
                           columnWidth(column), rowHeight(row));
  TellRowAgain();
}

void StripedTableView::highlightSelectionInClipRect(QPainter& painter, const QRect& clip) const {
  const int pitch = verticalHeader()->defaultSectionSize();
  // Stripes belong to the rows: counted from the top of the table, not of the window.
  const int offset = verticalHeader()->offset();
  const auto even = EvenStripe(palette());
  const auto odd = OddStripe(palette());
  const int bottom = clip.bottom() + offset;
  for (int y = (clip.top() + offset) / pitch * pitch; y <= bottom; y += pitch) {
    const int row = (y + pitch / 2) / pitch;
    const QRect band(0, y - offset, viewport()->width(), pitch);
    painter.fillRect(band & clip, row % 2 == 0 ? even : odd);
  }
}

void StripedTableView::drawGridInClipRect(QPainter& painter, const QRect& clip) const {
  painter.setPen(GridColour(palette()));
  const auto& header = *horizontalHeader();
  for (int column = 0; column < header.count(); ++column) {
    const int begin = header.sectionViewportPosition(column);
    const int x = isRightToLeft() ? begin : begin + header.sectionSize(column) - 1;
    if (x >= clip.left() && x <= clip.right()) painter.drawLine(x, clip.top(), x, clip.bottom());
  }
}

void StripedTableView::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    for (const auto& rect : event->region()) highlightSelectionInClipRect(painter, rect);
  }
  QTableView::paintEvent(event);
  QPainter painter(viewport());
  const bool hasRows = model() != nullptr && model()->rowCount() > 0;
  if (!hasRows && !mEmptyText.isEmpty())
    DrawEmptyText(painter);
  else
    for (const auto& rect : event->region()) drawGridInClipRect(painter, rect);
  DrawFocus(painter);
}

/// The stripes go on behind it; lines between columns would run through the words.
void StripedTableView::DrawEmptyText(QPainter& painter) const {
  const int margin = 2 * fontMetrics().height();
  const auto room = viewport()->rect().adjusted(margin, margin, -margin, -margin);
  constexpr int kHow = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
  auto place = painter.boundingRect(room, kHow, mEmptyText);
  // Where it is looked for: a little above the middle.
  place.moveTop(room.top() + std::max(room.height() - place.height(), 0) / 3);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(place, kHow, mEmptyText);
}

QRect StripedTableView::RowRect(int row) const {
  return {0, rowViewportPosition(row), viewport()->width(), rowHeight(row)};
}

void StripedTableView::DrawFocus(QPainter& painter) const {
  if (!ShowsFocus(*this)) return;
  const auto current = currentIndex();
  const bool isSelected = current.isValid() && selectionModel()->isSelected(current);
  const auto place = current.isValid() ? RowRect(current.row()) : viewport()->rect();
  DrawFocusFrame(painter, place, palette(),
                 isSelected ? palette().color(QPalette::Highlight) : EvenStripe(palette()));
}

void StripedTableView::setEmptyText(const QString& text) {
  if (mEmptyText == text) return;
  mEmptyText = text;
  viewport()->update();
}

}  // namespace lurkwell
