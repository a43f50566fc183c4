#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "recording/BeatDecoder.h"
#include "recording/Database.h"
#include "recording/RecordedBeat.h"

namespace lurkwell {

/// A recording that is read, also while a recorder writes to it. It stands at one of its beats, at
/// none at first. One thread at a time.
class Recording {
 public:
  /// Some of the beats that follow one another, of which the first can be read without others.
  struct Minute {
    /// 0 for the open one.
    std::int64_t block = 0;
    std::int64_t session = 0;
    std::int64_t layout = 0;
    std::uint64_t firstSequence = 0, lastSequence = 0;
    /// As in BeatHeader.
    std::int64_t firstWall = 0, lastWall = 0;
    /// How busy the processors were in the busiest beat, in thousandths.
    std::int64_t busiest = 0;
  };

  /// Opens a recording that has one beat at least; else the words say why not.
  static std::variant<std::unique_ptr<Recording>, std::string> Open(const std::string& path);

  const std::string& Path() const { return mPath; }
  /// Oldest first, never empty.
  const std::vector<Minute>& Minutes() const { return mMinutes; }
  /// Milliseconds between two beats of a session; 2000 where that is not told.
  std::int64_t IntervalOf(std::int64_t session) const;

  /// Goes to a beat, or says why it cannot be read; then it stands where it stood, or nowhere.
  std::string GoTo(std::uint64_t sequence);
  /// Goes to what was recorded at a time, in microseconds since the epoch: the latest beat before
  /// it, unless nothing was recorded then.
  std::string GoToTime(std::int64_t wall);

  /// Whether it stands at a beat; what follows holds only then.
  bool IsAtBeat() const { return mLoaded != nullptr && mLoaded->at < mLoaded->headers.size(); }
  const BeatHeader& Header() const { return mLoaded->headers[mLoaded->at]; }
  std::int64_t Session() const { return mMinutes[mLoaded->minute].session; }
  /// Those that lived, in the order in which they became known.
  std::vector<RecordedProcess> Processes() const { return mLoaded->decoder.Living(); }

  /// The busiest beat of the next minute that is among the busiest tenth of all and busier than its
  /// neighbours; nothing behind the last of them.
  std::optional<std::uint64_t> NextPeak(std::uint64_t behind);

  /// The numbers of the neighbours; nothing at the ends.
  std::optional<std::uint64_t> Following() const;
  std::optional<std::uint64_t> Preceding() const;
  /// Whether the beat follows directly upon the one before it: rates between both are meant.
  bool FollowsDirectly() const;

 private:
  struct Loaded {
    explicit Loaded(const RecordedLayout& layout) : decoder(layout) {}
    std::size_t minute = 0;
    /// Decompressed; the open minute's are one for each beat.
    std::vector<std::string> payloads;
    std::vector<BeatHeader> headers;
    BeatDecoder decoder;
    std::size_t payload = 0;
    /// The place among the headers; behind their end before the first beat.
    std::size_t at = SIZE_MAX;
  };

  Recording(std::string path, Database::Use use) : mPath(std::move(path)), mDatabase(mPath, use) {}

  std::string Prepare();
  void ReadSessions();
  std::unique_ptr<Loaded> Load(std::size_t minute);
  /// The headers of a minute without its processes.
  std::vector<BeatHeader> HeadersOf(std::size_t minute);
  std::string GoWithin(Loaded& loaded, std::uint64_t sequence);
  std::string Damaged(std::size_t minute) const;
  std::string NothingAt(std::int64_t wall) const;
  std::size_t MinuteWith(std::uint64_t sequence) const;
  std::optional<std::size_t> MinuteAt(std::int64_t wall) const;

  std::string mPath;
  Database mDatabase;
  std::vector<Minute> mMinutes;
  std::vector<std::pair<std::int64_t, std::int64_t>> mIntervals;
  std::vector<std::string> mOpenPayloads;
  std::unique_ptr<Loaded> mLoaded;
};

}  // namespace lurkwell
