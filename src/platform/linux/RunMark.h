#pragma once

#include <cstdint>
#include <optional>

namespace lurkwell {

/// What tells of a process without a look at any file, to everybody. `pid` is that of the caller's
/// own pid namespace. Nothing when there is no such process and where the calls are not allowed.
/// Any thread.

/// All its threads' time on a processor, ended ones' too, in nanoseconds. While it is the same none
/// of them has run.
std::optional<std::uint64_t> ReadRunTime(std::int32_t pid);

/// How it is scheduled, which others can change.
struct Scheduling {
  std::uint32_t policy = 0;
  std::int32_t nice = 0;

  bool operator==(const Scheduling&) const = default;
};

/// Nothing for real-time processes, too, whose nice value the kernel does not tell here.
std::optional<Scheduling> ReadScheduling(std::int32_t pid);

}  // namespace lurkwell
