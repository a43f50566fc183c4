#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lurkwell {

/// More than these a process's descriptors are not looked into, which would take seconds.
inline constexpr std::size_t kMostDescriptors = 65'536;

/// The number in "socket:[NUMBER]", where a descriptor of a socket points. Pure.
inline std::optional<std::uint64_t> InodeOfSocket(std::string_view link) {
  constexpr std::string_view kBegin = "socket:[";
  if (!link.starts_with(kBegin) || !link.ends_with(']')) return std::nullopt;
  link = link.substr(kBegin.size(), link.size() - kBegin.size() - 1);
  std::uint64_t inode = 0;
  const auto [end, error] = std::from_chars(link.data(), link.data() + link.size(), inode);
  if (error != std::errc() || end != link.data() + link.size()) return std::nullopt;
  return inode;
}

}  // namespace lurkwell
