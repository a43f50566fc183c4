#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/EventBus.h"

namespace lurkwell {

/// A record of 396 bytes as a Classic environment fills it.
inline std::vector<std::byte> ClassicBytes(ProcessSerialNumber psn, std::string_view name,
                                           std::uint32_t ticks) {
  std::vector<std::byte> bytes(396);
  const auto put = [&](std::size_t offset, const void* data, std::size_t count) {
    std::copy_n(static_cast<const std::byte*>(data), count,
                bytes.begin() + static_cast<std::ptrdiff_t>(offset));
  };
  put(8, &psn.high, 4);
  put(12, &psn.low, 4);
  put(16, "APPL", 4);
  put(20, "ttxt", 4);
  put(52, &ticks, 4);
  bytes[68] = static_cast<std::byte>(name.size());
  put(69, name.data(), name.size());
  return bytes;
}

inline Event ReportOf(std::vector<std::byte> records) {
  return {
      {'Z', 'r', 'v', 'q'}, {'Z', 'r', 'q', '0'}, {{{'Z', 'r', 'v', '#'}, std::move(records)}}, {}};
}

}  // namespace lurkwell
