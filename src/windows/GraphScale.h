#pragma once

#include <QString>

namespace lurkwell {

/// What a graph's figures count.
enum class GraphUnit {
  kShare,           ///< 1 is all of it, shown as 100 %
  kBytes,           ///< in the user's unit
  kBytesPerSecond,  ///< the same by second
  kNumber,
};

/// A figure as people read it, with its unit; the words for a missing one when it is not a number.
/// Main thread.
QString GraphFigureText(GraphUnit unit, double value);

/// The same for a line of the scale: short, and bytes in the unit that suits their size. Any
/// thread.
QString GraphScaleText(GraphUnit unit, double value);

/// From 0 to `top`, a line at each multiple of `step`.
struct GraphScale {
  double top = 1;
  double step = 1;
};

/// The scale with the finest steps that people count in (1, 2, 5 times a power of ten; powers of
/// two for bytes) of which at most `mostSteps` cover `most`. Its top is a step's multiple. What is
/// 0, negative or no number gets a scale to one unit. Pure.
GraphScale NiceGraphScale(double most, GraphUnit unit, int mostSteps);

/// The same to a top that is given, and need not be a step's multiple.
GraphScale GraphScaleTo(double top, GraphUnit unit, int mostSteps);

}  // namespace lurkwell
