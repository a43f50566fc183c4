// Compiled more than once, with other instructions and LURKWELL_SUM_PUSHES for the function's name.
// Nothing inline of the library may be used here: the linker would keep one copy for all.
#include "animated_view/LayoutKernel.h"

#include <cmath>

namespace lurkwell {

PushSum LURKWELL_SUM_PUSHES(const double* x, const double* y, const double* weight,
                            std::size_t count, double x0, double y0) {
  double fx = 0;
  double fy = 0;
  double distance = 0;
#pragma omp simd reduction(+ : fx, fy, distance)
  for (std::size_t i = 0; i < count; ++i) {
    double dx = x[i] - x0;
    double dy = y[i] - y0;
    dx = ::fabs(dx) >= 1e-4 ? dx : dx < 0 ? -1e-4 : 1e-4;
    dy = ::fabs(dy) >= 1e-4 ? dy : dy < 0 ? -1e-4 : 1e-4;
    const double squared = dx * dx + dy * dy;
    const double r = ::sqrt(squared);
    const double strength = weight[i] / (r * squared);
    fx += dx * strength;
    fy += dy * strength;
    distance += r;
  }
  return {-5.0 * fx, -5.0 * fy, distance};
}

}  // namespace lurkwell
