#include "platform/PrintableText.h"

#include <cstdint>
#include <cstdio>

namespace lurkwell {
namespace {

struct Character {
  std::uint32_t code = 0;
  /// Bytes it takes; 0 when they are no character.
  std::size_t length = 0;
};

/// The UTF-8 character at the front of a text that is not empty.
Character FirstCharacter(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {};
  std::uint32_t code = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {};
    code = code << 6 | (byte(i) & 0x3F);
  }
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < kSmallest[length] || code > 0x10FFFF || surrogate) return {};
  return {code, length};
}

bool IsControl(std::uint32_t code) {
  const bool direction = (code >= 0x200E && code <= 0x200F) || (code >= 0x202A && code <= 0x202E) ||
                         (code >= 0x2066 && code <= 0x2069) || code == 0x061C;
  const bool separator = code == 0x2028 || code == 0x2029 || code == 0xFEFF;
  return code < 0x20 || (code >= 0x7F && code <= 0x9F) || direction || separator;
}

}  // namespace

std::string PrintableText(std::string_view text) {
  std::string printable;
  printable.reserve(text.size());
  while (!text.empty()) {
    auto [code, length] = FirstCharacter(text);
    const bool shown = length > 0 && !IsControl(code);
    if (length == 0) length = 1;
    for (std::size_t i = 0; i < length; ++i) {
      char escape[5] = {text[i]};
      if (!shown)
        std::snprintf(escape, sizeof escape, "\\%03o", static_cast<unsigned char>(text[i]));
      printable += escape;
    }
    text.remove_prefix(length);
  }
  return printable;
}

}  // namespace lurkwell
