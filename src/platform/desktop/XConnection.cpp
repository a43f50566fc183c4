#include "platform/desktop/XConnection.h"

#include <poll.h>
#include <signal.h>
#include <xcb/res.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/QuietThread.h"

namespace lurkwell {
namespace {

constexpr std::chrono::milliseconds kLongestBatch{500};
// A client that floods us with changes must not keep us reading; the rest is read next time.
constexpr int kMostEventsAtOnce = 10000;

constexpr std::array<std::string_view, static_cast<std::size_t>(XAtom::kCount)> kAtomNames = {
    "_NET_ACTIVE_WINDOW",
    "WM_CHANGE_STATE",
    "_NET_CLIENT_LIST",
    "_NET_CLIENT_LIST_STACKING",
    "_NET_CLOSE_WINDOW",
    "WM_DELETE_WINDOW",
    "_NET_WM_PID",
    "_NET_WM_STATE",
    "_NET_WM_NAME",
    "WM_PROTOCOLS",
    "_NET_RESTACK_WINDOW",
    "WM_STATE",
    "_NET_WM_STATE_HIDDEN",
    "_NET_SUPPORTED",
    "_NET_WM_WINDOW_TYPE_DIALOG",
    "_NET_WM_WINDOW_TYPE_NORMAL",
    "_NET_WM_WINDOW_TYPE_UTILITY",
    "_NET_WM_ICON",
    "_NET_WM_WINDOW_TYPE"};

/// A server that goes away must not take us with it.
void IgnoreBrokenPipes() {
  struct sigaction now {};
  if (::sigaction(SIGPIPE, nullptr, &now) == 0 && now.sa_handler == SIG_DFL) {
    ::signal(SIGPIPE, SIG_IGN);
  }
}

xcb_window_t RootOf(xcb_connection_t* connection, int screen) {
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screens.rem > 1 && screen > 0; --screen) xcb_screen_next(&screens);
  return screens.rem > 0 ? screens.data->root : 0;
}

}  // namespace

std::unique_ptr<XConnection> XConnection::Open(const std::string& display) {
  IgnoreBrokenPipes();
  int screen = 0;
  auto* raw = xcb_connect(display.c_str(), &screen);
  std::unique_ptr<XConnection> connection(new XConnection(raw, screen));
  if (!connection->Prepare()) return nullptr;
  return connection;
}

XConnection::XConnection(xcb_connection_t* connection, int screen)
    : mConnection(connection), mScreen(screen) {}

XConnection::~XConnection() {
  xcb_disconnect(mConnection);
}

bool XConnection::Prepare() {
  if (xcb_connection_has_error(mConnection) != 0) return false;
  mRoot = RootOf(mConnection, mScreen);
  if (mRoot == 0 || !Handshake()) return false;
  mOwnWindow = xcb_generate_id(mConnection);
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(mConnection, 0, mOwnWindow, mRoot, -10, -10, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  Flush();
  return !mLost;
}

bool XConnection::Handshake() {
  const auto deadline = BatchDeadline();
  // Answered before the atoms are, so that asking for the extension never waits in the library.
  xcb_prefetch_extension_data(mConnection, &xcb_res_id);
  std::array<xcb_intern_atom_cookie_t, kAtomNames.size()> cookies{};
  for (std::size_t i = 0; i < cookies.size(); ++i) {
    cookies[i] = xcb_intern_atom_unchecked(
        mConnection, 0, static_cast<std::uint16_t>(kAtomNames[i].size()), kAtomNames[i].data());
  }
  for (std::size_t i = 0; i < cookies.size(); ++i) {
    const auto reply = Wait<xcb_intern_atom_reply_t>(cookies[i], deadline);
    if (!reply) return false;
    mAtoms[i] = reply->atom;
  }
  const auto* extension = xcb_get_extension_data(mConnection, &xcb_res_id);
  if (extension == nullptr || extension->present == 0) return true;
  const auto version = Wait<xcb_res_query_version_reply_t>(
      xcb_res_query_version_unchecked(mConnection, 1, 2), deadline);
  mTellsClientPids = version && (version->server_major > 1 || version->server_minor >= 2);
  return !mLost;
}

std::uint32_t XConnection::ResourceMask() const {
  return xcb_get_setup(mConnection)->resource_id_mask;
}

XConnection::Deadline XConnection::BatchDeadline() {
  return std::chrono::steady_clock::now() + kLongestBatch;
}

void XConnection::Flush() {
  if (mLost || xcb_flush(mConnection) <= 0) mLost = true;
}

void* XConnection::WaitFor(unsigned sequence, Deadline deadline) {
  if (!mLost) Flush();
  while (!mLost) {
    ReadEvents();
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (xcb_poll_for_reply(mConnection, sequence, &reply, &error) != 0) {
      std::free(error);
      if (xcb_connection_has_error(mConnection) != 0) mLost = true;
      return reply;
    }
    WaitForBytes(deadline);
  }
  return nullptr;
}

bool XConnection::WaitForBytes(Deadline deadline) {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
  pollfd socket{xcb_get_file_descriptor(mConnection), POLLIN, 0};
  if (left.count() <= 0 || ::poll(&socket, 1, static_cast<int>(left.count())) == 0) mLost = true;
  return !mLost;
}

/// Also what makes the library read answers from the socket.
void XConnection::ReadEvents() {
  for (int i = 0; i < kMostEventsAtOnce; ++i) {
    const Reply<xcb_generic_event_t> event(xcb_poll_for_event(mConnection));
    if (!event) break;
    const int type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
      xcb_property_notify_event_t change;
      std::memcpy(&change, event.get(), sizeof change);
      if (change.window == mOwnWindow) {
        mLastTime = change.time;
      } else {
        mChanges.push_back({change.window, change.atom});
      }
    } else if (type == XCB_DESTROY_NOTIFY) {
      xcb_destroy_notify_event_t end;
      std::memcpy(&end, event.get(), sizeof end);
      mChanges.push_back({end.window, XCB_ATOM_NONE});
    } else if (mKeepsKeyEvents && (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE)) {
      std::memcpy(&mKeyEvents.keys.emplace_back(), event.get(), sizeof(xcb_key_press_event_t));
    } else if (type == XCB_MAPPING_NOTIFY) {
      xcb_mapping_notify_event_t mapping;
      std::memcpy(&mapping, event.get(), sizeof mapping);
      if (mapping.request != XCB_MAPPING_POINTER) mKeyEvents.mappingChanged = true;
    }
  }
  if (xcb_connection_has_error(mConnection) != 0) mLost = true;
}

xcb_get_property_cookie_t XConnection::AskProperty(xcb_window_t window, xcb_atom_t property,
                                                   std::uint32_t words) const {
  return xcb_get_property_unchecked(mConnection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                    words);
}

void XConnection::Watch(xcb_window_t window) const {
  const std::uint32_t events =
      window == mRoot ? XCB_EVENT_MASK_PROPERTY_CHANGE
                      : XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(mConnection, window, XCB_CW_EVENT_MASK, &events);
}

std::vector<XChange> XConnection::TakeChanges() {
  if (!mLost) ReadEvents();
  return std::exchange(mChanges, {});
}

XKeyEvents XConnection::TakeKeyEvents() {
  if (!mLost) ReadEvents();
  return std::exchange(mKeyEvents, {});
}

xcb_timestamp_t XConnection::ServerTime() {
  mLastTime = 0;
  const auto deadline = BatchDeadline();
  // Nothing is appended, which counts as a change all the same.
  xcb_change_property(mConnection, XCB_PROP_MODE_APPEND, mOwnWindow, XCB_ATOM_WM_NAME,
                      XCB_ATOM_STRING, 8, 0, nullptr);
  Flush();
  while (!mLost) {
    ReadEvents();
    if (mLastTime != 0) return mLastTime;
    WaitForBytes(deadline);
  }
  return XCB_CURRENT_TIME;
}

std::string PropertyText(const xcb_get_property_reply_t* reply) {
  if (reply == nullptr || reply->format != 8) return {};
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply));
  return {static_cast<const char*>(xcb_get_property_value(reply)), length};
}

std::vector<std::uint32_t> PropertyWords(const xcb_get_property_reply_t* reply) {
  if (reply == nullptr || reply->format != 32) return {};
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply));
  if (length == 0) return {};
  std::vector<std::uint32_t> words(length / sizeof(std::uint32_t));
  std::memcpy(words.data(), xcb_get_property_value(reply), words.size() * sizeof(std::uint32_t));
  return words;
}

namespace {

/// Where the environment does not name the file with the server's keys, libXau writes its name into
/// a buffer that all threads share.
void NameAuthorityFile() {
  static std::once_flag named;
  std::call_once(named, [] {
    if (const char* home = std::getenv("HOME"))
      ::setenv("XAUTHORITY", (std::string(home) + "/.Xauthority").c_str(), 0);
  });
}

/// The thread's owner may be gone before a server that hangs lets it end, and nothing can end it
/// sooner; so it owns all it uses. Where there are no threads left the promise is broken, which
/// counts as no server.
std::future<std::unique_ptr<XConnection>> OpenInBackground(const std::string& display) {
  NameAuthorityFile();
  auto promise = std::make_shared<std::promise<std::unique_ptr<XConnection>>>();
  auto future = promise->get_future();
  auto thread = StartWithoutSignals(
      [promise = std::move(promise), display] { promise->set_value(XConnection::Open(display)); });
  if (thread.joinable()) thread.detach();
  return future;
}

}  // namespace

XLink::XLink(std::string display, std::chrono::milliseconds retryInterval)
    : mDisplay(std::move(display)), mRetryInterval(retryInterval) {}

XConnection* XLink::Connect(std::chrono::milliseconds longestWait) {
  if (mConnection) return mConnection.get();
  auto wait = std::chrono::milliseconds::zero();
  if (!mOpening.valid()) {
    if (Clock::now() < mNextTry) return nullptr;
    mOpening = OpenInBackground(mDisplay);
    wait = longestWait;
  }
  if (mOpening.wait_for(wait) != std::future_status::ready) return nullptr;
  try {
    mConnection = mOpening.get();
  } catch (const std::future_error&) {
    mConnection = nullptr;
  }
  mNextTry = Clock::now() + mRetryInterval;
  return mConnection.get();
}

void XLink::Drop() {
  mConnection.reset();
  mNextTry = Clock::now() + mRetryInterval;
}

}  // namespace lurkwell
