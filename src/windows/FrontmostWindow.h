#pragma once

#include <QList>
#include <QWidget>
#include <functional>

class QWindow;

namespace lurkwell {

/// The order of the program's own windows, as far as it can be told: the one that was used last
/// comes first. Main thread only.

/// From now on the window takes part in the order, until it is destroyed.
void WatchWindowOrder(QWidget& window);

/// Shows a window that is hidden or minimised, above the program's others and with the keyboard.
void BringToFront(QWidget& window);

/// Front to back, invisible ones among them.
QList<QWidget*> orderedWindows();

/// Has a window that is shown and that no window manager looks after stay above all that one does,
/// until it is hidden.
void KeepAboveManaged(QWindow& window);

/// Why the order of the windows has changed.
enum class OrderChange {
  kByUser,   ///< a click or a key of the user's
  kByItself  ///< a window opened without being asked for
};

/// Gives the keyboard to the frontmost visible window, minimised ones left out, whose title begins
/// with "Process" or "Lurkwell Pref", after others have changed the order behind its back. A change
/// that came by itself takes the keyboard from no other program. False, and nothing changed, when
/// there is no such window.
bool EnsureThatCocoaWindowIsFrontmostIfPossible(OrderChange change = OrderChange::kByUser);

/// The way back to the main window for windows that have no menu bar, closed or minimised as the
/// main window may be. Main thread.

/// The application says how; null when it ends.
void SetWayBack(std::function<void()> showMainWindow);

/// Brings the main window to the front, with the keyboard. Nothing without an application.
void GoBackToMainWindow();

}  // namespace lurkwell
