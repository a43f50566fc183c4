#include "animated_view/QuintessentialHelperCPUWatcher.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialInformationClient.h"
#include "consolidator/PropertyValues.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr char kActiveTime[] = "meta_active_time";
constexpr double kBusyBonus = 0.2;
constexpr double kHighestRatio = 4.0;
constexpr double kNoticeableFactor = 0.0001;
constexpr double kLargestFactor = 1000.0;

struct CPUTime {
  std::int32_t seconds;
  std::int32_t microseconds;
};

/// None, whatever else the file says, where it is no factor to draw with.
double ReadTarvikFactor() {
  const double factor = GetPrefDouble("QUINT_TARVIK_FACTOR", nullptr, false, 0.0);
  return std::isfinite(factor) && factor <= kLargestFactor ? factor : 0.0;
}

bool ReadActiveTime(std::int32_t pid, CPUTime& time) {
  char text[64];
  return GetPIDPropertyValue(pid, kActiveTime, text, sizeof text, nullptr) &&
         std::sscanf(text, "%d.%d", &time.seconds, &time.microseconds) == 2;
}

double MillisecondsSinceLast(const QuintessentialInformationProcessInfo& info, CPUTime time) {
  if (info.pid == 0) return 0.0;
  const double seconds = static_cast<double>(time.seconds) - info.lastActiveSeconds;
  const double microseconds = static_cast<double>(time.microseconds) - info.lastActiveMicroseconds;
  return std::max(seconds * 1000.0 + microseconds / 1000.0, 0.0);
}

double TargetWeight(const QuintessentialInformationProcessInfo& info, CPUTime time, double wall,
                    double tarvikFactor) {
  double ratio = MillisecondsSinceLast(info, time) / wall;
  if (ratio > 0) ratio += kBusyBonus;
  ratio = std::min(ratio, kHighestRatio);
  const std::string_view name(info.name);
  if (tarvikFactor > kNoticeableFactor && (name == "Lurkwell" || name == "lkw_helper_daemo"))
    ratio *= tarvikFactor;
  return 2.0 * ratio + 0.5;
}

}  // namespace

QuintessentialHelperCPUWatcher::QuintessentialHelperCPUWatcher(
    QuintessentialInformationClient& owner, std::int32_t interval)
    : ProcessInformationClient(nullptr, interval),
      mOwner(&owner),
      mPreviousPass(TheMachine().clock.Now()),
      mTarvikFactor(ReadTarvikFactor()) {
  AddProcessInformationClient(this);
}

QuintessentialHelperCPUWatcher::~QuintessentialHelperCPUWatcher() {
  if (mOwner != nullptr) mOwner->mWatcher = nullptr;
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
  const double wall = std::max(static_cast<double>(now.seconds - mPreviousPass.seconds) * 1000.0 +
                                   (now.microseconds - mPreviousPass.microseconds) / 1000.0,
                               1.0);
  const CriticalRegion::Guard guard(gQuintessentialMutex);
  for (auto& info : mOwner->qipiList()) {
    CPUTime time{};
    if (!ReadActiveTime(info.pid, time)) continue;
    if (info.lastActiveSeconds >= 0)
      info.targetWeight = TargetWeight(info, time, wall, mTarvikFactor);
    info.lastActiveSeconds = time.seconds;
    info.lastActiveMicroseconds = time.microseconds;
  }
  mPreviousPass = now;
}

}  // namespace lurkwell
