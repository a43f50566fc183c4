#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace lurkwell::helper {

/// Writes text into a buffer of the caller, never past its end: what does not fit is left out
/// whole, and Fits() says so.
class TextWriter {
 public:
  TextWriter(char* buffer, std::size_t capacity) : mBuffer(buffer), mCapacity(capacity) {}

  /// Texts, characters, and numbers, which are not negative, in decimal.
  template <typename... Parts>
  void Add(Parts... parts) {
    (AddPart(parts), ...);
  }

  /// `value` in decimal with at least `width` digits.
  void AddNumber(std::uint64_t value, unsigned width) {
    char digits[20];
    std::size_t first = sizeof digits;
    do {
      digits[--first] = static_cast<char>('0' + value % 10);
      value /= 10;
    } while (first > 0 && (value > 0 || sizeof digits - first < width));
    AddPart(std::string_view(digits + first, sizeof digits - first));
  }

  bool Fits() const { return mFits; }
  std::string_view Text() const { return {mBuffer, mSize}; }

 private:
  void AddPart(std::string_view text) {
    mFits = mFits && text.size() <= mCapacity - mSize;
    if (text.size() > mCapacity - mSize) return;
    std::memcpy(mBuffer + mSize, text.data(), text.size());
    mSize += text.size();
  }
  void AddPart(char character) { AddPart(std::string_view(&character, 1)); }
  void AddPart(std::integral auto number) { AddNumber(static_cast<std::uint64_t>(number), 1); }

  char* mBuffer;
  std::size_t mCapacity;
  std::size_t mSize = 0;
  bool mFits = true;
};

/// A short path of fixed parts and numbers.
class PathWriter : public TextWriter {
 public:
  template <typename... Parts>
  explicit PathWriter(Parts... parts) : TextWriter(mPath, sizeof mPath - 1) {
    Add(parts...);
  }
  /// The path with a NUL behind it, valid until the next Add.
  const char* Terminated() {
    mPath[Text().size()] = '\0';
    return mPath;
  }

 private:
  char mPath[48];
};

/// Removes `prefix` from the front of `text`; false, and nothing removed, when it is not there.
inline bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

inline constexpr char kHexDigits[] = "0123456789abcdef";

inline bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

/// Removes a plain decimal (digits alone, no leading zero) of at most `limit` from the front of
/// `text`; false when there is none or it is larger.
inline bool TakeNumber(std::string_view& text, std::int32_t limit, std::int32_t& number) {
  std::int64_t value = -1;
  for (; !text.empty() && IsDigit(text.front()); text.remove_prefix(1)) {
    if (value == 0) return false;
    value = (value < 0 ? 0 : value * 10) + (text.front() - '0');
    if (value > limit) return false;
  }
  number = static_cast<std::int32_t>(value);
  return value >= 0;
}

}  // namespace lurkwell::helper
