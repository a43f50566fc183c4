#pragma once

#include <cstddef>
#include <cstdint>

namespace lurkwell::helper {

/// When each process that was reported on this channel had started. Fixed size: a process takes the
/// place of one whose pid leaves the same remainder, which is forgotten.
class ReportedStarts {
 public:
  /// `start`, not 0, is in ticks since boot.
  void Remember(std::int32_t pid, std::uint64_t start) { mPlaces[PlaceOf(pid)] = {pid, start}; }

  /// 0 when there is no memory of it.
  std::uint64_t Of(std::int32_t pid) const {
    const Place& place = mPlaces[PlaceOf(pid)];
    return place.pid == pid ? place.start : 0;
  }

 private:
  struct Place {
    std::int32_t pid;
    std::uint64_t start;
  };
  static std::size_t PlaceOf(std::int32_t pid) { return static_cast<std::size_t>(pid) % 16384; }

  Place mPlaces[16384];
};

}  // namespace lurkwell::helper
