#pragma once

#include <chrono>
#include <memory>
#include <thread>

#include "recording/RecordingWriter.h"

namespace lurkwell {

/// Writes beats in the background, so that nothing waits for a disk but who says for how long. Main
/// thread only.
class RecorderThread {
 public:
  explicit RecorderThread(std::unique_ptr<RecordingWriter> writer);
  /// Gives the disk five seconds for what is left.
  ~RecorderThread();
  RecorderThread(const RecorderThread&) = delete;
  RecorderThread& operator=(const RecorderThread&) = delete;

  /// False where the system has no thread to spare: then nothing is written.
  bool Exists() const { return mThread.joinable(); }

  /// Never waits. Where the disk is far behind, this beat's figures go with the next one, and the
  /// beat is counted as lost.
  void Append(Beat beat);

  RecordingProgress Progress() const;

  /// Has all that waits be written and the file closed, and waits for that, but no longer than
  /// `patience`: then the thread goes on by itself, for as long as the program runs. Nothing is
  /// appended from now on.
  RecordingProgress Close(std::chrono::milliseconds patience);

 private:
  class Shared;

  /// The thread's as well, which outlives this object when the disk hangs.
  std::shared_ptr<Shared> mShared;
  std::thread mThread;
};

}  // namespace lurkwell
