#include "platform/desktop/WaylandLayers.h"

#include <LayerShellQt/window.h>
#include <poll.h>
#include <wayland-client.h>

#include <QGuiApplication>
#include <QMargins>
#include <QRect>
#include <QScreen>
#include <QWindow>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string_view>

namespace lurkwell {
namespace {

using LayerWindow = LayerShellQt::Window;

constexpr std::chrono::milliseconds kCompositorAnswers{500};
constexpr std::string_view kLayerShell = "zwlr_layer_shell_v1";
const QString kScope = QStringLiteral("lurkwell");
/// Places count from the screen's edges, not from those of its panels.
constexpr std::int32_t kWholeScreen = -1;

/// Looks through what the compositor has. On a connection of its own, since the toolkit's is not to
/// be read by others.
class CompositorLook {
 public:
  CompositorLook() : mDisplay(wl_display_connect(nullptr), &wl_display_disconnect) {}

  bool HasLayers() {
    if (mDisplay == nullptr) return false;
    auto* registry = wl_display_get_registry(mDisplay.get());
    wl_registry_add_listener(registry, &kRegistryListener, this);
    auto* end = wl_display_sync(mDisplay.get());
    wl_callback_add_listener(end, &kEndListener, this);
    ReadUntilEnd();
    wl_callback_destroy(end);
    wl_registry_destroy(registry);
    return mHasLayers;
  }

 private:
  void ReadUntilEnd() {
    const auto deadline = std::chrono::steady_clock::now() + kCompositorAnswers;
    while (!mHasAll) {
      while (wl_display_prepare_read(mDisplay.get()) != 0)
        if (wl_display_dispatch_pending(mDisplay.get()) < 0) return;
      wl_display_flush(mDisplay.get());
      const auto left =
          std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
      pollfd file{wl_display_get_fd(mDisplay.get()), POLLIN, 0};
      if (left.count() <= 0 || ::poll(&file, 1, static_cast<int>(left.count())) <= 0)
        return wl_display_cancel_read(mDisplay.get());
      if (wl_display_read_events(mDisplay.get()) < 0 ||
          wl_display_dispatch_pending(mDisplay.get()) < 0)
        return;
    }
  }

  static void NoteGlobal(void* look, wl_registry*, std::uint32_t, const char* interface,
                         std::uint32_t) {
    if (interface == kLayerShell) static_cast<CompositorLook*>(look)->mHasLayers = true;
  }
  static void NoteRemoval(void*, wl_registry*, std::uint32_t) {}
  static void NoteEnd(void* look, wl_callback*, std::uint32_t) {
    static_cast<CompositorLook*>(look)->mHasAll = true;
  }
  static constexpr wl_registry_listener kRegistryListener{&NoteGlobal, &NoteRemoval};
  static constexpr wl_callback_listener kEndListener{&NoteEnd};

  std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> mDisplay;
  bool mHasLayers = false;
  bool mHasAll = false;
};

QScreen* ScreenUnder(const QWindow& window) {
  auto* screen = QGuiApplication::screenAt(window.geometry().center());
  return screen != nullptr ? screen : window.screen();
}

/// The window's layer is that of its present native window; one of an earlier one is dropped.
LayerWindow* LayerOf(QWindow& window) {
  delete window.findChild<LayerWindow*>(Qt::FindDirectChildrenOnly);
  auto* layer = LayerWindow::get(&window);
  layer->setKeyboardInteractivity(LayerWindow::KeyboardInteractivityNone);
  layer->setExclusiveZone(kWholeScreen);
  layer->setScope(kScope);
  return layer;
}

/// A layer counts from an edge of the screen. A window stays on the screen that it was shown on.
void FollowGeometry(const QWindow& window, LayerWindow& layer) {
  const QPoint place = window.position() - window.screen()->geometry().topLeft();
  layer.setMargins(QMargins(place.x(), place.y(), 0, 0));
}

}  // namespace

bool WaylandLayers::AreThere() {
  return CompositorLook().HasLayers();
}

void WaylandLayers::Float(QWindow& window) {
  window.setScreen(ScreenUnder(window));
  auto* layer = LayerOf(window);
  layer->setLayer(LayerWindow::LayerTop);
  layer->setAnchors({LayerWindow::AnchorTop, LayerWindow::AnchorLeft});
  const auto follow = [&window, layer] { FollowGeometry(window, *layer); };
  follow();
  connect(&window, &QWindow::xChanged, layer, follow);
  connect(&window, &QWindow::yChanged, layer, follow);
}

void WaylandLayers::Cover(QWindow& window) {
  auto* layer = LayerOf(window);
  layer->setLayer(LayerWindow::LayerOverlay);
  layer->setAnchors({LayerWindow::AnchorTop, LayerWindow::AnchorBottom, LayerWindow::AnchorLeft,
                     LayerWindow::AnchorRight});
}

}  // namespace lurkwell
