#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "platform/Clock.h"

namespace lurkwell {

/// Reads texts piece by piece; what was read is taken off the front.

inline bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

inline void SkipBlanks(std::string_view& text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
}

/// The next run of other characters than blanks; empty at the end.
inline std::string_view ScanWord(std::string_view& text) {
  SkipBlanks(text);
  std::size_t length = 0;
  while (length < text.size() && !IsBlank(text[length])) ++length;
  const auto word = text.substr(0, length);
  text.remove_prefix(length);
  return word;
}

/// A decimal integer after blanks, with an optional sign; nothing, and the text left at the first
/// other character, when there is none or it does not fit 64 bits.
inline std::optional<std::int64_t> ScanInteger(std::string_view& text) {
  SkipBlanks(text);
  std::string_view digits = text;
  if (digits.starts_with('+')) {
    digits.remove_prefix(1);
    if (digits.starts_with('-')) return std::nullopt;
  }
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc{}) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return value;
}

/// Whether a decimal number stands at the front, be it of any size.
inline bool StartsWithNumber(std::string_view text) {
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

/// "12.345678": seconds, a point, and a count of microseconds, no fraction. What is missing counts
/// as 0.
inline TimeValue ReadTime(std::string_view text) {
  constexpr std::int64_t kASecond = 1'000'000;
  const std::int64_t seconds = ScanInteger(text).value_or(0);
  std::int64_t microseconds = 0;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    microseconds = std::max<std::int64_t>(ScanInteger(text).value_or(0), 0);
  }
  const std::int64_t carry = microseconds / kASecond;
  if (seconds > std::numeric_limits<std::int64_t>::max() - carry) return {};
  return {seconds + carry, static_cast<std::int32_t>(microseconds % kASecond)};
}

/// The beginning of a text that fits so many bytes, without half a character of UTF-8 at its end.
inline std::string_view WholeCharacters(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  // A character has four bytes at most; what goes on for longer is none.
  for (std::size_t end = bytes; end > 0 && bytes - end < 4; --end)
    if ((text[end] & '\xC0') != '\x80') return text.substr(0, end);
  return text.substr(0, bytes);
}

/// The next line without its newline; nothing at the end.
inline std::optional<std::string_view> ScanLine(std::string_view& text) {
  if (text.empty()) return std::nullopt;
  const auto newline = text.find('\n');
  const auto line = text.substr(0, newline);
  text.remove_prefix(newline == std::string_view::npos ? text.size() : newline + 1);
  return line;
}

}  // namespace lurkwell
