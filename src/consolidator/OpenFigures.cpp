#include "consolidator/ConsolidatorState.h"
#include "consolidator/Feeders.h"
#include "consolidator/PidReport.h"
#include "consolidator/ProcessActionList.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/SourceNeeds.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessTable.h"

namespace lurkwell {
namespace {

/// A pid has passed to another process, which is born in the next beat.
bool gIsBirthDue = false;

class OpenPass {
 public:
  explicit OpenPass(TimeValue now) : mNeeds(now), mRates(now, mNeeds.OfRates()) {}

  void Run() LURKWELL_IN_REGION {
    const bool mustList = gRecords.Empty() || gIsBirthDue || mTable.MayHaveBirths();
    if (mustList || !Refresh()) List();
  }

 private:
  /// False when a process has ended that is followed, or any where ends are to be told.
  bool Refresh() LURKWELL_IN_REGION {
    if (!mNeeds.AreThereAny()) return true;
    const auto entries = mTable.Refresh(mWanted, mNeeds.OfEnds());
    if (!entries) return false;
    for (const auto& entry : *entries) {
      if (entry.current == 0 && entry.read == 0) continue;
      if (!IsKnown(entry)) return false;
      Report(entry);
      Derive(*gRecords.GetExistingPIDInformation(entry.pid));
    }
    return true;
  }

  void List() LURKWELL_IN_REGION {
    BeginProcessInformationIteration(kInformationKindPID);
    gIsBirthDue = false;
    for (const auto& entry : mTable.Read(mWanted)) Feed(entry);
    EndProcessInformationIteration(kInformationKindPID);
  }

  void Feed(const ProcessTableEntry& entry) LURKWELL_IN_REGION {
    if (entry.pid > mTable.MaximumPid()) {
      DiagnoseVerbatim("BAD pid! (?)");
      return;
    }
    if (!NoteStartStamp(entry.pid, entry.startStamp)) {
      gIsBirthDue = true;
      return;
    }
    Report(entry);
  }

  static bool IsKnown(const ProcessTableEntry& entry) LURKWELL_IN_REGION {
    const auto* record = gRecords.GetExistingPIDInformation(entry.pid);
    return record != nullptr && record->pidInfo != nullptr &&
           record->pidInfo->startStamp == entry.startStamp;
  }

  /// What has been read since the record has it.
  void Report(const ProcessTableEntry& entry) LURKWELL_IN_REGION {
    PidReport report(entry.pid);
    auto& block = report.Block();
    const FigureSources sources = entry.read | (entry.known & ~block.reportedSources);
    if (block.reportedSources == 0) ReportUncounted(report);
    if ((sources & kFromStat) != 0 || block.reportedSources == 0) ReportEntry(entry, report);
    if (block.parentPid != entry.parentPid) report.Integer(mParent, entry.parentPid);
    if (sources != 0) ReportFigures(mTable.FiguresOf(entry), sources, report);
    block.reportedSources |= sources;
    if (!mRates.Wanted().empty()) mRates.Derive(report, entry.current);
    if ((entry.current & kFromStat) != 0) NoteTimesRead(entry.pid);
    const bool isStopped = entry.state == RunState::kStopped;
    if (isStopped || (entry.current & kFromScheduler) != 0)
      NoteKernelState(entry.pid, isStopped, entry.nice);
  }

  void ReportEntry(const ProcessTableEntry& entry, PidReport& report) {
    report.State(entry.state);
    report.Text(mCommandName, entry.commandName);
    report.Integer(mPriority, entry.priority);
    report.Integer(mParent, entry.parentPid);
    report.Integer(mNice, entry.nice);
    report.Time(mStartTime, entry.startTime);
  }

  static void ReportFigures(const ProcessFigures& figures, FigureSources sources,
                            PidReport& report) {
    ForEachSource(sources, [&](FigureSource source) {
      for (const Figure figure : FiguresFrom(source)) report.TableFigure(figure, figures);
    });
  }

  static void ReportUncounted(PidReport& report) {
    for (const auto& row : FigureProperties())
      if (row.sources == 0) report.NoValue(row, Missing::kNotCounted);
  }

  ProcessTable& mTable = TheMachine().processTable;
  const SourceNeeds mNeeds;
  const FigureRates mRates;
  const ProcessTable::Wanted mWanted = [this](std::int32_t pid) { return mNeeds.Of(pid); };
  const CatalogueRow& mCommandName = *FindBuiltInProperty("pid_p_comm");
  const CatalogueRow& mPriority = *FindBuiltInProperty("pid_p_priority");
  const CatalogueRow& mParent = *FindBuiltInProperty("pid_parent_pid");
  const CatalogueRow& mNice = *FindBuiltInProperty("pid_p_nice");
  const CatalogueRow& mStartTime = *FindBuiltInProperty("pid_p_starttime");
};

}  // namespace

void FeedOpenFigures(TimeValue now) {
  OpenPass(now).Run();
}

}  // namespace lurkwell
