#include "recording/RecorderThread.h"

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "platform/Mutex.h"
#include "platform/QuietThread.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostWaiting = 32;
constexpr std::chrono::seconds kLastPatience{5};

/// Makes one beat of two, at the time of the second.
void Merge(Beat& first, Beat second) {
  second.header.lost += first.header.lost + 1;
  std::unordered_set<std::int32_t> outdated;
  for (const auto& process : second.changed) outdated.insert(process.process.pid);
  for (const auto& process : second.ended) outdated.insert(process.pid);
  std::erase_if(first.changed, [&outdated](const RecordedProcess& process) {
    return outdated.contains(process.process.pid);
  });
  std::ranges::move(second.changed, std::back_inserter(first.changed));
  std::ranges::move(second.ended, std::back_inserter(first.ended));
  first.header = second.header;
}

}  // namespace

class RecorderThread::Shared {
 public:
  explicit Shared(std::unique_ptr<RecordingWriter> writer) : mWriter(std::move(writer)) {}

  void Append(Beat beat);
  RecordingProgress Progress() const;
  /// True when the file is closed.
  bool End(std::chrono::milliseconds patience);

  /// The thread's.
  void Work();

 private:
  bool Next(Beat& beat);
  void SetProgress(const RecordingProgress& progress, bool isClosed);

  /// The thread's; null once it is closed.
  std::unique_ptr<RecordingWriter> mWriter;
  mutable Mutex mMutex;
  std::condition_variable mNews;
  std::deque<Beat> mWaiting LURKWELL_GUARDED_BY(mMutex);
  RecordingProgress mProgress LURKWELL_GUARDED_BY(mMutex);
  bool mIsWriting LURKWELL_GUARDED_BY(mMutex) = false;
  bool mEnds LURKWELL_GUARDED_BY(mMutex) = false;
};

void RecorderThread::Shared::Append(Beat beat) {
  const MutexLock lock(mMutex);
  if (mEnds) return;
  if (mWaiting.size() < kMostWaiting) {
    mWaiting.push_back(std::move(beat));
  } else {
    Merge(mWaiting.back(), std::move(beat));
  }
  mNews.notify_all();
}

RecordingProgress RecorderThread::Shared::Progress() const {
  const MutexLock lock(mMutex);
  auto progress = mProgress;
  progress.waiting = mWaiting.size() + (mIsWriting ? 1 : 0);
  return progress;
}

bool RecorderThread::Shared::End(std::chrono::milliseconds patience) {
  MutexLock lock(mMutex);
  mEnds = true;
  mNews.notify_all();
  return lock.WaitFor(mNews, patience,
                      [this]() LURKWELL_REQUIRES(mMutex) { return mProgress.isClosed; });
}

void RecorderThread::Shared::Work() {
  for (Beat beat; Next(beat);) {
    mWriter->Append(std::move(beat));
    SetProgress(mWriter->Progress(), false);
  }
  const auto progress = mWriter->Close();
  mWriter.reset();
  SetProgress(progress, true);
}

/// False when all is written and no more comes.
bool RecorderThread::Shared::Next(Beat& beat) {
  MutexLock lock(mMutex);
  lock.Wait(mNews, [this]() LURKWELL_REQUIRES(mMutex) { return mEnds || !mWaiting.empty(); });
  if (mWaiting.empty()) return false;
  beat = std::move(mWaiting.front());
  mWaiting.pop_front();
  mIsWriting = true;
  return true;
}

void RecorderThread::Shared::SetProgress(const RecordingProgress& progress, bool isClosed) {
  const MutexLock lock(mMutex);
  mProgress = progress;
  mProgress.isClosed = isClosed;
  mIsWriting = false;
  mNews.notify_all();
}

RecorderThread::RecorderThread(std::unique_ptr<RecordingWriter> writer)
    : mShared(std::make_shared<Shared>(std::move(writer))),
      mThread(StartWithoutSignals([shared = mShared] { shared->Work(); })) {}

RecorderThread::~RecorderThread() {
  Close(kLastPatience);
}

void RecorderThread::Append(Beat beat) {
  if (mThread.joinable()) mShared->Append(std::move(beat));
}

RecordingProgress RecorderThread::Progress() const {
  return mShared->Progress();
}

RecordingProgress RecorderThread::Close(std::chrono::milliseconds patience) {
  if (mThread.joinable()) {
    if (mShared->End(patience)) {
      mThread.join();
    } else {
      mThread.detach();
    }
  }
  return Progress();
}

}  // namespace lurkwell
