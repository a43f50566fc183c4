#pragma once

#include <memory>

#include "platform/Screen.h"
#include "platform/desktop/DesktopSettings.h"
#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// The screen as the X server, the window manager and the compositor know it. Connects when it is
/// first asked. Without an X server windows are taken to be translucent and uncovered, which is so
/// on Wayland.
class DesktopScreen final : public Screen {
 public:
  explicit DesktopScreen(DesktopSettings settings);
  ~DesktopScreen() override;

  /// Needs a QGuiApplication; looks once.
  bool UsesOpenGLAcceleration() override;
  bool BlendsWindows() override;
  void KeepInSight(std::uint64_t window) override;
  bool IsCovered(std::uint64_t window) override;

 private:
  struct Area {
    int x = 0, y = 0, width = 0, height = 0;
  };

  XConnection* Server();
  xcb_atom_t AtomNamed(const std::string& name);
  bool AreaOf(xcb_get_geometry_cookie_t geometry, xcb_translate_coordinates_cookie_t place,
              XConnection::Deadline deadline, Area& area, int& depth);
  std::vector<xcb_window_t> WindowsAbove(xcb_window_t window, XConnection::Deadline deadline);

  DesktopSettings mSettings;
  bool mIsOnWayland;
  bool mHasTried = false;
  std::unique_ptr<XConnection> mConnection;
  int mAccelerated = -1;
};

}  // namespace lurkwell
