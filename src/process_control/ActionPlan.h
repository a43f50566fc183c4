#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/ProcessTable.h"
#include "process_control/ProcessActions.h"

/// What a command is about to do to several processes, whether the user has to be asked before, and
/// what became of it. Whatever way a command comes, it comes through here. Main thread only.
namespace lurkwell {

enum class ProcessCommand : std::uint8_t {
  kKill,  ///< the next step of KillProcess, for an application a quit
  kHalt,
  kContinue,
  kHighPriority,
  kNormalPriority,
  kLowPriority,
  kSignal,
  kNice,
  kScheduling,
};

/// What some commands need besides.
struct CommandArgument {
  /// Of a signal its number, of a nice value that.
  std::int32_t number = 0;
  SchedulingChange change = {};
};

/// A process that something is to be done to.
struct ActionTarget {
  /// The pid, and the process that the consolidator means by it.
  ProcessIdentity process;
  std::string name;
  /// Of a pid that the kernel does not know: the user's own, without a command line.
  ProcessDescription description = {};
  /// Of a kill: the next step, and how often the process has been asked before.
  KillStep step = KillStep::kTerminate;
  int timesAsked = 0;
};

/// What became of one process.
struct ActionReport {
  std::int32_t pid;
  std::string name;
  ActionOutcome outcome;
  /// Of a kill: the step that was taken.
  KillStep step = KillStep::kTerminate;
};

struct ActionPlan {
  ProcessCommand command;
  CommandArgument argument = {};
  /// Whether the user has to agree first: to each kill and halt, and, where several processes or
  /// another user's are meant, also to quitting applications and to a lower priority. What has an
  /// argument was asked for in a dialog that shows the processes.
  bool asks = false;
  std::vector<ActionTarget> targets = {};
  /// Those that nothing can be done to, and why.
  std::vector<ActionReport> impossible = {};
};

/// A made-up pid whose guest has gone is left out, and so is one that is halted already from a
/// halt.
ActionPlan PlanAction(ProcessCommand command, std::span<const std::int32_t> pids,
                      const CommandArgument& argument = {});

/// Does it, to those that still are the processes they were; what became of each, the impossible
/// ones included. Waits for the helper no longer than CommandTime says.
std::vector<ActionReport> CarryOut(const ActionPlan& plan);

/// How many of the targets belong to another user.
std::size_t CountOthers(const ActionPlan& plan);

/// Whether nothing but quitting applications is planned.
bool IsQuitAlone(const ActionPlan& plan);

}  // namespace lurkwell
