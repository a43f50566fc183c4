#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Clock.h"
#include "recording/Recording.h"

namespace lurkwell {

/// The clock of a recorded machine. Now() goes on with every move, by the time that passed between
/// both beats, or by a second where the move is back; CalendarNow() is the time that was recorded.
/// Any thread may ask; the player alone moves it, on the main thread.
class RecordedClock final : public Clock {
 public:
  TimeValue Now() override;
  TimeValue CalendarNow() override;

  void Set(std::int64_t calendar) { mCalendar = calendar; }
  void Advance(std::int64_t microseconds) { mNow += microseconds; }

 private:
  std::atomic<std::int64_t> mNow{0};
  std::atomic<std::int64_t> mCalendar{0};
};

/// Stands at a beat of a recording for the services of a recorded machine. Main thread.
class RecordingPlayer {
 public:
  explicit RecordingPlayer(std::unique_ptr<Recording> recording);

  Recording& Source() { return *mRecording; }
  RecordedClock& Clock() { return mClock; }
  const BeatHeader& Header() const { return mHeader; }
  const std::vector<RecordedProcess>& Processes() const { return mProcesses; }

  /// The one that had the pid; null when none had.
  const RecordedProcess* Find(std::int32_t pid) const;

  /// Goes to a beat; else says why not, and stays.
  std::string GoTo(std::uint64_t sequence);
  /// To the next one; false at the end. One that cannot be read is passed over.
  bool Next();

 private:
  void Take(std::int64_t microseconds);

  std::unique_ptr<Recording> mRecording;
  RecordedClock mClock;
  BeatHeader mHeader;
  std::vector<RecordedProcess> mProcesses;
  std::unordered_map<std::int32_t, std::size_t> mPlaces;
};

}  // namespace lurkwell
