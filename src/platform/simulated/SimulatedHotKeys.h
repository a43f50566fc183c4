#pragma once

#include <string>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Hot keys that a test presses.
class SimulatedHotKeys final : public HotKeys {
 public:
  explicit SimulatedHotKeys(AccessLog& log) : mLog(log) {}

  bool RegisterEventHotKey(std::uint32_t virtualKeyCode, std::uint32_t modifiers,
                           std::function<void()> pressed) override {
    mLog.Add("HotKeys.RegisterEventHotKey " + std::to_string(virtualKeyCode) + " " +
             std::to_string(modifiers));
    mKeys.push_back({virtualKeyCode, modifiers, std::move(pressed)});
    return true;
  }

  std::string KeyName(std::uint32_t virtualKeyCode) const override {
    return "F" + std::to_string(virtualKeyCode == 98 ? 7 : 12);
  }

  /// Calls all that have registered that key; how many they were.
  int Press(std::uint32_t virtualKeyCode, std::uint32_t modifiers) {
    int count = 0;
    for (const auto& key : mKeys) {
      if (key.code != virtualKeyCode || key.modifiers != modifiers) continue;
      key.pressed();
      ++count;
    }
    return count;
  }

 private:
  struct Key {
    std::uint32_t code;
    std::uint32_t modifiers;
    std::function<void()> pressed;
  };

  AccessLog& mLog;
  std::vector<Key> mKeys;
};

}  // namespace lurkwell
