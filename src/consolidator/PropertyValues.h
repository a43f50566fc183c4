#pragma once

#include <cstdint>
#include <optional>

#include "consolidator/TypedValue.h"
#include "platform/Clock.h"
#include "platform/ProcessTable.h"

namespace lurkwell {

/// By what the share of one processor is divided: 1, or the number of processors when shares are to
/// be those of the machine (the preference CPU_SHARE_OF_MACHINE). Main thread.
int CPUShareDivisor();

/// Asks the machine how many processors there are, which takes a file; once a pass that wants
/// shares. Main thread.
void CountProcessorsForShares();

/// The value of a property of a process as text, in the caller's buffer of `length` bytes, always
/// terminated. True when `dest` holds a value; `found` (may be null) tells whether there is such a
/// process at all: it must be known and valid. A process that lacks the part in which the property
/// lies gives false and "n/a" (kernel figures), "-" (desktop) or an empty text. A ps column that
/// has never been heard of is a fatal assertion once the process has any ps value, so ask only for
/// names that GetNthProcPropertyHeader gives. Of a command line it gives the program alone unless
/// KEEP_COMMAND_LINES is on, as this is how values are printed and written. Any thread, but shares
/// of CPU time and command lines the main thread's.
bool GetPIDPropertyValue(std::int32_t pid, const char* name, char* dest, std::int32_t length,
                         bool* found);

/// The same as a value, or why there is none; for a process that is not known, Missing::kNone. What
/// GetPIDPropertyValue renders as a hexadecimal number is a text here too. A number of ps that is
/// none ("-", a mask of signals) is ps's own text. Any thread, but shares of CPU time the main
/// thread's.
TypedValue GetPIDPropertyTypedValue(std::int32_t pid, const char* name);

/// How long ago a figure was read that is read in the background, in milliseconds; nothing for one
/// that is as old as its client's turn. Any thread.
std::optional<std::int64_t> AgeOfPIDProperty(std::int32_t pid, const char* name);

/// The same as GetPIDPropertyTypedValue for what is printed, written or recorded, where other eyes
/// may see it: of a command line the program alone, unless KEEP_COMMAND_LINES is on. Main thread.
TypedValue GetPIDPropertyValueForOutput(std::int32_t pid, const char* name);

/// The CPU time of a process, "meta_active_time"; nothing when there is no such process. Any
/// thread.
std::optional<TimeValue> ActiveTimeOf(std::int32_t pid);

/// What a client that shows many processes needs of each in every turn.
struct ProcessGlance {
  /// Another number than before when any value of the process is another one than before; 0 when
  /// there is no such process.
  std::uint64_t changeStamp = 0;
  TimeValue activeTime;
  /// See AreCPUTimesFresh.
  bool timesAreFresh = false;
  RunState runState = RunState::kSleeping;
  /// The parent, when that is another process that is known; else kInvalidPID.
  std::int32_t parentPid = kInvalidPID;
  /// See ProcessIdentity; 0 while the kernel has not named it.
  std::uint64_t startStamp = 0;
  /// Whether the desktop knows it as an application.
  bool isApplication = false;
  /// Of the kernel's own, the idle task among them.
  bool isKernelThread = false;
};

/// Any thread; one look-up.
ProcessGlance GlanceAt(std::int32_t pid);

}  // namespace lurkwell
