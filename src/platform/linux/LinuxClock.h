#pragma once

#include "platform/Clock.h"

namespace lurkwell {

/// CLOCK_REALTIME at construction, carried on by CLOCK_BOOTTIME.
class LinuxClock final : public Clock {
 public:
  LinuxClock();
  TimeValue Now() override;
  TimeValue CalendarNow() override;

 private:
  TimeValue mStart;
  TimeValue mBootTimeAtStart;
};

}  // namespace lurkwell
