#pragma once

#include <cstdint>
#include <memory>

#include "platform/IconServices.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// The pid of an application: that of its record, else its kernel pid, else a made-up one of -2 or
/// below, which the same serial number keeps. Only the first 127 made-up pids are kept; an
/// application beyond them gets a fresh one at every call. Main thread, or inside the
/// consolidator's region.
std::int32_t PSN2PID(ProcessSerialNumber psn);

/// The serial number of a process, {0, 0} when it is no application. Same threads.
void PID2PSN(std::int32_t pid, ProcessSerialNumber* psn);

/// The icons of applications, as square pictures `size` pixels wide. Main thread. The picture is
/// the caller's to keep; null stands for none: no application, gone, or without an icon.

/// The icon of the application itself.
std::shared_ptr<const Picture> GetApplicationIconRef(ProcessSerialNumber psn, int size);

/// The icon of the application that a process is; null for every other process. The two have one
/// source on this desktop: the first is for drawing into windows of one's own, the second for
/// tables.
std::shared_ptr<const Picture> GetProcessIcon(std::int32_t pid, int size);
std::shared_ptr<const Picture> ProcessIconImage(std::int32_t pid, int size);

}  // namespace lurkwell
