#include "consolidator/ProcessQueries.h"

#include <vector>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PidReport.h"
#include "platform/Assertion.h"
#include "platform/Diagnostics.h"

namespace lurkwell {
namespace {

std::vector<std::int32_t> ValidPids(int kind, std::int32_t argument) LURKWELL_IN_REGION {
  if (kind == kPidBlobDescendantsOf && !gRecords.Empty()) {
    Require(argument != kInvalidPID, kUnit, "potentialAncestorPid != kInvalidPID");
    return gFamilyIndex.Descendants(gRecords, argument);
  }
  std::vector<std::int32_t> pids;
  if (kind == kPidBlobAll) pids.reserve(gRecords.Size());
  for (const auto& record : gRecords.Records()) {
    if (!record.valid) continue;
    if (kind == kPidBlobAll || (kind == kPidBlobChildrenOf && PidIsParent(record.pid, argument)))
      pids.push_back(record.pid);
  }
  return pids;
}

}  // namespace

bool PidIsParent(std::int32_t pid, std::int32_t candidate) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  Require(record != nullptr, kUnit, "mpi");
  return record->pidInfo != nullptr && record->pidInfo->parentPid == candidate;
}

bool PidIsAncestor(std::int32_t pid, std::int32_t candidate) {
  Require(pid != kInvalidPID, kUnit, "pid != kInvalidPID");
  Require(candidate != kInvalidPID, kUnit, "potentialAncestorPid != kInvalidPID");
  const ConsolidatorGuard guard;
  for (std::size_t depth = 0; depth <= gRecords.Size(); ++depth) {
    const auto* record = gRecords.GetExistingPIDInformation(pid);
    if (record == nullptr) {
      DiagnoseVerbatim("PidIsAncestor problem! pid %d doesn't exist! (potential ancestor %d)", pid,
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
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  return record == nullptr ? 0 : record->killCount;
}

void IncrementPidsKillCount(std::int32_t pid) {
  const ConsolidatorGuard guard;
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

bool AreCPUTimesFresh(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  return record == nullptr || record->pidInfo == nullptr || AreTimesRead(*record);
}

}  // namespace lurkwell
