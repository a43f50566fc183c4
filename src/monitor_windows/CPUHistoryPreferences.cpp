#include "monitor_windows/CPUHistoryPreferences.h"

#include <algorithm>
#include <array>

#include "consolidator/ProcessInformationClient.h"
#include "platform/Diagnostics.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr char kUseRelativeKey[] = "CPU_HISTORY_WINDOW_USE_RELATIVE";
constexpr char kTrackKey[] = "CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS";

struct ColourMember {
  QColor CPUHistoryPreferences::*member;
  ColourSetting setting;
};

struct AlphaMember {
  double CPUHistoryPreferences::*member;
  RealSetting setting;
};

using P = CPUHistoryPreferences;

constexpr ColourMember kColours[] = {
    {&P::background, "DEFAULT_CPU_HISTORY_BACKGROUND_RGB_RED"},
    {&P::foreground, "DEFAULT_CPU_HISTORY_FOREGROUND_RGB_RED"},
    {&P::descendantsForeground, "DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_RED"},
    {&P::name, "DEFAULT_CPU_HISTORY_NAME_RGB_RED"},
    {&P::highWaterMark, "DEFAULT_CPU_HISTORY_HWM_RGB_RED"},
    {&P::highWaterMarkRelative, "DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_RED"},
    {&P::highWaterMarkFlash, "DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_RED"},
    {&P::percentageBackground, "DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_RED"},
    {&P::percentageForeground, "DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_RED"},
};

constexpr AlphaMember kAlphas[] = {
    {&P::nameAlpha, "DEFAULT_CPU_HISTORY_NAME_ALPHA"},
    {&P::highWaterMarkAlpha, "DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA"},
    {&P::percentageAlpha, "DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA"},
    {&P::iconAlpha, "DEFAULT_CPU_HISTORY_ICON_ALPHA"},
    {&P::iconAlphaReally, "DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY"},
};

/// The first reading stores the defaults of what is missing.
enum class Reading { kFirst, kAgain };

void ReadColour(const ColourSetting& setting, Reading reading, QColor& colour) {
  const auto before = colour.rgba64();
  std::array<int, 3> values = {before.red(), before.green(), before.blue()};
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto& component = setting.Component(i);
    // What is stored but no number gives the default.
    if (reading == Reading::kFirst) values[i] = static_cast<int>(component.defaultValue);
    const auto stored = StoredInt(component, reading == Reading::kFirst);
    values[i] = std::clamp(stored.value_or(values[i]), 0, 65535);
  }
  colour = QColor::fromRgba64(static_cast<ushort>(values[0]), static_cast<ushort>(values[1]),
                              static_cast<ushort>(values[2]));
}

void ReadFlag(IntegerSetting setting, Reading reading, bool& value) {
  if (const auto stored = StoredInt(setting.Row(), reading == Reading::kFirst))
    value = *stored != 0;
}

void ReadUseRelative(Reading reading, bool& value) {
  ReadFlag(kUseRelativeKey, reading, value);
  const auto stored = StoredInt(kUseRelativeKey);
  if (stored && *stored != 0 && *stored != 1) DiagnoseVerbatim("XXX SHOULD ONLY BE ONE OR ZERO!");
}

void ReadAll(CPUHistoryPreferences& preferences, Reading reading) {
  ReadUseRelative(reading, preferences.useRelative);
  ReadFlag(kTrackKey, reading, preferences.trackDescendants);
  for (const auto& [member, setting] : kColours) ReadColour(setting, reading, preferences.*member);
  for (const auto& [member, setting] : kAlphas)
    if (const auto stored = StoredReal(setting.Row(), reading == Reading::kFirst))
      preferences.*member = *stored;
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
  return ReadSwitch(kTrackKey);
}

double CPUHistoryFilter() {
  const double filter = ReadReal("CPU_HISTORY_WINDOW_DEFAULT_FILTER");
  // Beyond these the values would swing up for ever.
  return filter >= 0.0 && filter <= 1.0 ? filter : 0.5;
}

void ChangeCPUHistorySetting(CPUHistorySwitch which, bool on) {
  if (which == CPUHistorySwitch::kRelative)
    StoreInt(kUseRelativeKey, on ? 1 : 0);
  else
    StoreInt(kTrackKey, on ? 1 : 0);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(
      "CPUHistoryWindowInformationClient");
}

std::optional<std::int32_t> StoredCPUHistoryInterval() {
  return StoredInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL");
}

}  // namespace lurkwell
