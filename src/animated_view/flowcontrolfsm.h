#pragma once

#include <memory>

#include "animated_view/FlowControlFSMMgr.h"

namespace lurkwell {

/// Moves the animated view from its window to the overlay or back, over the next ticks of
/// gFCFSMMgr: closes what is shown, changes the mode, prepares the window, shows it. Ignored while
/// an earlier call is at it. Main thread; gQuintessentialHost is set.
void ToggleQuintessentialFullScreen();

/// Closes the current view's window.
class FSMCloseQuintWindow final : public FlowControlFSMState {
 public:
  static std::unique_ptr<FSMCloseQuintWindow> Create();
  void OnStateEntry() override;
};

/// Sets the mode, also in the preferences.
class FSMSetFullscreen final : public FlowControlFSMState {
 public:
  static std::unique_ptr<FSMSetFullscreen> Create(bool fullscreen);
  explicit FSMSetFullscreen(bool fullscreen) : mFullscreen(fullscreen) {}
  void OnStateEntry() override;

 private:
  bool mFullscreen;
};

/// Prepares the overlay and ends the toggle's claim. Fades in tick by tick if it is not done at
/// once, as it is.
class FSMSetUpOpacityEtCeteraOfQuintWindow final : public FlowControlFSMState {
 public:
  static std::unique_ptr<FSMSetUpOpacityEtCeteraOfQuintWindow> Create(double targetAlpha);
  explicit FSMSetUpOpacityEtCeteraOfQuintWindow(double targetAlpha) : mTargetAlpha(targetAlpha) {}
  void OnStateEntry() override;
  /// Outside the overlay's mode it fails "gQuintessentialViewIsFullScreenOverlay".
  void OnStateTimer() override;
  void OnStateExit() override;

 private:
  double mTargetAlpha;
  double mCurrentAlpha = 0.0;
};

/// Shows the view in the mode that is set.
class FSMOpenQuintWindow final : public FlowControlFSMState {
 public:
  static std::unique_ptr<FSMOpenQuintWindow> Create();
  void OnStateEntry() override;
};

}  // namespace lurkwell
