#pragma once

#include "platform/TimeValue.h"

namespace lurkwell {

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
