#pragma once

#include <functional>

namespace lurkwell {

/// Gives numbers from 0 to 2147483647.
using RandomSource = std::function<long()>;

/// The system's random(), as it is seeded.
long SystemRandom();

/// One number of the source, scaled to 0..1.
inline double RandomFraction(const RandomSource& random) {
  return static_cast<double>(random()) / 2147483647.0;
}

}  // namespace lurkwell
