#include "consolidator/ProcessManagerFeeder.h"

#include <charconv>
#include <iterator>
#include <string>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/PropertyTypes.h"
#include "consolidator/SyntheticPids.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"

namespace lurkwell {
namespace {

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
      ReportApplication(psn, *information);
    }
  }
}

}  // namespace lurkwell
