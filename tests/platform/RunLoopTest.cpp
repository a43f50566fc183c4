#include <gtest/gtest.h>
#include <signal.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "platform/linux/LinuxClock.h"
#include "platform/linux/PollRunLoop.h"

namespace lurkwell {
namespace {

/// Goes on only when told.
class ManualClock final : public Clock {
 public:
  TimeValue Now() override { return {seconds, 0}; }
  TimeValue CalendarNow() override { return Now(); }
  std::int64_t seconds = 0;
};

class PollRunLoopTest : public ::testing::Test {
 protected:
  std::function<void()> Writes(const std::string& text) {
    return [this, text] { mLog += text + '@' + std::to_string(mClock.seconds) + ' '; };
  }
  /// Serves `rounds` seconds, one after the other. Its own timer is always due, last of all, so
  /// that the loop never really waits.
  void RunSeconds(int rounds) {
    std::unique_ptr<RunLoopTimer> ticker;
    ticker = mLoop.AddTimer(static_cast<double>(mClock.seconds), 0, [&] {
      if (rounds-- == 0) return mLoop.Stop();
      ++mClock.seconds;
      ticker->SetNextFireDate(static_cast<double>(mClock.seconds));
    });
    mLoop.Run();
  }

  ManualClock mClock;
  PollRunLoop mLoop{mClock};
  std::string mLog;
};

TEST_F(PollRunLoopTest, FiresInOrderOfDateThenOfAdding) {
  const auto late = mLoop.AddTimer(2, 0, Writes("late"));
  const auto second = mLoop.AddTimer(1, 0, Writes("second"));
  const auto third = mLoop.AddTimer(1, 0, Writes("third"));
  const auto first = mLoop.AddTimer(0.5, 0, Writes("first"));
  const auto never = mLoop.AddTimer(std::numeric_limits<double>::quiet_NaN(), 1, Writes("never"));
  RunSeconds(4);
  EXPECT_EQ(mLog, "first@1 second@1 third@1 late@2 ");
}

TEST_F(PollRunLoopTest, RepeatsWithoutMakingUpForWhatWasMissed) {
  bool slept = false;
  const auto timer = mLoop.AddTimer(1, 2, [&] {
    Writes("t")();
    // Longer than two intervals.
    if (!std::exchange(slept, true)) mClock.seconds += 5;
  });
  RunSeconds(5);
  EXPECT_EQ(mLog, "t@1 t@7 t@9 ");
}

TEST_F(PollRunLoopTest, LetsCallbacksChangeAnyTimer) {
  std::unique_ptr<RunLoopTimer> self;
  std::unique_ptr<RunLoopTimer> victim;
  std::unique_ptr<RunLoopTimer> putOff;
  std::unique_ptr<RunLoopTimer> added;
  const std::string held = "self";
  self = mLoop.AddTimer(1, 1, [&, held] {
    victim.reset();
    putOff->SetNextFireDate(3);
    added = mLoop.AddTimer(0, 0, Writes("added"));
    self.reset();
    Writes(held)();
  });
  victim = mLoop.AddTimer(1, 1, Writes("victim"));
  putOff = mLoop.AddTimer(1, 10, Writes("put off"));
  std::unique_ptr<RunLoopTimer> dated;
  dated = mLoop.AddTimer(2, 1, [&] {
    Writes("dated")();
    dated->SetNextFireDate(4);
  });
  RunSeconds(5);
  EXPECT_EQ(mLog, "self@1 added@2 dated@2 put off@3 dated@4 dated@5 ");
}

TEST_F(PollRunLoopTest, StarvesNobodyAndStopsAtOnce) {
  std::unique_ptr<RunLoopTimer> greedy;
  int served = 0;
  greedy = mLoop.AddTimer(-10, 0, [&] {
    ++served;
    greedy->SetNextFireDate(-10);
  });
  const auto modest = mLoop.AddTimer(0, 0, [&] { mLoop.Stop(); });
  const auto after = mLoop.AddTimer(0, 0, Writes("after"));
  mLoop.Run();
  EXPECT_EQ(served, 1);
  EXPECT_EQ(mLog, "");
  // What was due and not served comes with the next run.
  greedy.reset();
  RunSeconds(0);
  EXPECT_EQ(mLog, "after@0 ");
}

TEST(PollRunLoop, WaitsForRealTimeAndOutlivedTimersAreDead) {
  LinuxClock clock;
  std::unique_ptr<RunLoopTimer> timer;
  {
    PollRunLoop loop(clock);
    const double start = clock.AbsoluteTime();
    int count = 0;
    timer = loop.AddTimer(start + 0.02, 0.01, [&] {
      EXPECT_GE(clock.AbsoluteTime(), start + 0.02 + 0.01 * count);
      if (++count == 3) loop.Stop();
    });
    loop.Run();
    EXPECT_EQ(count, 3);
  }
  timer->SetNextFireDate(0);
}

TEST(PollRunLoop, EndsOnSignalsUnlessTheyWereIgnored) {
  LinuxClock clock;
  ::signal(SIGHUP, SIG_IGN);
  {
    PollRunLoop loop(clock, PollRunLoop::EndingSignals::kStop);
    bool survived = false;
    const auto hangUp = loop.AddTimer(0, 0, [&] { ::raise(SIGHUP); });
    const auto later = loop.AddTimer(clock.AbsoluteTime() + 0.05, 0, [&] {
      survived = true;
      ::raise(SIGTERM);
    });
    loop.Run();
    EXPECT_TRUE(survived);
    EXPECT_EQ(loop.EndingSignal(), SIGTERM);
  }
  sigset_t mask;
  ::sigemptyset(&mask);
  ::pthread_sigmask(SIG_SETMASK, nullptr, &mask);
  EXPECT_EQ(::sigismember(&mask, SIGTERM), 0);
}

}  // namespace
}  // namespace lurkwell
