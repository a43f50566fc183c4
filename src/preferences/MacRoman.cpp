#include "preferences/MacRoman.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace lurkwell {
namespace {

constexpr std::size_t kFirstByte = 0x80;

// What the bytes from 0x80 stand for.
constexpr std::array<char16_t, 128> kUpperHalf = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3,
    0x00E5, 0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3,
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3,
    0x00A7, 0x2022, 0x00B6, 0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8,
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA,
    0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB,
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D,
    0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1, 0x00CB, 0x00C8, 0x00CD, 0x00CE,
    0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7};

void AppendUtf8(std::string& text, char16_t character) {
  if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
  } else {
    text += static_cast<char>(0xE0 | (character >> 12));
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
  }
  text += static_cast<char>(0x80 | (character & 0x3F));
}

// Takes one character of two or three bytes off the front; longer ones are beyond Mac Roman.
std::optional<char16_t> TakeCharacter(std::string_view& utf8) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned lead = byteAt(0);
  const std::size_t length = (lead & 0xE0) == 0xC0 ? 2 : (lead & 0xF0) == 0xE0 ? 3 : 0;
  if (length == 0 || utf8.size() < length) return std::nullopt;
  unsigned character = lead & (length == 2 ? 0x1F : 0x0F);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0) != 0x80) return std::nullopt;
    character = character << 6 | (byteAt(i) & 0x3F);
  }
  if (character < (length == 2 ? 0x80U : 0x800U)) return std::nullopt;
  utf8.remove_prefix(length);
  return static_cast<char16_t>(character);
}

std::optional<std::string> Converted(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    if (static_cast<unsigned char>(utf8.front()) < kFirstByte) {
      bytes += utf8.front();
      utf8.remove_prefix(1);
      continue;
    }
    const auto character = TakeCharacter(utf8);
    if (!character) return std::nullopt;
    const auto at = std::find(kUpperHalf.begin(), kUpperHalf.end(), *character);
    if (at == kUpperHalf.end()) return std::nullopt;
    bytes += static_cast<char>(kFirstByte + static_cast<std::size_t>(at - kUpperHalf.begin()));
  }
  return bytes;
}

bool CopyIfItFits(std::string_view bytes, char* buffer, std::int32_t bufferSize) {
  if (bufferSize <= 0 || bytes.size() >= static_cast<std::size_t>(bufferSize)) return false;
  std::memcpy(buffer, bytes.data(), bytes.size());
  buffer[bytes.size()] = '\0';
  return true;
}

}  // namespace

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<unsigned char>(c) < kFirstByte; });
}

std::string Utf8FromMacRoman(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const std::size_t byte = static_cast<unsigned char>(c);
    if (byte < kFirstByte)
      text += c;
    else
      AppendUtf8(text, kUpperHalf[byte - kFirstByte]);
  }
  return text;
}

bool MacRomanFromUtf8(std::string_view utf8, char* buffer, std::int32_t bufferSize) {
  if (buffer == nullptr || utf8.find('\0') != std::string_view::npos) return false;
  if (IsAscii(utf8)) return CopyIfItFits(utf8, buffer, bufferSize);
  const auto bytes = Converted(utf8);
  return bytes && CopyIfItFits(*bytes, buffer, bufferSize);
}

}  // namespace lurkwell
