#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// How the feeders bring in what they have read. A feeder reports inside an iteration of its kind;
/// when the iteration ends, records that their kind did not name again are retired. Main thread;
/// each call takes the consolidator's region for its own duration.

/// Begins an iteration: enters the kind's region and counts its generation on.
void BeginProcessInformationIteration(int kind);

/// Ends it: records of that kind that were not seen lose their validity, derived properties are
/// computed, the kind's region is left. An unknown kind is a fatal assertion.
void EndProcessInformationIteration(int kind);

/// A "pid_" value (makes the record if it is missing) or a ps column's value (ignored for an
/// unknown process) of a kernel process. Integers that do not parse count as 0, a parent that does
/// not parse as unknown; a number too large for its property leaves the old value. "meta_" names
/// are ignored.
void ReportProcessInformationForPID(std::int32_t pid, const char* property, const char* value);

/// A "carbonpsn_" value of an application. Dropped while the kernel's table has not named its
/// process. Another property's name is a fatal assertion.
void ReportProcessInformationForCarbonPSN(ProcessSerialNumber psn, const char* property,
                                          const char* value);

/// One Classic application, 396 bytes. Charges it with CPU time.
void ReportProcessInformationClassicPSNBlob(ProcessSerialNumber psn, const std::byte* record);

/// The process is still there, but its data of this kind are not needed. An unknown kernel process
/// becomes known only by kind 0.
void TouchProcessInformationForPID(std::int32_t pid, int kind);

}  // namespace lurkwell
