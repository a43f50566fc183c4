#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

#include "consolidator/Applications.h"
#include "consolidator/ClassicReports.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/PSPrograms.h"
#include "consolidator/RecordStore.h"
#include "consolidator/TypedValue.h"
#include "platform/CriticalRegion.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// What the consolidator keeps; private to its files. Everything but the regions themselves is
/// guarded by gProcessInformationConsolidatorMutex.

/// Guards records, ps columns and synthetic pids. Re-entrant: a heartbeat holds it throughout,
/// while the report functions and the clients' handlers take it again. Null before start-up.
inline std::unique_ptr<CriticalRegion> gProcessInformationConsolidatorMutex;

/// Held from the beginning to the end of an iteration of a kind.
inline std::array<std::unique_ptr<CriticalRegion>, kInformationKindCount>
    gInformationKindGenerationMutex;

/// How many iterations of a kind have begun.
inline std::array<std::int32_t, kInformationKindCount> gGenerationCount{};

inline RecordStore gRecords;
inline FamilyIndex gFamilyIndex;
inline PSHeaderRegistry gPSHeaders;
inline PSDiscovery gPSDiscovery;
inline PSPrograms gPSPrograms;
/// Looks after what ps has been asked, between the heartbeats; null when that is nothing.
inline std::unique_ptr<RunLoopTimer> gPSTimer;
/// A heartbeat has had news of ps columns, of which only due clients know so far.
inline bool gPSHasNews = false;
inline SyntheticPidTable gPSN2PIDMap;
inline ClassicEstimate gClassicEstimate;

/// The pid of the newest record at the end of the last heartbeat: what stands before it is new.
inline std::int32_t gFirstPidLastIteration = kInvalidPID;

inline std::unique_ptr<RunLoopTimer> gHeartbeatCFTimerRef;

/// Inside the consolidator's region for as long as it lives; before start-up there is no region
/// and no other thread.
class ConsolidatorGuard {
 public:
  ConsolidatorGuard() {
    if (gProcessInformationConsolidatorMutex != nullptr)
      mGuard.emplace(*gProcessInformationConsolidatorMutex);
  }

 private:
  std::optional<CriticalRegion::Guard> mGuard;
};

}  // namespace lurkwell
