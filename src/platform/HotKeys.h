#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace lurkwell {

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
};

}  // namespace lurkwell
