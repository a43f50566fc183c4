#include "windows/TableHeader.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace lurkwell {
namespace {

constexpr int kSmallArrowWidth = 7;
constexpr int kSmallArrowHeight = 4;

}  // namespace

TableHeader::TableHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionsMovable(true);
  setSectionsClickable(true);
  setHighlightSections(false);
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setMinimumSectionSize(20);
}

int TableHeader::widthForTitle(const QString& title) const {
  const int arrow = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
  const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
  return fontMetrics().horizontalAdvance(title) + arrow + 3 * margin + 1;
}

bool TableHeader::HasRoomForArrow(const QRect& rect, int logicalIndex) const {
  const auto title = model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
  return !title.isEmpty() && widthForTitle(title) <= rect.width();
}

void TableHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
  QHeaderView::initStyleOptionForIndex(option, logicalIndex);
  // Above the figures' last digits, not beside the next title.
  if ((option->textAlignment & Qt::AlignRight) != 0) option->text += QChar(QChar::Nbsp);
}

void TableHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  const bool isSorted = isSortIndicatorShown() && sortIndicatorSection() == logicalIndex;
  if (!isSorted || HasRoomForArrow(rect, logicalIndex))
    return QHeaderView::paintSection(painter, rect, logicalIndex);
  QStyleOptionHeaderV2 option;
  initStyleOption(&option);
  initStyleOptionForIndex(&option, logicalIndex);
  option.rect = rect;
  option.sortIndicator = QStyleOptionHeader::None;
  painter->save();
  style()->drawControl(QStyle::CE_Header, &option, painter, this);
  painter->restore();
  const bool isUp = sortIndicatorOrder() == Qt::AscendingOrder;
  const QPointF top(rect.center().x() + 0.5, rect.top() + 1.0);
  const double tip = isUp ? 0.0 : kSmallArrowHeight;
  const QPointF arrow[] = {top + QPointF(-kSmallArrowWidth / 2.0, kSmallArrowHeight - tip),
                           top + QPointF(kSmallArrowWidth / 2.0, kSmallArrowHeight - tip),
                           top + QPointF(0.0, tip)};
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(palette().buttonText());
  painter->drawPolygon(arrow, 3);
  painter->restore();
}

}  // namespace lurkwell
