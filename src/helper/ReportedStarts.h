#pragma once

#include <cstddef>
#include <cstdint>

namespace lurkwell::helper {

/// When each process that was reported on this channel had started. Fixed size: a machine with more
/// processes than places forgets some.
class ReportedStarts {
 public:
  /// `start`, not 0, is in ticks since boot.
  void Remember(std::int32_t pid, std::uint64_t start) {
    Place* const set = SetOf(pid);
    Place* place = set;
    while (place != set + kWays && place->pid != pid && place->pid != 0) ++place;
    if (place == set + kWays) place = set + mOldest++ % kWays;
    *place = {pid, start};
  }

  /// 0 when there is no memory of it.
  std::uint64_t Of(std::int32_t pid) const {
    const Place* const set = SetOf(pid);
    for (const Place* place = set; place != set + kWays; ++place)
      if (place->pid == pid) return place->start;
    return 0;
  }

 private:
  struct Place {
    std::int32_t pid;
    std::uint64_t start;
  };
  static constexpr std::size_t kWays = 4;
  static constexpr std::size_t kSets = 4096;

  Place* SetOf(std::int32_t pid) { return mPlaces[static_cast<std::size_t>(pid) % kSets]; }
  const Place* SetOf(std::int32_t pid) const {
    return mPlaces[static_cast<std::size_t>(pid) % kSets];
  }

  std::size_t mOldest;
  Place mPlaces[kSets][kWays];
};

}  // namespace lurkwell::helper
