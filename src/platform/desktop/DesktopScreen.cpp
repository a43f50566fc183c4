#include "platform/desktop/DesktopScreen.h"

#include <xcb/xcb_icccm.h>

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QStandardPaths>
#include <QWindow>
#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

#include "platform/desktop/LayerSurfaces.h"
#include "platform/desktop/MotionWish.h"

namespace lurkwell {
namespace {

constexpr std::uint32_t kMostWords = 1U << 16;
constexpr std::uint32_t kEveryDesktop = 0xffffffff;
constexpr int kOpaqueDepth = 24;

/// Whether the renderer, by its name, is a program on the machine's processor.
bool IsSoftware(std::string_view renderer) {
  constexpr std::string_view kNames[] = {"llvmpipe", "softpipe", "swrast", "Software",
                                         "SwiftShader"};
  return renderer.empty() || std::ranges::any_of(kNames, [&](std::string_view name) {
           return renderer.find(name) != std::string_view::npos;
         });
}

DesktopScreen::Source ScreenOfPlatform() {
  const QString platform = QGuiApplication::platformName();
  if (platform.startsWith(QLatin1String("wayland"))) return DesktopScreen::Source::kWayland;
  return platform == QLatin1String("xcb") ? DesktopScreen::Source::kXServer
                                          : DesktopScreen::Source::kUnknown;
}

/// One of this application's windows; null when there is none of that number.
QWindow* WindowNumbered(std::uint64_t number) {
  const auto windows = QGuiApplication::topLevelWindows();
  const auto found = std::ranges::find_if(windows, [&](QWindow* window) {
    return window->handle() != nullptr && window->winId() == number;
  });
  return found != windows.end() ? *found : nullptr;
}

std::string RendererName() {
  QOpenGLContext context;
  if (!context.create()) return {};
  QOffscreenSurface surface;
  surface.setFormat(context.format());
  surface.create();
  if (!context.makeCurrent(&surface)) return {};
  const auto* name = context.functions()->glGetString(GL_RENDERER);
  std::string text = name != nullptr ? reinterpret_cast<const char*>(name) : "";
  context.doneCurrent();
  return text;
}

}  // namespace

DesktopScreen::DesktopScreen(DesktopSettings settings)
    : DesktopScreen(std::move(settings), ScreenOfPlatform()) {}

DesktopScreen::DesktopScreen(DesktopSettings settings, Source source)
    : mSettings(std::move(settings)),
      mSource(source),
      mLink(mSettings.display, mSettings.retryInterval),
      mBlends(source == Source::kWayland) {}

DesktopScreen::~DesktopScreen() = default;

void DesktopScreen::FollowMotionWish(const QDBusConnection& bus) {
  const auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  mMotion = std::make_unique<MotionWish>(folder, bus);
}

bool DesktopScreen::WantsLessMotion() const {
  return mMotion != nullptr && mMotion->IsLess();
}

bool DesktopScreen::UsesOpenGLAcceleration() {
  if (mAccelerated < 0) mAccelerated = IsSoftware(RendererName()) ? 0 : 1;
  return mAccelerated == 1;
}

XConnection* DesktopScreen::Server() {
  if (mSource != Source::kXServer || mSettings.display.empty()) return nullptr;
  if (mLink.Connection() != nullptr && mLink.Connection()->IsLost()) {
    mLink.Drop();
    mAtoms.clear();
  }
  return mLink.Connect();
}

xcb_atom_t DesktopScreen::AtomNamed(const std::string& name) {
  if (const auto known = mAtoms.find(name); known != mAtoms.end()) return known->second;
  auto* server = mLink.Connection();
  const auto reply = server->Wait<xcb_intern_atom_reply_t>(
      xcb_intern_atom_unchecked(server->Raw(), 0, static_cast<std::uint16_t>(name.size()),
                                name.data()),
      XConnection::BatchDeadline());
  if (!reply) return XCB_ATOM_NONE;
  return mAtoms[name] = reply->atom;
}

bool DesktopScreen::BlendsWindows() {
  auto* server = Server();
  if (server == nullptr) return mBlends;
  // A compositor owns the selection of its screen's number.
  const auto dot = mSettings.display.rfind('.');
  const auto colon = mSettings.display.rfind(':');
  const bool named = dot != std::string::npos && colon != std::string::npos && dot > colon;
  const std::string number = named ? mSettings.display.substr(dot + 1) : "0";
  const auto selection = AtomNamed("_NET_WM_CM_S" + number);
  const auto reply = server->Wait<xcb_get_selection_owner_reply_t>(
      xcb_get_selection_owner_unchecked(server->Raw(), selection), XConnection::BatchDeadline());
  if (reply) mBlends = reply->owner != XCB_NONE;
  return mBlends;
}

LayerSurfaces* DesktopScreen::Layers() {
  if (mSource != Source::kWayland) return nullptr;
  if (!mLooksForLayers) return mLayers;
  mLooksForLayers = false;
  auto* layers = LayersOfThisProgram();
  if (layers != nullptr && layers->AreThere()) mLayers = layers;
  return mLayers;
}

void DesktopScreen::MakeFloating(std::uint64_t number) {
  auto* layers = Layers();
  if (auto* window = WindowNumbered(number); window != nullptr && layers != nullptr)
    return layers->Float(*window);
  auto* server = Server();
  if (server == nullptr) return;
  // The server may not know the window yet: on the toolkit's own connection this comes behind what
  // made it.
  const auto* toolkit = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (toolkit == nullptr) return;
  auto* link = toolkit->connection();
  const auto window = static_cast<xcb_window_t>(number);
  const auto write = [&](int mode, const std::string& property, xcb_atom_t type,
                         std::span<const std::uint32_t> words) {
    xcb_change_property(link, static_cast<std::uint8_t>(mode), window, AtomNamed(property), type,
                        32, static_cast<std::uint32_t>(words.size()), words.data());
  };
  // Dialogs are the only small windows that no manager hides when another program is in use, as
  // long as they belong to no other window. What the toolkit writes for a frameless window means
  // "not managed" to some.
  write(XCB_PROP_MODE_REPLACE, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
        std::array{AtomNamed("_NET_WM_WINDOW_TYPE_DIALOG")});
  // The toolkit's windows offer to take the focus, even those that do not accept it; some managers
  // then look for another window of the application.
  write(XCB_PROP_MODE_REPLACE, "WM_PROTOCOLS", XCB_ATOM_ATOM,
        std::array{AtomNamed("WM_DELETE_WINDOW"), AtomNamed("_NET_WM_PING"),
                   AtomNamed("_NET_WM_SYNC_REQUEST")});
  write(XCB_PROP_MODE_APPEND, "_NET_WM_STATE", XCB_ATOM_ATOM,
        std::array{AtomNamed("_NET_WM_STATE_STICKY"), AtomNamed("_NET_WM_STATE_SKIP_TASKBAR"),
                   AtomNamed("_NET_WM_STATE_SKIP_PAGER")});
  write(XCB_PROP_MODE_REPLACE, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, std::array{kEveryDesktop});
  // With the other windows in a group, xfwm4 puts it back among them whenever one of them is
  // opened.
  xcb_icccm_wm_hints_t hints{};
  xcb_icccm_wm_hints_set_input(&hints, 0);
  xcb_icccm_set_wm_hints(link, window, &hints);
  xcb_flush(link);
}

void DesktopScreen::MakeOverlay(std::uint64_t number) {
  auto* layers = Layers();
  if (auto* window = WindowNumbered(number); window != nullptr && layers != nullptr)
    layers->Cover(*window);
}

SessionAbilities DesktopScreen::Abilities() {
  if (mSource != Source::kWayland) return {};
  return {.floats = Layers() != nullptr, .places = false, .reachesOthers = false};
}

FloatingWay DesktopScreen::Floating() {
  if (mSource == Source::kWayland)
    return Layers() != nullptr ? FloatingWay::kByLayer : FloatingWay::kNotAtAll;
  auto* server = Server();
  if (server == nullptr || DoesManagerKeepAbove(*server)) return FloatingWay::kByManager;
  return FloatingWay::kByThemselves;
}

bool DesktopScreen::DoesManagerKeepAbove(XConnection& server) {
  const auto reply = server.Wait<xcb_get_property_reply_t>(
      server.AskProperty(server.Root(), AtomNamed("_NET_SUPPORTED"), kMostWords),
      XConnection::BatchDeadline());
  if (!reply) return true;
  const auto supported = PropertyWords(reply.get());
  return std::ranges::find(supported, AtomNamed("_NET_WM_STATE_ABOVE")) != supported.end();
}

/// The windows, and those that they stand in.
std::vector<xcb_window_t> DesktopScreen::ClientsAnd(std::vector<xcb_window_t> clients,
                                                    XConnection::Deadline deadline) {
  constexpr int kMostFrames = 4;
  auto* server = mLink.Connection();
  auto within = clients;
  for (int frame = 0; frame < kMostFrames && !within.empty(); ++frame) {
    std::vector<xcb_query_tree_cookie_t> questions;
    for (const auto window : within)
      questions.push_back(xcb_query_tree_unchecked(server->Raw(), window));
    within.clear();
    for (const auto question : questions) {
      const auto tree = server->Wait<xcb_query_tree_reply_t>(question, deadline);
      if (tree && tree->parent != XCB_NONE && tree->parent != tree->root)
        within.push_back(tree->parent);
    }
    clients.insert(clients.end(), within.begin(), within.end());
  }
  return clients;
}

void DesktopScreen::PutAboveManaged(std::uint64_t number) {
  auto* server = Server();
  if (server == nullptr) return;
  const auto deadline = XConnection::BatchDeadline();
  const auto tree = server->Wait<xcb_query_tree_reply_t>(
      xcb_query_tree_unchecked(server->Raw(), server->Root()), deadline);
  if (!tree) return;
  const std::span children(xcb_query_tree_children(tree.get()), tree->children_len);
  const auto window = static_cast<xcb_window_t>(number);
  const auto own = std::ranges::find(children, window);
  // One that is managed stands in a frame.
  if (own == children.end() || own + 1 == children.end()) return;
  const auto reply = server->Wait<xcb_get_property_reply_t>(
      server->AskProperty(server->Root(), server->Atom(XAtom::kClientListStacking), kMostWords),
      deadline);
  auto managed = ClientsAnd(PropertyWords(reply.get()), deadline);
  std::ranges::sort(managed);
  const std::span above(own + 1, children.end());
  const auto highest = std::find_if(above.rbegin(), above.rend(), [&](xcb_window_t other) {
    return std::ranges::binary_search(managed, other);
  });
  if (highest == above.rend()) return;
  const std::uint32_t words[] = {*highest, XCB_STACK_MODE_ABOVE};
  xcb_configure_window(server->Raw(), window,
                       XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, words);
  server->Flush();
}

std::vector<xcb_window_t> DesktopScreen::WindowsAbove(xcb_window_t window,
                                                      XConnection::Deadline deadline) {
  auto* server = mLink.Connection();
  const auto reply = server->Wait<xcb_get_property_reply_t>(
      server->AskProperty(server->Root(), server->Atom(XAtom::kClientListStacking), kMostWords),
      deadline);
  auto windows = PropertyWords(reply.get());
  const auto found = std::ranges::find(windows, window);
  if (found == windows.end()) return {};
  windows.erase(windows.begin(), found + 1);
  return windows;
}

bool DesktopScreen::AreaOf(xcb_get_geometry_cookie_t geometry,
                           xcb_translate_coordinates_cookie_t place, XConnection::Deadline deadline,
                           Area& area, int& depth) {
  auto* server = mLink.Connection();
  const auto size = server->Wait<xcb_get_geometry_reply_t>(geometry, deadline);
  const auto at = server->Wait<xcb_translate_coordinates_reply_t>(place, deadline);
  if (!size || !at) return false;
  area = {at->dst_x, at->dst_y, size->width, size->height};
  depth = size->depth;
  return true;
}

bool DesktopScreen::IsKeyboardElsewhere() {
  const bool byToolkit = QGuiApplication::applicationState() != Qt::ApplicationActive;
  auto* server = Server();
  if (server == nullptr) return byToolkit;
  const auto reply = server->Wait<xcb_get_property_reply_t>(
      server->AskProperty(server->Root(), AtomNamed("_NET_ACTIVE_WINDOW"), 1),
      XConnection::BatchDeadline());
  const auto words = PropertyWords(reply.get());
  if (words.empty()) return byToolkit;
  const auto windows = QGuiApplication::topLevelWindows();
  return words[0] != XCB_NONE && std::ranges::none_of(windows, [&](const QWindow* window) {
           return window->handle() != nullptr && window->winId() == words[0];
         });
}

bool DesktopScreen::IsCovered(std::uint64_t number) {
  auto* server = Server();
  if (server == nullptr) return false;
  const auto window = static_cast<xcb_window_t>(number);
  auto windows = WindowsAbove(window, XConnection::BatchDeadline());
  if (windows.empty()) return false;
  windows.insert(windows.begin(), window);
  struct Question {
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t place;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_property_cookie_t opacity;
  };
  const auto opacity = AtomNamed("_NET_WM_WINDOW_OPACITY");
  const auto deadline = XConnection::BatchDeadline();
  std::vector<Question> questions;
  questions.reserve(windows.size());
  for (const auto asked : windows)
    questions.push_back(
        {xcb_get_geometry_unchecked(server->Raw(), asked),
         xcb_translate_coordinates_unchecked(server->Raw(), asked, server->Root(), 0, 0),
         xcb_get_window_attributes_unchecked(server->Raw(), asked),
         server->AskProperty(asked, opacity, 1)});
  Area own;
  bool isCovered = false;
  for (std::size_t i = 0; i < windows.size(); ++i) {
    const auto& question = questions[i];
    Area area;
    int depth = 0;
    const bool isThere = AreaOf(question.geometry, question.place, deadline, area, depth);
    const auto attributes =
        server->Wait<xcb_get_window_attributes_reply_t>(question.attributes, deadline);
    const auto set = server->Wait<xcb_get_property_reply_t>(question.opacity, deadline);
    if (i == 0) own = area;
    if (i == 0 || !isThere || !attributes) continue;
    if (attributes->map_state != XCB_MAP_STATE_VIEWABLE || depth > kOpaqueDepth) continue;
    if (const auto words = PropertyWords(set.get()); !words.empty() && words[0] != 0xffffffff)
      continue;
    if (area.x <= own.x && area.y <= own.y && area.x + area.width >= own.x + own.width &&
        area.y + area.height >= own.y + own.height)
      isCovered = true;
  }
  return isCovered;
}

}  // namespace lurkwell
