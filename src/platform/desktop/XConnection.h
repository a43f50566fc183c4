#pragma once

#include <xcb/xcb.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace lurkwell {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};
/// What the X server has sent, freed with its owner.
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

/// The atoms that are asked for by name.
enum class XAtom : std::size_t {
  kActiveWindow,
  kChangeState,
  kClientList,
  kClientListStacking,
  kCloseWindow,
  kDeleteWindow,
  kNetPid,
  kNetState,
  kNetName,
  kProtocols,
  kRestackWindow,
  kState,
  kStateHidden,
  kSupported,
  kTypeDialog,
  kTypeNormal,
  kTypeUtility,
  kWindowIcon,
  kWindowType,
  kCount
};

/// Something that has happened to a window that is watched.
struct XChange {
  xcb_window_t window = 0;
  /// The property that has changed; none when the window has gone.
  xcb_atom_t property = 0;
};

/// What has come from the keyboard.
struct XKeyEvents {
  /// Presses and releases, as they came; the type tells which.
  std::vector<xcb_key_press_event_t> keys;
  /// Of the keys or the modifiers.
  bool mappingChanged = false;
};

/// A connection of its own to the X server. Every wait has a bound: a server that does not answer
/// within it counts as lost, for good, and every later question is answered with nothing. Any one
/// thread at a time.
class XConnection {
 public:
  using Deadline = std::chrono::steady_clock::time_point;

  /// Connects and prepares; null when that fails. Connecting itself may wait for ever for a server
  /// that hangs: see XLink.
  static std::unique_ptr<XConnection> Open(const std::string& display);
  ~XConnection();
  XConnection(const XConnection&) = delete;
  XConnection& operator=(const XConnection&) = delete;

  bool IsLost() const { return mLost; }
  xcb_connection_t* Raw() const { return mConnection; }
  xcb_window_t Root() const { return mRoot; }
  xcb_atom_t Atom(XAtom atom) const { return mAtoms[static_cast<std::size_t>(atom)]; }
  /// Whether the server tells the pids of its clients.
  bool TellsClientPids() const { return mTellsClientPids; }
  /// The bits of a window's id that do not tell its client.
  std::uint32_t ResourceMask() const;

  /// When a batch of requests that is sent now has to be answered.
  static Deadline BatchDeadline();

  /// Waits for the answer to one request; null when there is none, or an error.
  template <typename T, typename Cookie>
  Reply<T> Wait(Cookie cookie, Deadline deadline) {
    return Reply<T>(static_cast<T*>(WaitFor(cookie.sequence, deadline)));
  }

  /// Asks for up to `words` 32-bit units of a property.
  xcb_get_property_cookie_t AskProperty(xcb_window_t window, xcb_atom_t property,
                                        std::uint32_t words) const;

  /// Asks to be told of changes of a window's properties and of its end.
  void Watch(xcb_window_t window) const;

  /// Everything that has been told since the last call, without waiting.
  std::vector<XChange> TakeChanges();

  /// Presses and releases of keys are kept from now on until they are taken; without it they are
  /// dropped.
  void KeepKeyEvents() { mKeepsKeyEvents = true; }
  XKeyEvents TakeKeyEvents();

  /// The server's time, by one question; 0 when it is lost.
  xcb_timestamp_t ServerTime();

  /// Sends what has been written.
  void Flush();

 private:
  explicit XConnection(xcb_connection_t* connection, int screen);

  bool Prepare();
  bool Handshake();
  void* WaitFor(unsigned sequence, Deadline deadline);
  /// Waits for bytes from the server; false, and lost, when none come in time.
  bool WaitForBytes(Deadline deadline);
  void ReadEvents();

  xcb_connection_t* mConnection;
  int mScreen;
  bool mLost = false;
  bool mTellsClientPids = false;
  xcb_window_t mRoot = 0;
  /// Ours, never seen: its property changes carry the server's time.
  xcb_window_t mOwnWindow = 0;
  xcb_timestamp_t mLastTime = 0;
  std::array<xcb_atom_t, static_cast<std::size_t>(XAtom::kCount)> mAtoms{};
  std::vector<XChange> mChanges;
  bool mKeepsKeyEvents = false;
  XKeyEvents mKeyEvents;
};

/// The bytes of a property of 8-bit units, or as many as came.
std::string PropertyText(const xcb_get_property_reply_t* reply);

/// The units of a property of 32-bit units; none for any other.
std::vector<std::uint32_t> PropertyWords(const xcb_get_property_reply_t* reply);

/// One connection to an X server that may be slow, hang, or come and go: made in the background,
/// and tried for again at intervals. Main thread only.
///
/// Windows, screen and hot keys have a link each. A connection that did not answer one of them in
/// time is closed, which gives back all that it held: the keys must not be lost with a question
/// about a window, nor the windows that are watched with a key. What is told on one is for its
/// owner alone, too.
class XLink {
 public:
  XLink(std::string display, std::chrono::milliseconds retryInterval);

  /// The connection, also one that has been lost; null while there is none.
  XConnection* Connection() const { return mConnection.get(); }

  /// Connects when there is no connection and it is time to try. The wait for a new try is half a
  /// second at most, less with `longestWait`; one that takes longer goes on, and a later call
  /// finds its result. Null while there is none.
  XConnection* Connect(std::chrono::milliseconds longestWait = std::chrono::milliseconds(500));

  /// Closes the connection, which gives back all that the server held for it; the next try is an
  /// interval away.
  void Drop();

 private:
  using Clock = std::chrono::steady_clock;

  std::string mDisplay;
  std::chrono::milliseconds mRetryInterval;
  Clock::time_point mNextTry{};
  std::future<std::unique_ptr<XConnection>> mOpening;
  std::unique_ptr<XConnection> mConnection;
};

}  // namespace lurkwell
