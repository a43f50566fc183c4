#include "consolidator/PSPrograms.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "consolidator/Feeders.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/TextScan.h"
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

namespace {

constexpr char kKeywordsCommand[] = "/bin/ps -Lww";
constexpr char kHeaderCommand[] = "/bin/ps 0 -o ";
// Nothing waits for it, and a machine that starts up is a busy one.
constexpr std::int64_t kMostMilliseconds = 5000;
constexpr std::size_t kLongestLine = 1023;
constexpr std::size_t kLongestHeader = 63;

std::string HeaderIn(std::string_view output) {
  auto line = ScanLine(output).value_or(std::string_view{}).substr(0, kLongestLine);
  return std::string(ScanWord(line).substr(0, kLongestHeader));
}

}  // namespace

void PSDiscovery::Await(std::chrono::milliseconds limit) {
  auto& clock = TheMachine().clock;
  const TimeValue end = AddMilliseconds(clock.Now(), limit.count());
  GoOn(clock.Now());
  while (IsUnderWay()) {
    const auto stage = mStage;
    std::vector<RunningTool*> tools;
    for (const auto& tool : mTools) tools.push_back(tool.get());
    const auto left = std::max<std::int64_t>(MillisecondsBetween(clock.Now(), end), 0);
    TheMachine().tools.Await(tools, std::chrono::milliseconds(left));
    GoOn(clock.Now());
    if (mStage == stage && IsUnderWay()) Fail(clock.Now());
  }
}

bool PSDiscovery::GoOn(TimeValue now) {
  if (IsDone()) return false;
  while (Step(now)) continue;
  return IsDone();
}

bool PSDiscovery::Step(TimeValue now) {
  if (IsDone()) return false;
  if (!IsUnderWay()) {
    if (!mRest.IsOver(now)) return false;
    Begin({""}, kKeywordsCommand, now);
  } else if (HaveAllEnded() || (mStage == Stage::kHeaders && now >= mDeadline)) {
    mStage == Stage::kKeywords ? TakeKeywords(now) : TakeHeaders();
  } else {
    if (now >= mDeadline) Fail(now);
    return false;
  }
  return true;
}

void PSDiscovery::Begin(std::vector<std::string> options, const char* command, TimeValue now) {
  mOptions = std::move(options);
  mTools.clear();
  mDeadline = AddMilliseconds(now, kMostMilliseconds);
  for (const auto& option : mOptions) {
    auto tool = TheMachine().tools.Start(command + option);
    if (tool == nullptr) return Fail(now);
    mTools.push_back(std::move(tool));
  }
}

bool PSDiscovery::HaveAllEnded() const {
  return std::ranges::all_of(mTools, [](const auto& tool) { return tool->HasEnded(); });
}

void PSDiscovery::TakeKeywords(TimeValue now) {
  const auto listing = mTools.front()->TakeOutput();
  if (!listing.complete) return Fail(now);
  std::vector<std::string> keywords;
  GetPSAvailableThings(listing.text, keywords);
  mStage = keywords.empty() ? Stage::kDone : Stage::kHeaders;
  Begin(std::move(keywords), kHeaderCommand, now);
}

/// A keyword whose header did not come is no column.
void PSDiscovery::TakeHeaders() {
  for (std::size_t i = 0; i < mTools.size(); ++i) {
    const std::string header = HeaderIn(mTools[i]->TakeOutput().text);
    if (!header.empty() && IsPSColumnName(header))
      EnsureThatPSProcPropertyExists(header.c_str(), mOptions[i].c_str());
  }
  mTools.clear();
  mStage = Stage::kDone;
}

void PSDiscovery::Fail(TimeValue now) {
  mTools.clear();
  mStage = Stage::kKeywords;
  Diagnose("ps does not tell its columns; asking again in %d s", mRest.Begin(now));
}

}  // namespace lurkwell
