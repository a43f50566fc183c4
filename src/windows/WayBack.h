#pragma once

#include <functional>

namespace lurkwell {

/// The way back to the main window for windows that have no menu bar, closed or minimised as the
/// main window may be. Main thread.

/// The application says how; null when it ends.
void SetWayBack(std::function<void()> showMainWindow);

/// Brings the main window to the front, with the keyboard. Nothing without an application.
void GoBackToMainWindow();

}  // namespace lurkwell
