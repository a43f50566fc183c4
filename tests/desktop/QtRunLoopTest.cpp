#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include "platform/desktop/QtRunLoop.h"
#include "support/RunLoopContract.h"

namespace lurkwell {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopContract, QtRunLoop);

using QtRunLoopTest = RunLoopContract<QtRunLoop>;

TEST_F(QtRunLoopTest, CallbacksRunOneAtATimeAlsoInNestedLoops) {
  const auto runNested = [this](int untilHundredths) {
    QEventLoop nested;
    QTimer::singleShot(static_cast<int>((At(untilHundredths) - mClock.AbsoluteTime()) * 1000),
                       &nested, &QEventLoop::quit);
    nested.exec();
  };
  // In a menu's loop all timers are served.
  const auto other = mLoop.AddTimer(At(5), 0.05, Writes("t"));
  QTimer::singleShot(0, [&] {
    runNested(13);
    EXPECT_EQ(mLog, "t t ");
  });
  // In that of a dialog which a callback has opened none is, until the callback has returned.
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
