#pragma once

#include <memory>

#include "platform/CriticalRegion.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

/// Guards records, ps columns and synthetic pids. Re-entrant: a heartbeat holds it throughout,
/// while the report functions and the clients' handlers take it again. Null before start-up.
/// Private to the consolidator's files.
inline std::unique_ptr<CriticalRegion> gProcessInformationConsolidatorMutex;

#define LURKWELL_REGION_GUARDS LURKWELL_GUARDED_BY(*gProcessInformationConsolidatorMutex)
#define LURKWELL_IN_REGION LURKWELL_REQUIRES(*gProcessInformationConsolidatorMutex)

/// Inside the consolidator's region for as long as it lives. Code that needs another lock besides
/// enters this region first. Any thread. Before start-up and after the end
/// there is no region and no other thread, which the compiler cannot know.
class LURKWELL_SCOPED_CAPABILITY ConsolidatorGuard {
 public:
  ConsolidatorGuard()
      LURKWELL_ACQUIRE(*gProcessInformationConsolidatorMutex) LURKWELL_UNCHECKED_LOCKING
      : mRegion(gProcessInformationConsolidatorMutex.get()) {
    if (mRegion != nullptr) mRegion->Enter();
  }
  ~ConsolidatorGuard() LURKWELL_RELEASE() LURKWELL_UNCHECKED_LOCKING {
    if (mRegion != nullptr) mRegion->Exit();
  }
  ConsolidatorGuard(const ConsolidatorGuard&) = delete;
  ConsolidatorGuard& operator=(const ConsolidatorGuard&) = delete;

 private:
  CriticalRegion* mRegion;
};

}  // namespace lurkwell
