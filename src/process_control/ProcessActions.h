#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "channel/DaemonCommunication.h"
#include "consolidator/ProcessActionList.h"
#include "consolidator/ProcessInformationClient.h"
#include "platform/ProcessIdentity.h"
#include "platform/Scheduler.h"

/// What the user can do to a process, and the memory of what was done. Main thread only. A pid
/// below 2 is refused by every action before anything is sent, and so is one that has passed to
/// another process than the consolidator's record means.
namespace lurkwell {

/// What became of an action.
enum class ActionResult : std::uint8_t {
  kDone,          ///< carried out, or asked for where no outcome is told
  kGone,          ///< the process has ended
  kProtected,     ///< one of the system's first two processes
  kKernelThread,  ///< a part of the kernel, which takes no signals
  kRefused,       ///< the user may not do it, not even by way of the helper
  kNoHelper,      ///< there is no helper, or it did not answer
  kNoTime,        ///< not tried: the command's time was over before its turn came
  kNobody,        ///< this desktop has nobody that could be asked
  kOutOfReach,    ///< this desktop lets no program do it to another one's windows
  kImpossible,    ///< the machine has no such processor, policy or precedence
};

/// Of one action.
struct ActionOutcome {
  ActionResult result;
  /// Of a refusal: what the helper says, on one line; empty where it says nothing.
  std::string helperWords = {};

  bool operator==(ActionResult other) const { return result == other; }
};

/// One command to several processes: while it lives, all actions together wait for the helper 250
/// ms at most. What the helper has not done by then is kNoHelper, what it was not asked for
/// kNoTime. Not nested.
class CommandTime {
 public:
  CommandTime();
  ~CommandTime();
  CommandTime(const CommandTime&) = delete;
  CommandTime& operator=(const CommandTime&) = delete;

 private:
  DaemonConversation mConversation{DaemonConversation::Of::kCommand};
};

// ---- Single actions
// ------------------------------------------------------------------------------

/// Asks an application to quit, to show or hide its windows, or the file manager to show the
/// application's file and come to the front. False when nobody could be asked.
bool KillProcessPSN(ProcessSerialNumber psn);
bool ShowProcessPSN(ProcessSerialNumber psn, bool show);
bool RevealProcessInFinder(ProcessSerialNumber psn);

// Through the helper, which is first made to look at the process: it then acts on no other one that
// gets the same pid. Each of its two answers has to come in time; without the first nothing is
// done.
ActionOutcome KillProcessPID(std::int32_t pid);
ActionOutcome KillProcessDeadPID(std::int32_t pid);
ActionOutcome HaltProcessPID(std::int32_t pid);
ActionOutcome ContProcessPID(std::int32_t pid);
/// A nice value from -20 to 20; others are the assertions "niceValue >= -20" and "niceValue <= 20"
/// of the unit ProcessActions. Prints the helper's answer.
ActionOutcome ReniceProcessPID(std::int32_t pid, std::int32_t niceValue);
ActionOutcome ActuallyHaltProcessPID(std::int32_t pid);
ActionOutcome ActuallyContProcessPID(std::int32_t pid);
ActionOutcome ActuallyReniceProcessPID(std::int32_t pid, std::int32_t niceValue);

// ---- Commands
// ------------------------------------------------------------------------------------

/// The steps of getting rid of a process, each harsher than the one before.
enum class KillStep : std::uint8_t {
  kQuit,               ///< an application is asked to quit, as its own menu would
  kTerminate,          ///< SIGTERM with the user's own rights
  kTerminateByHelper,  ///< SIGTERM with the helper's
  kForce,              ///< SIGKILL by the helper
};

/// The step that KillProcess would take next. An application that cannot be asked to quit, because
/// it has no window, begins with the signal, and so does what is no application.
KillStep NextKillStep(std::int32_t pid);
struct KillOutcome : ActionOutcome {
  /// The step that was taken, or the last one that was tried.
  KillStep step;
};
/// Takes the next step. One that nobody can be asked for, or that the user's own rights do not
/// allow, goes on to the following one at once, but never to force. Steps that did nothing do not
/// count. A made-up pid without a serial number is the assertion
/// "psn.highLongOfPSN || psn.lowLongOfPSN".
KillOutcome KillProcess(std::int32_t pid);

inline constexpr std::int32_t kHighNice = -19;
inline constexpr std::int32_t kNormalNice = 0;
inline constexpr std::int32_t kLowNice = 20;

/// Nice -19, 0 or 20. The first and the last leave an entry in the action list, once they are done.
ActionOutcome SetHighPriority(std::int32_t pid);
ActionOutcome SetNormalPriority(std::int32_t pid);
ActionOutcome SetLowPriority(std::int32_t pid);

/// Any nice value of ReniceProcessPID; all but 0 leave an entry, too.
ActionOutcome SetNice(std::int32_t pid, std::int32_t nice);

/// With the user's own rights.
ActionOutcome ChangeScheduling(std::int32_t pid, const SchedulingChange& change);

/// Sends any signal with the user's own rights and, where these do not reach, by the helper, which
/// sends SIGTERM, SIGKILL, SIGSTOP and SIGCONT and no others. The action list follows.
ActionOutcome SendSignal(std::int32_t pid, std::int32_t signal);

/// Stops and resumes a process, and keeps its entry in the action list, which what was refused
/// leaves as it was. What the list did not expect is a line on standard error.
ActionOutcome HaltProcess(std::int32_t pid);
ActionOutcome ContinueProcess(std::int32_t pid);

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
  bool NeedsEnds() override { return false; }
  const char* TypeName() const override { return "ProcessActionHelper"; }

  int Number() const { return mNumber; }

 private:
  int mNumber;
};

}  // namespace lurkwell
