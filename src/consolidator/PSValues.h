#pragma once

#include <cstdint>
#include <string_view>

#include "consolidator/PropertyTypes.h"
#include "consolidator/TypedValue.h"

namespace lurkwell {

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
