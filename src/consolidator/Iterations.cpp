// The beginning and the end of a feeder's pass.
#include <cstring>
#include <string_view>
#include <utility>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PidReport.h"
#include "consolidator/ProcessReports.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

constexpr std::string_view kClassicEnvironmentPrefix = "TruBlue";
constexpr Figure kCPUTimes[] = {FigureCalled("pid_user_time"), FigureCalled("pid_system_time"),
                                FigureCalled("pid_terminated_user_time"),
                                FigureCalled("pid_terminated_system_time")};

void RetireUnlessSeen(MetaProcessInformation& record, std::size_t kind) LURKWELL_IN_REGION {
  if (record.lastSeenGeneration[kind] < gGenerationCount[kind]) gRecords.Invalidate(record);
}

void DeriveActiveTime(MetaProcessInformation& record) {
  TimeValue time;
  for (const Figure figure : kCPUTimes) time = time + TimeOfMicroseconds((*record.pidInfo)[figure]);
  if (std::exchange(record.activeTime, time) != time) record.NoteValueChange();
}

void DeriveName(MetaProcessInformation& record) LURKWELL_IN_REGION {
  const char* commandName = record.pidInfo->commandName;
  if (std::strncmp(record.name, commandName, kCommandNameCapacity) == 0) return;
  if (record.name[0] != '\0' && record.carbonInfo == nullptr)
    gRecords.NoteAppreciableChange(record);
  StoreText(record.name, std::string_view(commandName));
  record.NoteValueChange();
}

bool IsEnvironment(const MetaProcessInformation& record) {
  return record.valid && std::string_view(record.name).starts_with(kClassicEnvironmentPrefix);
}

ProcessIdentity IdentityOf(const MetaProcessInformation& record) {
  return {record.pid, record.pidInfo->startStamp};
}

/// One environment at a time: the first, as long as it is there.
void MeasureEnvironment(const MetaProcessInformation& record) LURKWELL_IN_REGION {
  const auto measured = gClassicEstimate.Environment();
  const auto* other = gRecords.GetExistingPIDInformation(measured.pid);
  if (other != nullptr && other != &record && IsEnvironment(*other) &&
      IdentityOf(*other) == measured)
    return;
  gClassicEstimate.MeasureEnvironment(IdentityOf(record), record.activeTime,
                                      TheMachine().clock.Now());
}

// An iteration is inside its kind's region from one function to another.
void EnterKind(std::size_t kind) LURKWELL_UNCHECKED_LOCKING {
  gInformationKindGenerationMutex[kind]->Enter();
}
void LeaveKind(std::size_t kind) LURKWELL_UNCHECKED_LOCKING {
  gInformationKindGenerationMutex[kind]->Exit();
}

}  // namespace

void Derive(MetaProcessInformation& record) {
  Require(record.pidInfo != nullptr, kUnit, "mpi->pidInfo");
  DeriveActiveTime(record);
  // The desktop names applications.
  if (!record.psn.IsNone()) return;
  DeriveName(record);
  // A heartbeat for a client that needs no times says nothing about them; the next one, perhaps a
  // millisecond later, would find a whole interval's use in it.
  if (IsEnvironment(record) && AreTimesRead(record)) MeasureEnvironment(record);
}

void BeginProcessInformationIteration(int kind) {
  Require(kind >= 0 && kind < kInformationKindCount, kUnit, "false");
  const auto index = static_cast<std::size_t>(kind);
  EnterKind(index);
  const ConsolidatorGuard guard;
  ++gGenerationCount[index];
}

void EndProcessInformationIteration(int kind) {
  Require(kind >= 0 && kind < kInformationKindCount, kUnit, "false");
  const auto index = static_cast<std::size_t>(kind);
  {
    const ConsolidatorGuard guard;
    if (kind == kInformationKindPID) {
      for (auto& record : gRecords.Records()) {
        if (record.pid < 0) continue;
        RetireUnlessSeen(record, index);
        Derive(record);
      }
    } else if (kind == kInformationKindCarbonPSN) {
      for (auto* record : gRecords.WithSerialNumber()) RetireUnlessSeen(*record, index);
    }
  }
  LeaveKind(index);
}

}  // namespace lurkwell
