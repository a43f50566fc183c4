#include <QGuiApplication>
#include <QScreen>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialViewWindow.h"
#include "platform/Alerts.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/Screen.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"
#include "windows/OverlayKey.h"

namespace lurkwell {
namespace {

constexpr double kSecondsUntilVisible = 1.0;
constexpr char kToldKey[] = "QUIVA_CHECK_COMPOSITOR";
/// What Qt's X11 side takes a window's type from, and the bit for notifications there, by which
/// compositors tell it from menus.
constexpr char kWindowTypeProperty[] = "_q_xcb_wm_window_type";
constexpr int kNotificationType = 0x800;

constexpr Qt::WindowFlags kOverlayFlags = Qt::Window | Qt::FramelessWindowHint |
                                          Qt::WindowStaysOnTopHint | Qt::WindowTransparentForInput |
                                          Qt::WindowDoesNotAcceptFocus;

/// Most window managers put a frame around every window, which takes the clicks that the window
/// itself lets through. On Wayland the toolkit would not show such a window.
Qt::WindowFlags OverlayFlags() {
  const bool isOnX = QGuiApplication::platformName() == QLatin1String("xcb");
  return isOnX ? kOverlayFlags | Qt::BypassWindowManagerHint : kOverlayFlags;
}

/// Not at once: a question inside a timer's callback would hold up all other timers.
void TellOnce(QObject& context, const char* title, const char* text) {
  if (StoredInt(kToldKey).value_or(0) != 0) return;
  // A question takes the keyboard; there will be another time.
  if (TheMachine().screen.IsKeyboardElsewhere()) return;
  StoreInt(kToldKey, 1);
  const auto tell = [title, text] {
    TheMachine().alerts.RunAlertPanel(
        LocalizedString(title).toStdString(),
        LocalizedString(text).arg(OverlayKey().toString(QKeySequence::NativeText)).toStdString(),
        LocalizedString("alert_ok").toStdString(), "", "");
  };
  QMetaObject::invokeMethod(&context, tell, Qt::QueuedConnection);
}

}  // namespace

void QuintessentialViewFullscreenWindow::setUpOverlayStuff() {
  auto& screen = TheMachine().screen;
  // What lies behind other windows need not be translucent.
  const bool floats = screen.Abilities().floats;
  const bool blends = floats && screen.BlendsWindows();
  if (!floats)
    TellOnce(*this, "overlay_needs_layer", "overlay_needs_layer_text");
  else if (!blends)
    TellOnce(*this, "overlay_needs_compositor", "overlay_needs_compositor_text");
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    // Window managers look at these when a window comes up, and no later.
    if (!isVisible()) destroy();
    setProperty(kWindowTypeProperty, blends ? QVariant(kNotificationType) : QVariant());
    setFlags(blends ? OverlayFlags() : Qt::Window | Qt::FramelessWindowHint);
    view().SetMode(blends ? ViewMode::kOverlay : ViewMode::kOpaqueFullscreen);
    setGeometry(QGuiApplication::primaryScreen()->geometry());
    // Only a layer has to know of the native window before it is shown.
    if (blends && !isVisible() && screen.Floating() == FloatingWay::kByLayer)
      screen.MakeOverlay(winId());
  }
  mIsRevealed = !blends;
  setAlphaValue(blends ? 0.0 : 1.0);
  mTimer = TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime() + kSecondsUntilVisible,
                                         0.0, [this] { myTimer(); });
}

void QuintessentialViewFullscreenWindow::myTimer() {
  mIsRevealed = true;
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    setGeometry(QGuiApplication::primaryScreen()->geometry());
    TakeSize();
    // Not showFullScreen(), which asks for the keyboard.
    if (view().Mode() == ViewMode::kOpaqueFullscreen && isVisible()) {
      setWindowStates(Qt::WindowFullScreen);
      setFlag(Qt::WindowDoesNotAcceptFocus, false);
    }
  }
  if (view().Mode() == ViewMode::kOverlay) {
    setAlphaValue(OverlayWindowAlpha());
    if (isVisible()) KeepAboveManaged(*this);
  }
  view().drawRect();
}

}  // namespace lurkwell
