#pragma once

#include <QString>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "windows/RowDictionary.h"

namespace lurkwell {

/// Orders rows by one column. Rows that compare the same are ordered by pid, in the direction of
/// the sort, so every order is complete. What is missing comes last in both directions, and before
/// it texts where numbers are to be expected. Main thread only.

/// What a comparison may know besides the two rows.
struct compareContextStructure {
  KeyId sortKey = kNoKey;
  bool ascending = true;
};

/// A row together with what its comparison looks at, read once per sort rather than once per
/// comparison.
struct SortedRow {
  RowDictionary* row = nullptr;
  std::int64_t pid = 0;
  bool isMissing = false;
  /// A text where a number was to be expected.
  bool isText = false;
  double number = 0.0;
  std::int64_t integer = 0;
  /// With the case folded.
  QString text;
  bool hasApplication = false;
  bool hasAction = false;
};

/// -1, 0 or 1 as `a` comes before, with or after `b`.
using RowComparison = int (*)(const SortedRow& a, const SortedRow& b,
                              const compareContextStructure& context);

int pidCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
int stringCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
int integerCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
int realCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
int memoryCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
/// Spans and dates.
int timeCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
/// The idle task counts as 0, unless MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE is 0; so for the
/// next one. Two of them cannot be ("pid1 || pid2").
int cpuPercentCompare(const SortedRow& a, const SortedRow& b,
                      const compareContextStructure& context);
/// By the size that the bars' length shows, usually the virtual one.
int memGraphCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
/// Applications first when ascending, then by name.
int iconCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);
/// Processes that something was done to first when ascending, then as iconCompare.
int indicatorCompare(const SortedRow& a, const SortedRow& b,
                     const compareContextStructure& context);
/// Not sortable: one beep a comparison, and the same.
int hexCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context);

/// The comparison that a click on the column would use; null for an empty key.
RowComparison ComparisonForColumn(std::string_view key);

/// The same, but null where sorting changes nothing: hexadecimal properties and unknown keys that
/// begin with "internal_".
RowComparison SortingComparisonForColumn(std::string_view key);

/// Whether the idle task's CPU share and size count as 0 where they would hide all others'.
bool IgnoresPidZero();

/// Sorts with n log n comparisons; with n and those of the rest when all but the last few are in
/// order already. True when a row has moved.
bool SortRows(std::span<RowDictionary*> rows, RowComparison comparison,
              const compareContextStructure& context);

}  // namespace lurkwell
