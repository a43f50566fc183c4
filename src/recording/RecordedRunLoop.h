#pragma once

#include <functional>
#include <list>
#include <memory>

#include "platform/RunLoop.h"
#include "recording/RecordingPlayer.h"

namespace lurkwell {

/// A run loop in the time of a recording: what is due is served at once, then the time goes on.
class RecordedRunLoop final : public RunLoop {
 public:
  /// `goOn` moves the player; false ends the loop. The player outlives this.
  RecordedRunLoop(RecordingPlayer& player, std::function<bool()> goOn)
      : mPlayer(player), mGoOn(std::move(goOn)) {}

  std::unique_ptr<RunLoopTimer> AddTimer(double firstFireDate, double interval,
                                         std::function<void()> callback) override;
  void Run() override;
  void Stop() override { mIsStopped = true; }

 private:
  class Timer;

  Timer* DueTimer() const;

  RecordingPlayer& mPlayer;
  std::function<bool()> mGoOn;
  std::list<Timer*> mTimers;
  bool mIsStopped = false;
};

}  // namespace lurkwell
