#pragma once

#include <chrono>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace lurkwell {

/// Pipes with a name in the file system, over which the application and its helper talk. Main
/// thread only. Descriptors are close-on-exec and owned by the caller until Close; a broken pipe
/// is an error of Write, never a signal.
class NamedPipes {
 public:
  using Milliseconds = std::chrono::milliseconds;
  virtual ~NamedPipes() = default;

  /// An unused name, `prefix` first, in a folder that only this user can enter; empty when
  /// there is no such folder to be had.
  virtual std::string TemporaryName(std::string_view prefix) = 0;

  /// Creates a pipe at `path`, which must not exist; `mode` as for mkfifo, less the umask. False on
  /// failure.
  virtual bool MakeFifo(const std::string& path, unsigned mode) = 0;

  /// Opens the writing end once the other has been opened, the reading end at once or once
  /// there is a writer; -1 after `limit` or on failure.
  virtual int OpenForWriting(const std::string& path, Milliseconds limit) = 0;
  virtual int OpenForReading(const std::string& path, Milliseconds limit) = 0;

  /// One write of the whole text; the bytes written, or -1. Never waits longer than `limit`.
  virtual std::ptrdiff_t Write(int descriptor, std::string_view text, Milliseconds limit) = 0;

  /// One read of at most the buffer's size; the bytes read, 0 when the other end has closed, -1 on
  /// failure or when nothing came within `limit`. errno then says which (ETIMEDOUT).
  virtual std::ptrdiff_t Read(int descriptor, std::span<char> buffer, Milliseconds limit) = 0;

  /// 0, or -1 when the descriptor was not open.
  virtual int Close(int descriptor) = 0;

  /// Removes the name; open descriptors stay valid. The folder goes with its last name.
  virtual void Unlink(const std::string& path) = 0;
};

}  // namespace lurkwell
