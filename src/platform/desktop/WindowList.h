#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// What is known of a window that the window manager manages. Texts are any bytes.
struct DesktopWindow {
  xcb_window_t id = 0;
  /// Its process on this machine; kInvalidPID when there is none.
  std::int32_t pid = -1;
  /// No dock, desktop, menu, notification or the like.
  bool isOwnKind = false;
  /// Whether having it makes a process an application: of its own kind and no other's dialog.
  bool isOrdinary = false;
  bool isIconified = false;
  std::string instance;
  std::string windowClass;
  std::string title;
  /// Goes up with every change of its icon.
  std::uint32_t iconChanges = 0;
  /// False when it was gone before it could be asked, or is no window at all.
  bool isThere = false;
};

/// The windows that the window manager manages. Kept by events: a refresh with nothing new asks
/// the server nothing, one with news costs two rounds however many windows are new. Without a
/// window manager there are none. Main thread only.
class WindowList {
 public:
  /// `hostName` tells which windows' own words about their pid count.
  WindowList(XConnection& connection, std::string hostName);

  /// Takes in what has happened; true when any window came, went or changed.
  bool Refresh();

  /// In the order in which the windows came.
  std::vector<const DesktopWindow*> All() const;

  /// From the back to the front.
  const std::vector<xcb_window_t>& Stacking() const { return mStacking; }

  /// Whether the window manager says that it knows this message.
  bool IsSupported(XAtom message) const;

 private:
  void TakeChange(const XChange& change);
  void ReadRoot();
  bool DropOldWindows();
  void ReadWindows(const std::vector<xcb_window_t>& windows);
  std::vector<xcb_window_t> NewOrChanged() const;
  void ReadPids(const std::vector<xcb_window_t>& windows);

  XConnection& mConnection;
  std::string mHostName;
  bool mRootChanged = true;
  bool mAnyChange = false;
  std::vector<xcb_window_t> mOrder;
  std::vector<xcb_window_t> mStacking;
  std::vector<xcb_atom_t> mSupported;
  std::unordered_map<xcb_window_t, DesktopWindow> mWindows;
  std::unordered_set<xcb_window_t> mChanged;
};

/// The X server as it comes and goes: connects when there is none, gives up one that is lost, and
/// tries again later. Never waits longer than a fraction of a second. Main thread only.
class XSession {
 public:
  XSession(std::string display, std::string hostName, std::chrono::milliseconds retryInterval);

  /// Takes in what is new; true when any window came, went or changed, or all of them went.
  bool Refresh();

  /// Null while there is no server; until the next refresh.
  XConnection* Connection() const { return mLink.Connection(); }
  WindowList* Windows() const { return mWindows.get(); }

 private:
  std::string mHostName;
  XLink mLink;
  std::unique_ptr<WindowList> mWindows;
};

/// One picture within a window's list of icons: rows from the top, pixels 0xAARRGGBB.
struct WindowIcon {
  int width = 0;
  int height = 0;
  std::span<const std::uint32_t> pixels;
};

/// The icons of the first of these windows that carries any, as it has them, or as many as can be
/// asked for in reason.
std::vector<std::uint32_t> ReadWindowIcons(XConnection& connection,
                                           const std::vector<xcb_window_t>& windows);

/// The smallest icon of a list that is at least `size` pixels wide and high, else the largest one;
/// nothing when there is none. The list may hold anything: it counts up to the first icon that is
/// not wholly there or has no sensible size. Pure; any thread.
std::optional<WindowIcon> BestWindowIcon(std::span<const std::uint32_t> icons, int size);

}  // namespace lurkwell
