#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/PreferenceDomain.h"
#include "preferences/MacRoman.h"

// What the two halves of PreferencesRetrieval share.
namespace lurkwell {

inline constexpr const char* kPreferencesUnit = "PreferencesRetrieval";

/// A Mac Roman key as the domain's UTF-8; copies only what is not ASCII. Refers to the given text.
class PreferenceKey {
 public:
  explicit PreferenceKey(const char* macRoman) : mText(macRoman) {
    if (!IsAscii(mText)) {
      mConverted = Utf8FromMacRoman(mText);
      mText = mConverted;
    }
  }
  PreferenceKey(const PreferenceKey&) = delete;
  PreferenceKey& operator=(const PreferenceKey&) = delete;

  std::string_view Text() const { return mText; }

 private:
  std::string_view mText;
  std::string mConverted;
};

/// The conversions of a stored value, scalar or not. False, with the result as it was, when the
/// value is of another kind or does not fit.
template <typename Value>
bool ConvertToInt(const Value& value, std::int32_t& result) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    if (*integer < INT32_MIN || *integer > INT32_MAX) return false;
    result = static_cast<std::int32_t>(*integer);
    return true;
  }
  const auto* real = std::get_if<double>(&value);
  if (real == nullptr || !(*real > INT32_MIN - 1.0 && *real < INT32_MAX + 1.0)) return false;
  result = static_cast<std::int32_t>(*real);
  return true;
}

template <typename Value>
bool ConvertToDouble(const Value& value, double& result) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    result = static_cast<double>(*integer);
    return true;
  }
  const auto* real = std::get_if<double>(&value);
  if (real != nullptr) result = *real;
  return real != nullptr;
}

template <typename Value>
bool ConvertToText(const Value& value, char* buffer, std::int32_t bufferSize) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr && MacRomanFromUtf8(*text, buffer, bufferSize);
}

}  // namespace lurkwell
