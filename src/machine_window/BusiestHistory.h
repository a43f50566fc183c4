#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace lurkwell {

/// A process as it was at one moment.
struct BusyProcess {
  /// Terminated; what does not fit is cut.
  char name[48] = {};
  std::int32_t pid = 0;
  /// 1 is all of one processor.
  float share = 0;
  /// Tells whether a process of that pid is still this one; see GetPidsStartStamp.
  std::uint64_t startStamp = 0;
  /// Resident, in bytes; no number when it was not known.
  float memory = 0;

  void SetName(std::string_view text);
};

/// The processes that used most CPU time, ten at most, at each of the last so many moments: a ring
/// that takes 3 MB when an hour of them is full. Times as in FigureHistory. One thread.
class BusiestHistory {
 public:
  static constexpr std::size_t kMostProcesses = 10;

  explicit BusiestHistory(std::size_t mostMoments) : mMost(mostMoments) {}

  /// The busiest first; what there are more of is left out.
  void Add(std::int64_t when, std::span<const BusyProcess> processes);

  struct Moment {
    std::int64_t when = 0;
    std::size_t count = 0;
    std::array<BusyProcess, kMostProcesses> processes;

    std::span<const BusyProcess> Processes() const { return {processes.data(), count}; }
  };
  /// The moment nearest to a time, null while there is none; until the next one is added.
  const Moment* NearestTo(std::int64_t when) const;
  /// What all of it takes at present.
  std::size_t Bytes() const { return mMoments.capacity() * sizeof(Moment); }

 private:
  std::size_t mMost;
  std::size_t mOldest = 0;
  std::vector<Moment> mMoments;
};

}  // namespace lurkwell
