#include "process_control/ActionPlan.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "consolidator/Applications.h"
#include "consolidator/ProcessQueries.h"
#include "consolidator/PropertyValues.h"
#include "consolidator/WholeNames.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"

namespace lurkwell {
namespace {

using Command = ProcessCommand;

bool IsKnownApplication(std::int32_t pid) {
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  return !psn.IsNone();
}

bool IsSignal(Command command) {
  return command == Command::kKill || command == Command::kHalt || command == Command::kContinue ||
         command == Command::kSignal;
}

/// Why the command can do nothing to the process; kDone when it can.
ActionResult Obstacle(Command command, const ActionTarget& target) {
  if (target.process.pid < 0)
    return command == Command::kKill ? ActionResult::kDone : ActionResult::kNobody;
  if (target.process.pid < 2) return ActionResult::kProtected;
  if (target.description.process != target.process) return ActionResult::kGone;
  if (IsSignal(command) && target.description.isKernelThread) return ActionResult::kKernelThread;
  return ActionResult::kDone;
}

std::int32_t NiceOf(Command command) {
  if (command == Command::kHighPriority) return kHighNice;
  return command == Command::kLowPriority ? kLowNice : kNormalNice;
}

bool IsLowered(const ActionPlan& plan) {
  if (plan.command != Command::kNormalPriority && plan.command != Command::kLowPriority)
    return false;
  return std::ranges::any_of(plan.targets, [nice = NiceOf(plan.command)](const auto& target) {
    return target.description.nice < nice;
  });
}

bool MustAsk(const ActionPlan& plan) {
  if (plan.targets.empty()) return false;
  if (plan.command == Command::kHalt) return true;
  if (plan.command == Command::kKill && !IsQuitAlone(plan)) return true;
  const bool isMilder = plan.command == Command::kKill || IsLowered(plan);
  return isMilder && (plan.targets.size() > 1 || CountOthers(plan) > 0);
}

ActionReport CarryOut(const ActionPlan& plan, const ActionTarget& target) {
  const auto pid = target.process.pid;
  ActionReport report{pid, target.name, {ActionResult::kGone}, target.step};
  if (GetPidsStartStamp(pid) != target.process.startStamp) return report;
  if (pid < 0 && !IsKnownApplication(pid)) return report;
  switch (plan.command) {
    case Command::kKill: {
      auto outcome = KillProcess(pid);
      report.step = outcome.step;
      report.outcome = std::move(outcome);
      break;
    }
    case Command::kHalt:
      report.outcome = HaltProcess(pid);
      break;
    case Command::kContinue:
      report.outcome = ContinueProcess(pid);
      break;
    case Command::kHighPriority:
      report.outcome = SetHighPriority(pid);
      break;
    case Command::kNormalPriority:
      report.outcome = SetNormalPriority(pid);
      break;
    case Command::kLowPriority:
      report.outcome = SetLowPriority(pid);
      break;
    case Command::kSignal:
      report.outcome = SendSignal(pid, plan.argument.number);
      break;
    case Command::kNice:
      report.outcome = SetNice(pid, plan.argument.number);
      break;
    case Command::kScheduling:
      report.outcome = ChangeScheduling(pid, plan.argument.change);
      break;
  }
  return report;
}

}  // namespace

ActionPlan PlanAction(ProcessCommand command, std::span<const std::int32_t> pids,
                      const CommandArgument& argument) {
  ActionPlan plan{command, argument};
  std::unordered_map<std::int32_t, ProcessDescription> descriptions;
  for (auto& description : TheMachine().processTable.Describe(pids))
    descriptions[description.process.pid] = std::move(description);
  for (const auto pid : pids) {
    if (pid < 0 && !IsKnownApplication(pid)) continue;
    if (command == Command::kHalt && GetProcessAction(pid, kProcessActionHalt, nullptr)) continue;
    ActionTarget target{{pid, GetPidsStartStamp(pid)}, WholeNameOf(pid)};
    if (pid < 0)
      target.description.isOwn = true;
    else
      target.description = std::move(descriptions[pid]);
    const auto obstacle = Obstacle(command, target);
    if (obstacle != ActionResult::kDone) {
      plan.impossible.push_back({pid, std::move(target.name), {obstacle}});
      continue;
    }
    if (command == Command::kKill) {
      target.step = NextKillStep(pid);
      target.timesAsked = TimesAskedToEnd(pid);
    }
    plan.targets.push_back(std::move(target));
  }
  plan.asks = MustAsk(plan);
  return plan;
}

std::vector<ActionReport> CarryOut(const ActionPlan& plan) {
  std::vector<ActionReport> reports;
  reports.reserve(plan.targets.size() + plan.impossible.size());
  const CommandTime time;
  for (const auto& target : plan.targets) reports.push_back(CarryOut(plan, target));
  reports.insert(reports.end(), plan.impossible.begin(), plan.impossible.end());
  return reports;
}

std::size_t CountOthers(const ActionPlan& plan) {
  return static_cast<std::size_t>(std::ranges::count_if(
      plan.targets, [](const auto& target) { return !target.description.isOwn; }));
}

bool IsQuitAlone(const ActionPlan& plan) {
  return plan.command == ProcessCommand::kKill &&
         std::ranges::all_of(plan.targets,
                             [](const auto& target) { return target.step == KillStep::kQuit; });
}

}  // namespace lurkwell
