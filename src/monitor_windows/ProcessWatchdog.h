#pragma once

#include <cstdint>

#include "consolidator/PidStack.h"
#include "consolidator/ProcessInformationClient.h"
#include "monitor_windows/MonitorWindowKinds.h"
#include "monitor_windows/RememberedPrograms.h"

namespace lurkwell {

/// Opens remembered windows for the programs that start, each for one process at a time: the one it
/// followed last, else one of the same owner, else any; of several that are new at once the one
/// that has run longest. Main thread only; deleted, like every client, at shutdown.
class ProcessWatchdog final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds; `kinds` outlives this.
  ProcessWatchdog(std::int32_t interval, MonitorWindowKinds& kinds);

  void NotifyPidHasBeenAdded(int pid) override { Remember(pid); }
  void NotifyPidHasBeenRemoved(int pid) override;
  void NotifyPidHasChangedAppreciably(int pid) override { Remember(pid); }
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  bool NeedsEnds() override { return false; }
  /// While a window waits for its program: a script starts it some time after its own birth.
  bool NeedsOnlyBirths() override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "ProcessWatchdog"; }

  /// Whether there is a record for that process at or after `*startIndex`, in one of the two
  /// arrays. If so `rect` and `uuid` receive it and `startIndex` the index behind it.
  bool CheckClientKindForNewPid(const char* arrayName, int pid, std::int32_t* startIndex,
                                WindowRect* rect, Uuid* uuid);

 private:
  void Remember(int pid);
  /// Who gets a window: first who has had it already, then who belongs to the same owner.
  enum class Claim { kFollowedLast, kSameOwner, kAny };
  void OpenWindowsOf(int pid, Claim claim);
  /// Whether a record's window, of the array before `nextIndex`, is to be opened now.
  bool IsDue(const char* arrayName, std::int32_t nextIndex, int pid, Claim claim,
             bool isOpen) const;
  bool MayOpen();
  bool IsOneWaiting();

  MonitorWindowKinds& mKinds;
  PidStack mNewPids;
  RememberedPrograms mHistories{kCPUHistoryWindowKind};
  RememberedPrograms mLogs{kLoggingWindowKind};
  bool mHasSaidTooMany = false;
  /// How many windows are remembered, and whether one of them waits for its program, as of when
  /// the running programs last changed.
  std::int32_t mRemembered = 0;
  bool mIsOneWaiting = false;
  bool mHaveProgramsChanged = true;
};

/// Makes the watchdog, has it served, and shows the windows that the preferences want at the start.
/// `kinds` lives until the clients are deleted.
void InitializeProcessWatchdog(std::int32_t interval, MonitorWindowKinds& kinds,
                               StartUpWindows& windows);

}  // namespace lurkwell
