#pragma once

#include <QRect>

namespace lurkwell {

/// Where a window was, as the preferences remember it: "X Y WIDTH HEIGHT[ maximised]". Main thread.
struct WindowFrame {
  QRect frame;  ///< invalid when nothing, or nothing sensible, is remembered
  bool isMaximised = false;
};

WindowFrame ReadWindowFrame(const char* key);
/// `frame` is the place without maximising. Writes what has changed only.
void WriteWindowFrame(const char* key, const QRect& frame, bool isMaximised);

/// So much of a window has to lie on a screen, in points.
inline constexpr int kGraspable = 40;

/// Whether enough of its title bar lies on a screen to be taken hold of. Any corners will do.
bool IsGraspable(const QRect& frame);

}  // namespace lurkwell
