#pragma once

#include <QRect>
#include <QSize>

#include "preferences/Settings.h"

namespace lurkwell {

/// Where a window was, as the preferences remember it: "X Y WIDTH HEIGHT[ maximised]". Main thread.
struct WindowFrame {
  QRect frame;  ///< invalid when nothing, or nothing sensible, is remembered
  bool isMaximised = false;
};

WindowFrame ReadWindowFrame(TextSetting setting);
/// `frame` is the place without maximising. Writes what has changed only.
void WriteWindowFrame(TextSetting setting, const QRect& frame, bool isMaximised);

/// What window managers put around a window, in points, with some to spare.
inline constexpr QSize kBorders(12, 40);

/// The same place where all of it lies on screens, else the nearest on the screen that has most of
/// it, or on the main one. A window that is too large for its screen fills it but for `borders`,
/// which stand around it. Any corners will do.
QRect FitOnScreens(QRect frame, QSize borders = kBorders);
/// The size made small enough for the main screen, with borders around it.
QSize FitOnScreens(QSize size);

}  // namespace lurkwell
