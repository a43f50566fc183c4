#include "exporter/GroupSums.h"

#include <algorithm>
#include <utility>

namespace lurkwell {

void GaugeSum::Add(FigureState state, std::int64_t value) {
  if (state == FigureState::kKnown) {
    mTotal += value;
    mIsCounted = true;
  } else if (state != FigureState::kUncounted) {
    mIsWhole = false;
  }
}

std::optional<std::int64_t> GaugeSum::Total(bool isEmpty) const {
  if (!isEmpty && (!mIsWhole || !mIsCounted)) return std::nullopt;
  return mTotal;
}

std::optional<std::int64_t> CounterSum::Total() const {
  if (!mIsWhole || !mIsCounted) return std::nullopt;
  return mTotal;
}

void GroupSums::BeginPass() {
  for (auto* counter : {&userTime, &systemTime, &diskRead, &diskWritten, &received, &sent})
    counter->BeginPass();
  gauges = {};
}

GroupFigures GroupSums::Figures(const std::string& name) const {
  const bool isEmpty = gauges.processes == 0;
  return {.name = name,
          .userTime = userTime.Total(),
          .systemTime = systemTime.Total(),
          .diskRead = diskRead.Total(),
          .diskWritten = diskWritten.Total(),
          .received = received.Total(),
          .sent = sent.Total(),
          .resident = gauges.resident.Total(isEmpty),
          .proportional = gauges.proportional.Total(isEmpty),
          .swap = gauges.swap.Total(isEmpty),
          .openFiles = gauges.openFiles.Total(isEmpty),
          .threads = gauges.threads,
          .processes = gauges.processes,
          .states = gauges.states,
          .oldestStart = gauges.oldestStart};
}

std::int64_t Growth::Of(std::int64_t value) {
  const bool isAnother = std::exchange(mMayBeAnother, false) && value < mLast;
  const bool isSkipped = std::exchange(mIsSkipped, false);
  if (isAnother) mLast = 0;
  if (isSkipped) mLast = value;
  const auto growth = std::max<std::int64_t>(value - mLast, 0);
  mLast += growth;
  return std::max<std::int64_t>(growth - std::exchange(mDiscount, 0), 0);
}

}  // namespace lurkwell
