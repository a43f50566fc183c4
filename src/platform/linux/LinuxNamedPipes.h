#pragma once

#include <string>

#include "platform/FileDescriptor.h"
#include "platform/NamedPipes.h"

namespace lurkwell {

/// A fresh folder of mode 0700 for named pipes, below $XDG_RUNTIME_DIR or else the temporary
/// folder, where nobody but the user and root can exchange it. It is locked while it is in use: a
/// folder of the user's with pipes in it that no program has locked is what a killed one left, and
/// goes when the next one is made. Main thread.
class PipeFolder {
 public:
  PipeFolder() = default;
  ~PipeFolder() { RemoveIfEmpty(); }
  PipeFolder(const PipeFolder&) = delete;
  PipeFolder& operator=(const PipeFolder&) = delete;

  /// Sees to it that there is one; it may have been cleared away while the program ran.
  bool Make();
  const std::string& Path() const { return mPath; }
  void RemoveIfEmpty();

 private:
  std::string mPath;
  FileDescriptor mLock;
};

/// FIFOs in a fresh folder of the program's own, which goes with its last pipe. A pipe that cannot
/// hold an answer in one piece (8 KiB) is refused when it is opened.
///
/// Making one turns the signal of a broken pipe off for the whole program, unless something handles
/// it already; programs started by the program get it back.
class LinuxNamedPipes : public NamedPipes {
 public:
  LinuxNamedPipes();
  LinuxNamedPipes(const LinuxNamedPipes&) = delete;
  LinuxNamedPipes& operator=(const LinuxNamedPipes&) = delete;

  std::string TemporaryName(std::string_view prefix) override;
  bool MakeFifo(const std::string& path, unsigned mode) override;
  int OpenForWriting(const std::string& path, Milliseconds limit) override;
  int OpenForReading(const std::string& path, Milliseconds limit) override;
  std::ptrdiff_t Write(int descriptor, std::string_view text, Milliseconds limit) override;
  std::ptrdiff_t Read(int descriptor, std::span<char> buffer, Milliseconds limit) override;
  int Close(int descriptor) override;
  void Unlink(const std::string& path) override;

 private:
  PipeFolder mFolder;
};

}  // namespace lurkwell
