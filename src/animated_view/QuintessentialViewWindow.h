#pragma once

#include <QBackingStore>
#include <QMenu>
#include <QWindow>
#include <memory>

#include "animated_view/QuintessentialView.h"
#include "platform/RunLoop.h"
#include "windows/Accessibility.h"

namespace lurkwell {

class QuintessentialWindowDelegate;

/// The ordinary window of the animated view, the view and nothing else: a native window that is
/// drawn into with OpenGL. It is hidden when it is closed, and kept. Main thread.
class QuintessentialViewWindow : public QWindow, public FigureSpeaker {
  Q_OBJECT

 public:
  /// All outlive the window.
  QuintessentialViewWindow(QuintessentialWindowDelegate& delegate, ViewDrawing& drawing,
                           const ViewCommands& commands);
  ~QuintessentialViewWindow() override;

  QAccessibleInterface* accessibleRoot() const override;
  /// How many processes there are; the table has the rest of them. Not inside the mutex.
  QString SpokenFigures() const override;

  virtual bool isFullscreen() const { return false; }
  QuintessentialView& view() { return mView; }

  /// Makes the window what an overlay has to be; only where isFullscreen.
  virtual void setUpOverlayStuff() {}
  /// 0 (transparent) to 1.
  void setAlphaValue(double alpha);
  bool canBecomeKeyWindow() const;
  /// Why the window is shown.
  enum class Showing {
    kAskedFor,  ///< the user wants this very window: with the keyboard, and not minimised
    kToggled,   ///< by a key that works everywhere: the keyboard stays with other programs
  };
  /// Never overlaps a frame.
  void makeKeyAndOrderFront(Showing showing = Showing::kAskedFor);
  /// Takes the window away without a word to the engine, for the view that is shown instead.
  void Withdraw();
  /// Hides the window, ends its being served, and gives the keyboard to another window of the
  /// program, unless another program has it.
  void performClose();

  /// Nothing can be drawn: says so instead, from now on.
  void ShowMessage(const QString& message);

  /// Writes the place and size into the preferences, if it is an ordinary window's.
  void SaveFrame();

 protected:
  void exposeEvent(QExposeEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

  void TakeSize();
  const ViewCommands& Commands() const { return mCommands; }

 private:
  /// Whether its view is the one of the mode that is set. The other one is on its way out.
  bool IsCurrent() const;
  void closeByUser();
  void RestoreFrame();
  /// Where it is now is where it comes back, unless it fills the screen.
  void NoteFrame(const QSize& size);
  void PaintMessage();
  void ShowMenu(const QPoint& place);

  QuintessentialWindowDelegate& mDelegate;
  const ViewCommands& mCommands;
  QuintessentialView mView;
  QString mMessage;
  std::unique_ptr<QBackingStore> mBackingStore;
  QMenu mMenu;
  QKeySequence mToggleKey;
  QRect mNormalFrame;
  bool mIsPlaced = false;
};

/// The overlay over the whole screen: translucent, above everything, on every desktop, and neither
/// clicks nor keys stay in it. Where windows cannot be translucent, a full-screen window.
class QuintessentialViewFullscreenWindow final : public QuintessentialViewWindow {
  Q_OBJECT

 public:
  using QuintessentialViewWindow::QuintessentialViewWindow;

  bool isFullscreen() const override { return true; }
  void setUpOverlayStuff() override;
  /// Whether the time has passed for which the window stays transparent after its set-up.
  bool IsRevealed() const { return mIsRevealed; }

 private:
  void myTimer();

  std::unique_ptr<RunLoopTimer> mTimer;
  bool mIsRevealed = true;
};

/// The window of the view that was made last. Main thread.
extern QuintessentialViewWindow* gQuintessentialWindow;

}  // namespace lurkwell
