#include "consolidator/PSPrograms.h"

#include <algorithm>
#include <utility>

#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr int kLongestRestSeconds = 60;
constexpr std::int64_t kMostRunMilliseconds = 1000;
/// Each start takes the main thread about a millisecond.
constexpr std::ptrdiff_t kMostAtATime = 8;

}  // namespace

int GrowingRest::Begin(TimeValue now) {
  mSeconds = std::min(mSeconds * 2, kLongestRestSeconds);
  mEnd = now + TimeValue{mSeconds, 0};
  return mSeconds;
}

bool PSPrograms::MayStart(std::string_view header, TimeValue now) const {
  const auto rest = mRests.find(header);
  if (rest != mRests.end() && !rest->second.IsOver(now)) return false;
  return std::ranges::find(mRuns, header, &Run::header) == mRuns.end();
}

void PSPrograms::Start(std::string header, std::string commandLine) {
  mRuns.push_back({std::move(header), std::move(commandLine), nullptr, {}});
  StartWaiting(TheMachine().clock.Now());
}

void PSPrograms::StartWaiting(TimeValue now) {
  auto running = std::ranges::count_if(mRuns, [](const Run& run) { return run.tool != nullptr; });
  for (auto& run : mRuns) {
    if (running >= kMostAtATime) return;
    if (run.tool != nullptr) continue;
    run.tool = TheMachine().tools.Start(run.commandLine);
    if (run.tool == nullptr) {
      // Others would fare no better. The next heartbeat tries again.
      if (!std::exchange(mSaidNothingStarts, true))
        Diagnose("ps cannot be started; trying again with each update");
      std::erase_if(mRuns, [this](Run& waiting) {
        if (waiting.tool == nullptr) mEnded.push_back({waiting.header, {}});
        return waiting.tool == nullptr;
      });
      return;
    }
    mSaidNothingStarts = false;
    run.deadline = AddMilliseconds(now, kMostRunMilliseconds);
    ++running;
  }
}

void PSPrograms::Serve() {
  const TimeValue now = TheMachine().clock.Now();
  std::erase_if(mRuns, [&](Run& run) {
    if (run.tool == nullptr || (!run.tool->HasEnded() && now < run.deadline)) return false;
    NoteEnd(run, now);
    return true;
  });
  StartWaiting(now);
}

void PSPrograms::NoteEnd(Run& run, TimeValue now) {
  mEnded.push_back({run.header, run.tool->TakeOutput()});
  if (mEnded.back().printed.complete) {
    mRests.erase(run.header);
    return;
  }
  const int seconds = mRests[run.header].Begin(now);
  Diagnose("ps did not finish the column %s; asking again in %d s",
           PrintableText(run.header).c_str(), seconds);
}

void PSPrograms::Await(std::chrono::milliseconds limit) {
  const TimeValue end = AddMilliseconds(TheMachine().clock.Now(), limit.count());
  for (std::size_t before = mRuns.size() + 1; mRuns.size() < before;) {
    before = mRuns.size();
    std::vector<RunningTool*> tools;
    for (const auto& run : mRuns)
      if (run.tool != nullptr) tools.push_back(run.tool.get());
    const auto left = MillisecondsBetween(TheMachine().clock.Now(), end);
    if (tools.empty() || left <= 0) return;
    TheMachine().tools.Await(tools, std::chrono::milliseconds(left));
    Serve();
  }
}

std::vector<PSPrograms::Output> PSPrograms::TakeEnded() {
  if (!mRuns.empty()) Serve();
  return std::exchange(mEnded, {});
}

void PSPrograms::Clear() {
  mRuns.clear();
  mEnded.clear();
  mRests.clear();
  mSaidNothingStarts = false;
}

}  // namespace lurkwell
