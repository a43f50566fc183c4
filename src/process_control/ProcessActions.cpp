#include "process_control/ProcessActions.h"

#include <algorithm>
#include <csignal>
#include <string>
#include <utility>

#include "channel/DaemonCommunication.h"
#include "consolidator/Applications.h"
#include "consolidator/ProcessQueries.h"
#include "platform/Assertion.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/PrintableText.h"
#include "platform/ProcessManager.h"
#include "platform/ProcessTable.h"
#include "platform/Signals.h"

namespace lurkwell {
namespace {

constexpr char kActionsUnit[] = "ProcessActions";

/// Of the command that is being carried out; null for a single action.
DaemonConversation* gConversation = nullptr;

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

/// The helper's answer to one request; `outcome` says what it means when it is empty.
struct Reply {
  std::string text;
  ActionOutcome outcome;
};

Reply Ask(std::int32_t pid, const std::string& request) {
  constexpr std::int32_t kCapacity = 511;
  char answer[kCapacity + 1] = "";
  std::string words;
  const auto size = gConversation != nullptr
                        ? gConversation->Query(request.c_str(), answer, kCapacity, &words)
                        : QueryDaemon(request.c_str(), answer, kCapacity, &words);
  if (size == kDaemonNotAsked) return {{}, {ActionResult::kNoTime}};
  if (size <= 0) return {{}, {ActionResult::kNoHelper}};
  if (*answer != '\0') return {answer, {ActionResult::kDone}};
  if (!IsAsShown(pid)) return {{}, {ActionResult::kGone}};
  return {{}, {ActionResult::kRefused, std::move(words)}};
}

/// Has the helper look at the process, so that it remembers which one has the pid now, and then
/// looks itself: what both see is the one that is shown, and the helper leaves any later one alone.
ActionOutcome Agree(std::int32_t pid) {
  const auto number = std::to_string(pid);
  auto [figures, outcome] =
      Ask(pid, "Lkw Info Extraction:\npid_internal_basic_info " + number + "\n");
  if (outcome != ActionResult::kDone) return outcome;
  if (figures.find(' ' + number + ' ') == std::string::npos) return {ActionResult::kNoHelper};
  return {IsAsShown(pid) ? ActionResult::kDone : ActionResult::kGone};
}

/// Has the helper carry out one verb line.
Reply AskForAction(std::int32_t pid, const std::string& line) {
  if (const auto obstacle = Obstacle(pid); obstacle != ActionResult::kDone) return {{}, {obstacle}};
  if (auto outcome = Agree(pid); outcome != ActionResult::kDone) return {{}, std::move(outcome)};
  return Ask(pid, "Lkw Action Request:\n" + line);
}

ActionOutcome Act(const char* verb, std::int32_t pid) {
  return AskForAction(pid, verb + std::string(" ") + std::to_string(pid)).outcome;
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

ActionOutcome ChangePriority(std::int32_t pid, std::int32_t nice) {
  auto outcome = ReniceProcessPID(pid, nice);
  if (outcome != ActionResult::kDone) return outcome;
  RemoveProcessAction(pid, kProcessActionRenice);
  if (nice != kNormalNice) AddProcessAction(pid, kProcessActionRenice, nice);
  return outcome;
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

ActionOutcome TakeStep(std::int32_t pid, KillStep step, ProcessSerialNumber psn) {
  switch (step) {
    case KillStep::kQuit:
      return {KillProcessPSN(psn) ? ActionResult::kDone : ActionResult::kNobody};
    case KillStep::kTerminate:
      return {Terminate(pid)};
    case KillStep::kTerminateByHelper:
      return KillProcessPID(pid);
    case KillStep::kForce:
      return KillProcessDeadPID(pid);
  }
  return {ActionResult::kNobody};
}

/// Whether it was not the process that stood in the way, but the way.
bool GoesOn(ActionResult result, KillStep step) {
  return (step == KillStep::kQuit && result == ActionResult::kNobody) ||
         (step == KillStep::kTerminate && result == ActionResult::kRefused);
}

/// The helper's verb for a signal; null for those that it does not send.
const char* VerbOf(std::int32_t signal) {
  switch (signal) {
    case SIGTERM:
      return "kill_normal";
    case SIGKILL:
      return "kill_harsh";
    case SIGSTOP:
      return "kill_halt";
    case SIGCONT:
      return "kill_cont";
    default:
      return nullptr;
  }
}

ActionOutcome SendByHelper(std::int32_t pid, std::int32_t signal) {
  const char* verb = VerbOf(signal);
  return verb != nullptr ? Act(verb, pid) : ActionOutcome{ActionResult::kRefused};
}

ActionResult ResultOf(SchedulingAnswer answer) {
  switch (answer) {
    case SchedulingAnswer::kDone:
      return ActionResult::kDone;
    case SchedulingAnswer::kGone:
      return ActionResult::kGone;
    case SchedulingAnswer::kRefused:
      return ActionResult::kRefused;
    case SchedulingAnswer::kImpossible:
      return ActionResult::kImpossible;
  }
  return ActionResult::kRefused;
}

}  // namespace

CommandTime::CommandTime() {
  gConversation = &mConversation;
}

CommandTime::~CommandTime() {
  gConversation = nullptr;
}

bool KillProcessPSN(ProcessSerialNumber psn) {
  return TheMachine().processManager.Quit(psn);
}

bool ShowProcessPSN(ProcessSerialNumber psn, bool show) {
  return TheMachine().processManager.ShowHideProcess(psn, show);
}

bool RevealProcessInFinder(ProcessSerialNumber psn) {
  auto& manager = TheMachine().processManager;
  const ProcessSerialNumber finder = FindFinder();
  // Where none is running the desktop starts one, which comes to the front by itself.
  const bool revealed = manager.Reveal(psn);
  if (!finder.IsNone()) manager.SetFrontProcess(finder);
  return revealed;
}

ActionOutcome KillProcessPID(std::int32_t pid) {
  return Act("kill_normal", pid);
}

ActionOutcome KillProcessDeadPID(std::int32_t pid) {
  return Act("kill_harsh", pid);
}

ActionOutcome HaltProcessPID(std::int32_t pid) {
  return ActuallyHaltProcessPID(pid);
}

ActionOutcome ContProcessPID(std::int32_t pid) {
  return ActuallyContProcessPID(pid);
}

ActionOutcome ReniceProcessPID(std::int32_t pid, std::int32_t niceValue) {
  return ActuallyReniceProcessPID(pid, niceValue);
}

ActionOutcome ActuallyHaltProcessPID(std::int32_t pid) {
  return Act("kill_halt", pid);
}

ActionOutcome ActuallyContProcessPID(std::int32_t pid) {
  return Act("kill_cont", pid);
}

ActionOutcome ActuallyReniceProcessPID(std::int32_t pid, std::int32_t niceValue) {
  Require(niceValue >= -20, kActionsUnit, "niceValue >= -20");
  Require(niceValue <= 20, kActionsUnit, "niceValue <= 20");
  auto [answer, outcome] =
      AskForAction(pid, "renice " + std::to_string(pid) + " " + std::to_string(niceValue));
  DiagnoseVerbatim("Renice returns %s", PrintableText(WithoutNewline(answer)).c_str());
  return outcome;
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
    auto outcome = TakeStep(pid, KillStep::kQuit, psn);
    if (outcome == ActionResult::kDone) NoteAskedToEnd(pid), IncrementPidsKillCount(pid);
    return {std::move(outcome), KillStep::kQuit};
  }
  auto step = StepAfter(GetPidsKillCount(pid), psn);
  auto outcome = TakeStep(pid, step, psn);
  while (GoesOn(outcome.result, step)) {
    step = static_cast<KillStep>(static_cast<std::uint8_t>(step) + 1);
    outcome = TakeStep(pid, step, psn);
  }
  if (outcome == ActionResult::kDone) {
    CountSteps(pid, step, psn);
    if (step != KillStep::kForce) NoteAskedToEnd(pid);
  }
  return {std::move(outcome), step};
}

ActionOutcome SetHighPriority(std::int32_t pid) {
  return ChangePriority(pid, kHighNice);
}

ActionOutcome SetNormalPriority(std::int32_t pid) {
  return ChangePriority(pid, kNormalNice);
}

ActionOutcome SetLowPriority(std::int32_t pid) {
  return ChangePriority(pid, kLowNice);
}

ActionOutcome SetNice(std::int32_t pid, std::int32_t nice) {
  return ChangePriority(pid, nice);
}

ActionOutcome ChangeScheduling(std::int32_t pid, const SchedulingChange& change) {
  if (const auto obstacle = Obstacle(pid); obstacle != ActionResult::kDone) return {obstacle};
  return {ResultOf(TheMachine().scheduler.Change({pid, GetPidsStartStamp(pid)}, change))};
}

ActionOutcome SendSignal(std::int32_t pid, std::int32_t signal) {
  if (const auto obstacle = Obstacle(pid); obstacle != ActionResult::kDone) return {obstacle};
  if (!TheMachine().signals.Send({pid, GetPidsStartStamp(pid)}, signal)) {
    if (!IsAsShown(pid)) return {ActionResult::kGone};
    auto outcome = SendByHelper(pid, signal);
    if (outcome != ActionResult::kDone) return outcome;
  }
  if (signal == SIGSTOP && !GetProcessAction(pid, kProcessActionHalt, nullptr))
    AddProcessAction(pid, kProcessActionHalt, 0);
  if (signal == SIGCONT) RemoveProcessAction(pid, kProcessActionHalt);
  return {ActionResult::kDone};
}

ActionOutcome HaltProcess(std::int32_t pid) {
  const bool isHalted = GetProcessAction(pid, kProcessActionHalt, nullptr);
  if (isHalted) DiagnoseVerbatim("Not really expecting this pid to be in the halted list");
  auto outcome = HaltProcessPID(pid);
  if (outcome == ActionResult::kDone && !isHalted) AddProcessAction(pid, kProcessActionHalt, 0);
  return outcome;
}

ActionOutcome ContinueProcess(std::int32_t pid) {
  if (!GetProcessAction(pid, kProcessActionHalt, nullptr))
    DiagnoseVerbatim("unexpected: this pid should be in the halted list");
  auto outcome = ContProcessPID(pid);
  if (outcome == ActionResult::kDone) RemoveProcessAction(pid, kProcessActionHalt);
  return outcome;
}

ProcessActionHelper::ProcessActionHelper(long interval, int number, const Uuid* uuid)
    : ProcessInformationClient(uuid, static_cast<std::int32_t>(interval)), mNumber(number) {}

}  // namespace lurkwell
