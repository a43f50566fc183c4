#pragma once

#include <string>
#include <vector>

#include "platform/TimeValue.h"

namespace lurkwell {

/// Columns of the system's ps as properties. Main thread.

/// Appends every keyword that "ps -o" accepts, in the order in which ps lists them.
void GetPSAvailableThings(std::vector<std::string>& list);

/// Finds out which columns ps can print and makes them known; at start-up.
void DiscoverPSHeaders();

/// The pass of kind 3: runs ps once for each column that due clients need, all runs at the same
/// time, and reports the values. Waits a second at most; a column whose run was not over by then
/// keeps what had come and rests for a minute. `now` is the heartbeat's time. Inside an iteration
/// of kind 3.
void PSExtractProcessInformation(TimeValue now);

}  // namespace lurkwell
