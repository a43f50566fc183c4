#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// The X key symbol of a key that preferences name by its number on the keyboards they are written
/// for: the function keys, the letters, the digits and a few more. Nothing for any other number.
std::optional<std::uint32_t> KeySymbolOf(std::uint32_t virtualKeyCode);

/// Keys that an X server sends to us whatever window has the keyboard, over a connection of its
/// own. Locks (caps, num, scroll) do not matter, a key that is held counts once, a keyboard that is
/// mapped anew is followed. A server that does not answer in time gets its keys back, so that they
/// go to others, and is connected to and asked for them again later. Main thread. No wait is longer
/// than a fraction of a second.
class XKeyGrabs {
 public:
  enum class Outcome {
    kTaken,
    kRefused,   ///< no key has the symbol, or some other program has the key
    kNoServer,  ///< it cannot be reached, or does not answer; it is tried again
  };
  /// Told of a key that could not be taken after all, or not any more: by its symbol, and whether
  /// it is one with Super.
  using Refused = std::function<void(std::uint32_t symbol, bool withSuper)>;

  XKeyGrabs(const std::string& display, std::chrono::milliseconds retryInterval, Refused refused);
  ~XKeyGrabs();
  XKeyGrabs(const XKeyGrabs&) = delete;
  XKeyGrabs& operator=(const XKeyGrabs&) = delete;

  /// The key is kept whatever comes out: another server or keyboard may have it to give.
  Outcome Add(std::uint32_t symbol, bool withSuper, std::function<void()> pressed);

 private:
  struct Grab {
    std::uint32_t symbol;
    bool withSuper;
    std::function<void()> pressed;
    std::vector<xcb_keycode_t> keys;
    bool isRefused = false;
  };
  struct Release {
    xcb_keycode_t key = 0;
    xcb_timestamp_t time = 0;
  };

  /// Connects and takes in the keyboard when that has not been done; false while that fails.
  bool Prepare(std::chrono::milliseconds longestWait);
  bool ReadKeyboard();
  void ReadModifiers(XConnection::Deadline deadline);
  std::vector<xcb_keycode_t> KeysOf(std::uint32_t symbol) const;
  Outcome Take(Grab& grab);
  /// Takes all keys, and tells of those that are newly refused.
  void TakeAll();
  void GiveBack(const Grab& grab);
  void ReadEvents();
  void ReadSoon();
  void HandleKey(const xcb_key_press_event_t& event);
  void FollowMapping();
  void GiveUpConnection();
  void TryAgain();

  XLink mLink;
  Refused mRefused;
  QTimer mRetry;
  /// Null while there is no server.
  std::unique_ptr<QSocketNotifier> mNotifier;
  std::vector<Grab> mGrabs;
  Release mLastRelease;
  /// The symbols of each key, from the lowest key on.
  xcb_keycode_t mFirstKey = 0;
  std::size_t mSymbolsPerKey = 0;
  std::vector<std::uint32_t> mSymbols;
  std::uint16_t mSuper = XCB_MOD_MASK_4;
  /// The modifiers that locks set; which of them are set is nothing to us.
  std::vector<std::uint16_t> mLocks;
  std::uint16_t mAllLocks = 0;
};

}  // namespace lurkwell
