#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ProcessDetails.h"

namespace lurkwell {

/// What the group at `path` (of the unified hierarchy, whose folder is open) uses and is allowed,
/// then what limits there are in the groups above it. Files that are missing are left out. Any
/// thread.
std::vector<ControlGroupDetails> ReadControlGroupLimits(int hierarchy, std::string_view path);

/// What a quota ("50000 100000") lets a group use, in thousandths of one processor; nothing for
/// "max" and for what is none. Pure.
std::optional<std::int64_t> ShareOfQuota(std::string_view text);

}  // namespace lurkwell
