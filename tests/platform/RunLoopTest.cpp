#include <gtest/gtest.h>
#include <signal.h>

#include <memory>

#include "platform/linux/LinuxServices.h"
#include "platform/linux/PollRunLoop.h"
#include "support/RunLoopContract.h"

namespace lurkwell {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopContract, PollRunLoop);

TEST(LinuxClock, GoesOnWhereTheCalendarSteps) {
  static TimeValue calendar{1'000'000'000, 900'000};
  static TimeValue sinceBoot{500, 800'000};
  LinuxClock clock([] { return calendar; }, [] { return sinceBoot; });
  calendar = {900'000'000, 0};
  sinceBoot = {502, 100'000};
  EXPECT_EQ(clock.Now(), (TimeValue{1'000'000'002, 200'000}));
  EXPECT_EQ(clock.CalendarNow(), calendar);
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
  }
  sigset_t mask;
  ::sigemptyset(&mask);
  ::pthread_sigmask(SIG_SETMASK, nullptr, &mask);
  EXPECT_EQ(::sigismember(&mask, SIGTERM), 0);
}

}  // namespace
}  // namespace lurkwell
