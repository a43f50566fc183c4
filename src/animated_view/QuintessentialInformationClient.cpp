#include "animated_view/QuintessentialInformationClient.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>
#include <system_error>
#include <utility>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialHost.h"
#include "animated_view/QuintessentialLayout.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/PropertyValues.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr char kActiveTime[] = "meta_active_time";
constexpr double kBusyBonus = 0.2;
constexpr double kHighestRatio = 4.0;
constexpr double kNoticeableFactor = 0.0001;
constexpr double kLargestFactor = 1000.0;

/// None, whatever else the file says, where it is no factor to draw with.
double ReadTarvikFactor() {
  const double factor = StoredReal("QUINT_TARVIK_FACTOR").value_or(0.0);
  return std::isfinite(factor) && factor <= kLargestFactor ? factor : 0.0;
}

double SecondsSinceLast(const QuintessentialInformationProcessInfo& info, TimeValue time) {
  return info.pid == 0 ? 0.0 : std::max(SecondsBetween(*info.lastActive, time), 0.0);
}

double TargetWeight(const QuintessentialInformationProcessInfo& info, TimeValue time, double wall,
                    double tarvikFactor) {
  double ratio = SecondsSinceLast(info, time) / wall;
  if (ratio > 0) ratio += kBusyBonus;
  ratio = std::min(ratio, kHighestRatio);
  const std::string_view name(info.name);
  // Without a desktop entry, as in a build tree, the program has its file's name.
  const bool isOwn = name == "Lurkwell" || name == "lurkwell" || name == "lkw_helper_daemo";
  if (tarvikFactor > kNoticeableFactor && isOwn) ratio *= tarvikFactor;
  return 2.0 * ratio + 0.5;
}

}  // namespace

QuintessentialHelperCPUWatcher::QuintessentialHelperCPUWatcher(WatchedRecords& owner,
                                                               std::int32_t interval)
    : ProcessInformationClient(nullptr, interval),
      mOwner(&owner),
      mPreviousPass(TheMachine().clock.Now()),
      mTarvikFactor(ReadTarvikFactor()) {
  AddProcessInformationClient(this);
}

QuintessentialHelperCPUWatcher::~QuintessentialHelperCPUWatcher() {
  if (mOwner != nullptr) mOwner->WatcherIsGone();
}

ProcessInformationClient::NeedLevel QuintessentialHelperCPUWatcher::NeedPidsForProcProperty(
    const char* property) {
  return NeedPidProcProperty(0, property) ? kNeedAllPids : kNeedNoPids;
}

bool QuintessentialHelperCPUWatcher::NeedPidProcProperty(int, const char* property) {
  return IsWatching() && std::strcmp(property, kActiveTime) == 0;
}

bool QuintessentialHelperCPUWatcher::IsWatching() const {
  return gQuintessentialViewIsCurrentlyShown && mOwner != nullptr && !mOwner->IsPaused();
}

void QuintessentialHelperCPUWatcher::NotifyProcessesHaveBeenUpdated() {
  if (!IsWatching()) return;
  const TimeValue now = TheMachine().clock.Now();
  const double wall = std::max(SecondsBetween(mPreviousPass, now), 0.001);
  const CriticalRegion::Guard guard(gQuintessentialMutex);
  for (auto& info : mOwner->qipiList()) {
    const auto time = ActiveTimeOf(info.pid);
    if (!time) continue;
    if (info.lastActive) info.targetWeight = TargetWeight(info, *time, wall, mTarvikFactor);
    info.lastActive = time;
  }
  mPreviousPass = now;
}

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
  const double easing = mIsStill ? 1.0 : kEasing;
  for (auto& info : mQipiList) info.weight += (info.targetWeight - info.weight) * easing;
  if (!mIsStill) DisIsRevoltin(mQipiList, false);
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
