#include "platform/linux/LinuxClock.h"

#include <time.h>

namespace lurkwell {
namespace {

template <clockid_t kClock>
TimeValue Read() {
  timespec time{};
  clock_gettime(kClock, &time);
  return {time.tv_sec, static_cast<std::int32_t>(time.tv_nsec / 1000)};
}

}  // namespace

LinuxClock::LinuxClock() : LinuxClock(Read<CLOCK_REALTIME>, Read<CLOCK_BOOTTIME>) {}

LinuxClock::LinuxClock(Reader calendar, Reader sinceBoot)
    : mCalendar(calendar),
      mSinceBoot(sinceBoot),
      mStart(mCalendar()),
      mBootTimeAtStart(mSinceBoot()) {}

TimeValue LinuxClock::Now() {
  return mStart + (mSinceBoot() - mBootTimeAtStart);
}

TimeValue LinuxClock::CalendarNow() {
  return mCalendar();
}

}  // namespace lurkwell
