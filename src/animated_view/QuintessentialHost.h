#pragma once

#include <memory>
#include <string>

#include "animated_view/QuintessentialGlobals.h"
#include "platform/IconServices.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

struct QuintessentialInformationProcessInfo;

/// A window's size in logical points.
struct FrameSize {
  double width = 0;
  double height = 0;
};

/// What the animated view's engine asks of its windows and of the program. The current view is the
/// overlay's while gQuintessentialViewIsFullScreenOverlay is set, else the window's. Main thread,
/// unless a function says otherwise.
class QuintessentialHost {
 public:
  virtual ~QuintessentialHost() = default;

  /// Whether there is a current view to ask about. Any thread.
  virtual bool HasCurrentView() const LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
  /// The frame of the current view's window. Any thread.
  virtual FrameSize CurrentWindowFrame() const LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
  virtual void CloseCurrentWindow() = 0;
  /// Prepares the overlay's window, when the current one is that.
  virtual void SetUpOverlayStuff() = 0;
  /// 0 (transparent) to 1. Nothing happens to an overlay whose time to be seen has not come.
  virtual void SetCurrentWindowAlpha(double alpha) = 0;
  /// How many of the overlay's next frames begin with a cleared window.
  virtual void SetFullscreenKludgeCountdown(int frames) = 0;
  /// Shows the view in the mode that is set.
  virtual void doShowQuintessentialView() = 0;

  /// Draws one frame of the current view. Drawing thread.
  virtual void InternalDraw() LURKWELL_REQUIRES(gQuintessentialMutex) = 0;

  /// A process's name, as it may be shown, as a picture, or null.
  virtual std::shared_ptr<const Picture> LabelImage(const std::string& name) = 0;
  /// "qvdefault" (the icon of what has none) or "qvbackground"; null for an unknown name.
  virtual std::shared_ptr<const Picture> NamedPicture(const char* name) = 0;

  /// Takes the record's textures away (its handles become 0) and sees to it that the drawing thread
  /// deletes them. Called without a drawing context. Any thread.
  virtual void ReleaseTextures(QuintessentialInformationProcessInfo& info)
      LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
  /// The next frame makes the background anew. Any thread.
  virtual void DiscardBackground() LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
};

/// The one host there is, or null. Set on the main thread inside gQuintessentialMutex; the host
/// outlives its stay here.
inline QuintessentialHost* gQuintessentialHost = nullptr;

/// The host, which has a current view. Fails "theCurrentQuintessentialView" without. Any thread;
/// enters gQuintessentialMutex.
QuintessentialHost& HostOfCurrentView();

}  // namespace lurkwell
