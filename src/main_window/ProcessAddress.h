#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace lurkwell {

/// The process that an address of the form "lurkwell://pid/4711" is about, whatever others wrote
/// there; nothing for any other text. Any thread.
std::optional<std::int32_t> PidOfAddress(std::string_view address);

}  // namespace lurkwell
