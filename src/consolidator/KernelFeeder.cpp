#include "consolidator/KernelFeeder.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "consolidator/HelperQueries.h"
#include "consolidator/PidReport.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/PropertyNeeds.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "process_control/DaemonCommunication.h"
#include "process_control/ProcessActions.h"

namespace lurkwell {
namespace {

using Client = ProcessInformationClient;

/// One pass over the table.
class KernelPass {
 public:
  explicit KernelPass(TimeValue now) : mNow(now), mNeeds(now) {}

  void Feed(const ProcessTableEntry& entry) {
    if (entry.pid > mMaximumPid) {
      std::puts("BAD pid! (?)");
      return;
    }
    // The pid has passed to another process: its last holder retires in this heartbeat, the new one
    // is born in the next.
    if (!NoteStartStamp(entry.pid, entry.startStamp)) return;
    const auto level = mNeeds.LookAt(entry.pid);
    if (level == Client::kNeedNoProcProperties) {
      TouchProcessInformationForPID(entry.pid, kInformationKindPID);
      return;
    }
    const bool all = level == Client::kNeedAllProcProperties;
    ReportTableFigures(entry, all);
    NoteKernelState(entry.pid, entry.state == RunState::kStopped, entry.nice);
    const unsigned groups = GroupsFor(all);
    if (groups != 0) ReportUsage(entry, groups);
  }

 private:
  void ReportTableFigures(const ProcessTableEntry& entry, bool all) {
    const auto wanted = [&](const PropertyNeed& need) { return all || need.By(mNeeds); };
    PidReport report(entry.pid);
    report.State(entry.state);
    if (wanted(mCommandName)) report.Text(mCommandName.Row(), entry.commandName);
    if (wanted(mPriority)) report.Integer(mPriority.Row(), entry.priority);
    report.Integer(mParentRow, entry.parentPid);
    if (wanted(mNice)) report.Integer(mNice.Row(), entry.nice);
    if (wanted(mStartTime)) report.Time(mStartTime.Row(), entry.startTime);
  }

  /// From the helper, or else what everybody may read.
  void ReportUsage(const ProcessTableEntry& entry, unsigned groups) {
    unsigned known = mQueries.Ask(entry.pid, groups);
    if (known != groups) known |= ReportOwnFigures(entry, groups & ~known);
    if ((known & kThreadTime) != 0) NoteTimesRead(entry.pid);
  }

  static unsigned ReportOwnFigures(const ProcessTableEntry& entry, unsigned groups) {
    const auto figures = TheMachine().processTable.FiguresOf(entry);
    if (!figures) return 0;
    PidReport report(entry.pid);
    const auto integer = [&](std::string_view property, std::int64_t value) {
      report.Integer(*FindBuiltInProperty(property), value);
    };
    if ((groups & kThreadTime) != 0) {
      report.Time(*FindBuiltInProperty("pid_user_time"), figures->userTime);
      report.Time(*FindBuiltInProperty("pid_system_time"), figures->systemTime);
    }
    if ((groups & kBasicInfo) != 0) {
      integer("pid_vsz", figures->virtualSize);
      integer("pid_rsz", figures->residentSize);
      integer("pid_suspend_count", figures->suspendCount);
      integer("pid_policy", figures->policy);
    }
    if ((groups & kEventsInfo) != 0) {
      integer("pid_faults", figures->faults);
      integer("pid_pageins", figures->pageins);
    }
    return groups;
  }

  unsigned GroupsFor(bool all) const {
    const auto wanted = [&](const PropertyNeed& need) { return all || need.By(mNeeds); };
    unsigned groups = 0;
    // A need for any of its sources is one for the CPU time.
    if (wanted(mActiveTime)) groups |= kThreadTime | kBasicInfo;
    if (groups == 0 && std::ranges::any_of(mBasicInfo, wanted)) groups |= kBasicInfo;
    if (std::ranges::any_of(mEventsInfo, wanted)) groups |= kEventsInfo;
    return groups;
  }

  TimeValue mNow;
  ProcessNeeds mNeeds;
  std::int32_t mMaximumPid = TheMachine().processTable.MaximumPid();
  const CatalogueRow& mParentRow = *FindBuiltInProperty("pid_parent_pid");
  PropertyNeed mCommandName{"pid_p_comm", mNow};
  PropertyNeed mPriority{"pid_p_priority", mNow};
  PropertyNeed mNice{"pid_p_nice", mNow};
  PropertyNeed mStartTime{"pid_p_starttime", mNow};

  // The helper gives figures by the group; one that is needed brings the others.
  PropertyNeed mActiveTime{"meta_active_time", mNow};
  std::array<PropertyNeed, 4> mBasicInfo{
      {{"pid_vsz", mNow}, {"pid_rsz", mNow}, {"pid_suspend_count", mNow}, {"pid_policy", mNow}}};
  std::array<PropertyNeed, 8> mEventsInfo{{{"pid_faults", mNow},
                                           {"pid_pageins", mNow},
                                           {"pid_cow_faults", mNow},
                                           {"pid_messages_sent", mNow},
                                           {"pid_messages_received", mNow},
                                           {"pid_syscalls_mach", mNow},
                                           {"pid_syscalls_unix", mNow},
                                           {"pid_csw", mNow}}};
  HelperQueries mQueries;
};

}  // namespace

void PIDExtractProcessInformation(TimeValue now) {
  const DaemonConversation conversation;
  // The pass asks for the highest pid, which the table knows as of its last reading.
  const auto entries = TheMachine().processTable.Read();
  KernelPass pass(now);
  for (const auto& entry : entries) {
    pass.Feed(entry);
    // The kernel's own entry ends the list.
    if (entry.pid == 0) break;
  }
}

}  // namespace lurkwell
