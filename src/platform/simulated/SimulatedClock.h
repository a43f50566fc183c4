#pragma once

#include "platform/Clock.h"

namespace lurkwell {

/// A clock that stands still until the test moves it. Starts at 1,000,000,000 seconds after the
/// epoch.
class SimulatedClock final : public Clock {
 public:
  TimeValue Now() override { return mNow; }
  TimeValue CalendarNow() override { return mNow; }

  void Set(TimeValue now) { mNow = now; }
  void Advance(std::int64_t milliseconds) { mNow = AddMilliseconds(mNow, milliseconds); }

 private:
  TimeValue mNow{1'000'000'000, 0};
};

}  // namespace lurkwell
