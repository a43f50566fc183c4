#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Clock.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

struct Event;

/// Reports of the nub, which lives among the applications of the Classic environment. Main thread
/// only.

/// What a sender may make the consolidator keep: so many records of one event are read, and so many
/// applications without a kernel pid are known at a time. Others are left out.
inline constexpr std::size_t kMostRecordsInReport = 4096;
inline constexpr std::size_t kMostClassicApplications = 4096;

/// Has reports handled from now on. Once, after the consolidator has been started.
void ClassicPSNSetupProcessExtractionAppleEvent();

/// Takes one report: class 'Zrvq', id 'Zrq0', and under 'Zrv#' records of 396 bytes back to back,
/// in the sender's byte order. A rest that is no whole record is ignored, as are records without a
/// serial number and those with that of an application that has a kernel pid; without records at
/// all a line on standard output says so.
void HandleProcessInformationReport(const Event& event);

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
