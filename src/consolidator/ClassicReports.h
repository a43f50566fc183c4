#pragma once

#include <cstddef>

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

}  // namespace lurkwell
