#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/FileDescriptor.h"

namespace lurkwell {

/// What failed, in words that complete "while ...", and the system's error number.
struct FileFault {
  const char* step = "";
  int code = 0;
};

/// One small file that is only ever replaced as a whole: after a crash at any instant, a full disk
/// or a power cut its path shows the old content or the new. A link at the path is followed and
/// stays. Main thread.
class PreferenceFile {
 public:
  PreferenceFile(std::string folder, std::string name);

  /// Where the content lies: the end of the chain of links as they are now.
  std::string Target() const;

  /// The lock file of all programs with the same target.
  std::string LockPath() const;

  /// Makes the target's folder (mode 0700) and those above it where they are missing.
  std::optional<FileFault> EnsureFolder() const;

  enum class Reading {
    kUnchanged,  ///< still the version last read or written here
    kRead,       ///< another version; its bytes are handed out
    kMissing,
    kUnfit,  ///< not a regular file, too large, or closed to this user; `fault.step` says which
    kFailed  ///< the machine failed; the content may be sound
  };

  /// Reads the content if it is not the version known here. What is read counts as known.
  Reading ReadIfChanged(std::string& bytes, FileFault& fault);

  /// Whether the path shows another version than the known one. A missing file has not changed.
  bool HasChanged() const;

  /// Forgets the known version: the next reading reads.
  void Forget() { mKnown.Close(); }

  /// A new version on disk beside the target, not yet in its place. Removed unless committed.
  class Staged {
   public:
    ~Staged();
    Staged(Staged&& other) noexcept = default;
    Staged& operator=(Staged&&) = delete;

   private:
    friend class PreferenceFile;
    Staged(std::string target, std::string path, FileDescriptor file)
        : mTarget(std::move(target)), mPath(std::move(path)), mFile(std::move(file)) {}

    std::string mTarget;
    std::string mPath;
    FileDescriptor mFile;
  };

  /// Writes the bytes to a fresh file of mode 0600 and waits until the disk has them. Nothing, and
  /// nothing left behind, when that fails.
  std::optional<Staged> Stage(std::string_view bytes, FileFault& fault) const;

  /// Puts the new version in place, as the known one, and waits until the disk has that. A fault in
  /// the last step leaves the new version in place, but a power cut may bring back the old.
  std::optional<FileFault> Commit(Staged staged);

  /// Renames what lies there to a dated name of its own beside it, which `newPath` receives. A link
  /// to something that is no file is renamed itself. Never replaces anything.
  std::optional<FileFault> MoveAside(std::string& newPath) const;

  /// Whether there are files that runs which were killed have staged; and their removal, which
  /// takes the lock, since another instance may be about to commit one.
  bool HasStrays() const;
  void RemoveStrays() const;

 private:
  std::string mPath;
  // Where the links led when they could last be followed.
  mutable std::string mLastTarget;
  // The known version stays open: its inode number then cannot come to mean another file.
  FileDescriptor mKnown;
  struct stat mKnownStatus {};
};

}  // namespace lurkwell
