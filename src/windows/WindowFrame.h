#pragma once

#include <QRect>
#include <QSize>
#include <QWidget>
#include <functional>

#include "preferences/Settings.h"

namespace lurkwell {

/// Where a window was, as the preferences remember it: "X Y WIDTH HEIGHT[ maximised]", with "-" for
/// X and Y where a window has never been seen in a session that tells places. Main thread.
struct WindowFrame {
  QRect frame;  ///< invalid when nothing, or nothing sensible, is remembered
  bool isMaximised = false;
  /// Whether a window can be put where `frame` says: the place is known, and the session does so.
  bool isPlaced = false;
};

WindowFrame ReadWindowFrame(TextSetting setting);
/// `frame` is the place without maximising; in a session that tells no places its size counts, and
/// the place that was remembered stays. Writes what has changed only.
void WriteWindowFrame(TextSetting setting, const QRect& frame, bool isMaximised);

/// What window managers put around a window, in points, with some to spare.
inline constexpr QSize kBorders(12, 40);

/// Remembered places are made to lie this near to the screens' corner, in points.
inline constexpr int kFarthest = 100'000;

/// The same place where all of it lies on screens, else the nearest on the screen that has most of
/// it, or on the main one. A window that is too large for its screen fills it but for `borders`,
/// which stand around it. Any corners will do.
QRect FitOnScreens(QRect frame, QSize borders = kBorders);
/// The size made small enough for the main screen, with borders around it.
QSize FitOnScreens(QSize size);

/// A window beside the main one: Ctrl+W closes it, Ctrl+Q asks the application to quit, and closed,
/// it deletes itself. Main thread only.
class ControlledWindow : public QWidget {
 public:
  explicit ControlledWindow(QWidget* parent = nullptr);

  /// Called when the window is being closed, once.
  std::function<void()> willClose;

 protected:
  void closeEvent(QCloseEvent* event) override;

  /// Goes where it was last, as far as there are screens; the first time it has a usual size.
  void RestoreFrame(TextSetting setting, QSize usual);
  void RememberFrame(TextSetting setting) const;
};

}  // namespace lurkwell
