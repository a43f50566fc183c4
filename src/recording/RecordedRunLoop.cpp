#include "recording/RecordedRunLoop.h"

#include <utility>

namespace lurkwell {

class RecordedRunLoop::Timer final : public RunLoopTimer {
 public:
  Timer(RecordedRunLoop& loop, double date, double interval, std::function<void()> callback)
      : mLoop(loop), mDate(date), mInterval(interval), mCallback(std::move(callback)) {
    mLoop.mTimers.push_back(this);
    mLoop.TellOf(Date());
  }
  ~Timer() override { mLoop.mTimers.remove(this); }

  void SetNextFireDate(double date) override {
    mDate = date;
    mLoop.TellOf(Date());
  }
  double Date() const { return Orderable(mDate); }

  void Fire(double now) {
    mDate = NextDate(mDate, mInterval, now);
    // The callback may destroy the timer, and itself with it.
    const auto callback = mCallback;
    callback();
  }

 private:
  RecordedRunLoop& mLoop;
  double mDate;
  double mInterval;
  std::function<void()> mCallback;
};

std::unique_ptr<RunLoopTimer> RecordedRunLoop::AddTimer(double firstFireDate, double interval,
                                                        std::function<void()> callback) {
  return std::make_unique<Timer>(*this, firstFireDate, interval, std::move(callback));
}

RecordedRunLoop::Timer* RecordedRunLoop::DueTimer() const {
  const double now = mPlayer.Clock().AbsoluteTime();
  Timer* due = nullptr;
  for (auto* timer : mTimers)
    if (timer->Date() <= now && (due == nullptr || timer->Date() < due->Date())) due = timer;
  return due;
}

void RecordedRunLoop::TellOf(double date) const {
  if (mDateIsSet && date <= mPlayer.Clock().AbsoluteTime()) mDateIsSet();
}

void RecordedRunLoop::ServeDue() {
  // A timer that is due again at once must not hold the time up.
  constexpr int kMostAtOnce = 16;
  for (int i = 0; i < kMostAtOnce && !mIsStopped; ++i) {
    auto* due = DueTimer();
    if (due == nullptr) return;
    due->Fire(mPlayer.Clock().AbsoluteTime());
  }
}

void RecordedRunLoop::Run() {
  mIsStopped = false;
  do {
    ServeDue();
  } while (!mIsStopped && mGoOn());
}

}  // namespace lurkwell
