#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lurkwell {

/// A universally unique identifier. Plain value, any thread.
struct Uuid {
  std::array<std::uint8_t, 16> bytes{};

  /// A new random one (version 4) from the system's entropy.
  static Uuid Fresh();

  /// From its 36-character text; nothing when the text is not one.
  static std::optional<Uuid> FromText(std::string_view text);

  /// Upper-case hexadecimal in groups of 8-4-4-4-12.
  std::string Text() const;

  friend bool operator==(const Uuid&, const Uuid&) = default;
};

}  // namespace lurkwell
