#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "recording/BeatEncoder.h"
#include "recording/RecordedBeat.h"
#include "recording/RecordingFile.h"

namespace lurkwell {

/// How a recording goes.
struct RecordingProgress {
  std::uint64_t written = 0;
  /// Beats that could not be written, or came faster than the disk takes them.
  std::uint64_t lost = 0;
  /// Beats that wait for the disk.
  std::uint64_t waiting = 0;
  /// Why nothing is written at present; empty while all is well.
  std::string trouble;
  /// All has been written and the file is closed. Only a RecorderThread's progress has it.
  bool isClosed = false;
};

/// Turns beats into the file's minutes: each begins with every process there is, so that it can be
/// read alone. What cannot be written is lost and counted, and the next beat that can be begins a
/// minute of its own. One thread at a time.
class RecordingWriter {
 public:
  RecordingWriter(std::unique_ptr<RecordingFile> file, RecordingLimits limits);
  ~RecordingWriter() { Close(); }
  RecordingWriter(const RecordingWriter&) = delete;
  RecordingWriter& operator=(const RecordingWriter&) = delete;

  /// Numbers the beat and writes it. `beat.header.lost` says how many before it did not come here
  /// at all. The first beat has to hold every process. Says on standard error when there is
  /// trouble and when it is over, once each.
  void Append(Beat beat);

  /// Closes the minute. Where that is not possible, the next recorder does it.
  const RecordingProgress& Close();

  const RecordingProgress& Progress() const { return mProgress; }

 private:
  bool BeginMinute(const BeatHeader& header);
  bool Write(const Beat& beat);
  bool Check(const RecordingFile::Outcome& outcome);
  void Keep(const Beat& beat);
  Beat WholeBeat(const BeatHeader& header) const;

  std::unique_ptr<RecordingFile> mFile;
  RecordingLimits mLimits;
  std::map<std::int32_t, RecordedProcess> mWhole;
  /// Of the open minute; null when the next beat has to begin one.
  std::unique_ptr<BeatEncoder> mMinute;
  std::int64_t mMinuteBegan = 0;
  std::uint64_t mLostSince = 0;
  RecordingProgress mProgress;
};

}  // namespace lurkwell
