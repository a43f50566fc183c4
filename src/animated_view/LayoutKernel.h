#pragma once

#include <cstddef>

namespace lurkwell {

/// A sum of pushes, and of the distances over which they were exerted.
struct PushSum {
  double fx = 0;
  double fy = 0;
  double distance = 0;
};

/// The pushes of `count` bodies on a body of weight 1 at (x0, y0): those of FigureOutForce, added
/// up in no certain order. Which are relatives does not count. Any thread.
using SumPushes = PushSum (*)(const double* x, const double* y, const double* weight,
                              std::size_t count, double x0, double y0);

/// One source, compiled for every processor there may be and once more for the better ones.
PushSum SumPushesBaseline(const double* x, const double* y, const double* weight, std::size_t count,
                          double x0, double y0);
PushSum SumPushesWide(const double* x, const double* y, const double* weight, std::size_t count,
                      double x0, double y0);

/// The quickest of the two that this processor runs.
SumPushes BestSumPushes();

}  // namespace lurkwell
