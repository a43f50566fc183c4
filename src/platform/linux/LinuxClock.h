#pragma once

#include "platform/Clock.h"

namespace lurkwell {

/// CLOCK_REALTIME at construction, carried on by CLOCK_BOOTTIME.
class LinuxClock final : public Clock {
 public:
  using Reader = TimeValue (*)();

  LinuxClock();
  /// On other clocks than the machine's, for tests.
  LinuxClock(Reader calendar, Reader sinceBoot);
  TimeValue Now() override;
  TimeValue CalendarNow() override;

 private:
  Reader mCalendar;
  Reader mSinceBoot;
  TimeValue mStart;
  TimeValue mBootTimeAtStart;
};

}  // namespace lurkwell
