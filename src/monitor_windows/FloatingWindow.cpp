#include "monitor_windows/FloatingWindow.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <QWindowStateChangeEvent>
#include <algorithm>
#include <memory>
#include <utility>

#include "platform/Machine.h"
#include "platform/Screen.h"
#include "windows/FrontmostWindow.h"

namespace lurkwell {
namespace {

constexpr int kCloseBoxSize = 9;
constexpr int kCloseBoxInset = 2;
constexpr int kEdge = 4;
constexpr int kFlashMilliseconds = 1200;
constexpr double kDraggedOpacity = 0.6;

int TitlebarWidth(std::uint32_t attributes) {
  return (attributes & kWindowSideTitlebarAttribute) != 0 ? FloatingWindow::kSideTitlebarWidth : 0;
}

}  // namespace

class FloatingWindow::Content : public QWidget {
 public:
  explicit Content(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  void SetPainter(std::function<void(QPainter&)> painter) {
    mPainter = std::move(painter);
    setAttribute(Qt::WA_OpaquePaintEvent, static_cast<bool>(mPainter));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!mPainter) return;
    QPainter painter(this);
    mPainter(painter);
  }

 private:
  std::function<void(QPainter&)> mPainter;
};

/// What is seen of a window while it is dragged on a layer. The window itself stays until it is let
/// go: some compositors tell the pointer's place from where it was at the press, others from where
/// it is, and nothing tells which do what.
class FloatingWindow::DraggedPicture : public QWidget {
 public:
  explicit DraggedPicture(QPixmap picture)
      : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                             Qt::WindowDoesNotAcceptFocus),
        mPicture(std::move(picture)) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
  }
  void ShowAt(const QRect& place) {
    setGeometry(place);
    if (isVisible()) return;
    TheMachine().screen.MakeFloating(winId());
    show();
  }

 protected:
  // A layer takes the new place with the next picture.
  void moveEvent(QMoveEvent*) override { QWidget::update(); }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setOpacity(kDraggedOpacity);
    painter.drawPixmap(rect(), mPicture);
  }

 private:
  QPixmap mPicture;
};

FloatingWindow::FloatingWindow(const QRect& contentBounds, std::uint32_t attributes)
    // No tool and no dialog of the toolkit's: it makes those transient, and KWin hides the utility
    // windows of programs that are not in use.
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus),
      mContent(new Content(this)),
      mAttributes(attributes),
      mWay(TheMachine().screen.Floating()) {
  ServeAssistivePrograms();
  // Some managers would tile it, and give it the keyboard at a click.
  setWindowFlag(Qt::BypassWindowManagerHint, mWay == FloatingWay::kByThemselves);
  // Not WA_ShowWithoutActivating: mutter takes a window that says so for one that asks for
  // attention, and tells the user of it. A window that does not accept the keyboard gets none
  // anyway.
  setAttribute(Qt::WA_QuitOnClose, false);
  setAttribute(Qt::WA_Hover);
  // It is never the active window, which alone has tooltips otherwise.
  setAttribute(Qt::WA_AlwaysShowToolTips);
  setFocusPolicy(Qt::NoFocus);
  const int bar = TitlebarWidth(attributes);
  setFixedSize(contentBounds.width() + bar, contentBounds.height());
  move(contentBounds.left() - bar, contentBounds.top());
  mContent->setGeometry(bar, 0, contentBounds.width(), contentBounds.height());
}

FloatingWindow::~FloatingWindow() = default;

void FloatingWindow::SetEventHandler(std::function<void(WindowEventKind)> handler) {
  mHandler = std::move(handler);
}

void FloatingWindow::SetSpeaker(std::function<QString()> speaker) {
  mSpeaker = std::move(speaker);
}

void FloatingWindow::SetPainter(std::function<void(QPainter&)> painter) {
  mContent->SetPainter(std::move(painter));
}

QWidget& FloatingWindow::ContentWidget() {
  return *mContent;
}

QRect FloatingWindow::ContentBounds() const {
  return mContent->geometry().translated(pos());
}

void FloatingWindow::Tell(WindowEventKind kind) {
  // The handler may replace itself, as when the window is closed.
  const auto handler = mHandler;
  if (handler) handler(kind);
}

bool FloatingWindow::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
      MakeFloating();
      if (mWay == FloatingWay::kByThemselves) KeepAboveManaged(*windowHandle());
      Tell(kEventWindowShowing);
      Tell(kEventWindowDrawContent);
      Tell(kEventWindowShown);
      break;
    case QEvent::Hide:
      Tell(kEventWindowHiding);
      Tell(kEventWindowHidden);
      break;
    case QEvent::WindowActivate:
      Tell(kEventWindowActivated);
      break;
    case QEvent::WindowDeactivate:
      Tell(kEventWindowDeactivated);
      break;
    case QEvent::Move:
      // A layer takes the new place with the next picture.
      if (mWay == FloatingWay::kByLayer) QWidget::update();
      Tell(kEventWindowBoundsChanged);
      break;
    case QEvent::Resize: {
      const int bar = TitlebarWidth(mAttributes);
      mContent->setGeometry(bar, 0, width() - bar, height());
      if (isVisible()) Tell(kEventWindowBoundsChanged);
      break;
    }
    case QEvent::ScreenChangeInternal:
      Tell(kEventWindowUpdate);
      break;
    case QEvent::WindowStateChange:
      HandleStateChange(static_cast<QWindowStateChangeEvent*>(event)->oldState());
      break;
    case QEvent::Close:
      Tell(kEventWindowClosed);
      break;
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
      mHovered = event->type() == QEvent::HoverEnter;
      update(CloseBox());
      break;
    case QEvent::HoverMove:
      ShowEdge(static_cast<QHoverEvent*>(event)->position().toPoint());
      break;
    case QEvent::ContextMenu:
      ShowMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      HandleMouse(*event);
      return true;
    default:
      break;
  }
  return QWidget::event(event);
}

void FloatingWindow::MakeFloating() {
  if (std::exchange(mIsFloating, true)) return;
  TheMachine().screen.MakeFloating(winId());
}

void FloatingWindow::HandleStateChange(Qt::WindowStates before) {
  const auto changed = before ^ windowState();
  if (changed.testFlag(Qt::WindowMinimized)) {
    Tell(isMinimized() ? kEventWindowCollapsing : kEventWindowExpanding);
    Tell(isMinimized() ? kEventWindowCollapsed : kEventWindowExpanded);
  }
  if (changed.testFlag(Qt::WindowMaximized)) Tell(kEventWindowZoomed);
}

void FloatingWindow::HandleMouse(QEvent& event) {
  const auto& mouse = static_cast<QMouseEvent&>(event);
  const auto place = mouse.position().toPoint();
  if (event.type() == QEvent::MouseButtonPress && mouse.button() == Qt::LeftButton) {
    EndDrag();
    const auto edges = EdgesAt(place);
    if (edges && IsManaged() && windowHandle() != nullptr &&
        windowHandle()->startSystemResize(edges))
      return;
    mHeldEdges = edges;
    mPressedCloseBox = CloseBox().contains(place);
    mMayDrag = !mPressedCloseBox && !edges;
    mGrip = place;
    Tell(kEventWindowGetClickActivation);
  } else if (event.type() == QEvent::MouseMove && mMayDrag && !mDragging) {
    if ((place - mGrip).manhattanLength() < 3) return;
    mDragging = true;
    Tell(kEventWindowDragStarted);
    // The window manager knows edges and other desktops; where it does not help, move by hand.
    if (IsManaged() && windowHandle() != nullptr && windowHandle()->startSystemMove()) {
      mMayDrag = false;
      return;
    }
  } else if (event.type() == QEvent::MouseButtonRelease) {
    const bool closes = std::exchange(mPressedCloseBox, false) && CloseBox().contains(place);
    if (std::exchange(mPicture, nullptr) != nullptr)
      setGeometry(DraggedTo(mouse.globalPosition().toPoint()));
    EndDrag();
    if (closes) close();
    return;
  }
  if (event.type() != QEvent::MouseMove) return;
  if (mHeldEdges || (mDragging && mMayDrag)) DragTo(mouse.globalPosition().toPoint());
  // After a move by the window manager the release never comes.
  if (mouse.buttons() == Qt::NoButton) EndDrag();
}

Qt::Edges FloatingWindow::EdgesAt(const QPoint& place) const {
  Qt::Edges edges;
  if (minimumSize() == maximumSize() || CloseBox().contains(place)) return edges;
  edges.setFlag(Qt::LeftEdge, place.x() < kEdge);
  edges.setFlag(Qt::RightEdge, place.x() >= width() - kEdge);
  edges.setFlag(Qt::TopEdge, place.y() < kEdge);
  edges.setFlag(Qt::BottomEdge, place.y() >= height() - kEdge);
  return edges;
}

void FloatingWindow::ShowEdge(const QPoint& place) {
  // Outside, where the pointer may be then, is no edge.
  if (mDragging || mHeldEdges) return;
  const auto edges = EdgesAt(place);
  const bool across = edges & (Qt::LeftEdge | Qt::RightEdge);
  const bool along = edges & (Qt::TopEdge | Qt::BottomEdge);
  const bool falls =
      edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
  if (across && along)
    setCursor(falls ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor);
  else if (across || along)
    setCursor(across ? Qt::SizeHorCursor : Qt::SizeVerCursor);
  else
    unsetCursor();
}

void FloatingWindow::SetMenu(std::function<void(QMenu&)> fill) {
  mFillMenu = std::move(fill);
  if (!mFillMenu && mMenu != nullptr) mMenu->close();
}

void FloatingWindow::ShowMenu(const QPoint& place) {
  if (!mFillMenu) return;
  if (mMenu != nullptr) mMenu->close();
  mMenu = new QMenu(this);
  mMenu->setAttribute(Qt::WA_DeleteOnClose);
  mFillMenu(*mMenu);
  mMenu->popup(place);
}

void FloatingWindow::Flash() {
  mFlashes = true;
  update();
  QTimer::singleShot(kFlashMilliseconds, this, [this] {
    mFlashes = false;
    update();
  });
}

QRect FloatingWindow::DraggedTo(const QPoint& to) const {
  const auto before = geometry();
  QSize size = before.size();
  if (!mHeldEdges) return {to - mGrip, size};
  if (mHeldEdges & Qt::LeftEdge) size.setWidth(before.right() - to.x() + 1);
  if (mHeldEdges & Qt::RightEdge) size.setWidth(to.x() - before.left() + 1);
  if (mHeldEdges & Qt::TopEdge) size.setHeight(before.bottom() - to.y() + 1);
  if (mHeldEdges & Qt::BottomEdge) size.setHeight(to.y() - before.top() + 1);
  size = size.expandedTo(minimumSize()).boundedTo(maximumSize());
  QRect after(before.topLeft(), size);
  if (mHeldEdges & Qt::LeftEdge) after.moveRight(before.right());
  if (mHeldEdges & Qt::TopEdge) after.moveBottom(before.bottom());
  return after;
}

void FloatingWindow::DragTo(const QPoint& to) {
  if (mWay != FloatingWay::kByLayer) return setGeometry(DraggedTo(to));
  if (mPicture == nullptr) mPicture = std::make_unique<DraggedPicture>(grab());
  mPicture->ShowAt(DraggedTo(to));
}

void FloatingWindow::EndDrag() {
  mHeldEdges = {};
  mMayDrag = false;
  mPicture.reset();
  if (std::exchange(mDragging, false)) Tell(kEventWindowDragCompleted);
}

QRect FloatingWindow::CloseBox() const {
  if ((mAttributes & kWindowCloseBoxAttribute) == 0) return {};
  return {kCloseBoxInset, kCloseBoxInset, kCloseBoxSize, kCloseBoxSize};
}

void FloatingWindow::paintEvent(QPaintEvent*) {
  const int bar = TitlebarWidth(mAttributes);
  if (bar == 0) return;
  QPainter painter(this);
  const QColor ground = mFlashes ? palette().color(QPalette::Highlight) : QColor(48, 50, 52);
  painter.fillRect(0, 0, bar, height(), ground);
  painter.fillRect(bar - 1, 0, 1, height(), ground.darker(150));
  const auto box = CloseBox();
  if (box.isEmpty()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(mHovered ? QColor(226, 88, 80) : QColor(118, 121, 124));
  painter.drawEllipse(box);
  if (!mHovered) return;
  painter.setPen(QPen(QColor(90, 16, 12), 1.2));
  const auto cross = QRectF(box).adjusted(3, 3, -3, -3);
  painter.drawLine(cross.topLeft(), cross.bottomRight());
  painter.drawLine(cross.topRight(), cross.bottomLeft());
}

Satellite::Satellite(QWidget& group, const QRect& bounds, const QFont& font, QPoint baseline)
    : QWidget(&group), mBaseline(baseline) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFont(font);
  setGeometry(bounds);
}

void Satellite::SetColours(const QColor& background, const QColor& text) {
  if (background == mBackground && text == mTextColour) return;
  mBackground = background;
  mTextColour = text;
  update();
}

void Satellite::SetText(const QString& text, const QColor& colour) {
  if (text == mText && colour == mTextColour) return;
  mText = text;
  mTextColour = colour;
  update();
}

void Satellite::SetPicture(const QPixmap& picture) {
  mPicture = picture;
  update();
}

void Satellite::SetAlpha(double alpha) {
  // What is no number counts as 0.
  alpha = alpha > 0.0 ? std::min(alpha, 1.0) : 0.0;
  if (alpha == mAlpha) return;
  mAlpha = alpha;
  update();
}

void Satellite::SetLine(const QString& text, const QColor& colour, int most) {
  constexpr int kMargins = 10;
  const QFontMetrics metrics(font());
  const auto line = metrics.elidedText(text, Qt::ElideMiddle, std::max(0, most - kMargins));
  resize(std::min(most, metrics.horizontalAdvance(line) + kMargins), height());
  SetText(line, colour);
}

void Satellite::paintEvent(QPaintEvent*) {
  if (mAlpha <= 0.0) return;
  QPainter painter(this);
  painter.setOpacity(mAlpha);
  painter.fillRect(rect(), mBackground);
  if (!mPicture.isNull()) {
    const auto size = mPicture.deviceIndependentSize();
    painter.drawPixmap(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2),
                       mPicture);
  }
  painter.setPen(mTextColour);
  painter.drawText(mBaseline, mText);
}

}  // namespace lurkwell
