#include "animated_view/QuintessentialViewWindow.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <string_view>

#include "animated_view/DrawingContext.h"
#include "animated_view/QuintessentialSupport.h"
#include "animated_view/QuintessentialWindowDelegate.h"
#include "animated_view/ViewDrawing.h"
#include "platform/Machine.h"
#include "platform/Screen.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/OverlayKey.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr char kFrameKey[] = "QUIVA_WINDOW_FRAME";
/// Of the toolkit's: a window that is shown so does not ask for the keyboard.
constexpr char kWithoutActivating[] = "_q_showWithoutActivating";
constexpr QSize kFirstSize(900, 640);
constexpr QSize kSmallestSize(200, 150);

bool HasTranslucentWindows() {
  return QGuiApplication::platformName() == QLatin1String("xcb");
}

}  // namespace

QuintessentialViewWindow* gQuintessentialWindow = nullptr;

QuintessentialViewWindow::QuintessentialViewWindow(QuintessentialWindowDelegate& delegate,
                                                   ViewDrawing& drawing,
                                                   const ViewCommands& commands)
    : mDelegate(delegate),
      mCommands(commands),
      mView(*this, drawing, commands),
      mToggleKey(OverlayKey()) {
  ServeAssistivePrograms();
  gQuintessentialWindow = this;
  setSurfaceType(QSurface::OpenGLSurface);
  setFormat(drawing.context.Format());
  setTitle(LocalizedString("quintessential_window_title"));
  setIcon(NamedImage("lurkwell"));
  setMinimumSize(kSmallestSize);
  RestoreFrame();
}

QuintessentialViewWindow::~QuintessentialViewWindow() {
  if (gQuintessentialWindow == this) gQuintessentialWindow = nullptr;
}

QAccessibleInterface* QuintessentialViewWindow::accessibleRoot() const {
  return QAccessible::queryAccessibleInterface(const_cast<QuintessentialViewWindow*>(this));
}

QString QuintessentialViewWindow::SpokenFigures() const {
  if (!mMessage.isEmpty()) return mMessage;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  auto* client = gQuintessentialInformationClient;
  const auto count = client != nullptr && IsCurrent() ? client->qipiList().size() : 0;
  return LocalizedString("quintessential_spoken").arg(LocalNumber(static_cast<qint64>(count)));
}

// ---- Showing and closing ------------------------------------------------------------------------

bool QuintessentialViewWindow::canBecomeKeyWindow() const {
  return !gQuintessentialViewIsFullScreenOverlay || mView.Mode() == ViewMode::kOpaqueFullscreen;
}

bool QuintessentialViewWindow::IsCurrent() const {
  return gQuintessentialViewIsFullScreenOverlay == isFullscreen();
}

void QuintessentialViewWindow::makeKeyAndOrderFront(Showing showing) {
  const bool isAskedFor = showing == Showing::kAskedFor;
  const bool takesKeyboard =
      canBecomeKeyWindow() && (isAskedFor || !TheMachine().screen.IsKeyboardElsewhere());
  setProperty(kWithoutActivating, !takesKeyboard);
  // Some managers give it to whatever fills the screen; later it may be clicked into.
  if (isFullscreen() && !isVisible() && canBecomeKeyWindow())
    setFlag(Qt::WindowDoesNotAcceptFocus, !takesKeyboard);
  // Nothing exposes a window that is there already.
  if (isVisible() && isExposed()) mDelegate.windowDidUpdate();
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  if ((windowStates() & Qt::WindowMinimized) != 0)
    setWindowStates(windowStates() & ~Qt::WindowMinimized);
  // Shown again where its contents were, it would move down by its title bar each time.
  if (!isFullscreen() && !isVisible() && mIsPlaced)
    setFramePosition(FitOnScreens(mNormalFrame).topLeft());
  // Not show(), which would make a maximised one small.
  setVisible(true);
  TakeSize();
  raise();
  if (takesKeyboard) requestActivate();
}

void QuintessentialViewWindow::performClose() {
  // Asked before this one goes, and the keyboard with it.
  const bool isElsewhere = TheMachine().screen.IsKeyboardElsewhere();
  mDelegate.unhookConsolidatorIfNecessary();
  Withdraw();
  if (!isElsewhere) EnsureThatCocoaWindowIsFrontmostIfPossible();
}

void QuintessentialViewWindow::Withdraw() {
  SaveFrame();
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mView.SetDrawable(false);
  hide();
}

void QuintessentialViewWindow::closeByUser() {
  performClose();
  mCommands.viewWasClosed();
}

void QuintessentialViewWindow::setAlphaValue(double alpha) {
  if (HasTranslucentWindows()) return setOpacity(alpha);
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mView.SetOpacity(alpha);
}

void QuintessentialViewWindow::RestoreFrame() {
  const auto [frame, isMaximised, isPlaced] = ReadWindowFrame(kFrameKey);
  if (!frame.isValid()) return resize(FitOnScreens(kFirstSize));
  mNormalFrame = FitOnScreens(frame);
  resize(mNormalFrame.size());
  mIsPlaced = isPlaced;
  if (isPlaced) setFramePosition(mNormalFrame.topLeft());
  if (isMaximised) setWindowStates(Qt::WindowMaximized);
}

void QuintessentialViewWindow::NoteFrame(const QSize& size) {
  if (isFullscreen() || (windowStates() & ~Qt::WindowActive) != 0 || !isVisible()) return;
  mNormalFrame = QRect(framePosition(), size);
  mIsPlaced = TheMachine().screen.Abilities().places;
}

void QuintessentialViewWindow::SaveFrame() {
  if (isFullscreen() || !mNormalFrame.isValid() || !isVisible()) return;
  const bool fills = (windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
  WriteWindowFrame(kFrameKey, mNormalFrame, fills);
}

// ---- Events -------------------------------------------------------------------------------------

void QuintessentialViewWindow::TakeSize() {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mView.SetSize({static_cast<double>(width()), static_cast<double>(height()), devicePixelRatio()});
}

void QuintessentialViewWindow::exposeEvent(QExposeEvent*) {
  bool cameUp = false;
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    cameUp = isExposed();
    TakeSize();
    mView.SetDrawable(cameUp && mMessage.isEmpty());
  }
  if (cameUp && isVisible()) {
    if (IsCurrent()) mDelegate.windowDidUpdate();
    mDelegate.windowDidExpose();
    mView.drawRect();
    PaintMessage();
  }
  // Another view's late goodbye must not stop this one.
  if (IsCurrent()) mDelegate.SetSeen(cameUp);
}

void QuintessentialViewWindow::resizeEvent(QResizeEvent* event) {
  const QSize pixels = event->size() * devicePixelRatio();
  const QSize bounded = mDelegate.windowWillResize(pixels);
  mDelegate.windowDidResize([this] { TakeSize(); });
  if (bounded != pixels) setMaximumSize(bounded / devicePixelRatio());
  NoteFrame(event->size());
  PaintMessage();
}

void QuintessentialViewWindow::moveEvent(QMoveEvent*) {
  NoteFrame(size());
}

void QuintessentialViewWindow::closeEvent(QCloseEvent* event) {
  // Accepted, it would take the native window away under the drawing thread.
  event->ignore();
  closeByUser();
}

void QuintessentialViewWindow::focusInEvent(QFocusEvent*) {
  if (isVisible() && IsCurrent()) mDelegate.windowDidBecomeKey();
}

bool QuintessentialViewWindow::event(QEvent* event) {
  if (event->type() == QEvent::Leave) mView.mouseMoved(QPointF(-1, -1));
  if (event->type() == QEvent::PlatformSurface) {
    // The native window comes or goes.
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    mView.SetDrawable(false);
    return QWindow::event(event);
  }
  return QWindow::event(event);
}

void QuintessentialViewWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) mView.mouseDown(*event);
  if (event->button() == Qt::RightButton) mView.rightMouseDown(*event);
}

void QuintessentialViewWindow::mouseMoveEvent(QMouseEvent* event) {
  mView.mouseMoved(event->position());
}

// ---- Keys ---------------------------------------------------------------------------------------

void QuintessentialViewWindow::keyPressEvent(QKeyEvent* event) {
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const auto is = [&](Qt::KeyboardModifiers held, int key) {
    return modifiers == held && event->key() == key;
  };
  if (event->isAutoRepeat()) return;
  if (!mToggleKey.isEmpty() &&
      QKeySequence(modifiers | static_cast<Qt::Key>(event->key())) == mToggleKey)
    return mCommands.doToggleQuintessentialViewFullScreen();
  if (is(Qt::NoModifier, Qt::Key_Escape) && isFullscreen())
    return mCommands.doToggleQuintessentialViewFullScreen();
  if (is(Qt::NoModifier, Qt::Key_Escape) || is(Qt::ControlModifier, Qt::Key_W))
    return closeByUser();
  if (is(Qt::ControlModifier, Qt::Key_Q)) return mCommands.doQuit();
  if (is(Qt::NoModifier, Qt::Key_F1)) return ShowHelpAbout(HelpSection::kAnimatedView);
  if (is(Qt::NoModifier, Qt::Key_Menu) || is(Qt::NoModifier, Qt::Key_F10) ||
      is(Qt::ShiftModifier, Qt::Key_F10))
    return ShowMenu(mapToGlobal(QPoint(8, 8)));
  QWindow::keyPressEvent(event);
}

void QuintessentialViewWindow::ShowMenu(const QPoint& place) {
  if (mMenu.isEmpty()) {
    const auto add = [this](const char* id, const QKeySequence& key,
                            std::function<void()> command) {
      auto* action = mMenu.addAction(LocalizedString(id));
      action->setShortcut(key);
      connect(action, &QAction::triggered, this, std::move(command));
    };
    add("quintessential_menu_toggle", mToggleKey, mCommands.doToggleQuintessentialViewFullScreen);
    add("quintessential_menu_processes", {}, mCommands.doShowMainWindow);
    mMenu.addSeparator();
    add("quintessential_menu_close", Qt::CTRL | Qt::Key_W, [this] { closeByUser(); });
  }
  mMenu.popup(place);
  mMenu.setActiveAction(mMenu.actions().constFirst());
}

// ---- When nothing can be drawn ------------------------------------------------------------------

void QuintessentialViewWindow::ShowMessage(const QString& message) {
  const bool wasVisible = isVisible();
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    mView.SetDrawable(false);
    mMessage = message;
    destroy();
    setSurfaceType(QSurface::RasterSurface);
    setFormat({});
    mBackingStore = std::make_unique<QBackingStore>(this);
  }
  if (wasVisible) show();
}

void QuintessentialViewWindow::PaintMessage() {
  if (mBackingStore == nullptr || !isExposed()) return;
  mBackingStore->resize(size());
  const QRect area(QPoint(), size());
  mBackingStore->beginPaint(area);
  {
    QPainter painter(mBackingStore->paintDevice());
    painter.fillRect(area, QGuiApplication::palette().window());
    painter.setPen(QGuiApplication::palette().color(QPalette::WindowText));
    painter.drawText(area.adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap, mMessage);
  }
  mBackingStore->endPaint();
  mBackingStore->flush(area);
}

}  // namespace lurkwell
