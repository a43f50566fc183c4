#include "platform/Uuid.h"

#include <algorithm>
#include <random>

namespace lurkwell {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kTextLength = 36;

bool IsDash(std::size_t position) {
  return position == 8 || position == 13 || position == 18 || position == 23;
}

int DigitValue(char c) {
  if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  const auto at = kDigits.find(c);
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

}  // namespace

Uuid Uuid::Fresh() {
  std::random_device entropy;
  Uuid uuid;
  std::generate(uuid.bytes.begin(), uuid.bytes.end(),
                [&] { return static_cast<std::uint8_t>(entropy()); });
  uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);
  uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);
  return uuid;
}

std::optional<Uuid> Uuid::FromText(std::string_view text) {
  if (text.size() != kTextLength) return std::nullopt;
  Uuid uuid;
  std::size_t nibble = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsDash(i)) {
      if (text[i] != '-') return std::nullopt;
      continue;
    }
    const int value = DigitValue(text[i]);
    if (value < 0) return std::nullopt;
    auto& byte = uuid.bytes[nibble / 2];
    byte = static_cast<std::uint8_t>(byte << 4 | value);
    ++nibble;
  }
  return uuid;
}

std::string Uuid::Text() const {
  std::string text;
  for (const auto byte : bytes) {
    if (IsDash(text.size())) text += '-';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0x0F];
  }
  return text;
}

}  // namespace lurkwell
