#include "consolidator/Applications.h"

#include <algorithm>
#include <limits>

#include "consolidator/ConsolidatorState.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"

namespace lurkwell {

std::optional<std::int32_t> SyntheticPidTable::Find(ProcessSerialNumber psn) const {
  for (std::size_t i = 0; i < mCount; ++i)
    if (mSlots[i].inUse && mSlots[i].psn == psn) return mSlots[i].pid;
  return std::nullopt;
}

std::optional<ProcessSerialNumber> SyntheticPidTable::Find(std::int32_t pid) const {
  for (std::size_t i = 0; i < mCount; ++i)
    if (mSlots[i].inUse && mSlots[i].pid == pid) return mSlots[i].psn;
  return std::nullopt;
}

/// A flood of serial numbers may use up all negative numbers; then they start over, below those
/// that are kept.
std::int32_t SyntheticPidTable::After(std::int32_t pid) {
  constexpr auto kKept = static_cast<std::int32_t>(std::tuple_size_v<decltype(mSlots)>) - 1;
  return pid == std::numeric_limits<std::int32_t>::min() ? kFirst - kKept : pid - 1;
}

std::int32_t SyntheticPidTable::HandOut(ProcessSerialNumber psn) {
  std::int32_t pid = gCurrentFakePid;
  while (gRecords.GetExistingPIDInformation(pid) != nullptr) pid = After(pid);
  mSlots[mCount] = {psn, pid, true};
  gCurrentFakePid = After(pid);
  mCount = std::min(mCount + 1, mSlots.size() - 1);
  return pid;
}

std::int32_t PSN2PID(ProcessSerialNumber psn) {
  const ConsolidatorGuard guard;
  if (const auto* record = gRecords.FindBySerialNumber(psn)) return record->pid;
  const auto kernelPid = TheMachine().processManager.GetProcessPID(psn);
  if (kernelPid && *kernelPid >= 0) return *kernelPid;
  if (const auto known = gPSN2PIDMap.Find(psn)) return *known;
  return gPSN2PIDMap.HandOut(psn);
}

void PID2PSN(std::int32_t pid, ProcessSerialNumber* psn) {
  *psn = {};
  const ConsolidatorGuard guard;
  if (const auto* record = gRecords.GetExistingPIDInformation(pid)) {
    *psn = record->psn;
  } else if (pid >= 0) {
    *psn = TheMachine().processManager.GetProcessForPID(pid).value_or(ProcessSerialNumber{});
  } else {
    *psn = gPSN2PIDMap.Find(pid).value_or(ProcessSerialNumber{});
  }
}

std::shared_ptr<const Picture> GetApplicationIconRef(ProcessSerialNumber psn, int size) {
  return TheMachine().iconServices.ApplicationIcon(psn, size);
}

std::shared_ptr<const Picture> GetProcessIcon(std::int32_t pid, int size) {
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  return psn.IsNone() ? nullptr : GetApplicationIconRef(psn, size);
}

std::shared_ptr<const Picture> ProcessIconImage(std::int32_t pid, int size) {
  return GetProcessIcon(pid, size);
}

}  // namespace lurkwell
