#pragma once

#include "platform/Clock.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

struct MetaProcessInformation;

/// The CPU time of Classic applications. They run inside one process, of which alone the CPU time
/// is known; each application's share comes from its ticks, weighted with a filtered figure of how
/// much CPU the whole environment uses. Private to the consolidator, inside its region.
class ClassicEstimate {
 public:
  /// Takes a measurement of the environment's own process, whose CPU time so far is `activeTime`
  /// at the time of day `now`. Another process than the last one is a first measurement; one that
  /// has used no time is none.
  void MeasureEnvironment(ProcessIdentity process, TimeValue activeTime, TimeValue now);

  /// The process that was measured last.
  ProcessIdentity Environment() const { return mEnvironment; }

  /// Adds to a Classic application's CPU time what it used since its previous report; the first
  /// report only marks it as measured.
  void Charge(MetaProcessInformation& record) const;

 private:
  double gTruBlueFilteredCPUUsage = 0.0;
  ProcessIdentity mEnvironment;
  TimeValue mPreviousActiveTime;
  TimeValue mPreviousMeasurement;
};

}  // namespace lurkwell
