#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lurkwell {

/// A number whose small values of either sign are small.
constexpr std::uint64_t ZigZag(std::uint64_t difference) {
  return (difference << 1) ^ (0 - (difference >> 63));
}
constexpr std::uint64_t UnZigZag(std::uint64_t number) {
  return (number >> 1) ^ (0 - (number & 1));
}

/// Writes numbers in as many bytes as they need, seven bits each, the lowest first.
class ByteWriter {
 public:
  void Byte(std::uint8_t byte) { mBytes += static_cast<char>(byte); }
  void Number(std::uint64_t number) {
    for (; number >= 0x80; number >>= 7) Byte(static_cast<std::uint8_t>(number | 0x80));
    Byte(static_cast<std::uint8_t>(number));
  }
  /// What `number` is more than `before`; wraps round, so that any two numbers have a difference.
  void Difference(std::int64_t number, std::int64_t before) {
    Number(ZigZag(static_cast<std::uint64_t>(number) - static_cast<std::uint64_t>(before)));
  }
  /// With its length in front.
  void Text(std::string_view text) {
    Number(text.size());
    mBytes += text;
  }
  void Append(const ByteWriter& other) { mBytes += other.mBytes; }
  const std::string& Bytes() const { return mBytes; }

 private:
  std::string mBytes;
};

/// Reads what a ByteWriter wrote. Anything may stand there: what makes no sense, or is not there,
/// reads as 0 and is remembered as a failure.
class ByteReader {
 public:
  ByteReader() = default;
  explicit ByteReader(std::string_view bytes) : mRest(bytes) {}

  std::uint8_t Byte() {
    if (mRest.empty()) return mHasFailed = true, std::uint8_t{0};
    const auto byte = static_cast<std::uint8_t>(mRest.front());
    mRest.remove_prefix(1);
    return byte;
  }
  std::uint64_t Number() {
    std::uint64_t number = 0;
    for (unsigned shift = 0; shift < 64; shift += 7) {
      const std::uint8_t byte = Byte();
      if (shift == 63 && byte > 1) break;
      number |= std::uint64_t{byte & 0x7Fu} << shift;
      if (byte < 0x80) return number;
    }
    mHasFailed = true;
    return 0;
  }
  /// A number of things that take `bytes` each, at least.
  std::size_t Count(std::size_t bytes = 1) {
    const std::uint64_t count = Number();
    if (count <= mRest.size() / bytes) return static_cast<std::size_t>(count);
    mHasFailed = true;
    return 0;
  }
  std::int64_t Difference(std::int64_t before) {
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(before) + UnZigZag(Number()));
  }
  std::string_view Text() {
    const auto text = mRest.substr(0, Count());
    mRest.remove_prefix(text.size());
    return text;
  }
  bool IsAtEnd() const { return mRest.empty(); }
  bool HasFailed() const { return mHasFailed; }

 private:
  std::string_view mRest;
  bool mHasFailed = false;
};

}  // namespace lurkwell
