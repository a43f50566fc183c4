#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "platform/desktop/QtRunLoop.h"
#include "platform/linux/LinuxClock.h"

namespace lurkwell {
namespace {

/// In real time, with dates in hundredths of a second from the test's start.
class QtRunLoopTest : public ::testing::Test {
 protected:
  double At(int hundredths) const { return mStart + hundredths * 0.01; }
  std::function<void()> Writes(const std::string& text) {
    return [this, text] { mLog += text + ' '; };
  }
  void RunUntil(int hundredths) {
    const auto end = mLoop.AddTimer(At(hundredths), 0, [&] { mLoop.Stop(); });
    mLoop.Run();
  }
  /// Lets the time pass without serving anybody.
  void Busy(int untilHundredths) {
    while (mClock.AbsoluteTime() < At(untilHundredths)) {
    }
  }

  LinuxClock mClock;
  QtRunLoop mLoop{mClock};
  double mStart = mClock.AbsoluteTime();
  std::string mLog;
};

TEST_F(QtRunLoopTest, FiresInOrderOfDateAndNeverEarly) {
  const auto late = mLoop.AddTimer(At(20), 0, [&] {
    EXPECT_GE(mClock.AbsoluteTime(), At(20));
    Writes("late")();
  });
  const auto never = mLoop.AddTimer(std::numeric_limits<double>::quiet_NaN(), 1, Writes("never"));
  const auto far = mLoop.AddTimer(std::numeric_limits<double>::max(), 1, Writes("far"));
  const auto middle = mLoop.AddTimer(At(10), 0, Writes("middle"));
  const auto past = mLoop.AddTimer(-5, 0, Writes("past"));
  RunUntil(30);
  EXPECT_EQ(mLog, "past middle late ");
}

TEST_F(QtRunLoopTest, RepeatsOnItsDatesWithoutMakingUpForWhatWasMissed) {
  std::vector<double> dates;
  const auto timer = mLoop.AddTimer(At(10), 0.2, [&] {
    dates.push_back((mClock.AbsoluteTime() - mStart) * 100);
    // Past 30 and 50.
    if (dates.size() == 1) Busy(55);
  });
  RunUntil(100);
  ASSERT_GE(dates.size(), 3U);
  EXPECT_LE(dates.size(), 3U);
  EXPECT_GE(dates[1], 70);
  EXPECT_GE(dates[2], 90);
}

TEST_F(QtRunLoopTest, LetsCallbacksChangeAnyTimer) {
  std::unique_ptr<RunLoopTimer> self, victim, putOff, added, dated;
  const std::string held = "self";
  self = mLoop.AddTimer(At(5), 0.01, [&, held] {
    victim.reset();
    putOff->SetNextFireDate(At(30));
    added = mLoop.AddTimer(0, 0, Writes("added"));
    self.reset();
    Writes(held)();
  });
  victim = mLoop.AddTimer(At(6), 1, Writes("victim"));
  putOff = mLoop.AddTimer(At(6), 10, Writes("put-off"));
  dated = mLoop.AddTimer(At(10), 0.05, [&] {
    Writes("dated")();
    // In place of the date of the interval.
    dated->SetNextFireDate(At(mClock.AbsoluteTime() < At(40) ? 50 : 500));
  });
  RunUntil(60);
  EXPECT_EQ(mLog, "self added dated put-off dated ");
}

TEST_F(QtRunLoopTest, StarvesNobodyAndStopsAtOnce) {
  std::unique_ptr<RunLoopTimer> greedy;
  int served = 0;
  greedy = mLoop.AddTimer(-10, 0, [&] {
    ++served;
    greedy->SetNextFireDate(-10);
  });
  RunUntil(10);
  EXPECT_GT(served, 5);
  greedy.reset();
  // All three are due at once; what is not served comes with the next run.
  const auto stop = mLoop.AddTimer(At(15), 0, [&] {
    Busy(30);
    mLoop.Stop();
  });
  const auto after = mLoop.AddTimer(At(16), 0, Writes("after"));
  mLoop.Run();
  EXPECT_EQ(mLog, "");
  RunUntil(40);
  EXPECT_EQ(mLog, "after ");
}

TEST_F(QtRunLoopTest, CallbacksRunOneAtATimeAlsoInNestedLoops) {
  const auto runNested = [this](int untilHundredths) {
    QEventLoop nested;
    QTimer::singleShot(static_cast<int>((At(untilHundredths) - mClock.AbsoluteTime()) * 1000),
                       &nested, &QEventLoop::quit);
    nested.exec();
  };
  // A loop of a menu's: everybody is served.
  const auto other = mLoop.AddTimer(At(5), 0.05, Writes("t"));
  QTimer::singleShot(0, [&] {
    runNested(13);
    EXPECT_EQ(mLog, "t t ");
  });
  // A dialog's that a callback has opened: nobody is, until it has returned.
  const auto dialog = mLoop.AddTimer(At(20), 0, [&] {
    mLog = "";
    runNested(32);
    EXPECT_EQ(mLog, "");
  });
  RunUntil(34);
  EXPECT_EQ(mLog, "t ");
}

/// Would rather not.
class StubbornWindow final : public QWidget {
 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST_F(QtRunLoopTest, StopAsksNoWindowAndEndsNestedLoops) {
  StubbornWindow window;
  window.show();
  QTimer::singleShot(0, [] { QEventLoop().exec(); });
  RunUntil(5);
  EXPECT_LT(mClock.AbsoluteTime(), At(500));
}

}  // namespace
}  // namespace lurkwell
