#include "consolidator/ClassicReports.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/MetaProcessInformation.h"
#include "consolidator/ProcessReports.h"
#include "platform/Diagnostics.h"
#include "platform/EventBus.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"

namespace lurkwell {
namespace {

ProcessSerialNumber SerialNumberOf(const std::byte* record) {
  ProcessSerialNumber psn;
  std::memcpy(&psn.high, record + ClassicRecord::kSerialNumberOffset, sizeof psn.high);
  std::memcpy(&psn.low, record + ClassicRecord::kSerialNumberOffset + sizeof psn.high,
              sizeof psn.low);
  return psn;
}

/// A guest that is known, or a new one for which there is room: serial numbers cost the sender
/// nothing. Never a process of the kernel's.
bool IsWelcome(ProcessSerialNumber psn) LURKWELL_IN_REGION {
  static bool hasTold = false;
  if (const auto* record = gRecords.FindBySerialNumber(psn)) return record->pid < 0;
  if (TheMachine().processManager.GetProcessPID(psn)) return false;
  if (gRecords.CountWithoutKernelPid() < kMostClassicApplications) return true;
  if (!std::exchange(hasTold, true))
    Diagnose("more than %zu Classic applications; others are left out", kMostClassicApplications);
  return false;
}

void ReportRecords(std::span<const std::byte> data) {
  const ConsolidatorGuard guard;
  const auto count = std::min(data.size() / ClassicRecord::kSize, kMostRecordsInReport);
  for (std::size_t i = 0; i < count; ++i) {
    const std::byte* record = data.data() + i * ClassicRecord::kSize;
    const auto psn = SerialNumberOf(record);
    // Nothing could ever retire an application without one.
    if (!psn.IsNone() && IsWelcome(psn)) ReportProcessInformationClassicPSNBlob(psn, record);
  }
}

}  // namespace

void ClassicPSNSetupProcessExtractionAppleEvent() {
  TheMachine().eventBus.InstallEventHandler(classic_events::kClass, classic_events::kReport,
                                            HandleProcessInformationReport);
}

void HandleProcessInformationReport(const Event& event) {
  const auto* data = event.Find<std::vector<std::byte>>(classic_events::kRecords);
  if (data == nullptr) {
    DiagnoseVerbatim("Apple Event Handler got an error! %d", EventBus::kNoSuchParameter);
    return;
  }
  BeginProcessInformationIteration(kInformationKindClassicPSN);
  ReportRecords(*data);
  EndProcessInformationIteration(kInformationKindClassicPSN);
}

}  // namespace lurkwell
