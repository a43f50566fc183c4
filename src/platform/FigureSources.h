#pragma once

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
};
/// Any of them together.
using FigureSources = unsigned;
inline constexpr FigureSources kAllFigureSources = 63;

}  // namespace lurkwell
