#include "monitor_windows/CPUHistoryPreferences.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "consolidator/ProcessInformationClient.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr char kUseRelativeKey[] = "CPU_HISTORY_WINDOW_USE_RELATIVE";
constexpr char kTrackKey[] = "CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS";
constexpr char kFilterKey[] = "CPU_HISTORY_WINDOW_DEFAULT_FILTER";
constexpr char kIntervalKey[] = "DEFAULT_CPU_HISTORY_WINDOW_INTERVAL";
constexpr char kPrefix[] = "DEFAULT_CPU_HISTORY_";

/// Three components of 16 bits.
struct ColourSetting {
  QColor CPUHistoryPreferences::*member;
  const char* key;
  std::array<std::int32_t, 3> defaults;
};

struct AlphaSetting {
  double CPUHistoryPreferences::*member;
  const char* key;
  double defaultValue;
};

using P = CPUHistoryPreferences;

constexpr ColourSetting kColours[] = {
    {&P::background, "BACKGROUND_RGB", {0, 1024, 0}},
    {&P::foreground, "FOREGROUND_RGB", {16384, 65535, 16384}},
    {&P::descendantsForeground, "DESCENDANTS_FOREGROUND_RGB", {0, 0, 65535}},
    {&P::name, "NAME_RGB", {65535, 65535, 49152}},
    {&P::highWaterMark, "HWM_RGB", {24576, 24576, 65535}},
    {&P::highWaterMarkRelative, "HWM_RELATIVE_RGB", {65535, 32767, 32767}},
    {&P::highWaterMarkFlash, "HWM_FLASH_RGB", {65535, 65535, 32767}},
    {&P::percentageBackground, "CURRENT_PERCENTAGE_BG", {0, 20479, 0}},
    {&P::percentageForeground, "CURRENT_PERCENTAGE_FG", {65535, 65535, 8191}},
};

constexpr AlphaSetting kAlphas[] = {
    {&P::nameAlpha, "NAME_ALPHA", 0.6},
    {&P::highWaterMarkAlpha, "HIGHWATERMARK_ALPHA", 0.6},
    {&P::percentageAlpha, "CURRENT_PERCENTAGE_ALPHA", 0.7},
    {&P::iconAlpha, "ICON_ALPHA", 0.2},
    {&P::iconAlphaReally, "ICON_ALPHA_REALLY", 0.7},
};

enum class Reading { kFirst, kAgain };

void ReadInt(const std::string& key, Reading reading, std::int32_t defaultValue,
             std::int32_t& value) {
  std::uint8_t found = 0;
  const auto stored = GetPrefInt(key.c_str(), &found, reading == Reading::kFirst, defaultValue);
  if (found != 0) value = stored;
}

void ReadColour(const ColourSetting& setting, Reading reading, QColor& colour) {
  static constexpr std::array<const char*, 3> kComponents = {"_RED", "_GREEN", "_BLUE"};
  const auto before = colour.rgba64();
  // What is stored but no number gives the default.
  auto values = setting.defaults;
  if (reading == Reading::kAgain) values = {before.red(), before.green(), before.blue()};
  for (std::size_t i = 0; i < kComponents.size(); ++i) {
    ReadInt(std::string(kPrefix) + setting.key + kComponents[i], reading, setting.defaults[i],
            values[i]);
    values[i] = std::clamp(values[i], 0, 65535);
  }
  colour = QColor::fromRgba64(static_cast<ushort>(values[0]), static_cast<ushort>(values[1]),
                              static_cast<ushort>(values[2]));
}

void ReadUseRelative(Reading reading, bool& value) {
  std::int32_t stored = value ? 1 : 0;
  ReadInt(kUseRelativeKey, reading, 1, stored);
  if (stored != 0 && stored != 1) std::puts("XXX SHOULD ONLY BE ONE OR ZERO!");
  value = stored != 0;
}

void ReadAll(CPUHistoryPreferences& preferences, Reading reading) {
  ReadUseRelative(reading, preferences.useRelative);
  std::int32_t track = preferences.trackDescendants ? 1 : 0;
  ReadInt(kTrackKey, reading, 0, track);
  preferences.trackDescendants = track != 0;
  for (const auto& setting : kColours) ReadColour(setting, reading, preferences.*setting.member);
  for (const auto& setting : kAlphas) {
    std::uint8_t found = 0;
    const std::string key = std::string(kPrefix) + setting.key;
    const double stored =
        GetPrefDouble(key.c_str(), &found, reading == Reading::kFirst, setting.defaultValue);
    if (found != 0) preferences.*setting.member = stored;
  }
}

}  // namespace

CPUHistoryPreferences CPUHistoryPreferences::Read() {
  CPUHistoryPreferences preferences;
  ReadAll(preferences, Reading::kFirst);
  return preferences;
}

void CPUHistoryPreferences::ReadAgain() {
  ReadAll(*this, Reading::kAgain);
}

bool CPUHistoryTracksDescendants() {
  return GetPrefInt(kTrackKey, nullptr, true, 0) != 0;
}

double CPUHistoryFilter() {
  const double filter = GetPrefDouble(kFilterKey, nullptr, true, 0.5);
  // Beyond these the values would swing up for ever.
  return filter >= 0.0 && filter <= 1.0 ? filter : 0.5;
}

void ChangeCPUHistorySetting(CPUHistorySwitch which, bool on) {
  SetPrefInt(which == CPUHistorySwitch::kRelative ? kUseRelativeKey : kTrackKey, on ? 1 : 0);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(
      "CPUHistoryWindowInformationClient");
}

std::optional<std::int32_t> StoredCPUHistoryInterval() {
  std::uint8_t found = 0;
  const auto interval = GetPrefInt(kIntervalKey, &found, false, 0);
  return found != 0 ? std::optional(interval) : std::nullopt;
}

}  // namespace lurkwell
