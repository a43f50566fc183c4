#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "animated_view/QuintessentialSupport.h"

namespace lurkwell {

/// Stands in for the animated view's windows and drawing; writes down what it is asked to do.
class FakeHost final : public QuintessentialHost {
 public:
  FakeHost() {
    gQuintessentialViewIsCurrentlyShown = false;
    gQuintessentialViewIsFullScreenOverlay = false;
    gToggleFullscreenInProgress = false;
    Install(this);
  }
  ~FakeHost() override { Install(nullptr); }

  bool HasCurrentView() const override { return hasView; }
  FrameSize CurrentWindowFrame() const override { return frame; }
  void CloseCurrentWindow() override {
    told.push_back("close");
    gQuintessentialViewIsCurrentlyShown = false;
  }
  void SetUpOverlayStuff() override { told.push_back("set up"); }
  void SetCurrentWindowAlpha(double alpha) override {
    told.push_back("alpha " + std::to_string(alpha).substr(0, 4));
  }
  void SetFullscreenKludgeCountdown(int count) override {
    told.push_back("countdown " + std::to_string(count));
  }
  void doShowQuintessentialView() override {
    told.push_back("show");
    gQuintessentialViewIsCurrentlyShown = true;
  }
  void InternalDraw() override {
    ++frames;
    if (onFrame) onFrame();
  }
  /// As many pixels wide as the name is long.
  std::shared_ptr<const Picture> LabelImage(const std::string& name) override {
    return std::make_shared<Picture>(Picture{static_cast<int>(name.size()), 1, {}});
  }
  std::shared_ptr<const Picture> NamedPicture(const char*) override {
    return std::make_shared<Picture>(Picture{128, 128, {}});
  }
  void ReleaseTextures(QuintessentialInformationProcessInfo& info) override {
    info.iconTexture = info.labelTexture = 0;
    ++released;
  }
  void DiscardBackground() override { told.push_back("background"); }

  std::vector<std::string> Told() { return std::exchange(told, {}); }

  bool hasView = true;
  FrameSize frame{400, 200};
  std::vector<std::string> told;
  int released = 0;
  std::atomic<int> frames{0};
  std::function<void()> onFrame;

 private:
  static void Install(QuintessentialHost* host) {
    const CriticalRegion::Guard guard(gQuintessentialMutex);
    gQuintessentialHost = host;
  }
};

}  // namespace lurkwell
