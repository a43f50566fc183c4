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

  /// The window, one of this application's, stays above others and is seen whichever desktop is;
  /// call it when the window has just been shown. Does nothing where the desktop does not know of
  /// such windows.
  virtual void KeepInSight(std::uint64_t window) = 0;

  /// Whether some other, opaque window hides all of it.
  virtual bool IsCovered(std::uint64_t window) = 0;

  /// Whether a window of another program has the keyboard. A key that is held for the whole desktop
  /// takes it from none.
  virtual bool IsKeyboardElsewhere() = 0;
};

}  // namespace lurkwell
