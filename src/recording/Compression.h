#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lurkwell {

/// zstd, with a checksum. Empty when there is no memory for it.
std::string Compressed(std::string_view bytes);

/// Nothing for what is damaged, or larger than a minute can be (32 MiB).
std::optional<std::string> Decompressed(std::string_view bytes);

}  // namespace lurkwell
