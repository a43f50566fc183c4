#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace lurkwell {

/// What some figures were at each of the last so many moments: a ring with one column of times and
/// one of values for each series. Times are milliseconds of a clock that never steps (Clock::Now).
/// A figure that could not be had is kMissing, which is not 0. One thread.
class FigureHistory {
 public:
  static constexpr float kMissing = std::numeric_limits<float>::quiet_NaN();

  /// Keeps so many moments, at least one; memory is taken as they come.
  explicit FigureHistory(std::size_t mostMoments);

  /// A further series, which has no figures for the moments so far. Its number, from 0.
  std::size_t AddSeries();
  std::size_t CountSeries() const { return mSeries.size(); }

  /// One value for each series in their order; what is left out is missing. The oldest moment goes
  /// when there is no room. A moment that is not later than the last one is left out altogether.
  void Add(std::int64_t when, std::span<const float> values);

  bool IsEmpty() const { return mTimes.empty(); }
  std::size_t Size() const { return mTimes.size(); }
  /// Moments count from 0, the oldest.
  std::int64_t TimeOf(std::size_t moment) const { return mTimes[Place(moment)]; }
  float ValueOf(std::size_t series, std::size_t moment) const {
    return mSeries[series][Place(moment)];
  }
  /// The first moment at or after a time; Size() when there is none.
  std::size_t FirstSince(std::int64_t when) const;
  /// The moment that is nearest to a time; there must be one.
  std::size_t NearestTo(std::int64_t when) const;

  /// What all of it takes at present.
  std::size_t Bytes() const;

 private:
  std::size_t Place(std::size_t moment) const { return (mOldest + moment) % mTimes.size(); }

  std::size_t mMost;
  /// Where the ring begins, once it is full.
  std::size_t mOldest = 0;
  std::vector<std::int64_t> mTimes;
  std::vector<std::vector<float>> mSeries;
};

/// Whether a figure is one.
inline bool IsThere(float value) {
  return value == value;
}

}  // namespace lurkwell
