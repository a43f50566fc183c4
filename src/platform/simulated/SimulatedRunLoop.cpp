#include "platform/simulated/SimulatedRunLoop.h"

#include <cmath>

namespace lurkwell {
namespace {

TimeValue TimeOf(double date) {
  const auto microseconds = static_cast<std::int64_t>(std::llround(date * 1e6));
  return {microseconds / 1'000'000, static_cast<std::int32_t>(microseconds % 1'000'000)};
}

}  // namespace

class SimulatedRunLoop::Timer final : public RunLoopTimer {
 public:
  Timer(SimulatedRunLoop& loop, double date, double interval, std::function<void()> callback)
      : mLoop(loop), mDate(date), mInterval(interval), mCallback(std::move(callback)) {
    mLoop.mTimers.push_back(this);
  }
  ~Timer() override { mLoop.mTimers.remove(this); }

  void SetNextFireDate(double date) override { mDate = date; }
  double Date() const { return mDate; }

  void Fire() {
    mDate = mInterval > 0 ? mDate + mInterval : kNever;
    // The callback may destroy the timer, and itself with it.
    const auto callback = mCallback;
    callback();
  }

 private:
  SimulatedRunLoop& mLoop;
  double mDate;
  double mInterval;
  std::function<void()> mCallback;
};

std::unique_ptr<RunLoopTimer> SimulatedRunLoop::AddTimer(double firstFireDate, double interval,
                                                         std::function<void()> callback) {
  return std::make_unique<Timer>(*this, firstFireDate, interval, std::move(callback));
}

SimulatedRunLoop::Timer* SimulatedRunLoop::NextTimer() const {
  Timer* next = nullptr;
  for (auto* timer : mTimers)
    if (timer->Date() < kNever && (next == nullptr || timer->Date() < next->Date())) next = timer;
  return next;
}

double SimulatedRunLoop::NextFireDate() const {
  const auto* next = NextTimer();
  return next == nullptr ? kNever : next->Date();
}

void SimulatedRunLoop::MoveClockTo(double date) {
  const TimeValue time = TimeOf(date);
  if (time > mClock.Now()) mClock.Set(time);
}

void SimulatedRunLoop::Run() {
  mStopped = false;
  while (!mStopped) {
    auto* next = NextTimer();
    if (next == nullptr) return;
    MoveClockTo(next->Date());
    next->Fire();
  }
}

void SimulatedRunLoop::RunFor(std::int64_t milliseconds) {
  const TimeValue end = AddMilliseconds(mClock.Now(), milliseconds);
  for (auto* next = NextTimer(); next != nullptr && TimeOf(next->Date()) <= end;
       next = NextTimer()) {
    MoveClockTo(next->Date());
    next->Fire();
  }
  mClock.Set(end);
}

}  // namespace lurkwell
