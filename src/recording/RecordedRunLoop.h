#pragma once

#include <functional>
#include <list>
#include <memory>
#include <utility>

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
  /// Serves what is due at the player's time.
  void ServeDue();
  /// Calls `tell` whenever a timer gets a date that has come.
  void WhenDateIsSet(std::function<void()> tell) { mDateIsSet = std::move(tell); }
  void Stop() override { mIsStopped = true; }

 private:
  class Timer;

  Timer* DueTimer() const;
  void TellOf(double date) const;

  RecordingPlayer& mPlayer;
  std::function<bool()> mGoOn;
  std::function<void()> mDateIsSet;
  std::list<Timer*> mTimers;
  bool mIsStopped = false;
};

}  // namespace lurkwell
