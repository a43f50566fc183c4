#include "recording/RecordingPlayer.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/Diagnostics.h"
#include "platform/ProcessFigures.h"

namespace lurkwell {
namespace {

/// Of a move back, or over a calendar that makes no sense.
constexpr std::int64_t kJump = 1'000'000;
constexpr std::int64_t kLongestStep = 366LL * 86'400'000'000;

}  // namespace

TimeValue RecordedClock::Now() {
  return TimeOfMicroseconds(mNow);
}

TimeValue RecordedClock::CalendarNow() {
  return TimeOfMicroseconds(mCalendar);
}

RecordingPlayer::RecordingPlayer(std::unique_ptr<Recording> recording)
    : mRecording(std::move(recording)) {
  // Somewhere behind 0, which stands for never.
  mClock.Advance(std::max<std::int64_t>(mRecording->Minutes().front().firstWall, kLongestStep));
}

void RecordingPlayer::Take(std::int64_t microseconds) {
  mHeader = mRecording->Header();
  mProcesses = mRecording->Processes();
  mPlaces.clear();
  for (const auto& process : mProcesses) mPlaces.emplace(process.process.pid, mPlaces.size());
  mClock.Advance(microseconds);
  mClock.Set(mHeader.wall);
}

const RecordedProcess* RecordingPlayer::Find(std::int32_t pid) const {
  const auto found = mPlaces.find(pid);
  return found == mPlaces.end() ? nullptr : &mProcesses[found->second];
}

std::string RecordingPlayer::GoTo(std::uint64_t sequence) {
  const auto before = mHeader;
  const auto session = mRecording->IsAtBeat() ? mRecording->Session() : -1;
  if (auto words = mRecording->GoTo(sequence); !words.empty()) return words;
  const auto& now = mRecording->Header();
  const bool isSame = session == mRecording->Session();
  const auto passed = isSame ? now.elapsed - before.elapsed : now.wall - before.wall;
  const bool isOn = session >= 0 && now.sequence > before.sequence && passed > 0;
  Take(isOn && passed < kLongestStep ? passed : kJump);
  return {};
}

bool RecordingPlayer::Next() {
  const auto minuteBehind = [this](std::uint64_t sequence) -> std::optional<std::uint64_t> {
    const auto& minutes = mRecording->Minutes();
    const auto behind =
        std::ranges::upper_bound(minutes, sequence, {}, &Recording::Minute::firstSequence);
    if (behind == minutes.end()) return std::nullopt;
    return behind->firstSequence;
  };
  auto next = mRecording->IsAtBeat() ? mRecording->Following() : minuteBehind(mHeader.sequence);
  while (next) {
    const auto words = GoTo(*next);
    if (words.empty()) return true;
    Diagnose("%s", words.c_str());
    next = minuteBehind(*next);
  }
  return false;
}

}  // namespace lurkwell
