#include "consolidator/ClassicEstimate.h"

#include "consolidator/MetaProcessInformation.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

/// Ticks in a second, a little above the rate of the tick itself.
constexpr double kTicksPerSecond = 60.25;

double Seconds(TimeValue time) {
  return static_cast<double>(time.seconds) + time.microseconds / 1e6;
}

}  // namespace

void ClassicEstimate::MeasureEnvironment(TimeValue activeTime, TimeValue now) {
  if (mPreviousActiveTime.IsZero() && mPreviousMeasurement.IsZero()) {
    gTruBlueFilteredCPUUsage =
        GetPrefDouble("CLASSIC_INITIAL_ASSUMED_CPU_USAGE", nullptr, true, 0.1);
  } else {
    const auto elapsed = MillisecondsBetween(mPreviousMeasurement, now);
    // Two measurements within one millisecond say nothing.
    if (elapsed <= 0) return;
    const double consumed = Seconds(activeTime) - Seconds(mPreviousActiveTime);
    const double usage = consumed / (static_cast<double>(elapsed) / 1000.0);
    gTruBlueFilteredCPUUsage +=
        (usage - gTruBlueFilteredCPUUsage) *
        GetPrefDouble("CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER", nullptr, true, 0.05);
  }
  mPreviousActiveTime = activeTime;
  mPreviousMeasurement = now;
}

void ClassicEstimate::Charge(MetaProcessInformation& record) const {
  if (record.activeTime.IsZero()) {
    record.activeTime.microseconds = 1;
    return;
  }
  // A restarted application begins again at 0 ticks; it is not charged backwards.
  const std::uint32_t ticks = record.epir->ActiveTime();
  if (ticks < record.previousClassicActiveTime) return;
  const double seconds = static_cast<double>(ticks - record.previousClassicActiveTime) *
                         gTruBlueFilteredCPUUsage / kTicksPerSecond;
  if (!(seconds > 0)) return;
  const auto whole = static_cast<std::int64_t>(seconds);
  const auto fraction = static_cast<std::int32_t>((seconds - static_cast<double>(whole)) * 1e6);
  record.activeTime = record.activeTime + TimeValue{whole, fraction};
}

}  // namespace lurkwell
