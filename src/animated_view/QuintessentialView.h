#pragma once

#include <QPoint>
#include <Qt>
#include <cstdint>
#include <functional>

#include "animated_view/FrameContents.h"
#include "animated_view/QuintessentialHost.h"

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
  /// One frame. Drawing thread, inside the mutex.
  void internalDraw();

  /// The repaint countdown: how many of the frames after an exposure or a change of mode are still
  /// to come. Each begins with a cleared window, as all do.
  std::int32_t kludgeCountdown() const { return mKludgeCountdown; }
  void setKludgeCountdown(std::int32_t frames) { mKludgeCountdown = frames; }

  /// The nearest process shows its name, whatever lies in its way. Points of the window; outside of
  /// it no process is near.
  void mouseMoved(const QPointF& place);
  void mouseDown(const QMouseEvent& event) { handleMouseDownStuff(event, false); }
  void rightMouseDown(const QMouseEvent& event) { handleMouseDownStuff(event, true); }

  // ---- Inside the mutex
  // ---------------------------------------------------------------------------

  void SetSize(const ViewSize& size) { mSize = size; }
  const ViewSize& Size() const { return mSize; }
  /// Whether the window is on the screen, so that drawing into it cannot wait.
  void SetDrawable(bool drawable) { mDrawable = drawable; }
  void SetMode(ViewMode mode) { mMode = mode; }
  ViewMode Mode() const { return mMode; }
  /// Of all that is drawn, where windows themselves cannot be translucent.
  void SetOpacity(double opacity) { mOpacity = static_cast<float>(opacity); }

 private:
  /// Selects the process nearest to the click in the main table, and opens the table's menu for it
  /// when the click asks for that.
  void handleMouseDownStuff(const QMouseEvent& event, bool isRightClick);
  bool DrawFrame();
  void NoteLimits();

  QWindow& mWindow;
  ViewDrawing& mDrawing;
  const ViewCommands& mCommands;
  ViewSize mSize;
  ViewMode mMode = ViewMode::kWindow;
  float mOpacity = 1.0F;
  bool mDrawable = false;
  bool mIsInitialized = false;
  std::int32_t mKludgeCountdown = 0;
};

}  // namespace lurkwell
