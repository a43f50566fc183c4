#pragma once

#include <QSocketNotifier>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// Keys that an X server sends to us whatever window has the keyboard, over a connection of its
/// own. Locks (caps, num, scroll) do not matter; a keyboard that is mapped anew is followed. Main
/// thread. No call waits longer than a fraction of a second.
class XKeyGrabs {
 public:
  /// Null when the server cannot be reached.
  static std::unique_ptr<XKeyGrabs> Open(const std::string& display);
  ~XKeyGrabs();
  XKeyGrabs(const XKeyGrabs&) = delete;
  XKeyGrabs& operator=(const XKeyGrabs&) = delete;

  /// False when no key has the symbol, or some other program has the key.
  bool Add(std::uint32_t symbol, bool withSuper, std::function<void()> pressed);

 private:
  struct Grab {
    std::uint32_t symbol;
    bool withSuper;
    std::function<void()> pressed;
    std::vector<xcb_keycode_t> keys;
  };

  explicit XKeyGrabs(std::unique_ptr<XConnection> connection);
  bool ReadKeyboard();
  void ReadModifiers(XConnection::Deadline deadline);
  std::vector<xcb_keycode_t> KeysOf(std::uint32_t symbol) const;
  bool Take(Grab& grab);
  void GiveBack(const Grab& grab);
  void ReadEvents();
  void ReadSoon();
  void HandlePress(const xcb_key_press_event_t& press);
  void FollowMapping();

  std::unique_ptr<XConnection> mConnection;
  std::unique_ptr<QSocketNotifier> mNotifier;
  std::vector<Grab> mGrabs;
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
