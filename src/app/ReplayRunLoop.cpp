#include "app/ReplayRunLoop.h"

#include <utility>

namespace lurkwell {

ReplayRunLoop::ReplayRunLoop(RunLoop& real, RecordingPlayer& player)
    : mReal(real), mRecorded(player, [] { return false; }) {
  mRecorded.WhenDateIsSet([this] { ServeSoon(); });
}

std::unique_ptr<RunLoopTimer> ReplayRunLoop::AddTimer(double firstFireDate, double interval,
                                                      std::function<void()> callback) {
  return mRecorded.AddTimer(firstFireDate, interval, std::move(callback));
}

void ReplayRunLoop::Run() {
  ServeSoon();
  mReal.Run();
}

void ReplayRunLoop::ServeDue() {
  if (std::exchange(mIsServing, true)) return;
  mRecorded.ServeDue();
  mIsServing = false;
}

void ReplayRunLoop::ServeSoon() {
  if (std::exchange(mWillServe, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        mWillServe = false;
        ServeDue();
      },
      Qt::QueuedConnection);
}

}  // namespace lurkwell
