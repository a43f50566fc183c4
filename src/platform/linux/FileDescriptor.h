#pragma once

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

}  // namespace lurkwell
