#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

namespace lurkwell {

/// Help at its place: F1 in a window leads to the section of the help page that is about it. Main
/// thread.

enum class HelpSection : std::uint8_t {
  kDetails,
  kHistories,
  kLogs,
  kMachine,
  kAlerts,
  kFleet,
  kAnimatedView,
  kPreferences,
  kCount,
};

/// The section's id in the page.
const char* AnchorOf(HelpSection section);

/// The application says how help is shown; null when it ends.
void SetHelp(std::function<void(HelpSection)> show);

/// Nothing without an application.
void ShowHelpAbout(HelpSection section);

/// From now on F1 in the window does so, wherever in it the keyboard is.
void AddHelpKey(QWidget& window, HelpSection section);

}  // namespace lurkwell
