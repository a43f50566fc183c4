#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include "platform/Mutex.h"
#include "platform/ProcessIdentity.h"
#include "platform/QuietThread.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

/// A thread that reads of processes what may never answer: memory that is locked, or mapped from a
/// file system that hangs. A reading that takes too long is given up together with its thread,
/// which is left to hang, and another thread takes over. The process is left alone for a rest, and
/// for as long as its reading hangs.
///
/// The owner calls from one thread.
class ReplaceableThread {
 public:
  using Clock = std::chrono::steady_clock;

  struct Limits {
    Clock::duration longestReading = std::chrono::seconds(1);
    Clock::duration rest = std::chrono::seconds(60);
    /// Readings that hang at a time, beyond which no other thread begins.
    std::size_t mostHanging = 4;
  };

  /// Tells one of the threads from those before and after it.
  struct Place {
    unsigned generation = 0;
  };

  ReplaceableThread() = default;
  explicit ReplaceableThread(Limits limits) : mLimits(limits) {}
  ReplaceableThread(const ReplaceableThread&) = delete;
  ReplaceableThread& operator=(const ReplaceableThread&) = delete;

  /// Guards this object, and all that its owner shares with the thread.
  Mutex mutex;

  // ---- The owner's

  /// Gives up a reading that has taken too long, and begins a thread where there is none. What it
  /// runs is `shared->Serve(place)`, until its place is over. `shared` has this object as a part; a
  /// thread that was given up holds it for as long as it hangs. False when there is no thread to be
  /// had.
  template <typename Shared>
  bool Ensure(const std::shared_ptr<Shared>& shared) LURKWELL_REQUIRES(mutex) {
    if (IsOneWanted())
      mThread = StartWithoutSignals([shared, place = Place{mGeneration}] { shared->Serve(place); });
    return Exists();
  }
  bool Exists() const { return mThread.joinable(); }

  /// Tells each side to look again at what it waits for.
  void Notify() { mNews.notify_all(); }

  /// Whether the process is to be left alone.
  bool IsResting(ProcessIdentity process) const LURKWELL_REQUIRES(mutex);

  /// Waits until nothing is being read and `isDone`, for `limit` at most; not at all while
  /// something has been read for longer than that. The thread has to notify when it is done.
  void WaitUntilIdle(MutexLock& lock, Clock::duration limit, auto isDone) LURKWELL_REQUIRES(mutex) {
    if (mReading && Clock::now() - mSince > limit) return;
    lock.WaitFor(mNews, limit, [&]() LURKWELL_UNCHECKED_LOCKING { return !mReading && isDone(); });
  }

  /// Has the thread end, and waits for it 20 ms at most; one that hangs is given up. The owner's
  /// last call.
  void End();

  // ---- The thread's

  /// Whether it has to end now: it was given up, or the owner ends.
  bool IsOver(Place place) const LURKWELL_REQUIRES(mutex) {
    return place.generation != mGeneration;
  }

  /// Waits until `isReady` or IsOver, the latter for `limit` at most.
  void Wait(MutexLock& lock, Place place, auto isReady) LURKWELL_REQUIRES(mutex) {
    lock.Wait(mNews, [&]() LURKWELL_UNCHECKED_LOCKING { return IsOver(place) || isReady(); });
  }
  void WaitFor(MutexLock& lock, Place place, Clock::duration limit, auto isReady)
      LURKWELL_REQUIRES(mutex) {
    lock.WaitFor(mNews, limit,
                 [&]() LURKWELL_UNCHECKED_LOCKING { return IsOver(place) || isReady(); });
  }

  /// Calls `read`, which is about `process`, outside the lock, which the compiler cannot tell is
  /// this one's. False when the place is over: what was read is of no use then.
  bool Read(MutexLock& lock, Place place, ProcessIdentity process, auto read)
      LURKWELL_REQUIRES(mutex) LURKWELL_UNCHECKED_LOCKING {
    mReading = process;
    mSince = Clock::now();
    lock.Unlock();
    read();
    lock.Lock();
    HasRead(process);
    // The owner's end waits for it.
    if (IsOver(place)) Notify();
    return !IsOver(place);
  }

 private:
  /// Pid and start.
  using Key = std::pair<std::int32_t, std::uint64_t>;
  struct Shelved {
    Clock::time_point until;
    bool hangs = true;
  };

  static Key KeyOf(ProcessIdentity process) { return {process.pid, process.startStamp}; }
  bool IsOneWanted() LURKWELL_REQUIRES(mutex);
  void GiveUp() LURKWELL_REQUIRES(mutex);
  void HasRead(ProcessIdentity process) LURKWELL_REQUIRES(mutex);

  Limits mLimits;
  std::condition_variable mNews;
  std::map<Key, Shelved> mShelf LURKWELL_GUARDED_BY(mutex);
  /// What is being read, and since when.
  std::optional<ProcessIdentity> mReading LURKWELL_GUARDED_BY(mutex);
  Clock::time_point mSince LURKWELL_GUARDED_BY(mutex);
  /// Of the present thread.
  unsigned mGeneration LURKWELL_GUARDED_BY(mutex) = 0;
  /// The owner's.
  std::thread mThread;
};

}  // namespace lurkwell
