#include "animated_view/QuintessentialHelperCPUWatcher.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

#include "animated_view/QuintessentialGlobals.h"
#include "consolidator/PropertyValues.h"
#include "platform/Clock.h"
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

}  // namespace lurkwell
