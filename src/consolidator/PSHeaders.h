#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "consolidator/PropertyCatalogue.h"
#include "consolidator/TypedValue.h"

namespace lurkwell {

/// The columns that ps can print, each known by the header that ps prints above it. Columns are
/// found once, soon after start-up, and numbered from 0 in the order in which they were found; none
/// is ever forgotten.

/// Whether ps has told its columns by now (or that it has none): what is unknown then, there is
/// not. Main thread.
bool ArePSColumnsKnown();

/// Whether a name can be a ps column's: those of all other properties begin with their source. Any
/// thread.
bool IsPSColumnName(std::string_view name);

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

// ---- For the consolidator itself ----------------------------------------------------------------

struct ProcessInformationPSHeader {
  std::string keyword;
  int index = 0;
  /// The generation of the ps passes in which the column last had a value.
  std::int32_t generation = 0;
  /// The last run for it that ended had values.
  bool hasNewestValues = false;
  /// Oldest first.
  std::vector<std::string> generatingOptions;
};

/// All columns with an index by name. Guarded by the consolidator's region.
class PSHeaderRegistry {
 public:
  int Count() const { return static_cast<int>(mHeaders.size()); }
  ProcessInformationPSHeader* Find(std::string_view keyword);
  ProcessInformationPSHeader& Nth(int index);
  ProcessInformationPSHeader& Add(std::string_view keyword);
  void Clear();

 private:
  std::deque<ProcessInformationPSHeader> mHeaders;
  std::unordered_map<std::string_view, ProcessInformationPSHeader*> mByKeyword;
};

/// What is known of a ps column by its name. The system's tools say it; what they do not say stands
/// in a table of our own, and a column in neither is a text that changes.
struct PSColumnFacts {
  PropertyType type = kPropertyTypeString;
  bool changes = true;
  /// Of a memory size: bytes that a printed 1 stands for.
  std::int64_t unit = 1;
  /// Of a process that ps may not look into, it prints 0 or "-".
  bool isPrivate = false;
};

/// Any thread.
PSColumnFacts FactsOfPSColumn(std::string_view name);

/// The value in what ps has printed for a column, trailing newline or not: sizes in bytes, spans
/// and points of time as times (a date in the local time zone). What does not read as a value of
/// its type ("-", a size beyond 64 bits) is ps's own text. Any thread.
TypedValue ReadPSValue(const PSColumnFacts& facts, std::string_view text);

}  // namespace lurkwell
