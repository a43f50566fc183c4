#pragma once

#include <span>

#include "platform/ProcessTable.h"

namespace lurkwell {

/// How many steps following parents may take; longer chains are cut.
inline constexpr int kDeepestAncestry = 4096;

/// Makes the parents of a list of processes fit to be followed, however they were read: a parent
/// that is not in the list, is younger than its child, closes a loop or lies kDeepestAncestry steps
/// below the top becomes kInvalidPID. Pid 0 alone may be its own parent. Where a pid stands twice,
/// its first entry counts as the parent. Pure; time and memory linear in the number of entries.
void CloseParents(std::span<ProcessTableEntry> entries);

}  // namespace lurkwell
