#include "consolidator/ProcessReports.h"

#include <charconv>
#include <cstring>
#include <string_view>
#include <utility>

#include "consolidator/Applications.h"
#include "consolidator/ConsolidatorState.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/PidReport.h"
#include "consolidator/TextScan.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/Tools.h"

namespace lurkwell {
namespace {

std::size_t Index(int kind) {
  return static_cast<std::size_t>(kind);
}

/// Decided with the run, not with each look at its value: it costs a call to the kernel.
bool IsHidden(std::int32_t pid, std::string_view column, std::string_view value) {
  const auto text = value.substr(0, value.find('\n'));
  return (text == "0" || text == "-") && FactsOfPSColumn(column).isPrivate &&
         !TheMachine().tools.MayLookInto(pid);
}

void StorePSValue(MetaProcessInformation& record, int headerIndex, const char* value,
                  bool isHidden) {
  if (record.psValues == nullptr) record.psValues = std::make_unique<std::vector<PSValue>>();
  for (auto& known : *record.psValues) {
    if (known.headerIndex != headerIndex) continue;
    if (*known.text == value && known.isHidden == isHidden) return;
    *known.text = value;
    known.isHidden = isHidden;
    record.NoteValueChange();
    return;
  }
  record.psValues->push_back({headerIndex, std::make_unique<std::string>(value), isHidden});
  record.NoteValueChange();
}

void ReportPSColumn(std::int32_t pid, const char* keyword, const char* value) LURKWELL_IN_REGION {
  EnsureThatPSProcPropertyExists(keyword, nullptr);
  auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr) return;
  const auto* header = gPSHeaders.Find(keyword);
  Require(header != nullptr, kUnit, "pipsh");
  StorePSValue(*record, header->index, value, IsHidden(pid, keyword, value));
  record->lastSeenGeneration[kInformationKindPS] = gGenerationCount[kInformationKindPS];
}

FourCharCode CodeOf(const char* text) {
  FourCharCode code{};
  std::memcpy(code.data(), text, strnlen(text, code.size()));
  return code;
}

void StoreCarbonName(MetaProcessInformation& record, const char* value) LURKWELL_IN_REGION {
  StoreText(record.carbonInfo->name, std::string_view(value));
  // As wide as a command's.
  const auto name = WholeCharacters(value, kCommandNameCapacity - 1);
  if (record.name[0] != '\0' && record.name != name) gRecords.NoteAppreciableChange(record);
  StoreText(record.name, name);
}

void StoreCarbonProperty(MetaProcessInformation& record, std::string_view property,
                         const char* value) LURKWELL_IN_REGION {
  auto& block = *record.carbonInfo;
  if (property == "carbonpsn_name") {
    StoreCarbonName(record, value);
  } else if (property == "carbonpsn_type") {
    block.type = CodeOf(value);
  } else if (property == "carbonpsn_signature") {
    block.signature = CodeOf(value);
  } else if (property == "carbonpsn_mode") {
    block.mode = 0;
    std::string_view text(value);
    SkipBlanks(text);
    std::from_chars(text.data(), text.data() + text.size(), block.mode);
  } else {
    FailAssertion(kUnit, __LINE__, "!\"invalid property!\"");
  }
}

}  // namespace

void ReportProcessInformationForPID(std::int32_t pid, const char* property, const char* value) {
  const ConsolidatorGuard guard;
  const std::string_view name(property);
  if (name.starts_with("meta_")) return;
  if (!name.starts_with("pid_")) {
    ReportPSColumn(pid, property, value);
    return;
  }
  PidReport report(pid);
  if (const auto* row = FindBuiltInProperty(name)) report.Text(*row, value);
}

void ReportProcessInformationForCarbonPSN(ProcessSerialNumber psn, const char* property,
                                          const char* value) {
  const ConsolidatorGuard guard;
  const std::int32_t pid = PSN2PID(psn);
  Require(pid != kInvalidPID, kUnit, "pid != kInvalidPID");
  auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr) {
    if (pid >= 0) return;
    record = &gRecords.GetPIDInformation(pid);
  }
  if (record->carbonInfo == nullptr) {
    record->carbonInfo = std::make_unique<CarbonBlock>();
    gRecords.NoteAppreciableChange(*record);
  }
  gRecords.SetSerialNumber(*record, psn);
  record->lastSeenGeneration[kInformationKindCarbonPSN] =
      gGenerationCount[kInformationKindCarbonPSN];
  Require(std::string_view(property).starts_with("carbonpsn_"), kUnit, "false");
  const CarbonBlock before = *record->carbonInfo;
  StoreCarbonProperty(*record, property, value);
  if (before != *record->carbonInfo) record->NoteValueChange();
}

void ReportProcessInformationClassicPSNBlob(ProcessSerialNumber psn, const std::byte* bytes) {
  const ConsolidatorGuard guard;
  const std::int32_t pid = PSN2PID(psn);
  Require(pid != kInvalidPID, kUnit, "pid != kInvalidPID");
  auto& record = gRecords.GetPIDInformation(pid);
  gRecords.SetSerialNumber(record, psn);
  record.lastSeenGeneration[kInformationKindClassicPSN] =
      gGenerationCount[kInformationKindClassicPSN];
  if (record.epir == nullptr) record.epir = std::make_unique<ClassicRecord>();
  const ClassicRecord previous = std::exchange(*record.epir, ClassicRecord(bytes));
  record.previousClassicActiveTime = previous.ActiveTime();
  // What is shown of an application comes from the desktop, often before its first report.
  if (!record.epir->IsLike(previous)) gRecords.NoteAppreciableChange(record);
  if (pid <= -2) gClassicEstimate.Charge(record);
  record.NoteValueChange();
}

void TouchProcessInformationForPID(std::int32_t pid, int kind) {
  const ConsolidatorGuard guard;
  // Only the kernel's table tells what is there: others would make a process without a name.
  if (pid >= 0 && kind != kInformationKindPID && gRecords.GetExistingPIDInformation(pid) == nullptr)
    return;
  auto& record = gRecords.GetPIDInformation(pid);
  record.lastSeenGeneration[Index(kind)] = gGenerationCount[Index(kind)];
}

}  // namespace lurkwell
