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

QColor TextColour(const QStyleOptionViewItem& option, bool isFaint) {
  const auto group = GroupOf(option);
  const bool isSelected = IsSelected(option);
  const auto text =
      option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
  if (!isFaint) return text;
  // Of the two stripes the even one is nearer to the text.
  return FaintOn(text, isSelected ? option.palette.color(group, QPalette::Highlight)
                                  : EvenStripe(option.palette));
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

/// An open angle, sharp at every scale; that of a folded row points to where its text goes on.
void DrawArrow(QPainter& painter, const QRect& place, bool isFolded, bool isTurned,
               const QColor& colour) {
  const QPointF middle = QRectF(place).center() + QPointF(1.0, 0.0);
  constexpr double kLong = 3.5;
  constexpr double kShort = 1.75;
  const double ahead = isTurned ? -kShort : kShort;
  QPolygonF angle;
  if (isFolded)
    angle << middle + QPointF(-ahead, -kLong) << middle + QPointF(ahead, 0.0)
          << middle + QPointF(-ahead, kLong);
  else
    angle << middle + QPointF(-kLong, -kShort) << middle + QPointF(0.0, kShort)
          << middle + QPointF(kLong, -kShort);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(angle);
}

}  // namespace

void TextCell::DrawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
                        const QModelIndex& index) {
  const auto text = index.data(Qt::DisplayRole).toString();
  if (text.isEmpty()) return;
  const auto rect = place.adjusted(kTextMargin, 0, -kTextMargin, 0);
  const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  auto font = option.font;
  font.setStrikeOut(index.data(kHasEndedRole).toBool());
  painter.setFont(font);
  painter.setPen(TextColour(option, index.data(kIsFaintRole).toBool()));
  const auto& metrics = option.fontMetrics;
  const bool fits = metrics.horizontalAdvance(text) <= rect.width();
  const auto placed = QStyle::visualAlignment(option.direction, alignment) | Qt::AlignAbsolute;
  // In windows that are turned round a path begins at its left all the same.
  painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  painter.drawText(rect, static_cast<int>(placed) | Qt::TextSingleLine,
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

QRect TreeCell::ArrowPlace(const QRect& cell, const QModelIndex& index,
                           Qt::LayoutDirection direction) {
  const int inset = InsetIn(cell, index);
  if (inset == 0 || index.data(kFoldRole).toInt() == 0) return {};
  const QRect place(cell.left() + inset - kArrowWidth, cell.top(), kArrowWidth, cell.height());
  return QStyle::visualRect(direction, cell, place);
}

void TreeCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const {
  DrawBackground(*painter, option);
  const auto arrow = ArrowPlace(option.rect, index, option.direction);
  painter->save();
  painter->setClipRect(option.rect, Qt::IntersectClip);
  if (arrow.isValid()) {
    const bool isFolded =
        index.data(kFoldRole).toInt() == static_cast<int>(RowStanding::Fold::kFolded);
    DrawArrow(*painter, arrow, isFolded, option.direction == Qt::RightToLeft,
              option.palette.color(GroupOf(option), IsSelected(option) ? QPalette::HighlightedText
                                                                       : QPalette::Text));
  }
  painter->restore();
  const auto place = option.rect.adjusted(InsetIn(option.rect, index), 0, 0, 0);
  DrawText(*painter, option, QStyle::visualRect(option.direction, option.rect, place), index);
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

namespace {

/// That part of the text that lies between two columns of points, at the right of its place.
void DrawTextBetween(QPainter& painter, std::pair<int, int> columns, const QRect& place,
                     const QColor& colour, const QString& text) {
  const int begin = place.right() + 1 - painter.fontMetrics().horizontalAdvance(text);
  const int from = std::max(columns.first, place.left());
  if (columns.second <= from || columns.second <= begin) return;
  painter.save();
  painter.setClipRect(QRect(from, place.top(), columns.second - from, place.height()),
                      Qt::IntersectClip);
  painter.setPen(colour);
  painter.drawText(
      place, Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine, text);
  painter.restore();
}

QRect InsideCPUFrame(const QRect& frame) {
  return frame.adjusted(3, 3, -3, -3);
}
QColor CPUGround(bool isDark) {
  return isDark ? QColor(72, 76, 84) : QColor(Qt::lightGray);
}
QColor CPUBar(bool isDark, bool isFaint) {
  if (isFaint) return isDark ? QColor(120, 124, 132) : QColor(Qt::gray);
  return isDark ? QColor(94, 158, 255) : QColor(Qt::blue);
}

}  // namespace

void CPUCell::drawInteriorWithFrame(QPainter& painter, const QRect& frame, bool isDark,
                                    bool isIdleTask, bool isFaint) const {
  const auto inside = InsideCPUFrame(frame);
  painter.fillRect(inside, CPUGround(isDark));
  const auto bar = BarIn(inside, mCpuPercentage, 1);
  if (isIdleTask)
    painter.fillRect(bar, QBrush(CPUBar(isDark, true), Qt::BDiagPattern));
  else
    painter.fillRect(bar, CPUBar(isDark, isFaint));
}

void CPUCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const {
  DrawBackground(*painter, option);
  mCpuPercentage = index.data(kCpuShareRole).toDouble();
  const bool isDark = IsDark(option.palette);
  const bool isIdleTask = index.data(kIsIdleTaskRole).toBool();
  const bool isFaint = index.data(kIsFaintRole).toBool();
  drawInteriorWithFrame(*painter, option.rect, isDark, isIdleTask, isFaint);
  const auto text = index.data(kBarTextRole).toString();
  const auto inside = InsideCPUFrame(option.rect);
  const auto place = inside.adjusted(kTextMargin, 0, -kTextMargin, 0);
  const int width = option.fontMetrics.horizontalAdvance(text);
  if (text.isEmpty() || width > place.width()) return;
  const int end = isIdleTask ? inside.left() : BarIn(inside, mCpuPercentage, 1).right() + 1;
  painter->setFont(option.font);
  DrawTextBetween(*painter, {inside.left(), end}, place, ReadableOn(CPUBar(isDark, isFaint)), text);
  DrawTextBetween(*painter, {end, inside.right() + 1}, place, ReadableOn(CPUGround(isDark)), text);
}

KeyId MemoryFigureKey() {
  static const KeyId kProportional = InternKey("pid_pss");
  if (gMemoryFigure == MemoryFigure::kResident) return kPidRsz;
  return gMemoryFigure == MemoryFigure::kProportional ? kProportional : kPidVsz;
}

MemGraphCell::Bars MemGraphCell::BarsIn(const QRect& frame, const QPalette& palette,
                                        bool isFaint) const {
  const bool isLarger = mVSZ > gBiggestVSZ;
  const auto maximum = static_cast<double>(isLarger ? mVSZ : gBiggestVSZ);
  const auto share = [&](std::int64_t size) {
    return maximum > 0.0 ? std::clamp(static_cast<double>(size) / maximum, 0.0, 1.0) : 0.0;
  };
  Bars bars{BarIn(frame.adjusted(3, 5, -3, -5), share(mVSZ), 3),
            BarIn(frame.adjusted(2, 2, -2, -2), share(mRSZ), 2), Colour(0.2, 0.9, 0.2),
            Colour(0.0, 0.3, 0.0)};
  const bool isDark = IsDark(palette);
  // On a dark ground it is the lighter one that is seen first: the memory that is there.
  if (isDark) {
    bars.outerColour = Colour(0.15, 0.4, 0.22);
    bars.innerColour = Colour(0.4, 0.84, 0.48);
  }
  if (isLarger) {
    bars.outerColour = Colour(0.5, 0.7, 0.0);
    bars.innerColour = Colour(0.35, 0.4, 0.0);
  }
  if (isFaint) {
    bars.outerColour = isDark ? QColor(96, 100, 108) : QColor(Qt::lightGray);
    bars.innerColour = isDark ? QColor(136, 140, 148) : QColor(Qt::gray);
  }
  return bars;
}

void MemGraphCell::drawInteriorWithFrame(QPainter& painter, const QRect& frame,
                                         const QPalette& palette, bool isFaint) const {
  const auto bars = BarsIn(frame, palette, isFaint);
  painter.fillRect(bars.outer, bars.outerColour);
  // Light on light it would not be seen by everybody; the edge is.
  if (ContrastBetween(bars.outerColour, EvenStripe(palette)) < kMarkContrast) {
    painter.setPen(FaintOn(palette.color(QPalette::Text), EvenStripe(palette)));
    painter.drawRect(bars.outer.adjusted(0, 0, -1, -1));
  }
  painter.fillRect(bars.inner, bars.innerColour);
}

void MemGraphCell::DrawText(QPainter& painter, const QRect& frame, const Bars& bars,
                            const QColor& beside, const QString& text) {
  auto rect = frame.adjusted(3, 1, -3, -1);
  // A narrow column keeps the end of the text.
  if (rect.width() < 40 && frame.width() >= 40) rect.setLeft(rect.right() - 39);
  const int innerEnd = bars.inner.right() + 1;
  const int outerEnd = std::max(bars.outer.right() + 1, innerEnd);
  DrawTextBetween(painter, {frame.left(), innerEnd}, rect, ReadableOn(bars.innerColour), text);
  DrawTextBetween(painter, {innerEnd, outerEnd}, rect, ReadableOn(bars.outerColour), text);
  DrawTextBetween(painter, {outerEnd, frame.right() + 1}, rect, beside, text);
}

void MemGraphCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  DrawBackground(*painter, option);
  mRSZ = index.data(kResidentSizeRole).toLongLong();
  mVSZ = index.data(kVirtualSizeRole).toLongLong();
  const bool isFaint = index.data(kIsFaintRole).toBool();
  drawInteriorWithFrame(*painter, option.rect, option.palette, isFaint);
  if (!gDrawVSZText) return;
  painter->setFont(option.font);
  DrawText(*painter, option.rect, BarsIn(option.rect, option.palette, isFaint),
           option.palette.color(GroupOf(option),
                                IsSelected(option) ? QPalette::HighlightedText : QPalette::Text),
           index.data(kBarTextRole).toString());
}

}  // namespace lurkwell
