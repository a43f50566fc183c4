#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "platform/RunLoop.h"
#include "platform/linux/LinuxServices.h"

namespace lurkwell {

/// What every run loop does. In real time, with dates in hundredths of a second from the test's
/// start.
template <typename Loop>
class RunLoopContract : public ::testing::Test {
 protected:
  double At(int hundredths) const { return mStart + hundredths * 0.01; }
  std::function<void()> Writes(const std::string& text) {
    return [this, text] { mLog += text + ' '; };
  }
  void RunUntil(int hundredths) {
    const auto end = mLoop.AddTimer(At(hundredths), 0, [&] { mLoop.Stop(); });
    mLoop.Run();
  }
  /// Lets the time pass without serving timers.
  void Busy(int untilHundredths) {
    while (mClock.AbsoluteTime() < At(untilHundredths)) {
    }
  }

  LinuxClock mClock;
  Loop mLoop{mClock};
  double mStart = mClock.AbsoluteTime();
  std::string mLog;
};

TYPED_TEST_SUITE_P(RunLoopContract);

TYPED_TEST_P(RunLoopContract, FiresInOrderOfDateAndNeverEarly) {
  const auto late = this->mLoop.AddTimer(this->At(20), 0, [&] {
    EXPECT_GE(this->mClock.AbsoluteTime(), this->At(20));
    this->Writes("late")();
  });
  const auto also = this->mLoop.AddTimer(this->At(10), 0, this->Writes("first"));
  const auto never =
      this->mLoop.AddTimer(std::numeric_limits<double>::quiet_NaN(), 1, this->Writes("never"));
  const auto far = this->mLoop.AddTimer(std::numeric_limits<double>::max(), 1, this->Writes("far"));
  const auto middle = this->mLoop.AddTimer(this->At(10), 0, this->Writes("middle"));
  const auto past = this->mLoop.AddTimer(-5, 0, this->Writes("past"));
  // Within a millisecond, which is what some timers count in.
  std::vector<std::unique_ptr<RunLoopTimer>> close;
  for (int i = 5; i > 0; --i)
    close.push_back(
        this->mLoop.AddTimer(this->At(10) + i * 1e-4, 0, this->Writes(std::to_string(i))));
  this->RunUntil(30);
  EXPECT_EQ(this->mLog, "past first middle 1 2 3 4 5 late ");
}

TYPED_TEST_P(RunLoopContract, RepeatsOnItsDatesWithoutMakingUpForWhatWasMissed) {
  std::vector<double> dates;
  const auto timer = this->mLoop.AddTimer(this->At(10), 0.2, [&] {
    dates.push_back((this->mClock.AbsoluteTime() - this->mStart) * 100);
    // Past 30 and 50.
    if (dates.size() == 1) this->Busy(55);
  });
  this->RunUntil(100);
  ASSERT_GE(dates.size(), 3U);
  EXPECT_LE(dates.size(), 3U);
  EXPECT_GE(dates[1], 70);
  EXPECT_GE(dates[2], 90);
}

TYPED_TEST_P(RunLoopContract, LetsCallbacksChangeAnyTimer) {
  std::unique_ptr<RunLoopTimer> self, victim, putOff, added, dated;
  const std::string held = "self";
  self = this->mLoop.AddTimer(this->At(5), 0.01, [&, held] {
    victim.reset();
    putOff->SetNextFireDate(this->At(30));
    added = this->mLoop.AddTimer(0, 0, this->Writes("added"));
    self.reset();
    this->Writes(held)();
  });
  victim = this->mLoop.AddTimer(this->At(6), 1, this->Writes("victim"));
  putOff = this->mLoop.AddTimer(this->At(6), 10, this->Writes("put-off"));
  dated = this->mLoop.AddTimer(this->At(10), 0.05, [&] {
    this->Writes("dated")();
    // In place of the date of the interval.
    dated->SetNextFireDate(this->At(this->mClock.AbsoluteTime() < this->At(40) ? 50 : 500));
  });
  this->RunUntil(60);
  EXPECT_EQ(this->mLog, "self added dated put-off dated ");
}

TYPED_TEST_P(RunLoopContract, StarvesNobodyAndStopsAtOnce) {
  std::unique_ptr<RunLoopTimer> greedy;
  int served = 0;
  greedy = this->mLoop.AddTimer(-10, 0, [&] {
    ++served;
    greedy->SetNextFireDate(-10);
  });
  this->RunUntil(10);
  EXPECT_GT(served, 5);
  greedy.reset();
  // All three are due at once; what is not served comes with the next run.
  const auto stop = this->mLoop.AddTimer(this->At(15), 0, [&] {
    this->Busy(30);
    this->mLoop.Stop();
  });
  const auto after = this->mLoop.AddTimer(this->At(16), 0, this->Writes("after"));
  this->mLoop.Run();
  EXPECT_EQ(this->mLog, "");
  this->RunUntil(40);
  EXPECT_EQ(this->mLog, "after ");
}

REGISTER_TYPED_TEST_SUITE_P(RunLoopContract, FiresInOrderOfDateAndNeverEarly,
                            RepeatsOnItsDatesWithoutMakingUpForWhatWasMissed,
                            LetsCallbacksChangeAnyTimer, StarvesNobodyAndStopsAtOnce);

}  // namespace lurkwell
