#pragma once

#include <compare>
#include <cstdint>

namespace lurkwell {

/// No process. Pids of 0 and above are the kernel's, pids of -2 and below are made up by the
/// consolidator for applications that have no process of their own.
inline constexpr std::int32_t kInvalidPID = -1;

/// What tells an application from every other: two words, high then low; {0, 0} means none.
struct ProcessSerialNumber {
  std::uint32_t high = 0;
  std::uint32_t low = 0;

  friend constexpr auto operator<=>(const ProcessSerialNumber&,
                                    const ProcessSerialNumber&) = default;
  constexpr bool IsNone() const { return high == 0 && low == 0; }
};

/// A process as opposed to a pid: pids come round, a pid with its start does not.
struct ProcessIdentity {
  std::int32_t pid = kInvalidPID;
  /// When the process started, in the machine's own unit since boot (clock ticks on Linux); never
  /// changes during its life and is not moved by clock steps. 0 means not known.
  std::uint64_t startStamp = 0;

  friend constexpr bool operator==(const ProcessIdentity&, const ProcessIdentity&) = default;
};

}  // namespace lurkwell
