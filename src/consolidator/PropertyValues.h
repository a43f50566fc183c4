#pragma once

#include <cstdint>
#include <optional>

#include "platform/TimeValue.h"

namespace lurkwell {

/// The value of a property of a process as text, in the caller's buffer of `length` bytes, always
/// terminated. True when `dest` holds a value; `found` (may be null) tells whether there is such a
/// process at all: it must be known and valid. A process that lacks the part in which the property
/// lies gives false and "n/a" (kernel figures), "-" (desktop) or an empty text. A ps column that
/// nobody has ever heard of is a fatal assertion once the process has any ps value, so ask only for
/// names that GetNthProcPropertyHeader gives. Any thread.
bool GetPIDPropertyValue(std::int32_t pid, const char* name, char* dest, std::int32_t length,
                         bool* found);

/// The CPU time of a process, "meta_active_time" without the text; nothing when there is no such
/// process. Any thread.
std::optional<TimeValue> ActiveTimeOf(std::int32_t pid);

}  // namespace lurkwell
