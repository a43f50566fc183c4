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

  /// The window stays above others and is seen whichever desktop is; call it when the window has
  /// just been shown. Does nothing where the desktop does not know of such windows.
  virtual void KeepInSight(std::uint64_t window) = 0;

  /// Whether some other, opaque window hides all of it.
  virtual bool IsCovered(std::uint64_t window) = 0;
};

}  // namespace lurkwell
