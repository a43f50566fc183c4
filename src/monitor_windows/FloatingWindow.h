#pragma once

#include <QColor>
#include <QFont>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/SessionAbilities.h"
#include "windows/Accessibility.h"

namespace lurkwell {

/// What happens to a floating window, in the numbers by which it is told.
enum WindowEventKind : std::uint32_t {
  kEventWindowUpdate = 1,
  kEventWindowDrawContent = 2,
  kEventWindowActivated = 5,
  kEventWindowDeactivated = 6,
  kEventWindowGetClickActivation = 7,
  kEventWindowShowing = 22,
  kEventWindowHiding = 23,
  kEventWindowShown = 24,
  kEventWindowHidden = 25,
  kEventWindowBoundsChanging = 26,
  kEventWindowBoundsChanged = 27,
  kEventWindowResizeStarted = 28,
  kEventWindowResizeCompleted = 29,
  kEventWindowDragStarted = 30,
  kEventWindowDragCompleted = 31,
  kEventWindowCollapsed = 67,
  kEventWindowExpanded = 70,
  kEventWindowClosed = 73,
  kEventWindowZoomed = 76,
  kEventWindowGetMinimumSize = 81,
  kEventWindowGetMaximumSize = 82,
  kEventWindowCollapsing = 86,
  kEventWindowExpanding = 87,
};

/// What a floating window has besides its content.
enum WindowAttributes : std::uint32_t {
  kWindowCloseBoxAttribute = 1,
  kWindowSideTitlebarAttribute = 32,
  kWindowHideOnSuspendAttribute = 0x1000000,
};

/// A small window above all others that never takes the keyboard. It is moved by dragging it
/// anywhere; with a side title bar it has a narrow strip at the left, in which the close box lies.
/// Its size is fixed as long as its owner sets no other bounds for it; then it is resized at its
/// edges, and the content follows.
/// Everything that the toolkit tells it leaves here as event kinds. Main thread only.
class FloatingWindow final : public QWidget, public FigureSpeaker {
  Q_OBJECT

 public:
  /// The part of the window that its owner draws.
  class Content;
  class DraggedPicture;

  static constexpr int kSideTitlebarWidth = 13;

  /// `attributes` of WindowAttributes.
  FloatingWindow(const QRect& contentBounds, std::uint32_t attributes);
  ~FloatingWindow() override;

  /// What hears of events; an empty function for nothing.
  void SetEventHandler(std::function<void(WindowEventKind)> handler);

  /// Where labels go and what they are laid over.
  QWidget& ContentWidget();
  QRect ContentBounds() const;
  /// What fills the context menu, which opens at the second button; an empty function for none,
  /// which closes one that is open.
  void SetMenu(std::function<void(QMenu&)> fill);
  /// Shows where the window is, for a moment.
  void Flash();
  /// What assistive programs are told when they ask what it shows.
  void SetSpeaker(std::function<QString()> speaker);
  QString SpokenFigures() const override { return mSpeaker ? mSpeaker() : QString(); }
  /// Draws the content; without one it stays empty.
  void SetPainter(std::function<void(QPainter&)> painter);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect CloseBox() const;
  /// Asks the desktop to treat it as what it is; before it is shown.
  void MakeFloating();
  /// Whether the desktop moves and resizes it.
  bool IsManaged() const {
    return mWay == FloatingWay::kByManager || mWay == FloatingWay::kNotAtAll;
  }
  void Tell(WindowEventKind kind);
  void HandleMouse(QEvent& event);
  void ShowMenu(const QPoint& place);
  /// The edges that a place is near enough to for a resize.
  Qt::Edges EdgesAt(const QPoint& place) const;
  void ShowEdge(const QPoint& place);
  void HandleStateChange(Qt::WindowStates before);
  void EndDrag();
  /// The window, or its edges that are held, where the pointer is on the desktop.
  QRect DraggedTo(const QPoint& to) const;
  void DragTo(const QPoint& to);

  std::function<void(WindowEventKind)> mHandler;
  std::function<void(QMenu&)> mFillMenu;
  std::function<QString()> mSpeaker;
  QPointer<QMenu> mMenu;
  bool mFlashes = false;
  Content* mContent = nullptr;
  std::uint32_t mAttributes;
  bool mHovered = false;
  bool mIsFloating = false;
  bool mPressedCloseBox = false;
  bool mMayDrag = false;
  bool mDragging = false;
  QPoint mGrip;
  /// By hand, where no window manager looks after the window.
  Qt::Edges mHeldEdges;
  FloatingWay mWay;
  std::unique_ptr<DraggedPicture> mPicture;
};

/// A label that is laid over a floating window, with an opacity of its own. Unseen until its
/// opacity is set for the first time; it lets clicks through. Main thread only.
class Satellite final : public QWidget {
 public:
  Satellite(QWidget& group, const QRect& bounds, const QFont& font, QPoint baseline);

  void SetColours(const QColor& background, const QColor& text);
  void SetText(const QString& text, const QColor& colour);
  /// The same, and as wide as the text needs, but not wider than `most`: what does not fit is left
  /// out in the middle.
  void SetLine(const QString& text, const QColor& colour, int most);
  const QString& Text() const { return mText; }
  QColor TextColour() const { return mTextColour; }

  /// Drawn in the middle instead of a text; nothing for a null picture.
  void SetPicture(const QPixmap& picture);
  const QPixmap& Picture() const { return mPicture; }

  /// From 0, which is how it begins, to 1.
  void SetAlpha(double alpha);
  double Alpha() const { return mAlpha; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPoint mBaseline;
  QColor mBackground = Qt::transparent;
  QColor mTextColour;
  QString mText;
  QPixmap mPicture;
  double mAlpha = 0.0;
};

}  // namespace lurkwell
