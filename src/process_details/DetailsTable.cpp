#include "process_details/DetailsTable.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QKeySequence>
#include <QMenu>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "resources/Resources.h"
#include "windows/ClearButton.h"
#include "windows/FocusStyle.h"
#include "windows/SortMenu.h"

namespace lurkwell {
namespace {

/// Room around the cells, as in the table of processes: figures and the names beside them are not
/// to run into each other.
class RoomyStyle final : public FocusStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int usual = FocusStyle::pixelMetric(metric, option, widget);
    return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? usual + kRoom : usual;
  }
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    const auto usual = FocusStyle::sizeFromContents(type, option, size, widget);
    return type == CT_ItemViewItem ? usual + QSize(0, kRoom) : usual;
  }

 private:
  static constexpr int kRoom = 4;
};

/// Why there is no table; read by keys, too.
class ReasonLabel final : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    QPainter painter(this);
    if (ShowsFocus(*this))
      DrawFocusFrame(painter, rect(), palette(), palette().color(backgroundRole()));
  }
};

}  // namespace

DetailsTable::DetailsTable(const QString& title, std::span<const DetailsColumn> columns,
                           int sortColumn, Qt::SortOrder order, QWidget* parent)
    : QWidget(parent),
      mModel(new DetailsTableModel(columns, this)),
      mSorting(new DetailsSorting(*mModel, this)),
      mFilter(new QLineEdit(this)),
      mView(new QTreeView(this)),
      mNotice(new ReasonLabel(this)),
      mFooter(new QLabel(this)) {
  mFilter->setPlaceholderText(LocalizedString("details_filter"));
  mFilter->setAccessibleName(LocalizedString("details_filter"));
  AddClearButton(*mFilter);
  mFilter->hide();
  connect(mFilter, &QLineEdit::textChanged, mSorting, &DetailsSorting::SetFilter);
  connect(mFilter, &QLineEdit::returnPressed, this, &DetailsTable::TakeFocus);
  mView->setModel(mSorting);
  mView->setAccessibleName(title);
  mView->setRootIsDecorated(false);
  mView->setUniformRowHeights(true);
  mView->setAlternatingRowColors(true);
  mView->setAllColumnsShowFocus(true);
  mView->setSelectionMode(QAbstractItemView::ExtendedSelection);
  mView->setTextElideMode(Qt::ElideMiddle);
  mView->setFrameShape(QFrame::NoFrame);
  if (sortColumn >= 0) {
    mView->setSortingEnabled(true);
    mView->sortByColumn(sortColumn, order);
  }
  mView->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(mView, &QWidget::customContextMenuRequested, this, &DetailsTable::ShowMenu);
  auto* menuKey = new QShortcut(Qt::SHIFT | Qt::Key_F10, mView);
  menuKey->setContext(Qt::WidgetShortcut);
  connect(menuKey, &QShortcut::activated, this,
          [this] { ShowMenu(mView->visualRect(mView->currentIndex()).bottomLeft()); });
  auto* style = new RoomyStyle;
  style->setParent(this);
  mView->setStyle(style);
  mView->header()->setStyle(style);
  SetWidths();
  mNotice->setAlignment(Qt::AlignCenter);
  mNotice->setWordWrap(true);
  mNotice->setTextFormat(Qt::PlainText);
  mNotice->setMargin(24);
  mNotice->setFocusPolicy(Qt::TabFocus);
  mNotice->hide();
  mFooter->setTextFormat(Qt::PlainText);
  mFooter->setWordWrap(true);
  mFooter->setContentsMargins(6, 3, 6, 3);
  mFooter->hide();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(mFilter);
  layout->addWidget(mView, 1);
  layout->addWidget(mNotice, 1);
  layout->addWidget(mFooter);
}

void DetailsTable::SetWidths() {
  const int character = std::max(fontMetrics().horizontalAdvance(QLatin1Char('0')), 1);
  auto& header = *mView->header();
  header.setStretchLastSection(false);
  for (int i = 0; i < mModel->columnCount(); ++i) {
    const int width = mModel->Columns()[static_cast<std::size_t>(i)].width;
    const auto title = mModel->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
    header.setSectionResizeMode(i, width == 0 ? QHeaderView::Stretch : QHeaderView::Interactive);
    // A title has room for its arrow.
    header.resizeSection(i, std::max(width * character,
                                     fontMetrics().horizontalAdvance(title) + 3 * character + 24));
  }
}

void DetailsTable::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) SetWidths();
  QWidget::changeEvent(event);
}

void DetailsTable::SetRows(std::vector<DetailsRow> rows) {
  mModel->SetRows(std::move(rows));
}

void DetailsTable::SetFooter(const QString& text) {
  mFooter->setText(text);
  mFooter->setVisible(!text.isEmpty());
}

void DetailsTable::SetNotice(const QString& text) {
  const bool hadFocus = mView->hasFocus() || mNotice->hasFocus();
  mNotice->setText(text);
  mNotice->setAccessibleName(text);
  mNotice->setVisible(!text.isEmpty());
  mView->setVisible(text.isEmpty());
  if (hadFocus) TakeFocus();
}

void DetailsTable::TakeFocus() {
  if (mNotice->isHidden()) {
    mView->setFocus();
  } else {
    mNotice->setFocus();
  }
}

void DetailsTable::BeginFilter() {
  mFilter->show();
  mFilter->setFocus();
  mFilter->selectAll();
}

bool DetailsTable::EndFilter() {
  if (mFilter->isHidden()) return false;
  mFilter->clear();
  mFilter->hide();
  TakeFocus();
  return true;
}

void DetailsTable::ShowMenu(const QPoint& place) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* copy =
      menu->addAction(LocalizedString("menu_edit_copy"), this, [this] { CopySelection(); });
  // The window has the keys.
  copy->setText(copy->text() + QLatin1Char('\t') +
                QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText));
  copy->setEnabled(mView->selectionModel()->hasSelection());
  auto* filter =
      menu->addAction(LocalizedString("menu_edit_filter"), this, [this] { BeginFilter(); });
  filter->setText(filter->text() + QLatin1Char('\t') +
                  QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText));
  if (mView->isSortingEnabled())
    AddSortMenu(*menu, *mView->header(), [this](int column) { SortBy(column); });
  menu->popup(mView->viewport()->mapToGlobal(place));
}

void DetailsTable::SortBy(int column) {
  const auto& header = *mView->header();
  const bool turns =
      header.sortIndicatorSection() == column && header.sortIndicatorOrder() == Qt::AscendingOrder;
  mView->sortByColumn(column, turns ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void DetailsTable::CopySelection() const {
  auto rows = mView->selectionModel()->selectedRows();
  std::ranges::sort(rows, {}, &QModelIndex::row);
  QString text;
  for (const auto& row : rows) {
    const int place = mSorting->mapToSource(row).row();
    for (int column = 0; column < mModel->columnCount(); ++column)
      text += (column > 0 ? QStringLiteral("\t") : QString()) + mModel->WholeText(place, column);
    text += QLatin1Char('\n');
  }
  // What was copied before is worth more than nothing.
  if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

}  // namespace lurkwell
