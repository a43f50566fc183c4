#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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

/// Where its first thread may run and how it stands at the disks, which others can change.
struct Assignment {
  /// A bit for each processor.
  std::vector<std::uint64_t> processors;
  /// Class and level, as the kernel packs them.
  std::int32_t ioPriority = 0;

  bool operator==(const Assignment&) const = default;
};

std::optional<Assignment> ReadAssignment(std::int32_t pid);

/// The numbers of the set's processors as the kernel's lists have them: "0-3,6".
std::string ListOfProcessors(const std::vector<std::uint64_t>& set);

}  // namespace lurkwell
