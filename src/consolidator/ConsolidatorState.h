#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "consolidator/Applications.h"
#include "consolidator/ClassicReports.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/PSPrograms.h"
#include "consolidator/RecordStore.h"
#include "consolidator/Region.h"
#include "consolidator/TypedValue.h"
#include "platform/CriticalRegion.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// What the consolidator keeps; private to its files.

/// Held from the beginning to the end of an iteration of a kind.
inline std::array<std::unique_ptr<CriticalRegion>, kInformationKindCount>
    gInformationKindGenerationMutex;

/// How many iterations of a kind have begun.
inline std::array<std::int32_t, kInformationKindCount> gGenerationCount LURKWELL_REGION_GUARDS{};

inline RecordStore gRecords LURKWELL_REGION_GUARDS;
inline FamilyIndex gFamilyIndex LURKWELL_REGION_GUARDS;
inline PSHeaderRegistry gPSHeaders LURKWELL_REGION_GUARDS;
inline SyntheticPidTable gPSN2PIDMap LURKWELL_REGION_GUARDS;
inline ClassicEstimate gClassicEstimate LURKWELL_REGION_GUARDS;

/// The pid of the newest record at the end of the last heartbeat: what stands before it is new.
inline std::int32_t gFirstPidLastIteration LURKWELL_REGION_GUARDS = kInvalidPID;

// ---- Main thread only
inline PSDiscovery gPSDiscovery;
inline PSPrograms gPSPrograms;
/// Looks after what ps has been asked, between the heartbeats; null when that is nothing.
inline std::unique_ptr<RunLoopTimer> gPSTimer;
/// A heartbeat has had news of ps columns, of which only due clients know so far.
inline bool gPSHasNews = false;

inline std::unique_ptr<RunLoopTimer> gHeartbeatCFTimerRef;

}  // namespace lurkwell
