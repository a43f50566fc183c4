#include "windows/GraphPlot.h"

#include <QPointF>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

namespace lurkwell {
namespace {

struct ColourPair {
  QRgb onLight;
  QRgb onDark;
};

/// Blue, vermilion, green, purple, ochre, grey: apart in lightness or in what every kind of
/// colour-blindness leaves.
constexpr std::array<ColourPair, 6> kSeriesColours{{{0xff0068ad, 0xff5cb8f0},
                                                    {0xffc85000, 0xffffa040},
                                                    {0xff007a58, 0xff36d0a0},
                                                    {0xff9c3878, 0xffe79ccb},
                                                    {0xff806000, 0xfff0e458},
                                                    {0xff555555, 0xffc8c8c8}}};
constexpr std::array kSeriesStyles{Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                   Qt::DashDotLine, Qt::DashDotDotLine, Qt::SolidLine};
constexpr float kTint = 0.22F;
constexpr double kLineUnits = 1.4;

/// The points of one unbroken piece of a line, a few for each column of pixels.
class LinePiece {
 public:
  explicit LinePiece(double columnsPerUnit) : mColumnsPerUnit(columnsPerUnit) {}

  void Add(QPointF point) {
    const auto column = static_cast<std::int64_t>(std::floor(point.x() * mColumnsPerUnit));
    if (mCount == 0 || column != mColumn) {
      EndColumn();
      mColumn = column;
      mFirst = mLeast = mGreatest = point;
    }
    if (point.y() < mLeast.y()) mLeast = point;
    if (point.y() > mGreatest.y()) mGreatest = point;
    mLast = point;
    ++mCount;
  }

  const QPolygonF& Points() {
    EndColumn();
    mCount = 0;
    return mPoints;
  }

 private:
  void EndColumn() {
    if (mCount == 0) return;
    const bool leastFirst = mLeast.x() <= mGreatest.x();
    for (const auto& point :
         {mFirst, leastFirst ? mLeast : mGreatest, leastFirst ? mGreatest : mLeast, mLast})
      if (mPoints.isEmpty() || mPoints.back() != point) mPoints.append(point);
  }

  double mColumnsPerUnit;
  QPolygonF mPoints;
  std::size_t mCount = 0;
  std::int64_t mColumn = 0;
  QPointF mFirst, mLeast, mGreatest, mLast;
};

void DrawPiece(QPainter& painter, const QPolygonF& points, double bottom, const SeriesLook& look,
               double width) {
  if (points.isEmpty()) return;
  if (points.size() == 1) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.colour);
    painter.drawEllipse(points.front(), width, width);
    return;
  }
  if (look.isFilled) {
    auto tint = look.colour;
    tint.setAlphaF(kTint);
    auto ground = points;
    ground.append(QPointF(points.back().x(), bottom));
    ground.append(QPointF(points.front().x(), bottom));
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawPolygon(ground);
  }
  painter.setPen(PixelGrid(painter).Pen(look.colour, width, look.style));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(points);
}

}  // namespace

SeriesLook LookOfSeries(std::size_t order, bool isDark) {
  const auto& [onLight, onDark] = kSeriesColours[order % kSeriesColours.size()];
  return {QColor::fromRgb(isDark ? onDark : onLight), kSeriesStyles[order % kSeriesStyles.size()],
          order == 0};
}

double PixelGrid::WholeWidth(double units) const {
  return std::max(1.0, std::floor(units * mTransform.m11())) / mTransform.m11();
}

QPen PixelGrid::Pen(const QColor& colour, double width, Qt::PenStyle style) const {
  QPen pen(colour, std::round(width * mTransform.m11()), style, Qt::FlatCap, Qt::RoundJoin);
  pen.setCosmetic(true);
  return pen;
}

double PixelGrid::Snap(double place, double width, double scale, double offset) {
  const bool isOdd = std::lround(width * scale) % 2 == 1;
  const double pixel = place * scale + offset;
  return ((isOdd ? std::floor(pixel) + 0.5 : std::round(pixel)) - offset) / scale;
}

double GraphPlot::XOf(std::int64_t when) const {
  const double share = static_cast<double>(end - when) / static_cast<double>(span);
  return area.right() - share * area.width();
}

double GraphPlot::YOf(double value) const {
  return area.bottom() - std::clamp(value / top, 0.0, 1.0) * area.height();
}

std::int64_t GraphPlot::TimeAt(double x) const {
  const double share = (area.right() - x) / std::max(area.width(), 1.0);
  return end - std::llround(std::clamp(share, 0.0, 1.0) * static_cast<double>(span));
}

void GraphPlot::Draw(QPainter& painter, const FigureHistory& history, std::size_t series,
                     const SeriesLook& look) const {
  const PixelGrid grid(painter);
  const double width = grid.WholeWidth(kLineUnits);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(area, Qt::IntersectClip);
  LinePiece piece(grid.Scale());
  const auto endPiece = [&] {
    DrawPiece(painter, piece.Points(), area.bottom(), look, width);
    piece = LinePiece(grid.Scale());
  };
  // The line comes from what lies before the left border.
  auto moment = history.FirstSince(end - span);
  if (moment > 0) --moment;
  for (std::int64_t before = 0; moment < history.Size(); ++moment) {
    const auto when = history.TimeOf(moment);
    const auto value = history.ValueOf(series, moment);
    if (!IsThere(value) || when - before > longestStep) endPiece();
    before = when;
    if (!IsThere(value)) continue;
    // What lies on a border is seen whole, and levels are sharp.
    const double y = std::clamp(grid.Y(YOf(value), width), area.top() + width / 2,
                                std::max(area.top() + width, area.bottom()) - width / 2);
    piece.Add({XOf(when), y});
  }
  endPiece();
  painter.restore();
}

double GraphPlot::Greatest(const FigureHistory& history, std::size_t series) const {
  float greatest = 0;
  for (auto moment = history.FirstSince(end - span); moment < history.Size(); ++moment) {
    const auto value = history.ValueOf(series, moment);
    if (IsThere(value)) greatest = std::max(greatest, value);
  }
  return greatest;
}

}  // namespace lurkwell
