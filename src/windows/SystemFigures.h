#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace lurkwell {

/// The memory of the machine, in bytes, and the pages that it wrote out since it started.
struct SystemFigures {
  std::int64_t physicalBytes = 0;
  std::int64_t usedBytes = 0;  ///< all that is not free
  std::int64_t wiredBytes = 0;
  std::int64_t inactiveBytes = 0;
  std::int64_t pageouts = 0;
  /// Whether the host told the pages; without, their number says nothing.
  bool knowsPageouts = false;
};

/// From the host's statistics. What those do not tell is printed, and counts as 0. Main thread.
SystemFigures ReadSystemFigures();

/// The CPU usage of the whole machine from one reading to the next, by the idle time, which is the
/// CPU time of process 0; its user needs that process's "meta_active_time". Main thread.
class MachineUsage {
 public:
  /// The first reading counts from now.
  MachineUsage();

  /// From 1 for a busy machine downwards; not bounded, since idle time is not measured at the same
  /// instant. 1 at the first reading, which has nothing to compare with; 0, with a printed line,
  /// when there is no process 0. Where its times were not read, the usage before, until a reading
  /// tells that of all the time between. Readings closer than 10 ms count as 10 ms apart.
  double Take();

 private:
  TimeValue mLastUpdate;
  TimeValue mLastIdleTime;
  double mUsage = 0.0;
};

}  // namespace lurkwell
