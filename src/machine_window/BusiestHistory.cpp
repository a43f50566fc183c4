#include "machine_window/BusiestHistory.h"

#include <algorithm>
#include <cstdlib>

#include "consolidator/MetaProcessInformation.h"

namespace lurkwell {

void BusyProcess::SetName(std::string_view text) {
  StoreText(name, text);
}

void BusiestHistory::Add(std::int64_t when, std::span<const BusyProcess> processes) {
  if (mMoments.size() < mMost) {
    mMoments.emplace_back();
  } else {
    mOldest = (mOldest + 1) % mMost;
  }
  auto& moment = mMoments[(mOldest + mMoments.size() - 1) % mMoments.size()];
  moment.when = when;
  moment.count = std::min(processes.size(), kMostProcesses);
  std::copy_n(processes.begin(), moment.count, moment.processes.begin());
}

const BusiestHistory::Moment* BusiestHistory::NearestTo(std::int64_t when) const {
  const auto nearest = std::ranges::min_element(
      mMoments, {}, [when](const Moment& moment) { return std::abs(moment.when - when); });
  return nearest != mMoments.end() ? &*nearest : nullptr;
}

}  // namespace lurkwell
