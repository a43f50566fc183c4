#include "platform/linux/ReplaceableThread.h"

#include <algorithm>
#include <cstddef>

namespace lurkwell {
namespace {

constexpr std::chrono::milliseconds kLastMoment{20};

}  // namespace

bool ReplaceableThread::IsOneWanted() {
  const auto now = Clock::now();
  std::erase_if(mShelf, [now](const auto& shelved) {
    return !shelved.second.hangs && shelved.second.until <= now;
  });
  if (mReading && now - mSince > mLimits.longestReading) {
    mShelf[KeyOf(*mReading)] = {now + mLimits.rest};
    GiveUp();
  }
  if (mThread.joinable()) return false;
  const auto hanging =
      std::ranges::count_if(mShelf, [](const auto& shelved) { return shelved.second.hangs; });
  return static_cast<std::size_t>(hanging) < mLimits.mostHanging;
}

/// The thread ends as soon as it can.
void ReplaceableThread::GiveUp() {
  ++mGeneration;
  mThread.detach();
  mReading.reset();
  mNews.notify_all();
}

bool ReplaceableThread::IsResting(ProcessIdentity process) const {
  const auto shelved = mShelf.find(KeyOf(process));
  return shelved != mShelf.end() && (shelved->second.hangs || Clock::now() < shelved->second.until);
}

/// Also when it was given up meanwhile; the thread in its place reads of another process.
void ReplaceableThread::HasRead(ProcessIdentity process) {
  if (const auto shelved = mShelf.find(KeyOf(process)); shelved != mShelf.end())
    shelved->second.hangs = false;
  if (mReading == process) mReading.reset();
}

void ReplaceableThread::End() {
  if (!mThread.joinable()) return;
  MutexLock lock(mutex);
  ++mGeneration;
  mNews.notify_all();
  if (lock.WaitFor(mNews, kLastMoment, [this]() LURKWELL_REQUIRES(mutex) { return !mReading; })) {
    lock.Unlock();
    mThread.join();
  } else {
    mThread.detach();
  }
}

}  // namespace lurkwell
