#include "consolidator/ProcessQueries.h"

#include <cstdio>
#include <unordered_map>
#include <vector>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/Unit.h"
#include "platform/Assertion.h"

namespace lurkwell {
namespace {

/// The parent of a known process, kInvalidPID when it has none that is another process.
std::int32_t ParentOf(const MetaProcessInformation& record) {
  if (record.pidInfo == nullptr) return kInvalidPID;
  const std::int32_t parent = record.pidInfo->parentPid;
  return parent == record.pid ? kInvalidPID : parent;
}

/// Tells for any number of processes whether they descend from one, looking at each process once.
class DescendantSet {
 public:
  explicit DescendantSet(std::int32_t ancestor) : mAncestor(ancestor) {}

  bool Contains(const MetaProcessInformation& record) {
    Require(mAncestor != kInvalidPID, kUnit, "potentialAncestorPid != kInvalidPID");
    mPath.clear();
    bool descends = false;
    std::int32_t pid = record.pid;
    const MetaProcessInformation* at = &record;
    // A path longer than there are records goes round in a loop.
    while (at != nullptr && mPath.size() <= gRecords.Size()) {
      const auto known = mKnown.find(pid);
      if (known != mKnown.end()) {
        descends = known->second;
        break;
      }
      mPath.push_back(pid);
      pid = ParentOf(*at);
      if (pid == kInvalidPID) break;
      if (pid == mAncestor) {
        descends = true;
        break;
      }
      at = gRecords.GetExistingPIDInformation(pid);
    }
    for (const auto passed : mPath) mKnown.emplace(passed, descends);
    return descends;
  }

 private:
  std::int32_t mAncestor;
  std::unordered_map<std::int32_t, bool> mKnown;
  std::vector<std::int32_t> mPath;
};

std::vector<std::int32_t> ValidPids(int kind, std::int32_t argument) {
  std::vector<std::int32_t> pids;
  if (kind == kPidBlobAll) pids.reserve(gRecords.Size());
  DescendantSet descendants(argument);
  for (const auto& record : gRecords.Records()) {
    if (!record.valid) continue;
    const bool taken = kind == kPidBlobAll ||
                       (kind == kPidBlobChildrenOf && record.pidInfo != nullptr &&
                        record.pidInfo->parentPid == argument) ||
                       (kind == kPidBlobDescendantsOf && descendants.Contains(record));
    if (taken) pids.push_back(record.pid);
  }
  return pids;
}

}  // namespace

bool PidIsParent(std::int32_t pid, std::int32_t candidate) {
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  Require(record != nullptr, kUnit, "mpi");
  return record->pidInfo != nullptr && record->pidInfo->parentPid == candidate;
}

bool PidIsAncestor(std::int32_t pid, std::int32_t candidate) {
  Require(pid != kInvalidPID, kUnit, "pid != kInvalidPID");
  Require(candidate != kInvalidPID, kUnit, "potentialAncestorPid != kInvalidPID");
  for (std::size_t depth = 0; depth <= gRecords.Size(); ++depth) {
    const auto* record = gRecords.GetExistingPIDInformation(pid);
    if (record == nullptr) {
      std::printf("PidIsAncestor problem! pid %d doesn't exist! (potential ancestor %d)\n", pid,
                  candidate);
      Require(false, kUnit, "mpi");
    }
    const std::int32_t parent = ParentOf(*record);
    if (parent == kInvalidPID) return false;
    if (parent == candidate) return true;
    pid = parent;
  }
  return false;
}

std::int32_t GetPidsKillCount(std::int32_t pid) {
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  return record == nullptr ? 0 : record->killCount;
}

void IncrementPidsKillCount(std::int32_t pid) {
  if (auto* record = gRecords.GetExistingPIDInformation(pid)) ++record->killCount;
}

std::int32_t* CreateBlobOfValidPIDs(std::int32_t* count, int kind, const std::int32_t* argument) {
  const ConsolidatorGuard guard;
  const auto pids = ValidPids(kind, argument == nullptr ? kInvalidPID : *argument);
  auto* blob = new std::int32_t[pids.size()];
  auto countPIDs = static_cast<std::int32_t>(pids.size());
  *count = countPIDs;
  for (const auto pid : pids) blob[--countPIDs] = pid;
  Require(countPIDs == 0, kUnit, "countPIDs == 0");
  return blob;
}

void DeleteBlobOfValidPIDs(std::int32_t* blob) {
  delete[] blob;
}

std::uint64_t GetPidsStartStamp(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  return record == nullptr || record->pidInfo == nullptr ? 0 : record->pidInfo->startStamp;
}

}  // namespace lurkwell
