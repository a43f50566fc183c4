#include "platform/HostStatistics.h"

#include <algorithm>

namespace lurkwell {
namespace {

constexpr int kMostProcessors = 8192;

/// Which of them are counted together.
bool IsCounted(const MovedBytes& device, bool arePhysicalThere) {
  return arePhysicalThere ? device.isPhysical : device.name != "lo";
}

/// How much the devices that are counted and were there before have moved since.
std::vector<MovedRates> RatesOf(const std::vector<MovedBytes>& before,
                                const std::vector<MovedBytes>& now, double seconds) {
  const bool arePhysicalThere = std::ranges::any_of(now, &MovedBytes::isPhysical);
  std::vector<MovedRates> rates;
  for (const auto& device : now) {
    if (!IsCounted(device, arePhysicalThere)) continue;
    const auto known = std::ranges::find(before, device.name, &MovedBytes::name);
    if (known == before.end()) continue;
    const auto rate = [&](std::int64_t MovedBytes::*counter) -> std::optional<double> {
      const auto moved = device.*counter - *known.*counter;
      if (moved < 0) return {};
      return static_cast<double>(moved) / seconds;
    };
    rates.push_back({device.name, rate(&MovedBytes::in), rate(&MovedBytes::out)});
  }
  return rates;
}

/// Nothing when none is known.
std::optional<double> SumOf(const std::vector<MovedRates>& rates,
                            std::optional<double> MovedRates::*direction) {
  std::optional<double> sum;
  for (const auto& device : rates)
    if (device.*direction) sum = sum.value_or(0) + *(device.*direction);
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
    activity.disks = RatesOf(mBefore.disks, figures.disks, seconds);
    activity.interfaces = RatesOf(mBefore.interfaces, figures.interfaces, seconds);
    activity.diskRead = SumOf(activity.disks, &MovedRates::in);
    activity.diskWritten = SumOf(activity.disks, &MovedRates::out);
    activity.received = SumOf(activity.interfaces, &MovedRates::in);
    activity.sent = SumOf(activity.interfaces, &MovedRates::out);
  }
  mWhen = when;
  mBefore = figures;
  return activity;
}

}  // namespace lurkwell
