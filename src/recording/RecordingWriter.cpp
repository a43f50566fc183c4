#include "recording/RecordingWriter.h"

#include <span>
#include <utility>

#include "platform/Diagnostics.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kMinute = 60'000'000;

}  // namespace

RecordingWriter::RecordingWriter(std::unique_ptr<RecordingFile> file, RecordingLimits limits)
    : mFile(std::move(file)), mLimits(limits) {}

const RecordingProgress& RecordingWriter::Close() {
  Check(mFile->CloseMinute());
  mMinute.reset();
  return mProgress;
}

void RecordingWriter::Append(Beat beat) {
  Keep(beat);
  mProgress.lost += beat.header.lost;
  mLostSince += std::exchange(beat.header.lost, 0);
  beat.header.sequence = mFile->NextSequence();
  beat.header.lost = mLostSince;
  const bool isOver = beat.header.elapsed - mMinuteBegan >= kMinute;
  if ((mMinute == nullptr || isOver) && !BeginMinute(beat.header)) {
    ++mProgress.lost;
    ++mLostSince;
    return;
  }
  const bool isFirst = mMinuteBegan == beat.header.elapsed;
  if (!Write(isFirst ? WholeBeat(beat.header) : beat)) {
    mMinute.reset();
    ++mProgress.lost;
    ++mLostSince;
    return;
  }
  ++mProgress.written;
  if (!std::exchange(mProgress.trouble, {}).empty())
    Diagnose("recording goes on; %llu beats were lost",
             static_cast<unsigned long long>(mLostSince));
  mLostSince = 0;
}

/// Also where the minute before broke off.
bool RecordingWriter::BeginMinute(const BeatHeader& header) {
  mMinute.reset();
  if (!Check(mFile->CloseMinute()) || !Check(mFile->Trim(mLimits, header.wall))) return false;
  if (!mFile->IsInPlace()) return Check({"the file has been moved or removed", false});
  mMinute = std::make_unique<BeatEncoder>();
  mMinuteBegan = header.elapsed;
  return true;
}

bool RecordingWriter::Write(const Beat& beat) {
  return Check(mFile->Append(beat.header, mMinute->Encode(std::span(&beat, 1))));
}

/// Says what is the matter, the first time.
bool RecordingWriter::Check(const RecordingFile::Outcome& outcome) {
  if (outcome.IsDone()) return true;
  if (mProgress.trouble.empty()) Diagnose("cannot record: %s", outcome.words.c_str());
  mProgress.trouble = outcome.words;
  return false;
}

void RecordingWriter::Keep(const Beat& beat) {
  for (const auto& ended : beat.ended) {
    const auto found = mWhole.find(ended.pid);
    if (found != mWhole.end() && found->second.process == ended) mWhole.erase(found);
  }
  for (const auto& process : beat.changed) mWhole.insert_or_assign(process.process.pid, process);
}

Beat RecordingWriter::WholeBeat(const BeatHeader& header) const {
  Beat whole{.header = header, .changed = {}, .ended = {}};
  for (const auto& [pid, process] : mWhole) whole.changed.push_back(process);
  return whole;
}

}  // namespace lurkwell
