#pragma once

#include <mutex>

namespace lurkwell {

/// A region that one thread at a time may be in; its owner may enter it again. Waits without a
/// time limit, so a thread inside must not wait for one that wants in.
class CriticalRegion {
 public:
  using Guard = std::lock_guard<CriticalRegion>;

  void Enter() { mMutex.lock(); }
  void Exit() { mMutex.unlock(); }

  // The standard's names, so that std::lock_guard and its kin work.
  void lock() { Enter(); }
  void unlock() { Exit(); }

 private:
  std::recursive_mutex mMutex;
};

}  // namespace lurkwell
