#pragma once

#include <cstdint>

#include "consolidator/PidStack.h"
#include "consolidator/ProcessInformationClient.h"
#include "monitor_windows/MonitorWindowKinds.h"
#include "monitor_windows/RememberedPrograms.h"

namespace lurkwell {

/// Opens the remembered windows of every program that starts. Main thread only; deleted, like every
/// client, at shutdown.
class ProcessWatchdog final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds; `kinds` outlives this.
  ProcessWatchdog(std::int32_t interval, MonitorWindowKinds& kinds);

  void NotifyPidHasBeenAdded(int pid) override { Remember(pid); }
  void NotifyPidHasBeenRemoved(int) override {}
  void NotifyPidHasChangedAppreciably(int pid) override { Remember(pid); }
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "ProcessWatchdog"; }

  /// Whether there is a record for that process at or after `*startIndex`, in one of the two
  /// arrays. If so `rect` and `uuid` receive it and `startIndex` the index behind it.
  bool CheckClientKindForNewPid(const char* arrayName, int pid, std::int32_t* startIndex,
                                WindowRect* rect, Uuid* uuid);

 private:
  void Remember(int pid);
  void OpenWindowsOf(int pid);
  bool MayOpen();

  MonitorWindowKinds& mKinds;
  PidStack mNewPids;
  RememberedPrograms mHistories{kCPUHistoryWindowKind};
  RememberedPrograms mLogs{kLoggingWindowKind};
  bool mHasSaidTooMany = false;
};

/// Makes the watchdog, has it served, and shows the windows that the preferences want at the start.
/// `kinds` lives until the clients are deleted.
void InitializeProcessWatchdog(std::int32_t interval, MonitorWindowKinds& kinds,
                               StartUpWindows& windows);

}  // namespace lurkwell
