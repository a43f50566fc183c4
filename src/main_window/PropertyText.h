#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

#include "consolidator/PropertyTypes.h"
#include "main_window/RowDictionary.h"
#include "platform/TimeValue.h"

namespace lurkwell {

/// From the consolidator's texts to values, and from values to what the user reads.

/// The value of a property of that type; nothing for hexadecimal ones, which no table shows.
/// Numbers that do not parse count as 0.
RowValue ReadValue(PropertyType type, std::string_view text);

/// The same for a column of ps. Where its type says number and ps prints none, or one that is not
/// decimal ("-", a mask of signals), the value is the text.
RowValue ReadPSValue(PropertyType type, std::string_view text);

/// A span of time without its trailing zeros, but with two digits behind the point at least:
/// 12.34, 12.50, 12.00, 3.1415.
QString TimeText(TimeValue time);

/// A process's own text on one line, as PrintableText has it.
QString PlainText(std::string_view text);

/// What a cell shows. `width` is the column's, in characters, which dates are fitted to. Dates of
/// made-up processes (`pid` below 0) are not shown.
QString DisplayText(PropertyType type, const RowValue& value, int width, std::int32_t pid);

}  // namespace lurkwell
