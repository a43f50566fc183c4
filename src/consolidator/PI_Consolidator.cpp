#include "consolidator/PI_Consolidator.h"

#include <iterator>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/Feeders.h"
#include "consolidator/PSPrograms.h"
#include "consolidator/ProcessReports.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

/// Only a fall-back: every heartbeat sets its next date itself.
constexpr double kFallbackInterval = 300.0;

using Client = ProcessInformationClient;

/// Whether `position` is the end of the records made since the last heartbeat.
bool AtOldRecords(RecordStore::List::iterator position) LURKWELL_IN_REGION {
  return position == gRecords.Records().end() || position->pid == gFirstPidLastIteration;
}

/// Deletes records that were made and lost their validity within this heartbeat: for the clients
/// they never existed. True when there were any.
bool DeletePhantoms() LURKWELL_IN_REGION {
  if (!gRecords.AreAnyInvalid()) return false;
  bool deleted = false;
  auto previous = gRecords.Records().before_begin();
  for (auto at = std::next(previous); !AtOldRecords(at); at = std::next(previous)) {
    if (at->valid) {
      previous = at;
    } else {
      gRecords.EraseAfter(previous);
      deleted = true;
    }
  }
  return deleted;
}

void AnnounceNew() LURKWELL_IN_REGION {
  for (auto at = gRecords.Records().begin(); !AtOldRecords(at); ++at)
    if (at->valid) Client::NotifyAllPidHasBeenAdded(at->pid);
  gFirstPidLastIteration = gRecords.HeadPid();
}

void AnnounceChanged() LURKWELL_IN_REGION {
  if (!gRecords.HaveAnyChanged()) return;
  for (auto& record : gRecords.Records()) {
    if (!record.changedAppreciably) continue;
    Client::NotifyAllPidHasChangedAppreciably(record.pid);
    record.changedAppreciably = false;
  }
  gRecords.ChangesAreAnnounced();
}

bool RetireRemoved() LURKWELL_IN_REGION {
  if (!gRecords.AreAnyInvalid()) return false;
  bool removed = false;
  auto previous = gRecords.Records().before_begin();
  for (auto at = std::next(previous); at != gRecords.Records().end(); at = std::next(previous)) {
    if (at->valid) {
      previous = at;
      continue;
    }
    Client::NotifyAllPidHasBeenRemoved(at->pid, false);
    gRecords.EraseAfter(previous);
    removed = true;
  }
  if (removed) gFirstPidLastIteration = gRecords.HeadPid();
  return removed;
}

/// A parent that is gone counts as unknown, so that no walk up the family meets a missing record.
void ForgetMissingParents() LURKWELL_IN_REGION {
  for (auto& record : gRecords.Records()) {
    if (record.pidInfo == nullptr) continue;
    auto& parent = record.pidInfo->parentPid;
    if (parent != kInvalidPID && gRecords.GetExistingPIDInformation(parent) == nullptr)
      parent = kInvalidPID;
  }
}

void RunFeeders(TimeValue now) LURKWELL_IN_REGION {
  PIDExtractProcessInformation(now);
  BeginProcessInformationIteration(kInformationKindPS);
  PSExtractProcessInformation(now);
  EndProcessInformationIteration(kInformationKindPS);
  BeginProcessInformationIteration(kInformationKindCarbonPSN);
  PSNExtractProcessInformation(now);
  EndProcessInformationIteration(kInformationKindCarbonPSN);
}

void ForgetEverything() {
  const ConsolidatorGuard guard;
  gRecords.Clear();
  gPSHeaders.Clear();
  gPSN2PIDMap.Clear();
  gClassicEstimate = {};
  gFirstPidLastIteration = kInvalidPID;
  gGenerationCount.fill(0);
}

}  // namespace

void InitializeProcessInformationConsolidator() {
  Require(gProcessInformationConsolidatorMutex == nullptr, kUnit,
          "gProcessInformationConsolidatorMutex == NULL");
  gProcessInformationConsolidatorMutex = std::make_unique<CriticalRegion>();
  {
    const ConsolidatorGuard guard;
    gGenerationCount.fill(0);
  }
  for (auto& region : gInformationKindGenerationMutex) region = std::make_unique<CriticalRegion>();
  DiscoverPSHeaders();
  gHeartbeatCFTimerRef =
      TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime(), kFallbackInterval,
                                    [] { HeartbeatCFTimerFunc(gHeartbeatCFTimerRef.get()); });
}

void HeartbeatCFTimerFunc(RunLoopTimer* timer) {
  const ConsolidatorGuard guard;
  const TimeValue now = TheMachine().clock.Now();
  // A client's handler may run a heartbeat within its own.
  gFamilyIndex.Share(false);
  Client::TakeEarlyOnesAlong(now);
  RunFeeders(now);
  const bool phantoms = DeletePhantoms();
  AnnounceNew();
  AnnounceChanged();
  const bool removed = RetireRemoved();
  if (phantoms || removed) ForgetMissingParents();
  gFamilyIndex.Share(true);
  Client::NotifyAllProcessesHaveBeenUpdated(&now);
  gFamilyIndex.Share(false);
  Client::SetNextHeartbeat(*timer, now);
}

bool ArePSColumnsKnown() {
  return gPSDiscovery.IsDone();
}

void RequestUpdate(ProcessInformationClient* client) {
  Client::MakeDue(client);
  gHeartbeatCFTimerRef->SetNextFireDate(TheMachine().clock.AbsoluteTime());
}

void DestroyProcessInformationConsolidator() {
  gHeartbeatCFTimerRef.reset();
  gPSTimer.reset();
  gPSHasNews = false;
  gPSPrograms.Clear();
  gPSDiscovery.Clear();
  ForgetEverything();
  for (auto& region : gInformationKindGenerationMutex) region.reset();
  gProcessInformationConsolidatorMutex.reset();
}

}  // namespace lurkwell
