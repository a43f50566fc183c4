#include "windows/SystemFigures.h"

#include <algorithm>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kUsualPageSize = 4096;

}  // namespace

SystemFigures ReadSystemFigures() {
  const auto& host = TheMachine().hostStatistics;
  const auto pageSize = host.PageSize();
  if (!pageSize) DiagnoseVerbatim("didn't get pagesize so defaulting to 4K");
  VirtualMemoryStatistics memory;
  const bool isRead = host.ReadVirtualMemory(memory);
  if (!isRead) DiagnoseVerbatim("error: failed to get stats");
  const auto bytes = [size = pageSize.value_or(kUsualPageSize)](std::int64_t pages) {
    return pages * size;
  };
  const auto physical = host.PhysicalMemory();
  return {physical,
          physical - bytes(memory.freePages),
          bytes(memory.wiredPages),
          bytes(memory.inactivePages),
          memory.pageouts,
          isRead};
}

MachineUsage::MachineUsage() : mLastUpdate(TheMachine().clock.Now()) {}

double MachineUsage::Take() {
  const auto now = TheMachine().clock.Now();
  const double elapsed =
      std::max(0.01, static_cast<double>(MillisecondsBetween(mLastUpdate, now)) / 1000.0);
  const auto idle = ActiveTimeOf(0);
  if (!idle) {
    DiagnoseVerbatim("perhaps the permissions aren't set 'cuz I'm not seeing pid zero.");
    return 0.0;
  }
  if (!AreCPUTimesFresh(0)) return mUsage;
  mLastUpdate = now;
  if (mLastIdleTime.IsZero()) mLastIdleTime = *idle;
  const double delta = SecondsBetween(mLastIdleTime, *idle);
  mLastIdleTime = *idle;
  mUsage = 1.0 - delta / (elapsed * TheMachine().hostStatistics.Processors());
  return mUsage;
}

}  // namespace lurkwell
