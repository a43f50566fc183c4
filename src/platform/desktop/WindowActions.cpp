#include "platform/desktop/WindowActions.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace lurkwell {
namespace {

// What asks: a program that acts for the user, not the application itself.
constexpr std::uint32_t kFromUser = 2;
constexpr std::uint32_t kIconicState = 3;

using Data = std::array<std::uint32_t, 5>;

xcb_client_message_event_t Message(xcb_window_t window, xcb_atom_t type, const Data& data) {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = type;
  std::ranges::copy(data, message.data.data32);
  return message;
}

void TellManager(XConnection& connection, xcb_window_t window, XAtom type, const Data& data) {
  const auto message = Message(window, connection.Atom(type), data);
  xcb_send_event(connection.Raw(), 0, connection.Root(),
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&message));
}

/// The windows that can be asked themselves to close.
std::vector<xcb_window_t> Closeable(XConnection& connection,
                                    const std::vector<xcb_window_t>& windows) {
  const auto deadline = XConnection::BatchDeadline();
  std::vector<xcb_get_property_cookie_t> asked;
  asked.reserve(windows.size());
  for (const xcb_window_t window : windows) {
    asked.push_back(connection.AskProperty(window, connection.Atom(XAtom::kProtocols), 32));
  }
  std::vector<xcb_window_t> closeable;
  for (std::size_t i = 0; i < windows.size(); ++i) {
    const auto protocols =
        PropertyWords(connection.Wait<xcb_get_property_reply_t>(asked[i], deadline).get());
    if (std::ranges::find(protocols, connection.Atom(XAtom::kDeleteWindow)) != protocols.end()) {
      closeable.push_back(windows[i]);
    }
  }
  return closeable;
}

std::vector<xcb_window_t> FromBackToFront(const WindowList& list,
                                          const std::vector<xcb_window_t>& windows) {
  std::unordered_set<xcb_window_t> missing(windows.begin(), windows.end());
  std::vector<xcb_window_t> stacked;
  for (const xcb_window_t window : list.Stacking()) {
    if (missing.erase(window) > 0) stacked.push_back(window);
  }
  std::vector<xcb_window_t> ordered;
  for (const xcb_window_t window : windows) {
    if (missing.contains(window)) ordered.push_back(window);
  }
  ordered.insert(ordered.end(), stacked.begin(), stacked.end());
  return ordered;
}

/// Which of the windows, frontmost last, is to have the keyboard: the frontmost that does not
/// refuse it. Programs that take it by themselves say the same of all their windows as those say
/// that never want it, so if there is no other, the frontmost.
xcb_window_t WhichTakesKeyboard(XConnection& connection, const std::vector<xcb_window_t>& windows) {
  constexpr std::uint32_t kHasInput = 1;
  const auto deadline = XConnection::BatchDeadline();
  std::vector<xcb_get_property_cookie_t> asked;
  asked.reserve(windows.size());
  for (const xcb_window_t window : windows) {
    asked.push_back(connection.AskProperty(window, XCB_ATOM_WM_HINTS, 9));
  }
  xcb_window_t taker = XCB_WINDOW_NONE;
  for (std::size_t i = 0; i < windows.size(); ++i) {
    const auto hints =
        PropertyWords(connection.Wait<xcb_get_property_reply_t>(asked[i], deadline).get());
    const bool refuses = hints.size() > 1 && (hints[0] & kHasInput) != 0 && hints[1] == 0;
    if (!refuses) taker = windows[i];
  }
  return taker != XCB_WINDOW_NONE ? taker : windows.back();
}

bool Send(XConnection& connection, const std::vector<xcb_window_t>& windows) {
  connection.Flush();
  return !windows.empty() && !connection.IsLost();
}

}  // namespace

bool CloseWindows(XConnection& connection, const WindowList& list,
                  const std::vector<xcb_window_t>& windows) {
  if (windows.empty()) return false;
  const auto time = connection.ServerTime();
  if (list.IsSupported(XAtom::kCloseWindow)) {
    for (const xcb_window_t window : windows) {
      TellManager(connection, window, XAtom::kCloseWindow, {time, kFromUser});
    }
    return Send(connection, windows);
  }
  const auto closeable = Closeable(connection, windows);
  for (const xcb_window_t window : closeable) {
    const auto message = Message(window, connection.Atom(XAtom::kProtocols),
                                 {connection.Atom(XAtom::kDeleteWindow), time});
    xcb_send_event(connection.Raw(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
  }
  return Send(connection, closeable);
}

bool RaiseWindows(XConnection& connection, const WindowList& list,
                  const std::vector<xcb_window_t>& windows) {
  if (windows.empty()) return false;
  const auto ordered = FromBackToFront(list, windows);
  const auto time = connection.ServerTime();
  if (list.IsSupported(XAtom::kRestackWindow)) {
    for (const xcb_window_t window : ordered) {
      TellManager(connection, window, XAtom::kRestackWindow,
                  {kFromUser, XCB_WINDOW_NONE, XCB_STACK_MODE_ABOVE});
    }
  }
  TellManager(connection, WhichTakesKeyboard(connection, ordered), XAtom::kActiveWindow,
              {kFromUser, time});
  return Send(connection, windows);
}

bool IconifyWindows(XConnection& connection, const std::vector<xcb_window_t>& windows) {
  for (const xcb_window_t window : windows) {
    TellManager(connection, window, XAtom::kChangeState, {kIconicState});
  }
  return Send(connection, windows);
}

/// Mapping is the old way, which does nothing where iconified windows stay mapped; activating is
/// understood everywhere.
bool RestoreWindows(XConnection& connection, const WindowList& list,
                    const std::vector<xcb_window_t>& windows) {
  if (windows.empty()) return false;
  const auto time = connection.ServerTime();
  for (const xcb_window_t window : FromBackToFront(list, windows)) {
    xcb_map_window(connection.Raw(), window);
    TellManager(connection, window, XAtom::kActiveWindow, {kFromUser, time});
  }
  return Send(connection, windows);
}

}  // namespace lurkwell
