#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace lurkwell {

/// A text from outside (a process name, a ps column) as it may be shown: on one line, with control
/// characters, marks that turn the direction of writing, and bytes that are no UTF-8 written as
/// backslash escapes. Any thread.
std::string PrintableText(std::string_view text);

/// How many characters a text in UTF-8 has.
inline std::size_t CountCharacters(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return (c & '\xC0') != '\x80'; }));
}

/// A ps column's value without the newline that it ends in.
inline std::string_view WithoutNewline(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  return text;
}

}  // namespace lurkwell
