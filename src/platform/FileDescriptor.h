#pragma once

#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

#include <utility>

namespace lurkwell {

/// Owns one open descriptor, or none (-1), and closes it.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int descriptor) : mDescriptor(descriptor) {}
  ~FileDescriptor() { Close(); }
  FileDescriptor(FileDescriptor&& other) noexcept
      : mDescriptor(std::exchange(other.mDescriptor, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
      Close();
      mDescriptor = std::exchange(other.mDescriptor, -1);
    }
    return *this;
  }

  int Get() const { return mDescriptor; }
  bool IsOpen() const { return mDescriptor >= 0; }

  /// Closes it now; does nothing when none is open.
  void Close() {
    if (mDescriptor >= 0) ::close(std::exchange(mDescriptor, -1));
  }

 private:
  int mDescriptor = -1;
};

// The library's header for these declares them for C alone in some of its versions.

/// A pidfd of the process, close-on-exec, readable once it has ended; none and errno on failure.
inline FileDescriptor OpenProcessHandle(pid_t pid) {
  return FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
}

/// Sends a signal to the process that the handle means; false and errno on failure.
inline bool SendThroughHandle(const FileDescriptor& handle, int signal) {
  return ::syscall(SYS_pidfd_send_signal, handle.Get(), signal, nullptr, 0) == 0;
}

}  // namespace lurkwell
