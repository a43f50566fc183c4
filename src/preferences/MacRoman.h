#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lurkwell {

/// The UTF-8 form of Mac Roman bytes. Every byte has one, so this does not fail. Any thread.
std::string Utf8FromMacRoman(std::string_view bytes);

/// Writes the Mac Roman form of `utf8` and a terminating NUL into `buffer` of `bufferSize` bytes.
/// False, with the buffer as it was, when the text is not well-formed UTF-8, holds a character
/// that Mac Roman lacks or a NUL, or needs more than `bufferSize` bytes with its terminator. Any
/// thread.
bool MacRomanFromUtf8(std::string_view utf8, char* buffer, std::int32_t bufferSize);

/// True when all bytes are below 0x80, where both encodings are the same.
bool IsAscii(std::string_view bytes);

}  // namespace lurkwell
