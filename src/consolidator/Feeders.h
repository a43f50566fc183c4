#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "consolidator/Region.h"
#include "platform/Clock.h"

namespace lurkwell {

/// What brings figures into the records: one feeder a kind, and the heartbeat's passes over them.
/// Main thread.

// ---- Kind 0: the kernel's processes

/// The pass of kind 0: reads the kernel's process table and reports what due clients need of each
/// process; a process that no client needs is touched. Alone in making and retiring records of
/// kernel processes. A pass that lists is an iteration of kind 0; one for which nothing has to be
/// listed is none. `now` is the heartbeat's time.
void PIDExtractProcessInformation(TimeValue now) LURKWELL_IN_REGION;

/// Whether figures come from the helper: the process table tells none, or the user wants it so.
bool IsHelperAskedForFigures();

/// The kernel feeder on a machine whose process table tells figures to everybody: the sources that
/// due clients need are read where they may have changed, and what has been read goes into the
/// records. A beat in which no list is needed, and before which no process was born, does not even
/// list; a process that is followed and has ended brings the list.
void FeedOpenFigures(TimeValue now) LURKWELL_IN_REGION;

/// The kernel feeder on a machine where only the helper tells figures, or where a preference says
/// that it is to be asked: a request for each process of which a due client needs some.
void FeedHelperFigures(TimeValue now) LURKWELL_IN_REGION;

// ---- Kind 1: applications

/// The pass of kind 1: reports name, type, signature and mode of every application that due clients
/// need, touches the others; an application that cannot be described any more is left out and so
/// retired. `now` is the heartbeat's time. Main thread, inside an iteration of kind 1.
void PSNExtractProcessInformation(TimeValue now);

// ---- Kind 3: columns of the system's ps

/// Appends every keyword in what "ps -L" has printed, in its order.
void GetPSAvailableThings(std::string_view listing, std::vector<std::string>& list);

/// Begins to find out which columns ps can print; at start-up. They become known between the
/// heartbeats, when ps has answered, and all clients are told then. What failed is done again in
/// later passes.
void DiscoverPSHeaders();

/// Waits until the columns are known, for `limit` at most. For programs without windows.
void AwaitPSColumns(std::chrono::milliseconds limit);

/// Has ps never be started, so that it has no columns; before the consolidator is started. For
/// programs that show none of them.
void LeavePSOut(bool leaveOut);

/// For how long a pass waits for the runs of ps that it begins; not at all unless told. For
/// programs without windows.
void SetPSPatience(std::chrono::milliseconds patience);

/// The pass of kind 3: begins a run of ps for each column that due clients need, but for those that
/// run still or rest. What they print is reported between the heartbeats, as soon as they end, and
/// all clients are told then. Programs and main thread do not wait for one another. `now` is the
/// heartbeat's time. Inside an iteration of kind 3.
void PSExtractProcessInformation(TimeValue now) LURKWELL_IN_REGION;

}  // namespace lurkwell
