#pragma once

#include <QPoint>
#include <Qt>
#include <atomic>
#include <cstdint>
#include <functional>

#include "animated_view/FrameContents.h"
#include "animated_view/QuintessentialGlobals.h"
#include "platform/ThreadSafety.h"

class QMouseEvent;
class QWindow;

namespace lurkwell {

/// What a window of the animated view asks of the application as a whole.
struct ViewCommands {
  std::function<void()> doShowQuintessentialView;
  std::function<void()> doToggleQuintessentialViewFullScreen;
  std::function<void()> doShowMainWindow;
  std::function<void()> doQuit;
  /// The user has closed the view; nothing else of the program may be left to see.
  std::function<void()> viewWasClosed;
  /// Whether a window of the program other than the view's is there.
  std::function<bool()> isSomethingElseThere;
  /// Selects a process in the list of processes, where that is shown, and opens its context menu if
  /// `wantsMenu`. `place` is one of the whole desktop.
  std::function<void(std::int32_t pid, const QPoint& place, bool wantsMenu)> choose;
};

struct ViewDrawing;

/// The animated view inside one window. Main thread, unless a function says otherwise.
class QuintessentialView {
 public:
  /// All outlive the view.
  QuintessentialView(QWindow& window, ViewDrawing& drawing, const ViewCommands& commands);

  /// Has the whole view drawn again, soon.
  void drawRect();
  /// One frame. Drawing thread; enters the mutex.
  void internalDraw();

  /// The repaint countdown: how many of the frames after an exposure or a change of mode are still
  /// to come. The window's surface may only just be coming then: that there is none yet is no
  /// failure.
  std::int32_t kludgeCountdown() const LURKWELL_REQUIRES(gQuintessentialMutex) {
    return mKludgeCountdown;
  }
  void setKludgeCountdown(std::int32_t frames) LURKWELL_REQUIRES(gQuintessentialMutex) {
    mKludgeCountdown = frames;
  }

  /// The nearest process shows its name, whatever lies in its way. Points of the window; outside of
  /// it no process is near.
  void mouseMoved(const QPointF& place);
  void mouseDown(const QMouseEvent& event) { handleMouseDownStuff(event, false); }
  void rightMouseDown(const QMouseEvent& event) { handleMouseDownStuff(event, true); }

  void SetSize(const ViewSize& size) LURKWELL_REQUIRES(gQuintessentialMutex) { mSize = size; }
  const ViewSize& Size() const LURKWELL_REQUIRES(gQuintessentialMutex) { return mSize; }
  /// Whether the window is on the screen, so that drawing into it cannot wait.
  void SetDrawable(bool drawable) LURKWELL_REQUIRES(gQuintessentialMutex) { mDrawable = drawable; }
  void SetMode(ViewMode mode) LURKWELL_REQUIRES(gQuintessentialMutex) { mMode = mode; }
  /// Of use to the main thread outside the mutex, too: it alone sets it.
  ViewMode Mode() const { return mMode; }
  /// Of all that is drawn, where windows themselves cannot be translucent.
  void SetOpacity(double opacity) LURKWELL_REQUIRES(gQuintessentialMutex) {
    mOpacity = static_cast<float>(opacity);
  }

 private:
  /// Selects the process nearest to the click in the main table, and opens the table's menu for it
  /// when the click asks for that.
  void handleMouseDownStuff(const QMouseEvent& event, bool isRightClick);
  bool DrawFrame() LURKWELL_REQUIRES(gQuintessentialMutex);
  void NoteLimits() LURKWELL_REQUIRES(gQuintessentialMutex);

  QWindow& mWindow;
  ViewDrawing& mDrawing;
  const ViewCommands& mCommands;
  ViewSize mSize LURKWELL_GUARDED_BY(gQuintessentialMutex);
  std::atomic<ViewMode> mMode = ViewMode::kWindow;
  float mOpacity LURKWELL_GUARDED_BY(gQuintessentialMutex) = 1.0F;
  bool mDrawable LURKWELL_GUARDED_BY(gQuintessentialMutex) = false;
  bool mIsInitialized LURKWELL_GUARDED_BY(gQuintessentialMutex) = false;
  std::int32_t mKludgeCountdown LURKWELL_GUARDED_BY(gQuintessentialMutex) = 0;
};

}  // namespace lurkwell
