#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace lurkwell {

/// Moments of recordings, in microseconds since the epoch; people read and write them in the
/// machine's own time zone.

/// "2026-11-22 03:12:07".
std::string RecordedMomentText(std::int64_t wall);

/// Reads a moment in a recording whose last beat is of `last`: a time of day (the latest such time
/// up to `last`), a date with a time, by "T" or a blank, in this time zone or with "Z" or
/// "+HH:MM" behind it, a date alone (its beginning), or a span before `last` such as "-2h" or
/// "-1h30m", of d, h, m and s. Else says what is wrong.
std::variant<std::int64_t, std::string> ReadMoment(std::string_view text, std::int64_t last);

}  // namespace lurkwell
