#pragma once

#include <cstdint>
#include <string>

#include "platform/Clock.h"

/// Texts for figures, in the user's preferred formats, which are read at every call. Main thread.
/// Assertions are of the unit ProcessActions.
namespace lurkwell {

/// Writes a number of bytes in the unit of GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT (1 bytes, 2
/// kilobytes, 3 megabytes, 4 gigabytes, anything else by magnitude), with `withSign` behind "+ ",
/// "- " or two blanks. `maxlen`, the buffer's size, must be above 20, which every 32-bit value fits
/// in; a text that does not fit is cut. Returns the length written.
///
/// Megabytes and gigabytes go through single precision. The lowest 32-bit value stays negative
/// behind its sign.
std::int32_t FormatMemoryString(std::int32_t value, char* out, std::int32_t maxlen, bool withSign);
/// The same for larger values.
std::int32_t FormatMemoryString(std::int64_t value, char* out, std::int32_t maxlen, bool withSign);

/// Writes a point in time in the format of GENERAL_PREFERRED_DATE_DISPLAY_FORMAT: 1 seconds, 2
/// seconds and microseconds, anything else local calendar text. `maxlen`, the buffer's size, must
/// be at least 26.
///
/// `width`, in characters, picks the part of the calendar text that fits: up to 15 the end of the
/// date and time without the year, up to 20 the same from the month on, up to 24 the end with the
/// year; 25 or more all of it, 0 or less all of it and a newline. Where microseconds do not fit
/// they are left out; digits of the seconds never are, since what is left would look like another
/// time.
void FormatDateString(char* out, std::int32_t maxlen, std::int64_t seconds,
                      std::int32_t microseconds, std::int32_t width);

/// The same two as texts of their own.
std::string MemoryString(std::int64_t bytes, bool withSign = false);
std::string DateString(TimeValue time, std::int32_t width);

/// Seconds, a point, and six digits of microseconds.
std::string TimeString(TimeValue time);

}  // namespace lurkwell
