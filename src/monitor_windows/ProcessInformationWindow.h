#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>

#include "monitor_windows/FloatingWindow.h"
#include "monitor_windows/RememberedWindows.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// The answer to a window event: 0, or that the event is left to the window itself.
using OSStatus = std::int32_t;
inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus eventNotHandledErr = -9874;

/// The base of the small windows that float above all others and watch something. It makes the
/// window, gives it the user's opacity, lets a subclass lay labels over it, and hands its events
/// to virtual operations. Main thread only.
class ProcessInformationWindow {
 public:
  struct Point {
    std::int16_t vertical = 0;
    std::int16_t horizontal = 0;
  };

  /// No window yet.
  ProcessInformationWindow();
  /// Takes over a window that exists already, with everything CreateWindow does after making one.
  /// A subclass's hook is not called from here, since the subclass does not exist yet.
  explicit ProcessInformationWindow(FloatingWindow* window);
  ProcessInformationWindow(const ProcessInformationWindow&) = delete;
  ProcessInformationWindow& operator=(const ProcessInformationWindow&) = delete;
  virtual ~ProcessInformationWindow();

  /// Called once, before the window is seen: the place for a subclass's labels, children of
  /// `group`, which move and layer with the window.
  virtual void UglyHookCalledImmediatelyBeforeOverlayWindowIsCreated(QWidget& group);

  virtual OSStatus NotifyUpdate();
  virtual OSStatus NotifyDrawContent();
  virtual OSStatus NotifyActivated();
  virtual OSStatus NotifyDeactivated();
  /// Brings this window forward. On the next turn of the run loop the main window or the
  /// preferences get the keyboard, if it is with this application; another program keeps it.
  virtual OSStatus NotifyGetClickActivation();
  virtual OSStatus NotifyShowing();
  virtual OSStatus NotifyHiding();
  /// Never called; the event goes to the next one.
  virtual OSStatus NotifyShown();
  /// The window is on the screen, its name notwithstanding.
  virtual OSStatus NotifyHidden();
  virtual OSStatus NotifyCollapsing();
  virtual OSStatus NotifyCollapsed();
  virtual OSStatus NotifyExpanding();
  virtual OSStatus NotifyExpanded();
  virtual OSStatus NotifyZoomed();
  virtual OSStatus NotifyBoundsChanging();
  virtual OSStatus NotifyBoundsChanged();
  virtual OSStatus NotifyResizeStarted();
  virtual OSStatus NotifyResizeCompleted();
  virtual OSStatus NotifyDragStarted();
  virtual OSStatus NotifyDragCompleted();
  virtual OSStatus NotifyClosed();
  /// Smallest and largest size of the content; false when the window does not care.
  virtual bool AdjustMinimumAndMaximumWindowSizes(Point& min, Point& max);

  /// Makes and shows the window. `bounds` are those of its content; `setAttributes` of
  /// WindowAttributes, of which those in `clearAttributes` do not count.
  void CreateWindow(const WindowRect* bounds, const QString& title, std::uint32_t setAttributes,
                    std::uint32_t clearAttributes);

  /// Takes the window off the screen; it is destroyed once its events are through. The assertion
  /// "mWindow != NULL" of the subclass's own unit is the subclass's.
  void DisposeWindow();

  /// Null before it is made and after it is disposed of.
  FloatingWindow* Window() const { return mWindow; }
  /// The content's place on the screen. Without a window nothing but zeros.
  WindowRect ContentBounds() const;

  /// Hands an event of `userData`, a window, to its operation. `dims` receives the answer to the
  /// two size queries. A null `userData` is a fatal assertion; kinds without a listener are not
  /// handled.
  static OSStatus ProcessInformationWindowHandler(std::uint32_t kind, void* userData, Point* dims);

  /// One timer for all windows, which fires only when a click arms it. It lives as long as a window
  /// that was clicked.
  static std::shared_ptr<RunLoopTimer> CreateBringToFrontTimerFuncIfNecessary();
  static void BringToFrontTimerFunc();

  /// Gives the window the user's opacity, as far as the desktop has translucent windows.
  void ApplyOpacity();
  /// The opacity that a label needs within the window to be seen with `alpha`, from 0 to 1; no more
  /// than that of the window itself can be had.
  double AlphaWithin(double alpha) const;

 private:
  void TakeOver(FloatingWindow* window);

  QPointer<FloatingWindow> mWindow;
  std::shared_ptr<RunLoopTimer> mBringToFrontTimer;
};

/// Moves a rectangle to where a new window goes: to the right of and below the last one, and back
/// to the corner of the main screen's free area when it would leave it; of the whole screen, when
/// the free area is too small for it. Fatal assertions: no rectangle, one that is inverted, no
/// screen, a window that is not smaller than the screen.
void LocateRectangleForNewWindow(WindowRect* r);

}  // namespace lurkwell
