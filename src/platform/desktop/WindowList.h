#pragma once

#include <xcb/xcb.h>

#include <cstdint>
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

}  // namespace lurkwell
