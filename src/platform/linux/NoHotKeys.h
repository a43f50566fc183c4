#pragma once

#include "platform/HotKeys.h"

namespace lurkwell {

/// A terminal has no keys to give away.
class NoHotKeys final : public HotKeys {
 public:
  bool RegisterEventHotKey(std::uint32_t, std::uint32_t, std::function<void()>) override {
    return false;
  }
  std::string KeyName(std::uint32_t) const override { return {}; }
};

}  // namespace lurkwell
