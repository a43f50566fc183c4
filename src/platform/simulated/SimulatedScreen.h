#pragma once

#include "platform/Screen.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// A screen that is what a test says.
class SimulatedScreen final : public Screen {
 public:
  explicit SimulatedScreen(AccessLog& log) : mLog(log) {}

  bool UsesOpenGLAcceleration() override {
    mLog.Add("Screen.UsesOpenGLAcceleration");
    return isAccelerated;
  }
  bool BlendsWindows() override { return blends; }
  void MakeFloating(std::uint64_t) override { mLog.Add("Screen.MakeFloating"); }
  void KeepInSight(std::uint64_t) override { mLog.Add("Screen.KeepInSight"); }
  bool IsCovered(std::uint64_t) override { return isCovered; }
  bool IsKeyboardElsewhere() override { return isKeyboardElsewhere; }

  bool isAccelerated = true;
  bool blends = true;
  bool isCovered = false;
  bool isKeyboardElsewhere = false;

 private:
  AccessLog& mLog;
};

}  // namespace lurkwell
