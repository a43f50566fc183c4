#pragma once

#include <cstdint>
#include <vector>

#include "consolidator/PidReport.h"
#include "platform/ProcessFigures.h"
#include "platform/TimeValue.h"

namespace lurkwell {

/// What counters grow by in a second, from two readings of the same process. The first reading
/// gives none, nor does a counter that went back or that is not told. The time in between is that
/// of the clock, which goes on while the machine is asleep. Private to the consolidator; main
/// thread, inside its region.
class FigureRates {
 public:
  /// For one pass, at `now`; `wanted` are some of kRates.
  FigureRates(TimeValue now, std::vector<Figure> wanted);

  /// After the counters of these sources have been reported as they are now.
  void Derive(PidReport& report, FigureSources current) const;

  const std::vector<Figure>& Wanted() const { return mWanted; }

 private:
  std::int64_t mNow;
  std::vector<Figure> mWanted;
};

/// By what the share of one processor is divided: 1, or the number of processors when shares are to
/// be those of the machine (the preference CPU_SHARE_OF_MACHINE). Main thread.
int CPUShareDivisor();

}  // namespace lurkwell
