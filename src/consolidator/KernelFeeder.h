#pragma once

#include "platform/TimeValue.h"

namespace lurkwell {

/// The pass of kind 0: reads the kernel's process table once and reports what due clients need of
/// each process; a process that nobody needs is touched. Alone in making and retiring records of
/// kernel processes. `now` is the heartbeat's time. Main thread, inside an iteration of kind 0.
void PIDExtractProcessInformation(TimeValue now);

}  // namespace lurkwell
