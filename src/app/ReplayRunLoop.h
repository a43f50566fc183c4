#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "recording/RecordedRunLoop.h"

namespace lurkwell {

/// The run loop of windows that show a recording: events are the real loop's, timers fire in the
/// recording's time, which others move. Main thread.
class ReplayRunLoop final : public QObject, public RunLoop {
  Q_OBJECT

 public:
  /// Both outlive this.
  ReplayRunLoop(RunLoop& real, RecordingPlayer& player);

  std::unique_ptr<RunLoopTimer> AddTimer(double firstFireDate, double interval,
                                         std::function<void()> callback) override;
  void Run() override;
  void Stop() override { mReal.Stop(); }

  /// Serves what has become due, now. Does nothing inside a timer's callback.
  void ServeDue();

 private:
  void ServeSoon();

  RunLoop& mReal;
  RecordedRunLoop mRecorded;
  bool mIsServing = false;
  bool mWillServe = false;
};

}  // namespace lurkwell
