#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "platform/FileDescriptor.h"
#include "recording/Database.h"
#include "recording/RecordedBeat.h"

namespace lurkwell {

/// How long and how much is kept.
struct RecordingLimits {
  std::int64_t days = 7;
  /// Of the file, without what is still to be sorted into it (4 MiB at most).
  std::int64_t bytes = std::int64_t{1} << 30;
};

/// What tells a recorder's run from others.
struct RecordingSession {
  std::string program;
  std::string host;
  /// The kernel's name for its run, so that equal starts of different runs are told apart.
  std::string boot;
  std::int32_t intervalInMilliseconds = 0;
};

/// A recording that is written to; docs/recording.md describes the file. One thread at a time.
class RecordingFile {
 public:
  /// Opens or makes the file, with mode 0600, and sorts in what an earlier recorder left open. A
  /// file that is no recording, a damaged one, one of another user, a link, and one that another
  /// recorder writes are left as they are; then the words say why. Root moreover takes only a
  /// folder that nobody else can write to.
  static std::variant<std::unique_ptr<RecordingFile>, std::string> Open(
      const std::string& path, const RecordingSession& session);

  /// What became of a call: empty words for success.
  struct Outcome {
    std::string words;
    bool isFull = false;
    bool IsDone() const { return words.empty(); }
  };

  /// Writes an encoded beat of the open minute; in the file as soon as this returns, on the disk
  /// within some seconds.
  Outcome Append(const BeatHeader& header, const std::string& bytes);
  /// Makes a block of the open minute, if there is one. All or nothing.
  Outcome CloseMinute();
  /// Lets go of what is too old or too much, oldest first, and gives its room back to the disk.
  Outcome Trim(const RecordingLimits& limits, std::int64_t wall);

  /// Whether the file still is where it was.
  bool IsInPlace() const;
  /// Greater than that of every beat in the file.
  std::uint64_t NextSequence() const { return mNextSequence; }

 private:
  RecordingFile(std::string path, FileDescriptor lock);

  std::string Prepare(const RecordingSession& session);
  std::string CheckKind();
  std::string MakeTables();
  bool FindLayout();
  bool BeginSession(const RecordingSession& session);
  Outcome Failed() const;
  std::int64_t UsedBytes();
  bool DropOldest();

  std::string mPath;
  /// Held from before the database is opened until after it has been closed: closing any descriptor
  /// of the file gives the library's own locks away.
  FileDescriptor mLock;
  Database mDatabase;
  std::int64_t mLayout = 0;
  std::int64_t mSession = 0;
  std::uint64_t mNextSequence = 1;
};

}  // namespace lurkwell
