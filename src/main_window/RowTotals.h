#pragma once

#include <span>
#include <vector>

#include "windows/RowDictionary.h"

namespace lurkwell {

/// Figures of several processes as one. Main thread.

/// Of these columns, what is added up for their cells, each once: sizes, times, shares, rates and
/// counts that belong to one process alone. What a whole unit has used is no figure of a process,
/// and nice values have no sum.
std::vector<KeyId> KeysToAddUp(std::span<const KeyId> columns);

/// What the row has to add: its own figure. For resident memory the proportional size, where that
/// is known, since what processes share would be counted for each of them.
const RowValue& Addend(const RowDictionary& row, KeyId key);

/// Adds numbers and times; what is missing adds nothing, and two that are missing are so for the
/// first one's reason.
void AddTo(RowValue& sum, const RowValue& value);

}  // namespace lurkwell
