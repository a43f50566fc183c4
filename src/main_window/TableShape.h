#pragma once

#include <cstdint>

namespace lurkwell {

/// How the rows of the one table stand to each other. The numbers are remembered.
enum class TableShape : std::uint8_t {
  kList = 0,
  kTree = 1,         ///< children below their parents
  kApplications = 2  ///< processes below the application, unit, container or program they belong to
};

/// Which processes the table is about, whatever the filter looks for. The numbers are remembered.
enum class TableScope : std::uint8_t {
  kAll = 0,
  kMine = 1,
  kOthers = 2,
  kApplications = 3,
  kWithoutKernel = 4,
  kBusy = 5  ///< what has used a processor since the update before
};
inline constexpr int kScopeCount = 6;

}  // namespace lurkwell
