// An application for the tests: windows of its own, on request.
//
// window-client INSTANCE CLASS   opens a window and prints "ready"; then reads lines:
//   window | dialog | dock       another one: of its own right, a dialog of the first, a dock
//   mute                         another one that does not want the keyboard
//   withdraw                     the first window goes but is kept
//   icon W H COLOUR PIXELS       the first window gets an icon of so many pixels, whatever W and H
//   pid PID HOST                 the first window says that it is of this process
//   quit                         ends
// and answers each with "done". It ends when asked to close its first window.

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xcb_icccm.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

xcb_connection_t* gConnection = nullptr;
xcb_screen_t* gScreen = nullptr;

xcb_atom_t Atom(const char* name) {
  const auto cookie =
      xcb_intern_atom(gConnection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
  auto* reply = xcb_intern_atom_reply(gConnection, cookie, nullptr);
  if (reply == nullptr) std::exit(1);
  const xcb_atom_t atom = reply->atom;
  std::free(reply);
  return atom;
}

void Set(xcb_window_t window, const char* property, xcb_atom_t type,
         const std::vector<std::uint32_t>& words) {
  xcb_change_property(gConnection, XCB_PROP_MODE_REPLACE, window, Atom(property), type, 32,
                      static_cast<std::uint32_t>(words.size()), words.data());
}

xcb_window_t Open(const std::string& instance, const std::string& windowClass) {
  const xcb_window_t window = xcb_generate_id(gConnection);
  xcb_create_window(gConnection, XCB_COPY_FROM_PARENT, window, gScreen->root, 10, 10, 100, 50, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, gScreen->root_visual, 0, nullptr);
  const std::string both = instance + '\0' + windowClass + '\0';
  xcb_icccm_set_wm_class(gConnection, window, static_cast<std::uint32_t>(both.size()), both.data());
  Set(window, "WM_PROTOCOLS", XCB_ATOM_ATOM, {Atom("WM_DELETE_WINDOW")});
  return window;
}

void Obey(const std::string& line, xcb_window_t main, const std::string& windowClass) {
  std::istringstream words(line);
  std::string what;
  words >> what;
  if (what == "quit") std::exit(0);
  if (what == "withdraw") {
    xcb_unmap_window(gConnection, main);
    xcb_unmap_notify_event_t event{};
    event.response_type = XCB_UNMAP_NOTIFY;
    event.event = gScreen->root;
    event.window = main;
    xcb_send_event(gConnection, 0, gScreen->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
  } else if (what == "icon") {
    std::uint32_t width = 0, height = 0, colour = 0, pixels = 0;
    words >> width >> height >> std::hex >> colour >> std::dec >> pixels;
    std::vector<std::uint32_t> icon(pixels + 2, colour);
    icon[0] = width;
    icon[1] = height;
    Set(main, "_NET_WM_ICON", XCB_ATOM_CARDINAL, icon);
  } else if (what == "pid") {
    std::uint32_t pid = 0;
    std::string host;
    words >> pid >> host;
    Set(main, "_NET_WM_PID", XCB_ATOM_CARDINAL, {pid});
    xcb_icccm_set_wm_client_machine(gConnection, main, XCB_ATOM_STRING, 8,
                                    static_cast<std::uint32_t>(host.size()), host.data());
  } else {
    const xcb_window_t window = Open(what, windowClass);
    if (what == "dialog") xcb_icccm_set_wm_transient_for(gConnection, window, main);
    if (what == "mute") Set(window, "WM_HINTS", XCB_ATOM_WM_HINTS, {1, 0, 0, 0, 0, 0, 0, 0, 0});
    if (what == "dock") {
      Set(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {Atom("_NET_WM_WINDOW_TYPE_DOCK")});
    }
    xcb_map_window(gConnection, window);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  int screen = 0;
  gConnection = xcb_connect(nullptr, &screen);
  if (xcb_connection_has_error(gConnection) != 0) return 1;
  gScreen = xcb_setup_roots_iterator(xcb_get_setup(gConnection)).data;
  const xcb_atom_t deletion = Atom("WM_DELETE_WINDOW");
  const bool isDock = std::string(argv[1]) == "dock";
  const xcb_window_t main = Open(argv[1], argv[2]);
  if (isDock) {
    Set(main, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {Atom("_NET_WM_WINDOW_TYPE_DOCK")});
  }
  xcb_map_window(gConnection, main);
  xcb_flush(gConnection);
  std::cout << "ready " << main << std::endl;
  pollfd both[] = {{STDIN_FILENO, POLLIN, 0}, {xcb_get_file_descriptor(gConnection), POLLIN, 0}};
  while (::poll(both, 2, -1) > 0) {
    while (auto* event = xcb_poll_for_event(gConnection)) {
      xcb_client_message_event_t message;
      std::memcpy(&message, event, sizeof message);
      const bool isMessage = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
      std::free(event);
      if (isMessage && message.data.data32[0] == deletion && message.window == main) return 0;
    }
    if (xcb_connection_has_error(gConnection) != 0) {
      // Outlives the server, as some do.
      both[1].fd = -1;
    }
    if (both[0].revents == 0) continue;
    std::string line;
    if (!std::getline(std::cin, line)) return 0;
    Obey(line, main, argv[2]);
    xcb_flush(gConnection);
    std::cout << "done" << std::endl;
  }
  return 1;
}
