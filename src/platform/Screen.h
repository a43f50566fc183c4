#pragma once

#include <cstdint>

#include "platform/SessionAbilities.h"

namespace lurkwell {

/// What windows of an unusual kind ask of the desktop. Main thread only; no answer takes longer
/// than a fraction of a second. `window` is a window's number as the windowing system knows it.
class Screen {
 public:
  virtual ~Screen() = default;

  /// Whether the display's processor draws OpenGL, not the machine's own.
  virtual bool UsesOpenGLAcceleration() = 0;

  /// Whether windows can be translucent and let the ones behind shine through.
  virtual bool BlendsWindows() = 0;

  /// What can be promised of windows here. The same from start to end; asks nobody.
  virtual SessionAbilities Abilities() = 0;

  /// How floating windows that are opened now stay above others: most tiling window managers do
  /// nothing for them.
  virtual FloatingWay Floating() = 0;

  /// Makes one of this application's windows, before it is shown for the first time, one that
  /// floats: no window manager hides it while another program is in use, none gives it the
  /// keyboard, and it is in no task bar. Does nothing where the desktop does not know of such
  /// windows.
  virtual void MakeFloating(std::uint64_t window) = 0;

  /// The same for a window that is to lie over a whole screen, above the floating ones; before each
  /// time that it is shown.
  virtual void MakeOverlay(std::uint64_t window) = 0;

  /// Puts one of this application's windows that no window manager looks after above all that one
  /// does, and no further: menus and a locked screen stay above it. Windows that open later come
  /// above it, so call it again. Does nothing for windows that are managed.
  virtual void PutAboveManaged(std::uint64_t window) = 0;

  /// Whether some other, opaque window hides all of it.
  virtual bool IsCovered(std::uint64_t window) = 0;

  /// Whether a window of another program has the keyboard. A key that is held for the whole desktop
  /// takes it from none.
  virtual bool IsKeyboardElsewhere() = 0;

  /// Whether the user has asked the desktop for less motion. May change at any time; nothing is
  /// waited for.
  virtual bool WantsLessMotion() const = 0;
};

}  // namespace lurkwell
