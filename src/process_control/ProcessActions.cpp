#include "process_control/ProcessActions.h"

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
constexpr std::int32_t kHighPriority = -19;
constexpr std::int32_t kNormalPriority = 0;
constexpr std::int32_t kLowPriority = 20;
constexpr FourCharCode kFinder = {'M', 'A', 'C', 'S'};

/// Whether the pid still is the process that was shown under it.
bool IsAsShown(std::int32_t pid) {
  const auto identity = TheMachine().processTable.CurrentIdentity(pid);
  return identity && identity->startStamp == GetPidsStartStamp(pid);
}

/// The helper's answer to one verb line.
std::string AskForAction(std::int32_t pid, const std::string& line) {
  constexpr std::int32_t kCapacity = 255;
  char answer[kCapacity + 1] = "";
  if (pid >= kLowestPid && IsAsShown(pid))
    QueryDaemon(("Lkw Action Request:\n" + line).c_str(), answer, kCapacity);
  return answer;
}

void Act(const char* verb, std::int32_t pid) {
  AskForAction(pid, verb + std::string(" ") + std::to_string(pid));
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

void ChangePriority(std::int32_t pid, std::int32_t nice) {
  RemoveProcessAction(pid, kProcessActionRenice);
  if (nice != kNormalPriority) AddProcessAction(pid, kProcessActionRenice, nice);
  ReniceProcessPID(pid, nice);
}

}  // namespace

bool KillProcessPSN(ProcessSerialNumber psn) {
  return TheMachine().processManager.Quit(psn);
}

bool ShowProcessPSN(ProcessSerialNumber psn, bool show) {
  return TheMachine().processManager.ShowHideProcess(psn, show);
}

bool RevealProcessInFinder(ProcessSerialNumber psn) {
  const ProcessSerialNumber finder = FindFinder();
  // Where none is running the desktop starts one, which comes to the front by itself.
  const bool revealed = TheMachine().processManager.Reveal(psn);
  if (!finder.IsNone()) TheMachine().processManager.SetFrontProcess(finder);
  return revealed;
}

void KillProcessPID(std::int32_t pid) {
  Act("kill_normal", pid);
}

void KillProcessDeadPID(std::int32_t pid) {
  Act("kill_harsh", pid);
}

void HaltProcessPID(std::int32_t pid) {
  ActuallyHaltProcessPID(pid);
}

void ContProcessPID(std::int32_t pid) {
  ActuallyContProcessPID(pid);
}

void ReniceProcessPID(std::int32_t pid, std::int32_t niceValue) {
  ActuallyReniceProcessPID(pid, niceValue);
}

void ActuallyHaltProcessPID(std::int32_t pid) {
  Act("kill_halt", pid);
}

void ActuallyContProcessPID(std::int32_t pid) {
  Act("kill_cont", pid);
}

void ActuallyReniceProcessPID(std::int32_t pid, std::int32_t niceValue) {
  Require(niceValue >= -20, kActionsUnit, "niceValue >= -20");
  Require(niceValue <= 20, kActionsUnit, "niceValue <= 20");
  const std::string answer =
      AskForAction(pid, "renice " + std::to_string(pid) + " " + std::to_string(niceValue));
  std::printf("Renice returns %s\n", PrintableText(WithoutNewline(answer)).c_str());
}

void KillProcess(std::int32_t pid) {
  std::int32_t count = GetPidsKillCount(pid);
  IncrementPidsKillCount(pid);
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  if (pid < 0) {
    Require(!psn.IsNone(), kActionsUnit, "psn.highLongOfPSN || psn.lowLongOfPSN");
    KillProcessPSN(psn);
    return;
  }
  if (psn.IsNone()) ++count;
  if (count == 0) {
    KillProcessPSN(psn);
  } else if (count == 1) {
    if (pid >= kLowestPid && IsAsShown(pid))
      TheMachine().signals.Send({pid, GetPidsStartStamp(pid)}, SIGTERM);
  } else if (count == 2) {
    KillProcessPID(pid);
  } else {
    KillProcessDeadPID(pid);
  }
}

void SetHighPriority(std::int32_t pid) {
  ChangePriority(pid, kHighPriority);
}

void SetNormalPriority(std::int32_t pid) {
  ChangePriority(pid, kNormalPriority);
}

void SetLowPriority(std::int32_t pid) {
  ChangePriority(pid, kLowPriority);
}

void HaltProcess(std::int32_t pid) {
  if (GetProcessAction(pid, kProcessActionHalt, nullptr)) {
    std::fputs("Not really expecting this pid to be in the halted list\n", stderr);
  } else {
    AddProcessAction(pid, kProcessActionHalt, 0);
  }
  HaltProcessPID(pid);
}

void ContinueProcess(std::int32_t pid) {
  if (!GetProcessAction(pid, kProcessActionHalt, nullptr))
    std::fputs("unexpected: this pid should be in the halted list\n", stderr);
  RemoveProcessAction(pid, kProcessActionHalt);
  ContProcessPID(pid);
}

ProcessActionHelper::ProcessActionHelper(long interval, int number, const Uuid* uuid)
    : ProcessInformationClient(uuid, static_cast<std::int32_t>(interval)), mNumber(number) {}

}  // namespace lurkwell
