#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/FigureSources.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What tells a process to the person who is to decide about it, as it is at the moment.
struct ProcessDescription {
  ProcessIdentity process;
  /// The name of the user whose rights it has, or his number; "" when that is not known.
  std::string owner;
  /// Whether those are this program's user's.
  bool isOwn = false;
  /// A part of the kernel, which no signal ends or stops.
  bool isKernelThread = false;
  bool isStopped = false;
  std::int32_t nice = 0;
  /// Its arguments with blanks between them, any bytes; "" when it has none or they are not known.
  std::string commandLine;
  /// The path of its program; "" for those of the kernel, and where this user may not know.
  std::string executable;
};

class ProcessFigures;

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
  /// The sources that are as they are now; of those that were not asked for, some may be older.
  FigureSources current = 0;
  /// Those that the last call has read, and those that have been read at all.
  FigureSources read = 0;
  FigureSources known = 0;
};

/// The kernel's list of processes. Main thread only.
class ProcessTable {
 public:
  /// Which sources must be those of now for the process that has this pid.
  using Wanted = std::function<FigureSources(std::int32_t pid)>;

  virtual ~ProcessTable() = default;

  /// The sources that everybody may read here, at least of processes of his own. None where only
  /// the helper tells figures.
  virtual FigureSources OpenSources() const = 0;

  /// One pass over all processes that can be seen, in a stable order; the last entry is the idle
  /// task with pid 0. What vanishes during the pass is left out. The entries belong to the table
  /// and stay as they are until the next call. Empty when the table cannot be read at all.
  virtual std::span<const ProcessTableEntry> Read(const Wanted& wanted) = 0;

  /// Whether a process may have been born since the last Read; asking costs next to nothing.
  virtual bool MayHaveBirths() = 0;

  /// The entries of the last Read, brought up to date as far as is wanted, without a look at who is
  /// new; nothing when one of those that are wanted has ended, or, with `ends`, any, so that Read
  /// has to follow, whose entries then tell what both have read.
  virtual std::optional<std::span<const ProcessTableEntry>> Refresh(const Wanted& wanted,
                                                                    bool ends) = 0;

  /// What the process of an entry of the last Read or Refresh has used, as it was last read. The
  /// idle task's times are those of the idle machine and of its waiting for input and output.
  virtual const ProcessFigures& FiguresOf(const ProcessTableEntry& entry) = 0;

  /// The process that has `pid` now, read afresh; nothing when there is none.
  virtual std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid) = 0;

  /// The processes of several pids as they are now, in that order; those that are gone are left
  /// out. Waits half a second at most, and leaves out what could not be read until then.
  virtual std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids) = 0;

  /// Whether these processes have been, so that nothing can be done to them.
  virtual bool IsRecorded() const { return false; }

  /// This program's own process.
  virtual std::int32_t OwnPid() const = 0;

  /// The highest pid that the machine can hand out.
  virtual std::int32_t MaximumPid() const = 0;
};

}  // namespace lurkwell
