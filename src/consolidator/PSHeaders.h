#pragma once

#include <string_view>

#include "consolidator/PSColumns.h"

namespace lurkwell {

/// The columns that ps can print, each known by the header that ps prints above it. Columns are
/// found once, soon after start-up, and numbered from 0 in the order in which they were found; none
/// is ever forgotten.

/// Any thread.
int GetPSHeaderCount();

/// The index of the column with that header, -1 when there is none. Any thread.
int FindPSHeader(std::string_view header);

/// Copies the header with that index (if `dest` is given and `length` is at least 2) and tells, if
/// asked, whether the latest ps pass had its newest values. An index that no header has is a fatal
/// assertion. Any thread.
void GetNthPSHeader(int index, char* dest, int length, bool* isCurrent);

/// How many ps options print this column, and the n-th of them, newest first; a missing n is a
/// fatal assertion. Any thread.
int GetNthPSHeadersGeneratingOptionCount(int index);
void GetNthPSHeadersNthGeneratingOption(int index, int n, char* dest, int length);

/// Makes a column known and current. `option` is a ps option that prints it, or null for a column
/// that is known already: a new column without an option is a fatal assertion. Any thread.
void EnsureThatPSProcPropertyExists(const char* keyword, const char* option);

}  // namespace lurkwell
