#include <charconv>
#include <iterator>
#include <string>

#include "consolidator/Applications.h"
#include "consolidator/ConsolidatorState.h"
#include "consolidator/Feeders.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/TypedValue.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"

namespace lurkwell {
namespace {

/// Whether the application's record has all that and has been given it as this one's.
bool IsReported(std::int32_t pid, ProcessSerialNumber psn,
                const ApplicationInformation& information) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr || record->carbonInfo == nullptr || record->psn != psn) return false;
  const auto& known = *record->carbonInfo;
  return known.type == information.type && known.signature == information.signature &&
         known.mode == information.mode && known.name == information.name;
}

void ReportApplication(ProcessSerialNumber psn, const ApplicationInformation& information) {
  const auto text = [](FourCharCode code) { return std::string(code.data(), code.size()); };
  char mode[16] = {};
  std::to_chars(mode, std::end(mode) - 1, information.mode);
  ReportProcessInformationForCarbonPSN(psn, "carbonpsn_name", information.name.c_str());
  ReportProcessInformationForCarbonPSN(psn, "carbonpsn_type", text(information.type).c_str());
  ReportProcessInformationForCarbonPSN(psn, "carbonpsn_signature",
                                       text(information.signature).c_str());
  ReportProcessInformationForCarbonPSN(psn, "carbonpsn_mode", mode);
}

void Touch(std::int32_t pid, ProcessSerialNumber psn) {
  const ConsolidatorGuard guard;
  TouchProcessInformationForPID(pid, kInformationKindCarbonPSN);
  // Without its number the record of an application that has no kernel pid would never retire.
  if (pid < 0) gRecords.SetSerialNumber(*gRecords.GetExistingPIDInformation(pid), psn);
}

}  // namespace

void PSNExtractProcessInformation(TimeValue now) {
  using Client = ProcessInformationClient;
  auto& manager = TheMachine().processManager;
  ProcessSerialNumber psn;
  while (const auto next = manager.GetNextProcess(psn)) {
    psn = *next;
    const std::int32_t pid = PSN2PID(psn);
    if (Client::NeedAnyProcPropertyForPid(pid, &now) == Client::kNeedNoProcProperties) {
      Touch(pid, psn);
    } else if (const auto information = manager.GetProcessInformation(psn)) {
      if (IsReported(pid, psn, *information)) {
        Touch(pid, psn);
      } else {
        ReportApplication(psn, *information);
      }
    }
  }
}

}  // namespace lurkwell
