#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Mutex.h"

namespace lurkwell {

/// What was asked of a simulated machine, a line each, in order. Tests compare it as text. Any
/// thread may add to it.
class AccessLog {
 public:
  void Add(std::string line) {
    const MutexLock lock(mMutex);
    mLines.push_back(std::move(line));
  }
  std::vector<std::string> Lines() const {
    const MutexLock lock(mMutex);
    return mLines;
  }
  void Clear() {
    const MutexLock lock(mMutex);
    mLines.clear();
  }

  /// Everything since the last call, each line ended by a newline.
  std::string Take() {
    const MutexLock lock(mMutex);
    std::string text;
    for (const auto& line : mLines) text += line + '\n';
    mLines.clear();
    return text;
  }

 private:
  mutable Mutex mMutex;
  std::vector<std::string> mLines LURKWELL_GUARDED_BY(mMutex);
};

}  // namespace lurkwell
