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

/// Whether enough of its title bar lies on a screen to be taken hold of.
bool IsGraspable(const QRect& frame);

}  // namespace lurkwell
