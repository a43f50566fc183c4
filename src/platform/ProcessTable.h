#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/ProcessDescription.h"
#include "platform/ProcessIdentity.h"
#include "platform/TimeValue.h"

namespace lurkwell {

/// Run state of a process, with the kernel's classic numbers.
enum class RunState : std::uint8_t {
  kIdle = 1,
  kRunning = 2,
  kSleeping = 3,
  kStopped = 4,
  kZombie = 5
};

/// One process as the kernel's process table has it.
struct ProcessTableEntry {
  std::int32_t pid = kInvalidPID;
  /// The parent, or kInvalidPID when it is not known (it may be hidden from us). A parent that is
  /// named is in the same table, and following parents always ends.
  std::int32_t parentPid = kInvalidPID;
  /// The start in ticks since boot; see ProcessIdentity.
  std::uint64_t startStamp = 0;
  /// The start as calendar time.
  TimeValue startTime;
  std::int32_t priority = 0;
  std::int32_t nice = 0;
  RunState state = RunState::kSleeping;
  /// Up to 16 characters and a NUL; any bytes but NUL.
  char commandName[17] = {};
};

/// What a process has used, as far as everybody may read it. Sizes are bytes.
struct ProcessFigures {
  TimeValue userTime;
  TimeValue systemTime;
  std::int64_t virtualSize = 0;
  std::int64_t residentSize = 0;
  std::int32_t suspendCount = 0;
  std::int32_t policy = 0;
  /// Page faults of both kinds, and those of them that waited for the disk.
  std::int64_t faults = 0;
  std::int64_t pageins = 0;
};

/// The kernel's list of processes. Main thread only.
class ProcessTable {
 public:
  virtual ~ProcessTable() = default;

  /// One pass over all processes that can be seen, in a stable order; the last entry is the idle
  /// task with pid 0. What vanishes during the pass is left out. The entries belong to the table
  /// and stay as they are until the next call. Empty when the table cannot be read at all.
  virtual std::span<const ProcessTableEntry> Read() = 0;

  /// The process that has `pid` now, read afresh; nothing when there is none.
  virtual std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid) = 0;

  /// The processes of several pids as they are now, in that order; those that are gone are left
  /// out. Waits half a second at most, and leaves out what could not be read until then.
  virtual std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids) = 0;

  /// What the process of an entry of the last Read has used up to now, for whoever has no helper to
  /// ask. The idle task's times are those of the idle machine and of its waiting for input and
  /// output. Nothing when the process has ended or the machine does not tell.
  virtual std::optional<ProcessFigures> FiguresOf(const ProcessTableEntry& entry) = 0;

  /// The highest pid that the machine can hand out.
  virtual std::int32_t MaximumPid() const = 0;
};

}  // namespace lurkwell
