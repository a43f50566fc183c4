#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <span>

#include "preferences/SettingTable.h"

namespace lurkwell {

/// What both windows do to the settings: a change is stored at once, other settings follow where
/// they must, and then those concerned are told, once. Main thread only.

/// Stores the milliseconds. The animated view's frame, main and CPU intervals keep their order: the
/// one that is changed wins, and a stored one that would be out of order follows. `followed` hears
/// of every key that did.
void StoreInterval(const Setting& entry, int milliseconds,
                   const std::function<void(const Setting&, int)>& followed = {});

/// Tells the entry's clients, if it has any.
void NotifyOf(const Setting& entry);

/// A text that the user gave for a setting, as a number.
struct ReadValue {
  /// Nothing when it is refused.
  std::optional<double> value;
  /// Why, for the user.
  QString problem;
};
ReadValue ReadNumber(const Setting& entry, const QString& text);

/// Stores a number that lies in the entry's range, and tells.
void ChangeNumber(const Setting& entry, double value);

/// Stores a text, and tells. False, and nothing done, when it has characters that preferences
/// cannot hold.
bool ChangeText(const Setting& entry, const QString& text);

/// Removes the keys. Those concerned are told while the defaults stand under them, since a missing
/// value would leave them with what they have; each is told once.
void ResetPreferences(std::span<const Setting* const> entries);

}  // namespace lurkwell
