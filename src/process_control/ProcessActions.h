#pragma once

#include <cstdint>

#include "consolidator/ProcessInformationClient.h"
#include "platform/ProcessIdentity.h"

/// What the user can do to a process, and the memory of what was done. Main thread only. Nobody is
/// told whether an action succeeded; a renice prints the helper's answer. A pid below 2 is refused
/// by every action before anything is sent, and so is one that has passed to another process than
/// the consolidator's record means.
namespace lurkwell {

// ---- The action list
// -----------------------------------------------------------------------------

enum ProcessActionKind : std::int32_t {
  kProcessActionRenice = 1,
  kProcessActionHalt = 2,
  kProcessActionAny = 3,  ///< in questions and removals only
};

/// One thing that was done to a process. Entries outlive their process: one that gets the same pid
/// shows them until it is acted upon itself.
struct ProcessAction {
  std::int32_t pid;
  std::int32_t kind;
  /// The nice value asked for; 0 for a halt.
  std::int32_t value;
};

/// Adds an entry, which belongs to the list; valid until it is removed.
const ProcessAction* AddProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t value);
/// Removes all of the pid's entries of that kind.
void RemoveProcessAction(std::int32_t pid, std::int32_t kind);
/// Whether the pid has an entry of that kind; the value of the newest one into `value`, unless that
/// is null. The time does not depend on how many processes have entries.
bool GetProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t* value);

/// The name of the image that marks the process: "process_niced_high" or "process_niced_low" after
/// a renice to another value than 0, else "process_halted" after a halt; null for none.
const char* ProcessIndicatorImageName(std::int32_t pid);

// ---- Single actions
// ------------------------------------------------------------------------------

/// Asks an application to quit, to show or hide its windows, or the file manager to show it and
/// come to the front. False when nobody could be asked.
bool KillProcessPSN(ProcessSerialNumber psn);
bool ShowProcessPSN(ProcessSerialNumber psn, bool show);
bool RevealProcessInFinder(ProcessSerialNumber psn);

// Through the helper.
void KillProcessPID(std::int32_t pid);
void KillProcessDeadPID(std::int32_t pid);
void HaltProcessPID(std::int32_t pid);
void ContProcessPID(std::int32_t pid);
/// A nice value from -20 to 20; others are the assertions "niceValue >= -20" and "niceValue <= 20"
/// of the unit ProcessActions.
void ReniceProcessPID(std::int32_t pid, std::int32_t niceValue);
void ActuallyHaltProcessPID(std::int32_t pid);
void ActuallyContProcessPID(std::int32_t pid);
void ActuallyReniceProcessPID(std::int32_t pid, std::int32_t niceValue);

// ---- Commands
// ------------------------------------------------------------------------------------

/// One step of getting rid of a process, harsher with each call: an application is asked to quit,
/// then signalled with the user's own rights, then by the helper, then killed; others start with
/// the signal. A made-up pid without a serial number is the assertion
/// "psn.highLongOfPSN || psn.lowLongOfPSN".
void KillProcess(std::int32_t pid);

/// Nice -19, 0 or 20. The first and the last leave an entry in the action list.
void SetHighPriority(std::int32_t pid);
void SetNormalPriority(std::int32_t pid);
void SetLowPriority(std::int32_t pid);

/// Stops and resumes a process, and keeps its entry in the action list. What the list did not
/// expect is a line on standard error.
void HaltProcess(std::int32_t pid);
void ContinueProcess(std::int32_t pid);

/// A client that needs nothing and does nothing.
class ProcessActionHelper final : public ProcessInformationClient {
 public:
  ProcessActionHelper(long interval, int number, const Uuid* uuid);

  void NotifyPidHasBeenAdded(int) override {}
  void NotifyPidHasBeenRemoved(int) override {}
  void NotifyProcessesHaveBeenUpdated() override {}
  NeedLevel NeedProcPropertiesForPid(int) override { return kNeedNoProcProperties; }
  NeedLevel NeedPidsForProcProperty(const char*) override { return kNeedNoPids; }
  bool NeedPidProcProperty(int, const char*) override { return false; }
  const char* TypeName() const override { return "ProcessActionHelper"; }

  int Number() const { return mNumber; }

 private:
  int mNumber;
};

}  // namespace lurkwell
