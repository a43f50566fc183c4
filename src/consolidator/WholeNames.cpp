#include "consolidator/WholeNames.h"

#include <algorithm>
#include <cstddef>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/TextScan.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"

namespace lurkwell {
namespace {

/// What every kernel keeps at least; a shorter name is whole.
constexpr std::size_t kKernelsNameLength = 15;
constexpr std::size_t kLongestName = 255;

/// Asked again for the next name only.
void LeaveAsItIs(MetaProcessInformation& record) {
  record.learntName = record.name;
  record.wholeName = record.name;
}

}  // namespace

std::string WholeNameOf(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr) return {};
  const std::string_view name(record->name);
  if (const auto* carbon = record->carbonInfo.get()) {
    const std::string_view whole(carbon->name);
    return std::string(whole.starts_with(name) ? whole : name);
  }
  return record->learntName == name ? record->wholeName : std::string(name);
}

bool MayNameGoOn(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr || record->carbonInfo != nullptr || pid <= 0) return false;
  const std::string_view name(record->name);
  return name.size() >= kKernelsNameLength && record->learntName != name;
}

void LearnWholeNames(std::span<const std::int32_t> pids) {
  const auto descriptions = TheMachine().processTable.Describe(pids);
  const ConsolidatorGuard guard;
  for (const auto& described : descriptions) {
    auto* record = gRecords.GetExistingPIDInformation(described.process.pid);
    const bool isSame = record != nullptr && record->pidInfo != nullptr &&
                        record->pidInfo->startStamp == described.process.startStamp;
    if (!isSame) continue;
    record->learntName = record->name;
    record->wholeName =
        WholeCharacters(CompletedName(record->name, described.commandLine), kLongestName);
  }
  for (const auto pid : pids)
    if (MayNameGoOn(pid)) LeaveAsItIs(*gRecords.GetExistingPIDInformation(pid));
}

void NamesToLearn::Add(std::int32_t pid) {
  if (MayNameGoOn(pid)) mPids.push_back(pid);
}

std::vector<std::int32_t> NamesToLearn::LearnSome() {
  constexpr std::size_t kMostAtOnce = 200;
  const auto first = mPids.size() - std::min(mPids.size(), kMostAtOnce);
  std::vector<std::int32_t> pids(mPids.begin() + static_cast<std::ptrdiff_t>(first), mPids.end());
  mPids.resize(first);
  if (!pids.empty()) LearnWholeNames(pids);
  return pids;
}

std::string_view CompletedName(std::string_view name, std::string_view commandLine) {
  constexpr std::string_view kEnds = "/ ";
  for (auto at = commandLine.find(name); at != std::string_view::npos && !name.empty();
       at = commandLine.find(name, at + 1)) {
    if (at > 0 && kEnds.find(commandLine[at - 1]) == std::string_view::npos) continue;
    const auto end = commandLine.find_first_of(kEnds, at + name.size());
    if (end == std::string_view::npos || commandLine[end] == ' ')
      return commandLine.substr(at, end == std::string_view::npos ? end : end - at);
  }
  return name;
}

}  // namespace lurkwell
