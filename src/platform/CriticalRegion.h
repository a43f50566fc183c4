#pragma once

#include <mutex>

#include "platform/ThreadSafety.h"

namespace lurkwell {

/// A region that one thread at a time may be in; its owner may enter it again. Waits without a
/// time limit, so a thread inside must not wait for one that wants in.
class LURKWELL_CAPABILITY("region") CriticalRegion {
 public:
  class Guard;

  void Enter() LURKWELL_ACQUIRE() { mMutex.lock(); }
  void Exit() LURKWELL_RELEASE() { mMutex.unlock(); }

 private:
  std::recursive_mutex mMutex;
};

/// Is inside for as long as it lives.
class LURKWELL_SCOPED_CAPABILITY CriticalRegion::Guard {
 public:
  explicit Guard(CriticalRegion& region) LURKWELL_ACQUIRE(region) : mRegion(region) {
    region.Enter();
  }
  ~Guard() LURKWELL_RELEASE() { mRegion.Exit(); }
  Guard(const Guard&) = delete;
  Guard& operator=(const Guard&) = delete;

 private:
  CriticalRegion& mRegion;
};

}  // namespace lurkwell
