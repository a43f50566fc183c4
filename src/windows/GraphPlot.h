#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QTransform>
#include <cstddef>
#include <cstdint>

#include "windows/FigureHistory.h"

namespace lurkwell {

/// How the line of a series looks. No two of a graph have the same style, so that they can be told
/// apart without their colours.
struct SeriesLook {
  QColor colour;
  Qt::PenStyle style = Qt::SolidLine;
  /// The ground below the line has a tint of its colour.
  bool isFilled = false;
};

/// The look of a graph's series by their order; they repeat after six. The colours keep apart for
/// the colour-blind, too, and stand out from the palette's ground. Pure.
SeriesLook LookOfSeries(std::size_t order, bool isDark);

/// Where drawing units meet the pixels of what is drawn on, at any scale.
class PixelGrid {
 public:
  explicit PixelGrid(const QPainter& painter) : mTransform(painter.deviceTransform()) {}

  /// The width of so many units as whole pixels, one at least, in drawing units.
  double WholeWidth(double units) const;
  /// The nearest place where a line of that width covers whole pixels.
  double X(double x, double width) const {
    return Snap(x, width, mTransform.m11(), mTransform.dx());
  }
  double Y(double y, double width) const {
    return Snap(y, width, mTransform.m22(), mTransform.dy());
  }
  /// For lines of such a width; its pixels stay whole, which those of scaled pens may not.
  QPen Pen(const QColor& colour, double width, Qt::PenStyle style = Qt::SolidLine) const;
  double Scale() const { return mTransform.m11(); }

 private:
  static double Snap(double place, double width, double scale, double offset);

  QTransform mTransform;
};

/// The part of a graph where the lines are: which times and values its borders stand for.
struct GraphPlot {
  QRectF area;
  /// The time at the right border, and how long before that the left one is; milliseconds.
  std::int64_t end = 0;
  std::int64_t span = 60'000;
  /// The value at the upper border; 0 is at the lower one. What is higher is cut there.
  double top = 1;
  /// Moments that are further apart are not joined; milliseconds.
  std::int64_t longestStep = 15'000;

  double XOf(std::int64_t when) const;
  double YOf(double value) const;
  std::int64_t TimeAt(double x) const;

  /// The line of a series. It breaks where figures are missing; one alone is a dot. However many
  /// moments fall into one column of pixels, the line shows the least and the greatest. Costs no
  /// more than looking at the moments of the span, and drawing some points per column.
  void Draw(QPainter& painter, const FigureHistory& history, std::size_t series,
            const SeriesLook& look) const;

  /// The greatest figure of a series within the span, 0 without one.
  double Greatest(const FigureHistory& history, std::size_t series) const;
};

}  // namespace lurkwell
