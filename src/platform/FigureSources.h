#pragma once

namespace lurkwell {

/// Where figures stand. One reading of a source brings all that stands there; the figures change
/// only while the process runs, but for those of the last one, which others change, too.
enum FigureSource : unsigned {
  kFromStat = 1,    ///< the process's line in the kernel's table, name and parent included
  kFromStatus = 2,  ///< the kernel's longer description
  kFromIO = 4,      ///< reading and writing; the owner's and root's alone
  kFromScheduler = 8,
};
/// Any of them together.
using FigureSources = unsigned;
inline constexpr FigureSources kAllFigureSources = 15;

}  // namespace lurkwell
