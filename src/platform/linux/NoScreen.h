#pragma once

#include "platform/Screen.h"

namespace lurkwell {

/// A terminal shows no windows.
class NoScreen final : public Screen {
 public:
  bool UsesOpenGLAcceleration() override { return false; }
  bool BlendsWindows() override { return false; }
  void MakeFloating(std::uint64_t) override {}
  void KeepInSight(std::uint64_t) override {}
  bool IsCovered(std::uint64_t) override { return false; }
  bool IsKeyboardElsewhere() override { return true; }
};

}  // namespace lurkwell
