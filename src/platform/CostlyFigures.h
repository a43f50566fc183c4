#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/ProcessFigures.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What one process is asked for.
struct CostlyWish {
  ProcessIdentity process;
  /// Of kCostlyFigureSources.
  FigureSources sources = 0;
  /// The user can see it now: it is read before those that are out of sight.
  bool isInSight = false;
  /// Another number whenever it has run or has another size; nothing where that is not known. What
  /// hardly changes otherwise need not be read again while it stays the same.
  std::optional<std::uint64_t> activity = std::nullopt;
};

/// What was found.
struct CostlyReading {
  ProcessIdentity process;
  /// The sources that were read together; their figures stand in `figures`.
  FigureSources sources = 0;
  ProcessFigures figures;
  /// How long before the collection the figures were so, in milliseconds.
  std::int64_t age = 0;
};

/// The figures of processes that take so long to read that no heartbeat waits for them. They are
/// read in the background, as far as a budget allows, and collected by a later heartbeat. Nothing
/// is read that is not asked for. Main thread only.
class CostlyFigures {
 public:
  virtual ~CostlyFigures() = default;

  /// Replaces what has been asked for so far. Each wish is answered once at most; one whose turn
  /// does not come before the next call has to be repeated. Does not wait for a reading.
  virtual void Ask(std::vector<CostlyWish> wishes) = 0;

  /// What was read since the last call, oldest first. Does not wait for a reading.
  virtual std::vector<CostlyReading> Collect() = 0;
};

}  // namespace lurkwell
