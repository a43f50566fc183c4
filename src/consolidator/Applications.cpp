#include "consolidator/Applications.h"

#include "consolidator/ConsolidatorState.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"

namespace lurkwell {

std::int32_t PSN2PID(ProcessSerialNumber psn) {
  const ConsolidatorGuard guard;
  if (const auto* record = gRecords.FindBySerialNumber(psn)) return record->pid;
  const auto kernelPid = TheMachine().processManager.GetProcessPID(psn);
  if (kernelPid && *kernelPid >= 0) return *kernelPid;
  if (const auto known = gPSN2PIDMap.Find(psn)) return *known;
  return gPSN2PIDMap.HandOut(psn, gRecords);
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
