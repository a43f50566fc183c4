// The synchroniser's figures of the machine as a whole, and how they reach the toolbar.
#include <algorithm>
#include <cmath>

#include "main_window/MainToolbar.h"
#include "main_window/SystemInfoImage.h"
#include "main_window/VQTarvMainWindowInfoSynch.h"
#include "platform/Clock.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "preferences/LessMotion.h"
#include "preferences/Settings.h"
#include "windows/Contrast.h"

namespace lurkwell {
namespace {

/// Five years: for a timer that is not to fire.
constexpr double kFarAway = 157'680'000.0;
constexpr double kShortestFlash = 0.02;
/// Filters above 1 grow; this many pages are enough.
constexpr double kMostPageouts = 1e15;

enum PageoutState { kSteady = 1, kFlashing, kFlashingOther };

double FromNow(double seconds) {
  return TheMachine().clock.AbsoluteTime() + seconds;
}

double FiniteReal(RealSetting setting) {
  const double value = ReadReal(setting);
  return std::isfinite(value) ? value : setting.Row().defaultValue;
}

}  // namespace

void VQTarvMainWindowInfoSynch::ReadSystemInfoPreferences() {
  mPageoutsFilter = FiniteReal("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER");
  mYellowThreshold = ReadInt("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW");
  mRedThreshold = ReadInt("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED");
  // Preferences are edited by hand; the light must not take a core.
  mFlashInterval =
      std::max(kShortestFlash, FiniteReal("MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL"));
  mFlashTimer = TheMachine().runLoop.AddTimer(FromNow(kFarAway), mFlashInterval, &PageoutTimerFunc);
}

void VQTarvMainWindowInfoSynch::UpdateSystemInfoToolbarItemCPU() {
  mUsage = std::clamp(mMachineUsage.Take(), 0.0, 1.0);
  ShowCPU();
}

void VQTarvMainWindowInfoSynch::ShowCPU() {
  auto* toolbar = mOwner.visibleToolbar();
  if (toolbar == nullptr) return;
  SystemInfoImage image;
  const int end = DrawCPUGauge(image.data(), mUsage, IsDark(toolbar->palette()));
  toolbar->ShowGauge(kToolbarCPU, image, end,
                     CPUGaugeText(mUsage, TheMachine().hostStatistics.Processors()));
}

void VQTarvMainWindowInfoSynch::UpdateSystemInfoToolbarItemMemory() {
  ShowMemory();
}

void VQTarvMainWindowInfoSynch::ShowMemory() {
  auto* toolbar = mOwner.visibleToolbar();
  if (toolbar == nullptr) return;
  SystemInfoImage image;
  const int end = DrawMemoryGauge(image.data(), mFigures, IsDark(toolbar->palette()));
  toolbar->ShowGauge(kToolbarMemory, image, end, MemoryGaugeText(mFigures));
}

void VQTarvMainWindowInfoSynch::UpdateSystemInfoToolbarItemPageouts() {
  // A reading that failed counts for nothing, and is nothing to compare the next one with.
  mNewPageouts = 0;
  if (mFigures.knowsPageouts) {
    if (mPreviousPageouts) mNewPageouts = mFigures.pageouts - *mPreviousPageouts;
    mPreviousPageouts = mFigures.pageouts;
  }
  mFilteredPageouts = std::max(mFilteredPageouts * mPageoutsFilter, double(mNewPageouts));
  mFilteredPageouts = std::min(mFilteredPageouts, kMostPageouts);
  const auto level = static_cast<std::int64_t>(mFilteredPageouts);
  if (level < mRedThreshold) {
    StopFlashing();
    mPageoutState = kSteady;
  }
  int severity = 1;
  if (level < mYellowThreshold) {
    severity = 0;
  } else if (level >= mRedThreshold) {
    severity = 2;
    if (mPageoutState < kFlashing && !WantsLessMotion())
      mFlashTimer->SetNextFireDate(FromNow(mFlashInterval));
    mPageoutState = kFlashing;
  }
  UpdateSystemInfoToolbarItemPageoutsWithSeverity(severity);
}

void VQTarvMainWindowInfoSynch::UpdateSystemInfoToolbarItemPageoutsWithSeverity(int severity) {
  static constexpr const char* kImages[] = {"vm_green", "vm_yellow", "vm_red1", "vm_red2"};
  mSeverity = severity;
  if (auto* toolbar = mOwner.visibleToolbar())
    toolbar->ShowLight(kToolbarPageouts, kImages[severity], PageoutsText(mNewPageouts));
}

void VQTarvMainWindowInfoSynch::StopFlashing() {
  if (mPageoutState < kFlashing) return;
  mFlashTimer->SetNextFireDate(FromNow(kFarAway));
  mPageoutState = kSteady;
}

void VQTarvMainWindowInfoSynch::PageoutTimerFunc() {
  if (zm_MainWindow == nullptr) return;
  auto& state = zm_MainWindow->mPageoutState;
  if (state != kFlashing && state != kFlashingOther) return;
  if (WantsLessMotion()) return zm_MainWindow->StopFlashing();
  state = state == kFlashing ? kFlashingOther : kFlashing;
  zm_MainWindow->UpdateSystemInfoToolbarItemPageoutsWithSeverity(state);
}

void VQTarvMainWindowInfoSynch::ShowSystemInfo() {
  if (mSeverity < 0) return;
  ShowCPU();
  ShowMemory();
  UpdateSystemInfoToolbarItemPageoutsWithSeverity(mSeverity);
}

}  // namespace lurkwell
