#pragma once

namespace lurkwell {

/// Whether a window could be shown: the Wayland compositor of $WAYLAND_DISPLAY or the X server of
/// $DISPLAY answers.
bool IsDisplayReachable();

/// While this lives, a display that does not let the toolkit in (a server that is gone, a platform
/// of $QT_QPA_PLATFORM that is not there) starts the program again with the same arguments and
/// without a display, instead of ending it by an abort. Main thread; around the making of the
/// QApplication, before there are other threads or files to lose.
class WithoutDisplayInstead {
 public:
  /// `argv` outlives this; a null pointer ends it.
  explicit WithoutDisplayInstead(char** argv);
  ~WithoutDisplayInstead();
  WithoutDisplayInstead(const WithoutDisplayInstead&) = delete;
  WithoutDisplayInstead& operator=(const WithoutDisplayInstead&) = delete;
};

/// While this lives, around the making of the QApplication, the toolkit learns to leave windows on
/// Wayland where the program puts them, as far as the program knows. Otherwise it takes each for
/// one in the screen's corner, and that is what would be remembered.
class PlacesAreKept {
 public:
  PlacesAreKept();
  ~PlacesAreKept();
  PlacesAreKept(const PlacesAreKept&) = delete;
  PlacesAreKept& operator=(const PlacesAreKept&) = delete;

 private:
  bool mIsOurs;
};

}  // namespace lurkwell
