#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "monitor_windows/RememberedWindows.h"

namespace lurkwell {

/// Finds remembered windows by the program that they follow, so that looking up many processes
/// walks the records once. Records without an identifier are left out: they could not be told from
/// new windows. Main thread only.
class RememberedPrograms {
 public:
  explicit RememberedPrograms(const char* arrayName) : mArrayName(arrayName) {}

  /// Reads the records anew.
  void Refresh();

  /// Whether a record's window followed a process of that pid last, as of the last Refresh.
  bool IsAnyOf(std::int32_t pid) const { return mPids.contains(pid); }

  /// Whether any record says whose processes come first, as of the last Refresh.
  bool HaveOwners() const { return mHaveOwners; }

  /// Whether one of the programs is missing among those that `running` names, by name and kind.
  using Program = std::pair<std::string, std::string>;
  bool IsOneMissing(const std::set<Program>& running);

  /// The first record at or after `startIndex` whose name and kind are these to the byte, -1 for
  /// none. As of the last Refresh, but never one that has become another.
  std::int32_t Find(const char* name, const char* kind, std::int32_t startIndex);

 private:
  std::int32_t Known(const std::string& program, std::int32_t startIndex) const;
  std::string ProgramAt(std::int32_t index) const;

  const char* mArrayName;
  std::int32_t mCount = -1;
  std::unordered_set<std::int32_t> mPids;
  bool mHaveOwners = false;
  /// Indices in ascending order, by name and kind.
  std::unordered_map<std::string, std::vector<std::int32_t>> mIndices;
};

/// Opens remembered windows for the programs that start, each for one process at a time: the one it
/// followed last, else one of the same owner, else any; of several that are new at once the one
/// that has run longest. While none is remembered it has its turn an eighth as often. Main thread
/// only; deleted, like every client, at shutdown.
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
  static std::int32_t CountRemembered();
  /// Which process gets a window: first one that has had it, then one of the same owner.
  enum class Claim { kFollowedLast, kSameOwner, kAny };
  void OpenWindowsOf(int pid, Claim claim);
  /// Whether a record's window, of the array before `nextIndex`, is to be opened now.
  bool IsDue(const char* arrayName, std::int32_t nextIndex, int pid, Claim claim,
             bool isOpen) const;
  bool MayOpen();
  bool IsOneWaiting();

  const std::int32_t mWatchfulInterval;
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
