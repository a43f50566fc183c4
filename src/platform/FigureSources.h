#pragma once

#include <bit>
#include <cstddef>

namespace lurkwell {

/// Where figures stand. One reading of a source brings all that stands there; the figures change
/// only while the process runs, but for those of the last two, which others change, too.
enum FigureSource : unsigned {
  kFromStat = 1,     ///< the process's line in the kernel's table, name and parent included
  kFromStatus = 2,   ///< the kernel's longer description
  kFromIO = 4,       ///< reading and writing; the owner's and root's alone
  kFromThreads = 8,  ///< the scheduling of each thread that lives
  kFromUnit = 16,    ///< what the control group of the process counts, for all its processes
  kFromScheduler = 32,
  // Those that take long to read; see CostlyFigures.
  kFromMemoryMap = 1 << 16,        ///< the sums over all mappings
  kFromDescriptorCount = 1 << 17,  ///< how many descriptors are open
};
/// Any of them together.
using FigureSources = unsigned;
/// All that the process table reads.
inline constexpr FigureSources kAllFigureSources = 63;
/// All that is read in the background.
inline constexpr FigureSources kCostlyFigureSources = kFromMemoryMap | kFromDescriptorCount;

inline constexpr std::size_t kCostlySourceCount = std::popcount(kCostlyFigureSources);

/// One of them by its place, from 0.
constexpr FigureSource CostlySource(std::size_t place) {
  return static_cast<FigureSource>(unsigned{kFromMemoryMap} << place);
}

}  // namespace lurkwell
