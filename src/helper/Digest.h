#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lurkwell::helper {

/// SHA-256 of bytes that come piece by piece.
class Digest {
 public:
  using Value = std::array<std::uint8_t, 32>;

  void Add(std::span<const std::uint8_t> bytes);
  /// Ends the sum; nothing may be added behind it.
  Value Finish();

 private:
  void AddBlock();

  std::uint32_t mState[8] = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                             0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::uint8_t mBlock[64];
  std::uint64_t mSize = 0;
};

/// The digest of a plain file from its start; false when it cannot be read or has more than 16 MiB.
bool DigestOfFile(int file, Digest::Value& value);

}  // namespace lurkwell::helper
