#include "animated_view/QuintessentialInformationClient.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialHost.h"
#include "animated_view/QuintessentialLayout.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/Assertion.h"
#include "platform/Diagnostics.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

using Guard = CriticalRegion::Guard;

constexpr double kEasing = 0.2;
/// A paused client is hardly ever due; it is made due when it goes on.
constexpr std::int32_t kPausedInterval = 15000;
constexpr double kLargestScale = 10'000;

std::int32_t ReadInterval(IntegerSetting setting) {
  return std::max(ReadInt(setting), 1);
}

/// A factor of sizes: neither negative nor boundless, whatever the file says.
double ReadScale(RealSetting setting) {
  const double scale = ReadReal(setting);
  return scale >= 0.0 && scale <= kLargestScale ? scale : setting.Row().defaultValue;
}

/// 0 to 1, whatever the file says.
double ReadAlpha(RealSetting setting) {
  const double alpha = ReadReal(setting);
  return alpha >= 0.0 ? std::min(alpha, 1.0) : 0.0;
}

}  // namespace

std::unique_ptr<DrawingThread> QuintessentialInformationClient::zmThread;

AnimationIntervals FittedAnimationIntervals() {
  AnimationIntervals intervals;
  intervals.frame = ReadInterval("HEARTQUIVA_GL_THREAD_INTERVAL");
  intervals.main = ReadInterval("HEARTQUIVA_MAINPIC_INTERVAL");
  intervals.cpu = ReadInterval("HEARTQUIVA_HELPERPIC_INTERVAL");
  intervals.main = std::max(intervals.main, intervals.frame);
  intervals.cpu = std::max(intervals.cpu, intervals.main);
  return intervals;
}

double OverlayWindowAlpha() {
  return ReadAlpha("QUINT_FULLSCREEN_WINDOW_ALPHA");
}

void UpdateProcessInformationCocoa() {
  HostOfCurrentView().InternalDraw();
}

QuintessentialInformationClient::QuintessentialInformationClient(std::int32_t interval,
                                                                 RandomSource random)
    : ProcessInformationClient(nullptr, interval),
      mRandom(std::move(random)),
      mIntervals(FittedAnimationIntervals()) {
  mIntervals.main = std::max(interval, mIntervals.frame);
  mIntervals.cpu = std::max(mIntervals.cpu, mIntervals.main);
  Require(mIntervals.frame <= mIntervals.main, kQuintessentialUnit,
          "heartquivaOpenGLInterval <= interval");
  Require(mIntervals.main <= mIntervals.cpu, kQuintessentialUnit, "interval <= helperInterval");
  SetInterval(mIntervals.main);
  mWatcher = new QuintessentialHelperCPUWatcher(*this, mIntervals.cpu);
  mWatcherIsServed = true;
  mDrawing.iconScale = ReadScale("HEARTQUIVA_ICON_SCALE_FACTOR");
  mDrawing.fullscreenExtraScale = ReadScale("QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR");
  ReadDrawingSettings();
  const Guard guard(gQuintessentialMutex);
  gQuintessentialInformationClient = this;
}

QuintessentialInformationClient::~QuintessentialInformationClient() {
  const Guard guard(gQuintessentialMutex);
  if (gQuintessentialInformationClient == this) gQuintessentialInformationClient = nullptr;
  CleanUp(mQipiList);
  CleanUp(mNewQipiList);
  if (mWatcher == nullptr) return;
  mWatcher->Disown();
  delete mWatcher;
}

void QuintessentialInformationClient::HookIntoConsolidator() {
  Require(this == gQuintessentialInformationClient, kQuintessentialUnit,
          "this == gQuintessentialInformationClient");
  if (mHooked) return;
  mHooked = true;
  mPaused = false;
  {
    // A client that is not served does not hear of preferences.
    const Guard guard(gQuintessentialMutex);
    ReadSettings();
  }
  AddProcessInformationClient(this);
  RequestUpdate(this);
  if (mWatcher == nullptr || mWatcherIsServed) return;
  AddProcessInformationClient(mWatcher);
  mWatcherIsServed = true;
}

void QuintessentialInformationClient::UnhookFromConsolidator() {
  Require(this == gQuintessentialInformationClient, kQuintessentialUnit,
          "this == gQuintessentialInformationClient");
  if (!mHooked) return;
  mHooked = false;
  RemoveProcessInformationClient(this);
  if (mWatcher != nullptr) RemoveProcessInformationClient(mWatcher);
  mWatcherIsServed = false;
  const Guard guard(gQuintessentialMutex);
  CleanUp(mQipiList);
  CleanUp(mNewQipiList);
  mDefaultIcon.reset();
  mHasStabilized = false;
}

void QuintessentialInformationClient::SetPaused(bool paused) {
  if (mPaused == paused) return;
  mPaused = paused;
  {
    const Guard guard(gQuintessentialMutex);
    ApplyIntervals();
  }
  if (paused) return;
  if (mHooked) {
    RequestUpdate(this);
    if (mWatcher != nullptr) RequestUpdate(mWatcher);
  }
  if (zmThread) zmThread->Wake();
}

void QuintessentialInformationClient::CreateDrawingThreadIfNecessary() {
  if (!zmThread) {
    try {
      zmThread = std::make_unique<DrawingThread>(
          []() -> FrameSource* { return gQuintessentialInformationClient; });
    } catch (const std::system_error& error) {
      Diagnose("no thread to draw the animated view with: %s", error.what());
      return;
    }
  }
  zmThread->Wake();
}

void QuintessentialInformationClient::EndDrawingThread() {
  zmThread.reset();
}

void QuintessentialInformationClient::InternalDraw() {
  for (auto& info : mQipiList) info.weight += (info.targetWeight - info.weight) * kEasing;
  DisIsRevoltin(mQipiList, false);
  UpdateProcessInformationCocoa();
}

std::int32_t QuintessentialInformationClient::GetClosestPidToPoint(
    QuintessentialPoint point) const {
  const FrameSize frame = HostOfCurrentView().CurrentWindowFrame();
  const double u = point.x / frame.width;
  const double v = point.y / frame.height;
  std::int32_t closest = -1;
  double best = 100.0;
  for (const auto& info : mQipiList) {
    const double dx = info.x - u;
    const double dy = info.y - v;
    const double distance = dx * dx + dy * dy;
    if (!(distance < best)) continue;
    best = distance;
    closest = info.pid;
  }
  return closest;
}

void QuintessentialInformationClient::NotifyPreferencesHaveBeenUpdated() {
  const Guard guard(gQuintessentialMutex);
  if (gQuintessentialHost != nullptr && gQuintessentialViewIsFullScreenOverlay &&
      gQuintessentialViewIsCurrentlyShown)
    HostOfCurrentView().SetCurrentWindowAlpha(OverlayWindowAlpha());
  ReadSettings();
}

void QuintessentialInformationClient::ReadSettings() {
  mIntervals = FittedAnimationIntervals();
  ApplyIntervals();
  const double underlayAlpha = mDrawing.underlayAlpha;
  ReadDrawingSettings();
  if (gQuintessentialHost == nullptr || !gQuintessentialViewIsFullScreenOverlay) return;
  if (mDrawing.underlayAlpha != underlayAlpha) gQuintessentialHost->DiscardBackground();
}

void QuintessentialInformationClient::ReadDrawingSettings() {
  mDrawing.drawConnectorsFullscreen = ReadSwitch("QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS");
  mDrawing.underlayAlpha = ReadAlpha("QUINT_FULLSCREEN_UNDERLAY_ALPHA");
}

void QuintessentialInformationClient::ApplyIntervals() {
  SetInterval(mPaused ? kPausedInterval : mIntervals.main);
  if (mWatcher != nullptr) mWatcher->SetInterval(mPaused ? kPausedInterval : mIntervals.cpu);
}

}  // namespace lurkwell
