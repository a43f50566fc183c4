#pragma once

#include "platform/ProcessManager.h"

/// The events between the program, its nub in the Classic environment, and the guests there.
namespace lurkwell::classic_events {

/// The class of both events below.
inline constexpr FourCharCode kClass = {'Z', 'r', 'v', 'q'};

/// To the nub: the process serial number to serve, and the ticks to sleep between reports.
inline constexpr FourCharCode kControl = {'Z', 'r', 'v', '_'};
inline constexpr FourCharCode kServedProcess = {'Z', 'r', 'v', '1'};
inline constexpr FourCharCode kSleepTicks = {'Z', 'r', 'v', '2'};

/// From the nub: records of 396 bytes.
inline constexpr FourCharCode kReport = {'Z', 'r', 'q', '0'};
inline constexpr FourCharCode kRecords = {'Z', 'r', 'v', '#'};

/// What every application understands: class and id.
inline constexpr FourCharCode kCoreEvents = {'a', 'e', 'v', 't'};
inline constexpr FourCharCode kQuit = {'q', 'u', 'i', 't'};

}  // namespace lurkwell::classic_events
