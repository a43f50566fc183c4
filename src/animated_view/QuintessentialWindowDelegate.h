#pragma once

#include <QSize>
#include <functional>

namespace lurkwell {

class QuintessentialViewWindow;

/// Has the engine served while a window of the animated view is shown. One per process; main
/// thread.
class QuintessentialWindowDelegate {
 public:
  /// `prepare` is called before the first records come.
  explicit QuintessentialWindowDelegate(std::function<void()> prepare);
  ~QuintessentialWindowDelegate();
  QuintessentialWindowDelegate(const QuintessentialWindowDelegate&) = delete;
  QuintessentialWindowDelegate& operator=(const QuintessentialWindowDelegate&) = delete;

  void hookUpConsolidatorIfNecessary();
  void unhookConsolidatorIfNecessary();

  void windowDidBecomeKey() { hookUpConsolidatorIfNecessary(); }
  void windowDidUpdate() { hookUpConsolidatorIfNecessary(); }
  void windowDidExpose();
  /// The size that it may have, in pixels; the drawing thread waits until windowDidResize.
  QSize windowWillResize(const QSize& proposed);
  /// `takeSize` gives the current view its window's size.
  void windowDidResize(const std::function<void()>& takeSize);

  /// Whether the preferences hear that the view is shown or not; so at first.
  void SetRemembers(bool remembers) { mRemembers = remembers; }

  /// Whether the user can see the view; while not, nothing moves.
  void SetSeen(bool seen);
  /// Nothing can be drawn: from now on nothing moves, seen or not.
  void RestForGood();

 private:
  void Remember(bool shown) const;

  std::function<void()> mPrepare;
  bool mRemembers = true;
  bool mRests = false;
};

extern QuintessentialWindowDelegate* gQuintessentialWindowDelegate;

}  // namespace lurkwell
