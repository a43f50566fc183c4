#include "recording/RecorderThread.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/QuietThread.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostWaiting = 32;

/// Makes one beat of two, at the time of the second.
void Merge(Beat& first, Beat second) {
  second.header.lost += first.header.lost + 1;
  std::erase_if(first.changed, [&second](const RecordedProcess& process) {
    const auto isSame = [&process](const RecordedProcess& other) {
      return other.process.pid == process.process.pid;
    };
    return std::ranges::find(second.ended, process.process) != second.ended.end() ||
           std::ranges::any_of(second.changed, isSame);
  });
  std::ranges::move(second.changed, std::back_inserter(first.changed));
  std::ranges::move(second.ended, std::back_inserter(first.ended));
  first.header = second.header;
}

}  // namespace

RecorderThread::RecorderThread(std::unique_ptr<RecordingWriter> writer)
    : mWriter(std::move(writer)), mThread(StartWithoutSignals([this] { Work(); })) {}

RecordingProgress RecorderThread::Close() {
  {
    const MutexLock lock(mMutex);
    mEnds = true;
  }
  mNews.notify_one();
  if (mThread.joinable()) mThread.join();
  if (mWriter != nullptr) {
    const auto progress = mWriter->Close();
    mWriter.reset();
    const MutexLock lock(mMutex);
    mProgress = progress;
  }
  return Progress();
}

void RecorderThread::Append(Beat beat) {
  if (mWriter == nullptr) return;
  if (!mThread.joinable()) return Write(std::move(beat));
  {
    const MutexLock lock(mMutex);
    if (mWaiting.size() < kMostWaiting) {
      mWaiting.push_back(std::move(beat));
    } else {
      Merge(mWaiting.back(), std::move(beat));
    }
  }
  mNews.notify_one();
}

RecordingProgress RecorderThread::Progress() const {
  const MutexLock lock(mMutex);
  auto progress = mProgress;
  progress.waiting = mWaiting.size() + (mIsWriting ? 1 : 0);
  return progress;
}

void RecorderThread::Work() {
  for (;;) {
    Beat beat;
    {
      MutexLock lock(mMutex);
      lock.Wait(mNews, [this]() LURKWELL_REQUIRES(mMutex) { return mEnds || !mWaiting.empty(); });
      if (mWaiting.empty()) return;
      beat = std::move(mWaiting.front());
      mWaiting.pop_front();
      mIsWriting = true;
    }
    Write(std::move(beat));
  }
}

void RecorderThread::Write(Beat beat) {
  mWriter->Append(std::move(beat));
  const MutexLock lock(mMutex);
  mProgress = mWriter->Progress();
  mIsWriting = false;
}

}  // namespace lurkwell
