#pragma once

#include <compare>
#include <cstdint>

namespace lurkwell {

/// A point in time (seconds since the Unix epoch) or a span of time, always normalised:
/// 0 <= microseconds < 1,000,000. Plain value, any thread.
struct TimeValue {
  std::int64_t seconds = 0;
  std::int32_t microseconds = 0;

  friend constexpr auto operator<=>(const TimeValue&, const TimeValue&) = default;
  constexpr bool IsZero() const { return seconds == 0 && microseconds == 0; }
};

constexpr TimeValue operator+(TimeValue a, TimeValue b) {
  TimeValue sum{a.seconds + b.seconds, a.microseconds + b.microseconds};
  if (sum.microseconds > 999'999) {
    sum.microseconds -= 1'000'000;
    ++sum.seconds;
  }
  return sum;
}

/// Normalised too: what lies before zero has negative seconds.
constexpr TimeValue operator-(TimeValue a, TimeValue b) {
  TimeValue difference{a.seconds - b.seconds, a.microseconds - b.microseconds};
  if (difference.microseconds < 0) {
    difference.microseconds += 1'000'000;
    --difference.seconds;
  }
  return difference;
}

constexpr double InSeconds(TimeValue time) {
  return static_cast<double>(time.seconds) + time.microseconds / 1e6;
}

constexpr double SecondsBetween(TimeValue from, TimeValue to) {
  return InSeconds(to - from);
}

/// Whole milliseconds from `from` to `to`; negative when `to` lies before `from`. The microsecond
/// difference is made non-negative first, so the fraction is cut towards the past.
constexpr std::int64_t MillisecondsBetween(TimeValue from, TimeValue to) {
  const TimeValue difference = to - from;
  return difference.seconds * 1000 + difference.microseconds / 1000;
}

constexpr TimeValue AddMilliseconds(TimeValue time, std::int64_t milliseconds) {
  return time +
         TimeValue{milliseconds / 1000, static_cast<std::int32_t>(milliseconds % 1000) * 1000};
}

/// The time. Any thread.
class Clock {
 public:
  virtual ~Clock() = default;

  /// The time of day as this run of the program counts it: the calendar time of its start, carried
  /// on by a clock that neither steps nor stops during suspend. All intervals, deadlines and CPU
  /// shares come from this one. Never goes back.
  virtual TimeValue Now() = 0;

  /// The calendar time as the machine has it at present; for showing, never for intervals, since an
  /// administrator or a time server may set it back.
  virtual TimeValue CalendarNow() = 0;

  /// Now() as seconds, the unit of the run loop's fire dates.
  double AbsoluteTime() { return InSeconds(Now()); }
};

}  // namespace lurkwell
