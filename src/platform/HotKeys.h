#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace lurkwell {

/// How it stands with the keys that the program asked the desktop for.
enum class HotKeyStanding : std::uint8_t {
  kNone,     ///< none was asked for
  kGiven,    ///< they work
  kAwaited,  ///< the desktop, or the user whom it asks, has not answered yet
  kTaken,    ///< another program has the key, or the keyboard has no such key
  kRefused,  ///< the desktop, or the user whom it asked, gives it not or has taken it back
  kNoWay,    ///< this desktop gives no keys to programs
};

struct HotKeyState {
  HotKeyStanding standing = HotKeyStanding::kNone;
  /// The keys that the desktop has given in place of those that were asked for, in its own words;
  /// "" when it does not say.
  std::string trigger;
};

/// Keys that reach the program whatever window has the keyboard. Main thread only.
class HotKeys {
 public:
  /// Keys that have to be held; a number of the key's own, not a state of the keyboard.
  static constexpr std::uint32_t kNoModifiers = 0;
  static constexpr std::uint32_t kCommandModifier = 256;  ///< on Linux the Super key

  virtual ~HotKeys() = default;

  /// Calls `pressed` on the main thread at every press from now on, until this object ends.
  /// `virtualKeyCode` is the key's number on the keyboards that preferences are written for (98 is
  /// F7). False when the desktop has no such key, or has none to give; the reason is printed.
  virtual bool RegisterEventHotKey(std::uint32_t virtualKeyCode, std::uint32_t modifiers,
                                   std::function<void()> pressed) = 0;

  /// The key as people write it ("F7", "A"); empty for a number that is no key.
  virtual std::string KeyName(std::uint32_t virtualKeyCode) const = 0;

  /// How it stands at this moment with the key that was registered last without any other that has
  /// to be held.
  virtual HotKeyState State() const = 0;
};

}  // namespace lurkwell
