#include <algorithm>
#include <optional>
#include <variant>
#include <vector>

#include "consolidator/Feeders.h"
#include "consolidator/HelperQueries.h"
#include "consolidator/PidReport.h"
#include "consolidator/ProcessActionList.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/SourceNeeds.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessTable.h"

namespace lurkwell {
namespace {

/// The due clients, and those of them that need something of one process: only these are asked for
/// which of its properties, however many windows follow other processes. Lives for one pass.
class ProcessNeeds {
 public:
  using Client = ProcessInformationClient;

  explicit ProcessNeeds(TimeValue now) : mDue(Client::DueClients(&now)) {}

  /// Which properties of the process are needed, taken together; the questions below are about it
  /// from then on.
  Client::NeedLevel LookAt(std::int32_t pid) {
    mPid = pid;
    mInterested.clear();
    auto level = Client::kNeedNoProcProperties;
    for (auto* client : mDue) {
      const auto its = client->NeedProcPropertiesForPid(pid);
      level = Client::AggregateNeedLevels(level, its);
      if (level == Client::kNeedAllProcProperties) break;
      if (its != Client::kNeedNoProcProperties) mInterested.push_back(client);
    }
    return level;
  }

  bool Need(const char* property) const {
    return Client::NeedAnyPidProcProperty(mPid, property, mInterested);
  }

 private:
  const Client::Clients mDue;
  Client::Clients mInterested;
  std::int32_t mPid = kInvalidPID;
};

/// Whether due clients need one property, asked once for all processes and, only when the answer is
/// "some", for each. Lives for one pass.
class PropertyNeed {
 public:
  PropertyNeed(const char* property, TimeValue now)
      : mProperty(property),
        mRow(FindBuiltInProperty(property)),
        mLevel(ProcessInformationClient::NeedAnyPidForProcProperty(property, &now)) {}

  /// The catalogue's row of the property; it must be a built-in one.
  const CatalogueRow& Row() const { return *mRow; }

  bool IsThereAny() const { return mLevel != ProcessInformationClient::kNeedNoPids; }

  /// For the process that was last looked at.
  bool By(const ProcessNeeds& process) const {
    if (mLevel == ProcessInformationClient::kNeedSomePids) return process.Need(mProperty);
    return mLevel == ProcessInformationClient::kNeedAllPids;
  }

 private:
  const char* mProperty;
  const CatalogueRow* mRow;
  ProcessInformationClient::NeedLevel mLevel;
};

using Client = ProcessInformationClient;

/// One pass over the table.
class HelperPass {
 public:
  explicit HelperPass(TimeValue now) : mNow(now), mNeeds(now) {}

  void Feed(const ProcessTableEntry& entry) LURKWELL_IN_REGION {
    if (entry.pid > mMaximumPid) {
      DiagnoseVerbatim("BAD pid! (?)");
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
    unsigned known = 0;
    if (groups != 0) known = ReportUsage(entry, groups);
    ReportUnhelped(entry, all);
    if (!mRates.Wanted().empty()) DeriveRates(entry, known);
  }

 private:
  void ReportTableFigures(const ProcessTableEntry& entry, bool all) LURKWELL_IN_REGION {
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
  unsigned ReportUsage(const ProcessTableEntry& entry, unsigned groups) LURKWELL_IN_REGION {
    unsigned known = mQueries.Ask(entry.pid, groups);
    if (known != groups) known |= ReportOwnFigures(entry, groups & ~known);
    if ((known & kThreadTime) != 0) NoteTimesRead(entry.pid);
    return known;
  }

  /// The times are those of the helper, all other counters are the table's.
  void DeriveRates(const ProcessTableEntry& entry, unsigned known) LURKWELL_IN_REGION {
    FigureSources current = entry.current & ~FigureSources{kFromStat};
    if ((known & kThreadTime) != 0) current |= kFromStat;
    PidReport report(entry.pid);
    mRates.Derive(report, current);
  }

  static unsigned ReportOwnFigures(const ProcessTableEntry& entry,
                                   unsigned groups) LURKWELL_IN_REGION {
    const auto& figures = TheMachine().processTable.FiguresOf(entry);
    unsigned reported = 0;
    PidReport report(entry.pid);
    for (std::size_t i = 0; i < kFigureCount; ++i) {
      const auto figure = static_cast<Figure>(i);
      if ((kFigures[i].group & groups) == 0 || figures.StateOf(figure) != FigureState::kKnown)
        continue;
      report.TableFigure(figure, figures);
      reported |= kFigures[i].group;
    }
    return reported;
  }

  /// What no helper tells is the table's.
  void ReportUnhelped(const ProcessTableEntry& entry, bool all) LURKWELL_IN_REGION {
    PidReport report(entry.pid);
    for (const auto& need : mUnhelped) {
      if (!all && !need.By(mNeeds)) continue;
      const auto figure = std::get<Figure>(need.Row().field);
      if (RowOf(figure).kind == FigureKind::kCPUShare) continue;
      if (mIsTableOpen) {
        report.TableFigure(figure, TheMachine().processTable.FiguresOf(entry));
      } else {
        report.NoValue(need.Row(), Missing::kNotCounted);
      }
    }
  }

  unsigned GroupsFor(bool all) const {
    unsigned groups = 0;
    // A need for any of its sources is one for the CPU time.
    if (all || mActiveTime.By(mNeeds)) groups |= kThreadTime | kBasicInfo;
    // The helper gives figures by the group; one that is needed brings the others.
    for (const auto& need : mHelped) {
      const auto group = need.Row().group;
      if ((groups & group) == 0 && (all || need.By(mNeeds))) groups |= group;
    }
    // Rates of processors' time; no other counter is the helper's.
    const auto isOfTimes = [](Figure rate) { return RowOf(rate).kind == FigureKind::kCPUShare; };
    if (std::ranges::any_of(mRates.Wanted(), isOfTimes)) groups |= kThreadTime;
    return groups;
  }

  static std::vector<Figure> NeededRates(TimeValue now) {
    std::vector<Figure> rates;
    for (const Figure rate : kRates)
      if (PropertyNeed(RowOf(rate).property.data(), now).IsThereAny()) rates.push_back(rate);
    return rates;
  }

  static std::vector<PropertyNeed> NeedsOfFigures(bool areHelped, TimeValue now) {
    std::vector<PropertyNeed> needs;
    for (const auto& row : FigureProperties())
      if ((row.group != kNoGroup) == areHelped && (row.sources & kCostlyFigureSources) == 0)
        needs.emplace_back(row.name.data(), now);
    return needs;
  }

  TimeValue mNow;
  ProcessNeeds mNeeds;
  std::int32_t mMaximumPid = TheMachine().processTable.MaximumPid();
  const CatalogueRow& mParentRow = *FindBuiltInProperty("pid_parent_pid");
  PropertyNeed mCommandName{"pid_p_comm", mNow};
  PropertyNeed mPriority{"pid_p_priority", mNow};
  PropertyNeed mNice{"pid_p_nice", mNow};
  PropertyNeed mStartTime{"pid_p_starttime", mNow};

  PropertyNeed mActiveTime{"meta_active_time", mNow};
  std::vector<PropertyNeed> mHelped = NeedsOfFigures(true, mNow);
  std::vector<PropertyNeed> mUnhelped = NeedsOfFigures(false, mNow);
  const bool mIsTableOpen = TheMachine().processTable.OpenSources() != 0;
  const FigureRates mRates{mNow, NeededRates(mNow)};
  HelperQueries mQueries;
};

}  // namespace

void FeedHelperFigures(TimeValue now) {
  BeginProcessInformationIteration(kInformationKindPID);
  auto& table = TheMachine().processTable;
  std::optional<SourceNeeds> needs;
  if (table.OpenSources() != 0) needs.emplace(now);
  const auto entries = table.Read(
      [&](std::int32_t pid) { return kFromStat | kFromScheduler | (needs ? needs->Of(pid) : 0); });
  // The pass asks for the highest pid, which the table knows as of its last reading.
  HelperPass pass(now);
  for (const auto& entry : entries) {
    pass.Feed(entry);
    // The kernel's own entry ends the list.
    if (entry.pid == 0) break;
  }
  EndProcessInformationIteration(kInformationKindPID);
}

}  // namespace lurkwell
