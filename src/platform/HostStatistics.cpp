#include "platform/HostStatistics.h"

#include <algorithm>

namespace lurkwell {
namespace {

constexpr int kMostProcessors = 8192;

/// Which of them are counted together.
bool IsCounted(const MovedBytes& device, bool arePhysicalThere) {
  return arePhysicalThere ? device.isPhysical : device.name != "lo";
}

/// How much all devices that were there before have moved since; nothing when there is none.
std::optional<double> Growth(const std::vector<MovedBytes>& before,
                             const std::vector<MovedBytes>& now, std::int64_t MovedBytes::*counter,
                             double seconds) {
  const bool arePhysicalThere = std::ranges::any_of(now, &MovedBytes::isPhysical);
  std::optional<double> sum;
  for (const auto& device : now) {
    if (!IsCounted(device, arePhysicalThere)) continue;
    const auto known = std::ranges::find(before, device.name, &MovedBytes::name);
    if (known == before.end() || device.*counter < *known.*counter) continue;
    sum = sum.value_or(0) + static_cast<double>(device.*counter - *known.*counter) / seconds;
  }
  return sum;
}

}  // namespace

MachineActivity MachineRates::Take(const MachineFigures& figures, std::int64_t when) {
  MachineActivity activity;
  if (mWhen && when > *mWhen) {
    for (const auto& processor : figures.processors) {
      const auto known =
          std::ranges::find(mBefore.processors, processor.number, &ProcessorTime::number);
      if (known == mBefore.processors.end() || processor.number < 0 ||
          processor.number >= kMostProcessors)
        continue;
      const auto busy = processor.busy - known->busy;
      const auto all = busy + processor.idle - known->idle;
      if (busy < 0 || all <= 0 || busy > all) continue;
      const auto place = static_cast<std::size_t>(processor.number);
      if (activity.processors.size() <= place) activity.processors.resize(place + 1);
      activity.processors[place] = static_cast<double>(busy) / static_cast<double>(all);
    }
    const double seconds = static_cast<double>(when - *mWhen) / 1e6;
    activity.diskRead = Growth(mBefore.disks, figures.disks, &MovedBytes::in, seconds);
    activity.diskWritten = Growth(mBefore.disks, figures.disks, &MovedBytes::out, seconds);
    activity.received = Growth(mBefore.interfaces, figures.interfaces, &MovedBytes::in, seconds);
    activity.sent = Growth(mBefore.interfaces, figures.interfaces, &MovedBytes::out, seconds);
  }
  mWhen = when;
  mBefore = figures;
  return activity;
}

}  // namespace lurkwell
