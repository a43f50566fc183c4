#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/CostlyFigures.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessTable.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// The name of a figure's property; what is none does not compile.
struct FigureName {
  consteval FigureName(const char* property) : figure(FigureCalled(property)) {}
  Figure figure;
};

/// One process of a simulated machine, to be changed at will between two readings.
struct SimulatedProcess {
  ProcessTableEntry entry;
  /// But for the suspend count, which follows from its state. The policy is 1.
  std::array<std::int64_t, kFigureCount> figures = StartFigures();
  FigureTexts texts;
  /// "user" is this program's.
  std::string owner = "user";
  std::string commandLine;
  std::string executable;
  bool isKernelThread = false;

  /// A figure to be changed; times are microseconds.
  std::int64_t& operator[](FigureName name) {
    return figures[static_cast<std::size_t>(name.figure)];
  }
  /// A figure as the machine tells it.
  std::int64_t Tell(Figure figure) const;
  void SetName(std::string_view name);
  void UseCPU(std::int64_t milliseconds);

 private:
  static std::array<std::int64_t, kFigureCount> StartFigures();
};

/// The process table of a simulated machine: newest process first, the kernel's own entry last,
/// pids up to 65535. Unless a test says otherwise, only the helper tells figures. It begins with
/// pid 0, "kernel_task", and pid 1, "launchd", its child.
class SimulatedProcessTable final : public ProcessTable {
 public:
  SimulatedProcessTable(Clock& clock, AccessLog& log);

  FigureSources OpenSources() const override { return mTellsFigures ? kAllFigureSources : 0; }
  std::span<const ProcessTableEntry> Read(const Wanted& wanted) override;
  bool MayHaveBirths() override { return true; }
  std::optional<std::span<const ProcessTableEntry>> Refresh(const Wanted&, bool) override {
    return {};
  }
  const ProcessFigures& FiguresOf(const ProcessTableEntry& entry) override;
  std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid) override;
  std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids) override;
  std::int32_t OwnPid() const override { return mOwnPid; }
  std::int32_t MaximumPid() const override { return 65535; }

  SimulatedProcess& Birth(std::int32_t pid, std::string_view name, std::int32_t parent = 1);
  /// Children of the dead pass to pid 1.
  void Death(std::int32_t pid);
  void Stop(std::int32_t pid) { Find(pid)->entry.state = RunState::kStopped; }
  void Continue(std::int32_t pid) { Find(pid)->entry.state = RunState::kSleeping; }
  /// The process, or null.
  SimulatedProcess* Find(std::int32_t pid);
  std::size_t Count() const { return mByPid.size(); }

  /// The oldest of the processes above pid 1 die, and as many are born under the next pids, which
  /// come round at the end of the range.
  void Churn(std::size_t count);

  /// Whether everybody may read what processes have used.
  void TellFigures(bool tells) { mTellsFigures = tells; }

  /// Which of the processes is this program's; none at first.
  void SetOwnPid(std::int32_t pid) { mOwnPid = pid; }

  /// The next readings find nothing at all.
  void FailReadings(int count) { mFailures = count; }

 private:
  Clock& mClock;
  AccessLog& mLog;
  /// Newest first.
  std::list<SimulatedProcess> mProcesses;
  std::unordered_map<std::int32_t, std::list<SimulatedProcess>::iterator> mByPid;
  std::vector<ProcessTableEntry> mSnapshot;
  ProcessFigures mFigures;
  std::uint64_t mNextStamp = 1;
  std::int32_t mNextChurnPid = 100;
  int mFailures = 0;
  bool mTellsFigures = false;
  std::int32_t mOwnPid = kInvalidPID;
};

/// Answers every wish at the next collection, from the simulated processes as they are then; of
/// those that others own, memory, ports and open files are refused.
class SimulatedCostlyFigures final : public CostlyFigures {
 public:
  SimulatedCostlyFigures(SimulatedProcessTable& table, AccessLog& log) : mTable(table), mLog(log) {}

  void Ask(std::vector<CostlyWish> asked) override {
    if (!asked.empty()) mLog.Add("CostlyFigures.Ask " + std::to_string(asked.size()));
    wishes = std::move(asked);
  }

  std::vector<CostlyReading> Collect() override {
    std::vector<CostlyReading> readings = std::exchange(late, {});
    if (isBusy) return readings;
    for (const auto& wish : std::exchange(wishes, {})) {
      const auto* process = mTable.Find(wish.process.pid);
      if (process == nullptr || process->entry.startStamp != wish.process.startStamp) continue;
      CostlyReading reading{wish.process, wish.sources, {}, age};
      for (std::size_t i = 0; i < kFigureCount; ++i) {
        const auto figure = static_cast<Figure>(i);
        const auto source = kFigures[i].origin.source;
        if ((source & wish.sources) == 0) continue;
        constexpr FigureSources kOwnersAlone = kFromMemoryMap | kFromPorts | kFromOpenFiles;
        if ((source & kOwnersAlone) != 0 && process->owner != "user") {
          reading.figures.SetMissing(figure, FigureState::kRefused);
        } else if (kFigures[i].kind == FigureKind::kText) {
          reading.figures.SetText(figure, process->texts.Get(figure));
        } else {
          reading.figures.Set(figure, process->Tell(figure));
        }
      }
      readings.push_back(reading);
    }
    return readings;
  }

  /// Nothing is answered while it is.
  bool isBusy = false;
  /// Of the readings, in milliseconds.
  std::int64_t age = 0;
  /// What was asked for last and has not been answered.
  std::vector<CostlyWish> wishes;
  /// Readings that come with the next collection, whatever was asked.
  std::vector<CostlyReading> late;

 private:
  SimulatedProcessTable& mTable;
  AccessLog& mLog;
};

}  // namespace lurkwell
