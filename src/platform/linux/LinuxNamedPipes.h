#pragma once

#include <string>

#include "platform/NamedPipes.h"
#include "platform/linux/PipeFolder.h"

namespace lurkwell {

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
