#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TimeValue.h"

namespace lurkwell {

/// Columns of the system's ps as properties. Main thread.

/// Appends every keyword in what "ps -L" has printed, in its order.
void GetPSAvailableThings(std::string_view listing, std::vector<std::string>& list);

/// Finds out which columns ps can print and makes them known; at start-up. Waits a second at most.
/// What failed is done again in later passes.
void DiscoverPSHeaders();

/// For how long a pass waits for the runs of ps that it begins; not at all unless told. For
/// programs that nobody operates meanwhile.
void SetPSPatience(std::chrono::milliseconds patience);

/// The pass of kind 3: reports what the runs of ps have printed that earlier passes began, and
/// begins one for each column that due clients need, but for those that run still or rest.
/// Programs and main thread do not wait for one another. `now` is the heartbeat's time. Inside an
/// iteration of kind 3.
void PSExtractProcessInformation(TimeValue now);

}  // namespace lurkwell
