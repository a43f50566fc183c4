#pragma once

#include <string>

#include "platform/FileDescriptor.h"

namespace lurkwell {

/// A fresh folder of mode 0700 for named pipes, below $XDG_RUNTIME_DIR or else the temporary
/// folder, where nobody but the user and root can exchange it. It is locked while it is in use: a
/// folder of the user's with pipes in it that nobody has locked is what a killed program left, and
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

}  // namespace lurkwell
