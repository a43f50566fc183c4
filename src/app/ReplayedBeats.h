#pragma once

#include <cstdint>
#include <string>

#include "recording/RecordingPlayer.h"

namespace lurkwell {

/// Which beats of a recording are shown: from one moment on, some time apart. The beat before the
/// first one is gone through, too, so that there are rates.
class ReplayedBeats {
 public:
  /// The player outlives this.
  ReplayedBeats(RecordingPlayer& player, std::int64_t millisecondsBetween)
      : mPlayer(player), mBetween(millisecondsBetween * 1000) {}

  /// Goes to a moment, in microseconds since the epoch; else says why not.
  std::string Begin(std::int64_t wall);
  /// To the next one; false at the recording's end.
  bool GoOn();

  bool IsShown() const { return mPlayer.Header().sequence >= mFirst; }
  /// The first one's number.
  std::uint64_t First() const { return mFirst; }
  /// When the first one was.
  std::int64_t BeginsAt() const { return mBeginsAt; }

 private:
  RecordingPlayer& mPlayer;
  std::int64_t mBetween;
  std::uint64_t mFirst = 0;
  std::int64_t mBeginsAt = 0;
};

}  // namespace lurkwell
