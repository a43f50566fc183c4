#include "platform/linux/LinuxClock.h"

#include <time.h>

namespace lurkwell {
namespace {

TimeValue Read(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return {time.tv_sec, static_cast<std::int32_t>(time.tv_nsec / 1000)};
}

TimeValue Difference(TimeValue later, TimeValue earlier) {
  TimeValue difference{later.seconds - earlier.seconds, later.microseconds - earlier.microseconds};
  if (difference.microseconds < 0) {
    difference.microseconds += 1'000'000;
    --difference.seconds;
  }
  return difference;
}

}  // namespace

LinuxClock::LinuxClock() : mStart(Read(CLOCK_REALTIME)), mBootTimeAtStart(Read(CLOCK_BOOTTIME)) {}

TimeValue LinuxClock::Now() {
  return mStart + Difference(Read(CLOCK_BOOTTIME), mBootTimeAtStart);
}

TimeValue LinuxClock::CalendarNow() {
  return Read(CLOCK_REALTIME);
}

}  // namespace lurkwell
