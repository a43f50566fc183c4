#include "windows/CustomCells.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

#include "process_control/DisplayFormats.h"
#include "windows/RowDictionary.h"

namespace lurkwell {
namespace {

constexpr int kTextMargin = TextCell::kWidthBesideText / 2;
constexpr int kLevelWidth = 14;
constexpr int kArrowWidth = 16;
/// What lies deeper stands no further to the right.
constexpr int kDeepestDrawn = 24;

QColor Colour(double red, double green, double blue) {
  return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                          static_cast<float>(blue));
}

bool IsSelected(const QStyleOptionViewItem& option) {
  return (option.state & QStyle::State_Selected) != 0;
}

QPalette::ColorGroup GroupOf(const QStyleOptionViewItem& option) {
  return (option.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
}

void DrawBackground(QPainter& painter, const QStyleOptionViewItem& option) {
  if (IsSelected(option))
    painter.fillRect(option.rect, option.palette.brush(GroupOf(option), QPalette::Highlight));
}

/// The left part of `rect`, `share` of its width, at least `least` points.
QRect BarIn(const QRect& rect, double share, int least) {
  const int width = std::max(static_cast<int>(std::floor(rect.width() * share)), least);
  return QRect(rect.left(), rect.top(), std::min(width, std::max(rect.width(), least)),
               rect.height());
}

/// An open angle, sharp at every scale.
void DrawArrow(QPainter& painter, const QRect& place, bool isFolded, const QColor& colour) {
  const QPointF middle = QRectF(place).center() + QPointF(1.0, 0.0);
  constexpr double kLong = 3.5;
  constexpr double kShort = 1.75;
  QPolygonF angle;
  if (isFolded)
    angle << middle + QPointF(-kShort, -kLong) << middle + QPointF(kShort, 0.0)
          << middle + QPointF(-kShort, kLong);
  else
    angle << middle + QPointF(-kLong, -kShort) << middle + QPointF(0.0, kShort)
          << middle + QPointF(kLong, -kShort);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(angle);
}

}  // namespace

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Text).lightness() > palette.color(QPalette::Base).lightness();
}

void TextCell::DrawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
                        const QModelIndex& index) {
  const auto text = index.data(Qt::DisplayRole).toString();
  if (text.isEmpty()) return;
  const auto rect = place.adjusted(kTextMargin, 0, -kTextMargin, 0);
  const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  auto font = option.font;
  font.setStrikeOut(index.data(kHasEndedRole).toBool());
  painter.setFont(font);
  const bool isFaint = index.data(kIsFaintRole).toBool();
  painter.setPen(
      option.palette.color(isFaint ? QPalette::Disabled : GroupOf(option),
                           IsSelected(option) ? QPalette::HighlightedText : QPalette::Text));
  const auto& metrics = option.fontMetrics;
  const bool fits = metrics.horizontalAdvance(text) <= rect.width();
  painter.drawText(rect, static_cast<int>(alignment) | Qt::TextSingleLine,
                   fits ? text : metrics.elidedText(text, Qt::ElideRight, rect.width()));
}

void TextCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const {
  DrawBackground(*painter, option);
  DrawText(*painter, option, option.rect, index);
}

namespace {

/// In a narrow column a name is worth more than its level.
int InsetIn(const QRect& cell, const QModelIndex& index) {
  constexpr int kRoomForName = 72;
  return std::min(TreeCell::InsetOf(index), std::max(cell.width() - kRoomForName, kArrowWidth));
}

}  // namespace

int TreeCell::InsetOf(const QModelIndex& index) {
  const int level = index.data(kLevelRole).toInt();
  return level < 0 ? 0 : std::min(level, kDeepestDrawn) * kLevelWidth + kArrowWidth;
}

QRect TreeCell::ArrowPlace(const QRect& cell, const QModelIndex& index) {
  const int inset = InsetIn(cell, index);
  if (inset == 0 || index.data(kFoldRole).toInt() == 0) return {};
  return QRect(cell.left() + inset - kArrowWidth, cell.top(), kArrowWidth, cell.height());
}

void TreeCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const {
  DrawBackground(*painter, option);
  const auto arrow = ArrowPlace(option.rect, index);
  painter->save();
  painter->setClipRect(option.rect, Qt::IntersectClip);
  if (arrow.isValid()) {
    const bool isFolded =
        index.data(kFoldRole).toInt() == static_cast<int>(RowStanding::Fold::kFolded);
    DrawArrow(*painter, arrow, isFolded,
              option.palette.color(GroupOf(option), IsSelected(option) ? QPalette::HighlightedText
                                                                       : QPalette::Text));
  }
  painter->restore();
  DrawText(*painter, option, option.rect.adjusted(InsetIn(option.rect, index), 0, 0, 0), index);
}

void ImageCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
  DrawBackground(*painter, option);
  const auto value = index.data(Qt::DecorationRole);
  const QRect place(option.rect.center() - QPoint(kSize / 2 - 1, kSize / 2 - 1),
                    QSize(kSize, kSize));
  if (value.userType() == QMetaType::QPixmap) {
    painter->drawPixmap(place, value.value<QPixmap>());
  } else if (value.userType() == QMetaType::QIcon) {
    value.value<QIcon>().paint(painter, place);
  }
}

void CPUCell::drawInteriorWithFrame(QPainter& painter, const QRect& frame, bool isDark,
                                    bool isIdleTask) const {
  const auto inside = frame.adjusted(3, 3, -3, -3);
  painter.fillRect(inside, isDark ? QColor(72, 76, 84) : QColor(Qt::lightGray));
  const auto bar = BarIn(inside, cpuPercent(), 1);
  if (isIdleTask)
    painter.fillRect(bar,
                     QBrush(isDark ? QColor(120, 124, 132) : QColor(Qt::gray), Qt::BDiagPattern));
  else
    painter.fillRect(bar, isDark ? QColor(94, 158, 255) : QColor(Qt::blue));
}

void CPUCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const {
  DrawBackground(*painter, option);
  setCpuPercent(index.data(kCpuShareRole).toDouble());
  drawInteriorWithFrame(*painter, option.rect, IsDark(option.palette),
                        index.data(kIsIdleTaskRole).toBool());
}

void MemGraphCell::DrawText(QPainter& painter, const QRect& frame, const QPalette& palette) const {
  const auto text = QString::fromStdString(MemoryString(mVSZ));
  auto rect = frame.adjusted(3, 1, -3, -1);
  // A narrow column keeps the end of the text.
  if (rect.width() < 40 && frame.width() >= 40) rect.setLeft(rect.right() - 39);
  const auto draw = [&](const QRect& place, const QColor& colour) {
    painter.setPen(colour);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
  };
  // Bars of any darkness may lie below: a rim of the ground's colour keeps the text readable.
  const auto rim = palette.color(QPalette::Base);
  for (const auto& [x, y] : {std::pair(-1, 0), std::pair(1, 0), std::pair(0, -1), std::pair(0, 1)})
    draw(rect.translated(x, y), rim);
  draw(rect, palette.color(QPalette::Text));
}

void MemGraphCell::drawInteriorWithFrame(QPainter& painter, const QRect& frame,
                                         const QPalette& palette) const {
  const bool isLarger = mVSZ > gBiggestVSZ;
  const auto maximum = static_cast<double>(isLarger ? mVSZ : gBiggestVSZ);
  const auto share = [&](std::int64_t size) {
    return maximum > 0.0 ? std::clamp(static_cast<double>(size) / maximum, 0.0, 1.0) : 0.0;
  };
  // On a dark ground it is the lighter one that is seen first: the memory that is there.
  const bool isDark = IsDark(palette);
  const auto size = isDark ? Colour(0.15, 0.4, 0.22) : Colour(0.2, 0.9, 0.2);
  const auto resident = isDark ? Colour(0.4, 0.84, 0.48) : Colour(0.0, 0.3, 0.0);
  painter.fillRect(BarIn(frame.adjusted(3, 5, -3, -5), share(mVSZ), 3),
                   isLarger ? Colour(0.5, 0.7, 0.0) : size);
  painter.fillRect(BarIn(frame.adjusted(2, 2, -2, -2), share(mRSZ), 2),
                   isLarger ? Colour(0.35, 0.4, 0.0) : resident);
  if (gDrawVSZText) DrawText(painter, frame, palette);
}

void MemGraphCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  DrawBackground(*painter, option);
  setRSZ(index.data(kResidentSizeRole).toLongLong());
  setVSZ(index.data(kVirtualSizeRole).toLongLong());
  painter->setFont(option.font);
  drawInteriorWithFrame(*painter, option.rect, option.palette);
}

}  // namespace lurkwell
