#pragma once

#include <cstdint>
#include <optional>

namespace lurkwell {

/// The X key symbol of a key that preferences name by its number on the keyboards they are written
/// for: the function keys, the letters, the digits and a few more. Nothing for any other number.
std::optional<std::uint32_t> KeySymbolOf(std::uint32_t virtualKeyCode);

}  // namespace lurkwell
