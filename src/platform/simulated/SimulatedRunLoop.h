#pragma once

#include <cstdint>
#include <list>

#include "platform/Clock.h"
#include "platform/RunLoop.h"

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

/// A run loop on a simulated clock: timers fire in the order of their dates, those of one date in
/// the order in which they were added, and the clock jumps from date to date.
class SimulatedRunLoop final : public RunLoop {
 public:
  explicit SimulatedRunLoop(SimulatedClock& clock) : mClock(clock) {}

  std::unique_ptr<RunLoopTimer> AddTimer(double firstFireDate, double interval,
                                         std::function<void()> callback) override;

  /// Runs until Stop, or until no timer is left.
  void Run() override;
  void Stop() override { mStopped = true; }
  bool IsStopped() const { return mStopped; }

  /// Serves what is due within the next milliseconds and leaves the clock at their end.
  void RunFor(std::int64_t milliseconds);

  /// The date of the next timer to fire; infinite without any.
  double NextFireDate() const;

 private:
  class Timer;

  Timer* NextTimer() const;
  void MoveClockTo(double date);

  SimulatedClock& mClock;
  std::list<Timer*> mTimers;
  bool mStopped = false;
};

}  // namespace lurkwell
