#pragma once

#include <cstdint>

#include "platform/TimeValue.h"

namespace lurkwell {

/// The pass of kind 0: reads the kernel's process table and reports what due clients need of each
/// process; a process that no client needs is touched. Alone in making and retiring records of
/// kernel processes. A pass that lists is an iteration of kind 0; one for which nothing has to be
/// listed is none. `now` is the heartbeat's time. Main thread, inside the consolidator's region.
void PIDExtractProcessInformation(TimeValue now);

/// Whether figures come from the helper: the process table tells none, or the user wants it so.
bool IsHelperAskedForFigures();

}  // namespace lurkwell
