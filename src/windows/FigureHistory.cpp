#include "windows/FigureHistory.h"

#include <algorithm>
#include <cstddef>

namespace lurkwell {

FigureHistory::FigureHistory(std::size_t mostMoments)
    : mMost(std::max<std::size_t>(mostMoments, 1)) {}

std::size_t FigureHistory::AddSeries() {
  mSeries.emplace_back(mTimes.size(), kMissing);
  return mSeries.size() - 1;
}

void FigureHistory::Add(std::int64_t when, std::span<const float> values) {
  if (!IsEmpty() && when <= TimeOf(Size() - 1)) return;
  const auto valueFor = [&](std::size_t series) {
    return series < values.size() ? values[series] : kMissing;
  };
  if (mTimes.size() < mMost) {
    mTimes.push_back(when);
    for (std::size_t i = 0; i < mSeries.size(); ++i) mSeries[i].push_back(valueFor(i));
    return;
  }
  mTimes[mOldest] = when;
  for (std::size_t i = 0; i < mSeries.size(); ++i) mSeries[i][mOldest] = valueFor(i);
  mOldest = (mOldest + 1) % mMost;
}

std::size_t FigureHistory::FirstSince(std::int64_t when) const {
  // The ring is two ascending runs: what is from mOldest on, and what came after it.
  const auto turn = mTimes.begin() + static_cast<std::ptrdiff_t>(mOldest);
  const bool isInOlderRun = turn != mTimes.end() && mTimes.back() >= when;
  const auto found = isInOlderRun ? std::lower_bound(turn, mTimes.end(), when)
                                  : std::lower_bound(mTimes.begin(), turn, when);
  const auto place = static_cast<std::size_t>(found - mTimes.begin());
  return isInOlderRun ? place - mOldest : place + (mTimes.size() - mOldest);
}

std::size_t FigureHistory::NearestTo(std::int64_t when) const {
  const auto next = FirstSince(when);
  if (next == 0) return 0;
  if (next == Size()) return next - 1;
  return when - TimeOf(next - 1) <= TimeOf(next) - when ? next - 1 : next;
}

std::size_t FigureHistory::Bytes() const {
  std::size_t bytes = mTimes.capacity() * sizeof(std::int64_t);
  for (const auto& series : mSeries)
    bytes += sizeof(decltype(mSeries)::value_type) + series.capacity() * sizeof(float);
  return bytes;
}

}  // namespace lurkwell
