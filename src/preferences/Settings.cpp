#include "preferences/Settings.h"

#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {

std::int32_t ReadInt(IntegerSetting setting) {
  const auto& row = setting.Row();
  return GetPrefInt(row.key, nullptr, row.HasDefault(),
                    row.HasDefault() ? static_cast<std::int32_t>(row.defaultValue) : 0);
}

double ReadReal(RealSetting setting) {
  const auto& row = setting.Row();
  return GetPrefDouble(row.key, nullptr, row.HasDefault(), row.HasDefault() ? row.defaultValue : 0);
}

bool ReadSwitch(IntegerSetting setting) {
  return ReadInt(setting) != 0;
}

std::optional<std::int32_t> StoredInt(IntegerSetting setting) {
  return StoredInt(setting.Row());
}

std::optional<double> StoredReal(RealSetting setting) {
  return StoredReal(setting.Row());
}

bool ReadText(TextSetting setting, char* buffer, std::int32_t size) {
  std::uint8_t found = 0;
  GetPrefString(setting.Row().key, buffer, size, &found, false, "");
  return found != 0;
}

void StoreInt(IntegerSetting setting, std::int32_t value) {
  SetPrefInt(setting.Row().key, value);
}

void StoreText(TextSetting setting, const char* value) {
  StoreText(setting.Row(), value);
}

void RemoveSetting(AnySetting setting) {
  RemoveSetting(setting.Row());
}

std::optional<std::int32_t> StoredInt(const Setting& setting, bool storeDefault) {
  std::uint8_t found = 0;
  const bool stores = storeDefault && setting.HasDefault();
  const auto value = GetPrefInt(setting.key, &found, stores,
                                stores ? static_cast<std::int32_t>(setting.defaultValue) : 0);
  return found != 0 ? std::optional(value) : std::nullopt;
}

std::optional<double> StoredReal(const Setting& setting, bool storeDefault) {
  std::uint8_t found = 0;
  const bool stores = storeDefault && setting.HasDefault();
  const auto value = GetPrefDouble(setting.key, &found, stores, stores ? setting.defaultValue : 0);
  return found != 0 ? std::optional(value) : std::nullopt;
}

void StoreNumber(const Setting& setting, double value) {
  if (setting.IsInteger())
    SetPrefInt(setting.key, static_cast<std::int32_t>(value));
  else
    SetPrefDouble(setting.key, value);
}

void StoreText(const Setting& setting, const char* value) {
  SetPrefString(setting.key, value);
}

void RemoveSetting(const Setting& setting) {
  RemovePref(setting.key);
}

}  // namespace lurkwell
