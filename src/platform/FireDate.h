#pragma once

#include <cmath>
#include <limits>

namespace lurkwell {

/// Arithmetic on the fire dates of run loops, in seconds of Clock::AbsoluteTime. Any thread.

inline constexpr double kNever = std::numeric_limits<double>::infinity();

/// A date that can be ordered among others: one that is no number never comes.
inline double Orderable(double date) {
  return std::isnan(date) ? kNever : date;
}

/// The first date after `now` in steps from `date`; kNever without an interval.
inline double NextDate(double date, double interval, double now) {
  if (!(interval > 0)) return kNever;
  if (date + interval > now) return date + interval;
  const double next = date + (std::floor((now - date) / interval) + 1) * interval;
  // An interval too short for the clock to tell apart.
  return next > now ? next : now + interval;
}

}  // namespace lurkwell
