#include "consolidator/ClassicEstimate.h"

#include <algorithm>
#include <cstdint>

#include "consolidator/MetaProcessInformation.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

/// Ticks in a second, a little above the rate of the tick itself.
constexpr double kTicksPerSecond = 60.25;
constexpr double kMostProcessors = 8192;
/// Longer than any process runs; sums of such times stay numbers.
constexpr std::int64_t kMostSeconds = std::int64_t{1} << 53;

/// A share between 0 and 1, whatever the file says.
double PreferredShare(RealSetting setting) {
  const double share = ReadReal(setting);
  return share > 0 ? std::min(share, 1.0) : 0;
}

}  // namespace

void ClassicEstimate::MeasureEnvironment(ProcessIdentity process, TimeValue activeTime,
                                         TimeValue now) {
  if (activeTime.IsZero()) return;
  if (process != mEnvironment) {
    gTruBlueFilteredCPUUsage = PreferredShare("CLASSIC_INITIAL_ASSUMED_CPU_USAGE");
  } else {
    const auto elapsed = MillisecondsBetween(mPreviousMeasurement, now);
    // Two measurements within one millisecond say nothing.
    if (elapsed == 0) return;
    const double consumed = SecondsBetween(mPreviousActiveTime, activeTime);
    // Clocks are set back, and times that were misread come right again.
    if (elapsed > 0 && consumed >= 0) {
      const double usage = consumed / (static_cast<double>(elapsed) / 1000.0);
      gTruBlueFilteredCPUUsage += (std::min(usage, kMostProcessors) - gTruBlueFilteredCPUUsage) *
                                  PreferredShare("CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER");
    }
  }
  mEnvironment = process;
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
  if (!(seconds > 0) || record.activeTime.seconds > kMostSeconds) return;
  const auto whole = static_cast<std::int64_t>(seconds);
  const auto fraction = static_cast<std::int32_t>((seconds - static_cast<double>(whole)) * 1e6);
  record.activeTime = record.activeTime + TimeValue{whole, fraction};
}

}  // namespace lurkwell
