#pragma once

#include <xcb/xcb.h>

#include <vector>

#include "platform/desktop/WindowList.h"
#include "platform/desktop/XConnection.h"

namespace lurkwell {

// What the window manager can be asked to do with windows of others. The outcome is not waited for;
// true means that it has been asked of at least one window. Main thread only.

/// Closes the windows as their own close button would.
bool CloseWindows(XConnection& connection, const WindowList& list,
                  const std::vector<xcb_window_t>& windows);

/// Brings the windows to the front in their order, the frontmost of them that accepts it with the
/// keyboard; that one also if it was iconified.
bool RaiseWindows(XConnection& connection, const WindowList& list,
                  const std::vector<xcb_window_t>& windows);

bool IconifyWindows(XConnection& connection, const std::vector<xcb_window_t>& windows);

/// Brings back iconified windows.
bool RestoreWindows(XConnection& connection, const WindowList& list,
                    const std::vector<xcb_window_t>& windows);

}  // namespace lurkwell
