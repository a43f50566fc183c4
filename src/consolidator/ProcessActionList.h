#pragma once

#include <cstdint>

/// The memory of what was done to processes. Main thread only.
namespace lurkwell {

enum ProcessActionKind : std::int32_t {
  kProcessActionRenice = 1,
  kProcessActionHalt = 2,
  kProcessActionAny = 3,  ///< in questions and removals only
};

/// One thing that was done to a process. It is the process's, not its pid's: the pid's next holder
/// shows nothing of it.
struct ProcessAction {
  std::int32_t pid;
  std::int32_t kind;
  /// The nice value asked for; 0 for a halt.
  std::int32_t value;
  /// The start of the process that it was done to, 0 for one that has no record.
  std::uint64_t startStamp = 0;
  /// The kernel has shown the process so since, and until when it may take to do so, in seconds.
  bool isConfirmed = false;
  double confirmBefore = 0.0;
};

/// Adds an entry, which belongs to the list; valid until the list changes.
const ProcessAction* AddProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t value);
/// Removes all of the pid's entries of that kind.
void RemoveProcessAction(std::int32_t pid, std::int32_t kind);
/// Whether the pid has an entry of that kind; the value of the newest one into `value`, unless that
/// is null. The time does not depend on how many processes have entries.
bool GetProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t* value);

/// What the kernel says of a process, once per update of it. An entry that it contradicts goes:
/// something else has continued the process, or given it another nice value. One that is stopped
/// has an entry from then on; if it was not halted here, that is a line on standard error.
void NoteKernelState(std::int32_t pid, bool isStopped, std::int32_t nice);

/// The name of the image that marks the process: "process_niced_high" or "process_niced_low" after
/// a renice to another value than 0, else "process_halted" after a halt; null for none.
const char* ProcessIndicatorImageName(std::int32_t pid);

/// How often the process has been asked to quit or to end so far.
int TimesAskedToEnd(std::int32_t pid);
void NoteAskedToEnd(std::int32_t pid);

}  // namespace lurkwell
