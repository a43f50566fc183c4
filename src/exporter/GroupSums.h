#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "exporter/Snapshot.h"
#include "platform/ProcessFigures.h"

namespace lurkwell {

/// The sum of one gauge over a group's processes.
class GaugeSum {
 public:
  /// What the machine does not count adds nothing; what may not be read, or has not been, leaves
  /// the sum unknown.
  void Add(FigureState state, std::int64_t value);
  /// Nothing when it is not known of all.
  std::optional<std::int64_t> Total(bool isEmpty) const;

 private:
  std::int64_t mTotal = 0;
  bool mIsCounted = false;
  bool mIsWhole = true;
};

/// What a group's processes have used, which stays when they end.
class CounterSum {
 public:
  void BeginPass() { mIsWhole = true; }
  void Add(std::int64_t growth) {
    mTotal += growth;
    mIsCounted = true;
  }
  /// A process's share is not known at present.
  void Miss() { mIsWhole = false; }
  /// Nothing before anything was counted.
  std::optional<std::int64_t> Total() const;

 private:
  std::int64_t mTotal = 0;
  bool mIsCounted = false;
  bool mIsWhole = true;
};

/// What is summed up for one group.
struct GroupSums {
  struct Gauges {
    GaugeSum resident, proportional, swap, openFiles;
    std::int64_t threads = 0;
    std::int64_t processes = 0;
    std::array<std::int64_t, kProcessStates> states{};
    std::optional<TimeValue> oldestStart;
  };

  CounterSum userTime, systemTime, diskRead, diskWritten, received, sent;
  Gauges gauges;

  void BeginPass();
  GroupFigures Figures(const std::string& name) const;
};

/// Tells by how much a counter of one process has grown since it was last seen.
class Growth {
 public:
  /// All of it at the first time. A counter that goes back has not grown.
  std::int64_t Of(std::int64_t value);
  /// From now on a counter that goes back is another one, which began at 0.
  void ExpectAnother() { mMayBeAnother = true; }
  /// What is read next is where counting begins.
  void SkipNext() { mIsSkipped = true; }
  /// So much of what comes next was counted for another one.
  void Discount(std::int64_t amount) { mDiscount += amount; }
  std::int64_t Last() const { return mLast; }

 private:
  std::int64_t mLast = 0;
  std::int64_t mDiscount = 0;
  bool mMayBeAnother = false;
  bool mIsSkipped = false;
};

}  // namespace lurkwell
