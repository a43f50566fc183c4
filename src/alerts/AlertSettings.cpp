#include "alerts/AlertSettings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "alerts/AlertRule.h"
#include "preferences/PreferenceArrays.h"

namespace lurkwell {
namespace {

constexpr char kRulesKey[] = "ALERT_RULES";
constexpr char kRuleField[] = "RULE";
constexpr char kCommandField[] = "COMMAND";
constexpr char kOnField[] = "ON";
/// A byte may take three.
constexpr std::size_t kRoom = 3 * std::max(kLongestAlertRule, kLongestAlertCommand) + 1;

/// A text that is there and cannot be read marks the setting as damaged.
std::string ReadField(std::int32_t place, const char* field, AlertSetting& setting) {
  if (!IsPrefArrayValuePresent(kRulesKey, place, field)) return {};
  std::array<char, kRoom> text{};
  constexpr char kUnread = '\n';
  text[0] = kUnread;
  GetPrefArrayString(kRulesKey, place, field, text.data(), static_cast<std::int32_t>(text.size()),
                     false, "");
  if (text[0] != kUnread) return AlertTextStoredAs(text.data());
  setting.isDamaged = true;
  return {};
}

}  // namespace

std::string StoredAlertText(std::string_view text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string stored;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= ' ' && byte <= '~' && c != '%') {
      stored += c;
    } else {
      stored += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return stored;
}

std::string AlertTextStoredAs(std::string_view stored) {
  std::string text;
  for (std::size_t i = 0; i < stored.size(); ++i) {
    unsigned byte = 0;
    const auto* digits = stored.data() + i + 1;
    const bool isCode = stored[i] == '%' && i + 2 < stored.size() &&
                        std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
    text += isCode ? static_cast<char>(byte) : stored[i];
    if (isCode) i += 2;
  }
  return text;
}

std::size_t CountAlertSettings() {
  return static_cast<std::size_t>(GetPrefArrayCount(kRulesKey));
}

std::vector<AlertSetting> ReadAlertSettings() {
  std::vector<AlertSetting> settings;
  const auto count = std::min(CountAlertSettings(), kMostAlertRules);
  for (std::int32_t place = 0; place < static_cast<std::int32_t>(count); ++place) {
    AlertSetting setting;
    setting.rule = ReadField(place, kRuleField, setting);
    setting.command = ReadField(place, kCommandField, setting);
    setting.isDamaged = setting.isDamaged || setting.rule.empty() ||
                        setting.rule.size() > kLongestAlertRule ||
                        setting.command.size() > kLongestAlertCommand;
    setting.isOn = !IsPrefArrayValuePresent(kRulesKey, place, kOnField) ||
                   GetPrefArrayInt(kRulesKey, place, kOnField, false, 0) != 0;
    settings.push_back(std::move(setting));
  }
  return settings;
}

void StoreAlertSetting(std::size_t place, const AlertSetting& setting) {
  const auto rule = StoredAlertText(setting.rule);
  const auto command = StoredAlertText(setting.command);
  const PrefArrayField fields[] = {{kRuleField, rule.c_str()},
                                   {kCommandField, command.c_str()},
                                   {kOnField, std::int32_t{setting.isOn}}};
  SetPrefArrayFields(kRulesKey, static_cast<std::int32_t>(place), fields);
}

void RemoveAlertSetting(std::size_t place) {
  RemovePrefArrayElement(kRulesKey, static_cast<std::int32_t>(place));
}

}  // namespace lurkwell
