#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "preferences/SettingTable.h"

/// Settings by their keys. A key is checked when the program is compiled: one that is not in the
/// table, or whose value is of another type, is an error there. Defaults come from the table.
///
/// Main thread only. Reading neither allocates nor touches the disk, so it may be done in every
/// update cycle; what fails, and when a write is on disk, is told in PreferencesRetrieval.h.
namespace lurkwell {

constexpr bool IsIntegerSetting(const Setting& setting) {
  return setting.IsInteger() || setting.kind == SettingKind::kRecord;
}
constexpr bool IsRealSetting(const Setting& setting) {
  return setting.kind == SettingKind::kReal;
}
constexpr bool IsTextSetting(const Setting& setting) {
  return setting.kind == SettingKind::kText ||
         (setting.kind == SettingKind::kRecord && !setting.HasDefault());
}

constexpr bool IsAnySetting(const Setting&) {
  return true;
}

/// The row of a key, given as a literal: `ReadInt("MAIN_WINDOW_INTERVAL")`.
template <bool (*kFits)(const Setting&)>
class SettingKey {
 public:
  consteval SettingKey(const char* key) : mPlace(PlaceOfSetting(key)) {
    // Neither may be reached: the call is an error then.
    if (mPlace == std::size(kSettings)) throw "no such setting";
    if (!kFits(kSettings[mPlace])) throw "a setting of another type";
  }
  constexpr const Setting& Row() const { return kSettings[mPlace]; }

 private:
  /// No pointer: the undefined-behaviour sanitizer keeps the compiler from comparing those.
  std::size_t mPlace;
};
using IntegerSetting = SettingKey<&IsIntegerSetting>;
using RealSetting = SettingKey<&IsRealSetting>;
using TextSetting = SettingKey<&IsTextSetting>;
using AnySetting = SettingKey<&IsAnySetting>;

/// A colour, named by its red component's key; the other two rows follow.
class ColourSetting {
 public:
  consteval ColourSetting(const char* redKey) : mRed(PlaceOfSetting(redKey)) {
    if (mRed + 2 >= std::size(kSettings) || !std::string_view(redKey).ends_with("_RED"))
      throw "no such colour";
    for (std::size_t i = 0; i < 3; ++i)
      if (Component(i).kind != SettingKind::kColour) throw "a colour has three components";
  }
  constexpr const Setting& Component(std::size_t i) const { return kSettings[mRed + i]; }

 private:
  std::size_t mRed;
};

/// The value that counts. A default that does is stored, so that the file shows what there is.
/// What is stored but no number counts as 0; numbers may lie outside the table's range.
std::int32_t ReadInt(IntegerSetting setting);
double ReadReal(RealSetting setting);
/// Whether ReadInt is not 0.
bool ReadSwitch(IntegerSetting setting);

/// What is stored; nothing when there is nothing, or no number. Stores nothing.
std::optional<std::int32_t> StoredInt(IntegerSetting setting);
std::optional<double> StoredReal(RealSetting setting);
/// At most `size` bytes with the terminator go into `buffer`; false leaves it as it was, when
/// nothing is stored or it is longer.
bool ReadText(TextSetting setting, char* buffer, std::int32_t size);

void StoreInt(IntegerSetting setting, std::int32_t value);
void StoreText(TextSetting setting, const char* value);
void RemoveSetting(AnySetting setting);

// ---- For rows that are found at run time. The row's type must be the call's.

/// With `storeDefault` a missing value is stored as the default, which is then what is read.
std::optional<std::int32_t> StoredInt(const Setting& setting, bool storeDefault = false);
std::optional<double> StoredReal(const Setting& setting, bool storeDefault = false);
/// A number of any type, cut to its whole part where the setting is an integer.
void StoreNumber(const Setting& setting, double value);
void StoreText(const Setting& setting, const char* value);
void RemoveSetting(const Setting& setting);

}  // namespace lurkwell
