#include "consolidator/PSDiscovery.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "consolidator/Feeders.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/TextScan.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"

namespace lurkwell {
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
