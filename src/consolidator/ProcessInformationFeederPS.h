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

/// Begins to find out which columns ps can print; at start-up. They become known between the
/// heartbeats, when ps has answered, and all clients are told then. What failed is done again in
/// later passes.
void DiscoverPSHeaders();

/// Waits until the columns are known, for `limit` at most. For programs that nobody operates
/// meanwhile.
void AwaitPSColumns(std::chrono::milliseconds limit);

/// Has ps never be started, so that it has no columns; before the consolidator is started. For
/// programs that show none of them.
void LeavePSOut(bool leaveOut);

/// For how long a pass waits for the runs of ps that it begins; not at all unless told. For
/// programs that nobody operates meanwhile.
void SetPSPatience(std::chrono::milliseconds patience);

/// The pass of kind 3: begins a run of ps for each column that due clients need, but for those that
/// run still or rest. What they print is reported between the heartbeats, as soon as they end, and
/// all clients are told then. Programs and main thread do not wait for one another. `now` is the
/// heartbeat's time. Inside an iteration of kind 3.
void PSExtractProcessInformation(TimeValue now);

}  // namespace lurkwell
