#include "process_control/ProcessActions.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <string>

#include "consolidator/ProcessQueries.h"
#include "consolidator/SyntheticPids.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/PrintableText.h"
#include "platform/ProcessManager.h"
#include "platform/ProcessTable.h"
#include "platform/Signals.h"
#include "process_control/DaemonCommunication.h"
#include "process_control/Unit.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kLowestPid = 2;
constexpr FourCharCode kFinder = {'M', 'A', 'C', 'S'};

/// Whether the pid still is the process that was shown under it.
bool IsAsShown(std::int32_t pid) {
  const auto identity = TheMachine().processTable.CurrentIdentity(pid);
  return identity && identity->startStamp == GetPidsStartStamp(pid);
}

/// Why nothing may be sent to the process; kDone when it may.
ActionResult Obstacle(std::int32_t pid) {
  if (pid < kLowestPid) return ActionResult::kProtected;
  return IsAsShown(pid) ? ActionResult::kDone : ActionResult::kGone;
}

/// Has the helper carry out one verb line; its answer into `text`, unless that is null.
ActionResult AskForAction(std::int32_t pid, const std::string& line, std::string* text = nullptr) {
  constexpr std::int32_t kCapacity = 255;
  if (const auto obstacle = Obstacle(pid); obstacle != ActionResult::kDone) return obstacle;
  char answer[kCapacity + 1] = "";
  const auto size = QueryDaemon(("Lkw Action Request:\n" + line).c_str(), answer, kCapacity);
  if (text != nullptr) *text = answer;
  if (size <= 0) return ActionResult::kNoHelper;
  if (*answer != '\0') return ActionResult::kDone;
  return IsAsShown(pid) ? ActionResult::kRefused : ActionResult::kGone;
}

ActionResult Act(const char* verb, std::int32_t pid) {
  return AskForAction(pid, verb + std::string(" ") + std::to_string(pid));
}

ProcessSerialNumber FindFinder() {
  auto& manager = TheMachine().processManager;
  ProcessSerialNumber at;
  while (const auto next = manager.GetNextProcess(at)) {
    at = *next;
    const auto information = manager.GetProcessInformation(at);
    if (information && information->signature == kFinder) return at;
  }
  return {};
}

ActionResult ChangePriority(std::int32_t pid, std::int32_t nice) {
  const auto result = ReniceProcessPID(pid, nice);
  if (result != ActionResult::kDone) return result;
  RemoveProcessAction(pid, kProcessActionRenice);
  if (nice != kNormalNice) AddProcessAction(pid, kProcessActionRenice, nice);
  return result;
}

ProcessSerialNumber SerialNumberOf(std::int32_t pid) {
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  return psn;
}

/// What an application is spared that is none.
std::int32_t FirstStepOf(ProcessSerialNumber psn) {
  return static_cast<std::int32_t>(psn.IsNone() ? KillStep::kTerminate : KillStep::kQuit);
}

KillStep StepAfter(std::int32_t kills, ProcessSerialNumber psn) {
  return static_cast<KillStep>(
      std::min(kills + FirstStepOf(psn), static_cast<std::int32_t>(KillStep::kForce)));
}

/// The next kill is the step after this one.
void CountSteps(std::int32_t pid, KillStep step, ProcessSerialNumber psn) {
  const auto kills = static_cast<std::int32_t>(step) + 1 - FirstStepOf(psn);
  do IncrementPidsKillCount(pid);
  while (GetPidsKillCount(pid) != 0 && GetPidsKillCount(pid) < kills);
}

ActionResult Terminate(std::int32_t pid) {
  if (const auto obstacle = Obstacle(pid); obstacle != ActionResult::kDone) return obstacle;
  if (TheMachine().signals.Send({pid, GetPidsStartStamp(pid)}, SIGTERM)) return ActionResult::kDone;
  return IsAsShown(pid) ? ActionResult::kRefused : ActionResult::kGone;
}

ActionResult TakeStep(std::int32_t pid, KillStep step, ProcessSerialNumber psn) {
  switch (step) {
    case KillStep::kQuit:
      return KillProcessPSN(psn) ? ActionResult::kDone : ActionResult::kNobody;
    case KillStep::kTerminate:
      return Terminate(pid);
    case KillStep::kTerminateByHelper:
      return KillProcessPID(pid);
    case KillStep::kForce:
      return KillProcessDeadPID(pid);
  }
  return ActionResult::kNobody;
}

/// Whether it was not the process that stood in the way, but the way.
bool GoesOn(ActionResult result, KillStep step) {
  return (step == KillStep::kQuit && result == ActionResult::kNobody) ||
         (step == KillStep::kTerminate && result == ActionResult::kRefused);
}

}  // namespace

bool KillProcessPSN(ProcessSerialNumber psn) {
  return TheMachine().processManager.Quit(psn);
}

bool ShowProcessPSN(ProcessSerialNumber psn, bool show) {
  return TheMachine().processManager.ShowHideProcess(psn, show);
}

bool RevealProcessInFinder(ProcessSerialNumber psn) {
  return RevealProcessesInFinder({&psn, 1}) != 0;
}

std::size_t RevealProcessesInFinder(std::span<const ProcessSerialNumber> psns) {
  auto& manager = TheMachine().processManager;
  const ProcessSerialNumber finder = FindFinder();
  // Where none is running the desktop starts one, which comes to the front by itself.
  const auto revealed =
      std::ranges::count_if(psns, [&](const auto& psn) { return manager.Reveal(psn); });
  if (!finder.IsNone()) manager.SetFrontProcess(finder);
  return static_cast<std::size_t>(revealed);
}

ActionResult KillProcessPID(std::int32_t pid) {
  return Act("kill_normal", pid);
}

ActionResult KillProcessDeadPID(std::int32_t pid) {
  return Act("kill_harsh", pid);
}

ActionResult HaltProcessPID(std::int32_t pid) {
  return ActuallyHaltProcessPID(pid);
}

ActionResult ContProcessPID(std::int32_t pid) {
  return ActuallyContProcessPID(pid);
}

ActionResult ReniceProcessPID(std::int32_t pid, std::int32_t niceValue) {
  return ActuallyReniceProcessPID(pid, niceValue);
}

ActionResult ActuallyHaltProcessPID(std::int32_t pid) {
  return Act("kill_halt", pid);
}

ActionResult ActuallyContProcessPID(std::int32_t pid) {
  return Act("kill_cont", pid);
}

ActionResult ActuallyReniceProcessPID(std::int32_t pid, std::int32_t niceValue) {
  Require(niceValue >= -20, kActionsUnit, "niceValue >= -20");
  Require(niceValue <= 20, kActionsUnit, "niceValue <= 20");
  std::string answer;
  const auto result =
      AskForAction(pid, "renice " + std::to_string(pid) + " " + std::to_string(niceValue), &answer);
  std::printf("Renice returns %s\n", PrintableText(WithoutNewline(answer)).c_str());
  return result;
}

KillStep NextKillStep(std::int32_t pid) {
  const auto psn = SerialNumberOf(pid);
  const auto step = StepAfter(GetPidsKillCount(pid), psn);
  if (step != KillStep::kQuit || pid < 0 || TheMachine().processManager.CanQuit(psn)) return step;
  return KillStep::kTerminate;
}

KillOutcome KillProcess(std::int32_t pid) {
  const auto psn = SerialNumberOf(pid);
  if (pid < 0) {
    Require(!psn.IsNone(), kActionsUnit, "psn.highLongOfPSN || psn.lowLongOfPSN");
    const auto result = TakeStep(pid, KillStep::kQuit, psn);
    if (result == ActionResult::kDone) NoteAskedToEnd(pid), IncrementPidsKillCount(pid);
    return {result, KillStep::kQuit};
  }
  auto step = StepAfter(GetPidsKillCount(pid), psn);
  auto result = TakeStep(pid, step, psn);
  while (GoesOn(result, step)) {
    step = static_cast<KillStep>(static_cast<std::uint8_t>(step) + 1);
    result = TakeStep(pid, step, psn);
  }
  if (result == ActionResult::kDone) {
    CountSteps(pid, step, psn);
    if (step != KillStep::kForce) NoteAskedToEnd(pid);
  }
  return {result, step};
}

ActionResult SetHighPriority(std::int32_t pid) {
  return ChangePriority(pid, kHighNice);
}

ActionResult SetNormalPriority(std::int32_t pid) {
  return ChangePriority(pid, kNormalNice);
}

ActionResult SetLowPriority(std::int32_t pid) {
  return ChangePriority(pid, kLowNice);
}

ActionResult HaltProcess(std::int32_t pid) {
  const bool isHalted = GetProcessAction(pid, kProcessActionHalt, nullptr);
  if (isHalted) std::fputs("Not really expecting this pid to be in the halted list\n", stderr);
  const auto result = HaltProcessPID(pid);
  if (result == ActionResult::kDone && !isHalted) AddProcessAction(pid, kProcessActionHalt, 0);
  return result;
}

ActionResult ContinueProcess(std::int32_t pid) {
  if (!GetProcessAction(pid, kProcessActionHalt, nullptr))
    std::fputs("unexpected: this pid should be in the halted list\n", stderr);
  const auto result = ContProcessPID(pid);
  if (result == ActionResult::kDone) RemoveProcessAction(pid, kProcessActionHalt);
  return result;
}

ProcessActionHelper::ProcessActionHelper(long interval, int number, const Uuid* uuid)
    : ProcessInformationClient(uuid, static_cast<std::int32_t>(interval)), mNumber(number) {}

}  // namespace lurkwell
