#pragma once

#include <chrono>
#include <string>

#include "platform/FileDescriptor.h"

namespace lurkwell {

/// An advisory lock between running instances, on a file of its own. Goes with the object or its
/// process, whichever ends first; the file stays. Any thread.
class FileLock {
 public:
  enum class State {
    kHeld,
    kBusy,         ///< another process held it all the time
    kUnavailable,  ///< the file cannot be opened or locked
  };

  /// Opens `path` (made with mode 0600 where it is missing; its folder must exist; a link is not
  /// followed) and takes the lock, trying for at most `patience`; zero makes one try. An instance
  /// that comes while others wait lets one of them go first.
  FileLock(const std::string& path, std::chrono::milliseconds patience);

  State Outcome() const { return mState; }

 private:
  bool Try();
  void WaitInTheCrowd(std::chrono::milliseconds patience);

  FileDescriptor mFile;
  State mState = State::kUnavailable;
};

}  // namespace lurkwell
