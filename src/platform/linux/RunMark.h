#pragma once

#include <cstdint>
#include <optional>

namespace lurkwell {

/// What tells, without a look at any file, that a process is as it was: while two marks of it are
/// equal, none of its threads has left a processor in between, and nobody has given it another
/// scheduling class or nice value. Two processes that had one pid have different marks but for the
/// chance that they ran for the same number of nanoseconds.
struct RunMark {
  /// All its threads' time on a processor, ended ones' too; in nanoseconds, 0 for no mark.
  std::uint64_t runTime = 0;
  std::uint32_t policy = 0;
  std::int32_t nice = 0;

  bool operator==(const RunMark&) const = default;
};

/// The mark of the process with `pid` in the caller's own pid namespace. Nothing when there is no
/// such process, for real-time ones, whose nice value the kernel does not tell here, and where the
/// calls are not allowed. Any thread.
std::optional<RunMark> ReadRunMark(std::int32_t pid);

}  // namespace lurkwell
