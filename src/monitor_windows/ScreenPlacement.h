#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

#include "monitor_windows/RememberedWindows.h"

namespace lurkwell {

/// Where windows go. Coordinates are those of the whole desktop; main thread, with a desktop.

/// Where there is room for a new window of that size: the main screen without panels and the like,
/// or all of it when those leave too little. Null when that is too small as well, or there is no
/// screen.
QRect AreaForNewWindow(QSize size);
/// The same for a screen of which `free` is not taken.
QRect AreaWithRoom(const QRect& free, const QRect& screen, QSize size);

/// The place of a remembered window, made to fit: no smaller than `smallest`, no larger than its
/// screen, and moved as little as needed to lie on one.
QRect PlaceOnScreen(const WindowRect& remembered, QSize smallest);

/// How much of a window another one may cover.
enum class Overlap {
  kHalf,  ///< the user may have put it there
  kNone,
};

/// The same place, if no more of the window, or of any of the others, would be covered there; else
/// the nearest one beside others that covers none of them, on the same screen, if there is one.
WindowRect PlaceApart(const WindowRect& wanted, const std::vector<QRect>& others,
                      Overlap allowed = Overlap::kHalf);

/// Where a new window of that size goes when `point` is next in the cascade; `point` moves on. The
/// cascade begins at a null point, and again at the end of the screen.
QPoint CascadeTopLeftFromPoint(QPoint& point, QSize size);

}  // namespace lurkwell
