#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <utility>

#include "platform/ThreadSafety.h"

namespace lurkwell {

/// A mutex whose guarded data the compiler knows. Held through a MutexLock.
class LURKWELL_CAPABILITY("mutex") Mutex {
 public:
  Mutex() = default;
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;

 private:
  friend class MutexLock;
  std::mutex mMutex;
};

/// Holds a mutex for as long as it lives, but for the time between Unlock and Lock. A condition
/// that is waited for is asked inside the mutex.
class LURKWELL_SCOPED_CAPABILITY MutexLock {
 public:
  explicit MutexLock(Mutex& mutex) LURKWELL_ACQUIRE(mutex) : mLock(mutex.mMutex) {}
  ~MutexLock() LURKWELL_RELEASE() = default;
  MutexLock(const MutexLock&) = delete;
  MutexLock& operator=(const MutexLock&) = delete;

  void Unlock() LURKWELL_RELEASE() { mLock.unlock(); }
  void Lock() LURKWELL_ACQUIRE() { mLock.lock(); }

  template <class Condition>
  void Wait(std::condition_variable& news, Condition condition) {
    news.wait(mLock, std::move(condition));
  }

  /// False when the condition does not hold even after `time`.
  template <class Rep, class Period, class Condition>
  bool WaitFor(std::condition_variable& news, std::chrono::duration<Rep, Period> time,
               Condition condition) {
    return news.wait_for(mLock, time, std::move(condition));
  }

  /// The same until the thread is asked to stop.
  template <class Condition>
  void Wait(std::condition_variable_any& news, const std::stop_token& stop, Condition condition) {
    news.wait(mLock, stop, std::move(condition));
  }
  template <class Rep, class Period, class Condition>
  void WaitFor(std::condition_variable_any& news, const std::stop_token& stop,
               std::chrono::duration<Rep, Period> time, Condition condition) {
    news.wait_for(mLock, stop, time, std::move(condition));
  }

 private:
  std::unique_lock<std::mutex> mLock;
};

}  // namespace lurkwell
