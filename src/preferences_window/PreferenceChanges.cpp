#include "preferences_window/PreferenceChanges.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>

#include "consolidator/ProcessInformationClient.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

/// From the shortest to the longest.
constexpr std::array<const char*, 3> kOrderedKeys = {"HEARTQUIVA_GL_THREAD_INTERVAL",
                                                     "HEARTQUIVA_MAINPIC_INTERVAL",
                                                     "HEARTQUIVA_HELPERPIC_INTERVAL"};

void StoreInOrder(const Setting& entry, double value) {
  if (entry.kind == SettingKind::kInterval)
    StoreInterval(entry, static_cast<int>(value));
  else
    StoreNumber(entry, value);
}

/// Type names of clients, each once.
std::set<std::string> ConcernedBy(std::span<const Setting* const> entries) {
  std::set<std::string> names;
  for (const auto* entry : entries)
    if (entry->told != nullptr) names.insert(entry->told);
  // All clients are told once.
  if (names.contains("*")) names = {"*"};
  return names;
}

/// As it is typed: no exponents where a plain number will do.
QString Plain(double number) {
  return LocalNumber(number, 'g', 12);
}

}  // namespace

void StoreInterval(const Setting& entry, int milliseconds,
                   const std::function<void(const Setting&, int)>& followed) {
  const PreferenceBatch batch;
  StoreNumber(entry, milliseconds);
  const auto* moved = std::ranges::find(kOrderedKeys, std::string_view(entry.key),
                                        [](const char* key) { return std::string_view(key); });
  if (moved == kOrderedKeys.end()) return;
  for (const auto* other = kOrderedKeys.begin(); other != kOrderedKeys.end(); ++other) {
    const auto& follower = *FindSetting(*other);
    const auto value = StoredInt(follower);
    const bool isOutOfOrder = other < moved ? value > milliseconds : value < milliseconds;
    if (!value || !isOutOfOrder) continue;
    StoreNumber(follower, milliseconds);
    if (followed) followed(follower, milliseconds);
  }
}

void NotifyOf(const Setting& entry) {
  if (entry.told != nullptr)
    ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(entry.told);
}

ReadValue ReadNumber(const Setting& entry, const QString& text) {
  bool isNumber = false;
  const QString plain = text.trimmed();
  const double value = NumberFromUser(plain, &isNumber);
  if (!isNumber || !std::isfinite(value))
    return {std::nullopt, LocalizedString("settings_problem_no_number").arg(text)};
  if (entry.IsInteger() && value != std::trunc(value))
    return {std::nullopt, LocalizedString("settings_problem_not_whole").arg(text)};
  if (value < entry.least || value > entry.most)
    return {
        std::nullopt,
        LocalizedString("settings_problem_range").arg(text, Plain(entry.least), Plain(entry.most))};
  return {value, {}};
}

void ChangeNumber(const Setting& entry, double value) {
  StoreInOrder(entry, value);
  NotifyOf(entry);
}

bool ChangeText(const Setting& entry, const QString& text) {
  const QByteArray bytes = text.toLatin1();
  for (const QChar c : text)
    if (c < u' ' || c > u'~') return false;
  StoreText(entry, bytes.constData());
  NotifyOf(entry);
  return true;
}

void ResetPreferences(std::span<const Setting* const> entries) {
  const PreferenceBatch batch;
  for (const auto* entry : entries) {
    if (entry->HasDefault() && entry->IsNumber())
      StoreInOrder(*entry, entry->defaultValue);
    else
      RemoveSetting(*entry);
  }
  for (const auto& name : ConcernedBy(entries))
    ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(name.c_str());
  for (const auto* entry : entries) RemoveSetting(*entry);
}

}  // namespace lurkwell
