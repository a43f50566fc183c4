#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Screen.h"
#include "platform/desktop/DesktopSettings.h"
#include "platform/desktop/XConnection.h"

class QDBusConnection;

namespace lurkwell {

class LayerSurfaces;
class MotionWish;

/// The screen as the X server, the window manager and the compositor know it. Connects when it is
/// first asked, and again, later, to a server that did not answer in time. Without one windows are
/// taken to be uncovered, and translucent on Wayland or as they last were. An X server that other
/// programs' windows are on is left alone.
class DesktopScreen final : public Screen {
 public:
  enum class Source { kXServer, kWayland, kUnknown };

  /// The source is that of the application's own windows.
  explicit DesktopScreen(DesktopSettings settings);
  DesktopScreen(DesktopSettings settings, Source source);
  ~DesktopScreen() override;

  /// Needs a QGuiApplication; looks once.
  bool UsesOpenGLAcceleration() override;
  bool BlendsWindows() override;
  SessionAbilities Abilities() override;
  FloatingWay Floating() override;
  void MakeFloating(std::uint64_t window) override;
  void MakeOverlay(std::uint64_t window) override;
  void PutAboveManaged(std::uint64_t window) override;
  bool IsCovered(std::uint64_t window) override;
  bool IsKeyboardElsewhere() override;
  bool WantsLessMotion() const override;

  /// From then on the wish for less motion is known, by a session bus that need not be connected.
  void FollowMotionWish(const QDBusConnection& bus);

 private:
  struct Area {
    int x = 0, y = 0, width = 0, height = 0;
  };

  /// Those of the compositor, which is asked once; null when it has none.
  LayerSurfaces* Layers();
  /// Null while there is none.
  XConnection* Server();
  bool DoesManagerKeepAbove(XConnection& server);
  /// Asked for once a connection; needs one.
  xcb_atom_t AtomNamed(const std::string& name);
  bool AreaOf(xcb_get_geometry_cookie_t geometry, xcb_translate_coordinates_cookie_t place,
              XConnection::Deadline deadline, Area& area, int& depth);
  std::vector<xcb_window_t> ClientsAnd(std::vector<xcb_window_t> clients,
                                       XConnection::Deadline deadline);
  std::vector<xcb_window_t> WindowsAbove(xcb_window_t window, XConnection::Deadline deadline);

  DesktopSettings mSettings;
  Source mSource;
  XLink mLink;
  std::map<std::string, xcb_atom_t> mAtoms;
  bool mBlends;
  bool mLooksForLayers = true;
  LayerSurfaces* mLayers = nullptr;
  int mAccelerated = -1;
  std::unique_ptr<MotionWish> mMotion;
};

}  // namespace lurkwell
