#pragma once

#include <bit>
#include <cstddef>

namespace lurkwell {

/// Where figures stand. One reading of a source brings all that stands there; the figures change
/// only while the process runs, unless it is said that others change them.
enum FigureSource : unsigned {
  kFromStat = 1,          ///< the process's line in the kernel's table, name and parent included
  kFromStatus = 2,        ///< the kernel's longer description
  kFromIO = 4,            ///< reading and writing; the owner's and root's alone
  kFromThreads = 8,       ///< the scheduling of each thread that lives
  kFromUnit = 16,         ///< what its control group counts for all its processes; others change it
  kFromScheduler = 32,    ///< class and nice value; others change them
  kFromIdentity = 64,     ///< what the longer description says of users and rights
  kFromExecutable = 128,  ///< the owner's and root's alone
  kFromCommandLine = 256,  ///< memory of the process
  kFromGroup = 512,        ///< the path of its control group
  kFromLabel = 1024,       ///< of the security module
  kFromNamespaces = 2048,  ///< the owner's and root's alone
  kFromOOM = 4096,         ///< what it is worth when memory runs out
  kFromAssignment = 8192,  ///< its processors, its priority at the disks
  kFromClock = 16384,      ///< the time that goes by
  // Those that take long to read; see CostlyFigures.
  kFromMemoryMap = 1 << 16,        ///< the sums over all mappings
  kFromDescriptorCount = 1 << 17,  ///< how many descriptors are open
  kFromSockets = 1 << 18,          ///< TCP, by descriptors; the owner's and root's alone
  kFromUnitSockets = 1 << 19,      ///< TCP of all that its control group has made
  kFromGraphics = 1 << 20,         ///< graphics devices; the owner's and root's alone
  kFromPorts = 1 << 21,            ///< TCP and UDP, by descriptors; the owner's and root's alone
  kFromOpenFiles = 1 << 22,        ///< names of open files; the owner's and root's alone
};
/// Any of them together.
using FigureSources = unsigned;
/// All that the process table reads.
inline constexpr FigureSources kAllFigureSources = 32767;
/// All that is read in the background.
inline constexpr FigureSources kCostlyFigureSources = kFromMemoryMap | kFromDescriptorCount |
                                                      kFromSockets | kFromUnitSockets |
                                                      kFromGraphics | kFromPorts | kFromOpenFiles;

/// Those that mostly stay what they are: read when the process becomes known, when it becomes
/// another program, and ten seconds later at the earliest if it has run, a minute if it has not.
inline constexpr FigureSources kSeldomChanging =
    kFromIdentity | kFromExecutable | kFromCommandLine | kFromLabel | kFromNamespaces;

/// Those that only the process itself changes: read as soon as it has run, and after a minute if it
/// has not. What the longer description says of memory others take away, which its line in the
/// table tells at the usual time. Others put it into its control group, but mostly as it begins.
inline constexpr FigureSources kByRunningAlone = kFromStatus | kFromIO | kFromThreads | kFromGroup;

/// Those of both kinds that are kept for five minutes instead of one.
inline constexpr FigureSources kKeptForLong = kFromIdentity | kFromGroup;

inline constexpr std::size_t kCostlySourceCount = std::popcount(kCostlyFigureSources);

/// One of them by its place, from 0.
constexpr FigureSource CostlySource(std::size_t place) {
  return static_cast<FigureSource>(unsigned{kFromMemoryMap} << place);
}

}  // namespace lurkwell
