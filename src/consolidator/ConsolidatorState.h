#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "consolidator/ClassicEstimate.h"
#include "consolidator/PSColumns.h"
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

/// Main thread only; null before start-up.
inline std::unique_ptr<RunLoopTimer> gHeartbeatCFTimerRef;

}  // namespace lurkwell
