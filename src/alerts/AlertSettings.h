#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// A rule as it is remembered.
struct AlertSetting {
  std::string rule;
  /// What is started when an alert begins; empty for nothing.
  std::string command;
  bool isOn = true;
  /// What is stored cannot be read. It stays stored until the user changes or removes the rule.
  bool isDamaged = false;

  friend bool operator==(const AlertSetting&, const AlertSetting&) = default;
};

/// More are neither watched nor taken, but stay stored.
inline constexpr std::size_t kMostAlertRules = 100;
/// In bytes.
inline constexpr std::size_t kLongestAlertCommand = 4000;

/// The remembered rules, in their order; kMostAlertRules at most. Main thread, as all of these.
std::vector<AlertSetting> ReadAlertSettings();
/// How many are stored, those among them that are too many.
std::size_t CountAlertSettings();
/// `place` may be that behind the last one that is stored.
void StoreAlertSetting(std::size_t place, const AlertSetting& setting);
void RemoveAlertSetting(std::size_t place);

/// A text as it is stored: everything but printable ASCII as %XX. Pure; the second gives the text
/// back, whatever was stored.
std::string StoredAlertText(std::string_view text);
std::string AlertTextStoredAs(std::string_view stored);

}  // namespace lurkwell
