#pragma once

#include <cstdint>

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

  /// Makes one of this application's windows, before it is shown for the first time, one that
  /// floats: no window manager hides it while another program is in use, none gives it the
  /// keyboard, and it is in no task bar. Does nothing where the desktop does not know of such
  /// windows.
  virtual void MakeFloating(std::uint64_t window) = 0;

  /// Whether the desktop itself keeps floating windows above others. Where it does not, as under
  /// most tiling window managers, they are better off without a manager.
  virtual bool KeepsWindowsAbove() = 0;

  /// Puts one of this application's windows that no window manager looks after above all that one
  /// does, and no further: menus and a locked screen stay above it. Windows that open later come
  /// above it, so call it again. Does nothing for windows that are managed.
  virtual void PutAboveManaged(std::uint64_t window) = 0;

  /// Whether some other, opaque window hides all of it.
  virtual bool IsCovered(std::uint64_t window) = 0;

  /// Whether a window of another program has the keyboard. A key that is held for the whole desktop
  /// takes it from none.
  virtual bool IsKeyboardElsewhere() = 0;
};

}  // namespace lurkwell
