#include "process_control/DaemonRelaunch.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "process_control/DaemonChannel.h"
#include "process_control/DaemonCommunication.h"

namespace lurkwell {
namespace {

constexpr double kFirstDelay = 1;
constexpr double kLongestDelay = 60;
constexpr double kStep = 0.02;

class Relaunch final : public DaemonChannelWatcher {
 public:
  explicit Relaunch(std::string helperPath) : mHelperPath(std::move(helperPath)) {}

  void Answered() override { mDelay = kFirstDelay; }

  void Lost() override {
    SayOnce();
    auto& machine = TheMachine();
    const double date = machine.clock.AbsoluteTime() + mDelay;
    mDelay = std::min(2 * mDelay, kLongestDelay);
    if (mTimer) {
      mTimer->SetNextFireDate(date);
    } else {
      mTimer = machine.runLoop.AddTimer(date, 0, [this] { Step(); });
    }
  }

 private:
  void Step() {
    auto& clock = TheMachine().clock;
    auto state = DaemonChannelOpening::State::kWaiting;
    if (!mOpening) {
      mOpening.emplace();
      mSince = clock.Now();
      if (!mOpening->Start(mHelperPath, nullptr)) state = DaemonChannelOpening::State::kFailed;
    } else {
      state = mOpening->Advance(std::chrono::milliseconds(0));
    }
    const auto passed = std::chrono::milliseconds(MillisecondsBetween(mSince, clock.Now()));
    if (state == DaemonChannelOpening::State::kOpen) {
      mOpening->Take();
      mOpening.reset();
    } else if (state == DaemonChannelOpening::State::kFailed || passed >= gDaemonLimits.opening) {
      mOpening.reset();
      Lost();
    } else {
      mTimer->SetNextFireDate(clock.AbsoluteTime() + kStep);
    }
  }

  void SayOnce() {
    if (!mSaid) std::fputs("lurkwell: the helper does not answer; starting another\n", stderr);
    mSaid = true;
  }

  std::string mHelperPath;
  double mDelay = kFirstDelay;
  std::unique_ptr<RunLoopTimer> mTimer;
  std::optional<DaemonChannelOpening> mOpening;
  TimeValue mSince;
  bool mSaid = false;
};

std::unique_ptr<Relaunch> gRelaunch;

}  // namespace

void WatchDaemonChannel(const std::string& helperPath) {
  gRelaunch = std::make_unique<Relaunch>(helperPath);
  gDaemonChannelWatcher = gRelaunch.get();
  if (gFd_a2d < 0) gRelaunch->Lost();
}

void UnwatchDaemonChannel() {
  gDaemonChannelWatcher = nullptr;
  gRelaunch.reset();
}

}  // namespace lurkwell
