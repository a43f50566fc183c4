#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <thread>

#include "platform/Mutex.h"
#include "recording/RecordingWriter.h"

namespace lurkwell {

/// Writes beats in the background, so that no heartbeat waits for a disk. Main thread only, but for
/// what it says of itself.
class RecorderThread {
 public:
  explicit RecorderThread(std::unique_ptr<RecordingWriter> writer);
  ~RecorderThread() { Close(); }
  RecorderThread(const RecorderThread&) = delete;
  RecorderThread& operator=(const RecorderThread&) = delete;

  /// Never waits. Where the disk is far behind, this beat's figures go with the next one, and the
  /// beat is counted as lost.
  void Append(Beat beat);

  RecordingProgress Progress() const;

  /// Writes what is still waiting, closes the file and waits for that. Nothing is appended then.
  RecordingProgress Close();

 private:
  void Work();
  void Write(Beat beat);

  /// Null once it is closed.
  std::unique_ptr<RecordingWriter> mWriter;
  mutable Mutex mMutex;
  std::condition_variable mNews;
  std::deque<Beat> mWaiting LURKWELL_GUARDED_BY(mMutex);
  RecordingProgress mProgress LURKWELL_GUARDED_BY(mMutex);
  bool mIsWriting LURKWELL_GUARDED_BY(mMutex) = false;
  bool mEnds LURKWELL_GUARDED_BY(mMutex) = false;
  /// Without one, where the system has none to spare, beats are written at once.
  std::thread mThread;
};

}  // namespace lurkwell
