#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "consolidator/TypedValue.h"

namespace lurkwell {

/// Whether a name can be a ps column's: those of all other properties begin with their source. Any
/// thread.
bool IsPSColumnName(std::string_view name);

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

}  // namespace lurkwell
