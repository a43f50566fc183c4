#pragma once

#include <QString>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

namespace lurkwell {

enum class PreferenceKind : std::uint8_t {
  kBoolean,  ///< 0 or 1
  kInteger,
  kInterval,  ///< milliseconds
  kColour,    ///< one component of three, 0 to 65535
  kReal,
  kText,
  kRecord,  ///< a number or a text that the program writes by itself
  kArray,   ///< the program's own records, an element each
};

enum class PreferenceEffect : std::uint8_t {
  kAtOnce,
  kNewWindows,  ///< those that are opened from then on
  kNextStart,
};

/// One key that the program reads: what may be stored under it, and who wants to know.
struct PreferenceEntry {
  const char* key;
  PreferenceKind kind;
  /// What its readers take for a missing value; NaN when there is no number to it.
  double defaultValue;
  double least;
  double most;
  PreferenceEffect effect;
  /// The type name of the clients to be told of a change, "*" for all; null when nobody is.
  const char* told;

  bool HasDefault() const { return defaultValue == defaultValue; }
  bool IsInteger() const { return kind <= PreferenceKind::kColour; }
  bool IsNumber() const { return kind <= PreferenceKind::kReal; }
  /// What the user would change here, the program would overwrite.
  bool IsProgramsOwn() const { return kind >= PreferenceKind::kRecord; }
};

/// Every key there is, by subject. Any thread.
std::span<const PreferenceEntry> PreferenceCatalogue();

/// Null when there is no such key.
const PreferenceEntry* FindPreference(std::string_view key);

/// What people call the setting, a few words. Main thread.
QString TitleOf(const PreferenceEntry& entry);

/// What the setting is for, a sentence; empty without a text. Main thread.
QString MeaningOf(const PreferenceEntry& entry);

}  // namespace lurkwell
