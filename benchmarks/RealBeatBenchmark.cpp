// A heartbeat over this machine's processes with up to 32,000 idle ones more, for a client that
// needs what the main table needs and for one that waits for births, beside the bare pass that
// opens and reads every stat file. Two seconds pass in each, as far as the feeders can tell.
// "longest" is the longest beat.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "IdleProcesses.h"
#include "TableLikeClient.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/ProcFiles.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kBeat = 2000;

class TimedFiles final : public ProcFiles {
 public:
  TimedFiles() : ProcFiles("/proc") {}
  std::int64_t Milliseconds() const override { return milliseconds; }
  std::int64_t milliseconds = 0;
};

/// Needs the names of all at their birth.
class BirthClient final : public ProcessInformationClient {
 public:
  BirthClient() : ProcessInformationClient(nullptr, 500) {}
  NeedLevel NeedPidsForProcProperty(const char* property) override {
    return std::string_view(property) == "meta_name" ? kNeedAllPids : kNeedNoPids;
  }
  bool NeedPidProcProperty(int, const char*) override { return true; }
  bool NeedsEnds() override { return false; }
  bool NeedsOnlyBirths() override { return true; }
  void NotifyProcessesHaveBeenUpdated() override {}
};

class RealCycle {
 public:
  /// `lasts`: of the client's own time, in milliseconds.
  template <typename Client>
  RealCycle(std::in_place_type_t<Client>, std::int64_t lasts) : mLasts(lasts) {
    InitializeProcessInformationConsolidator();
    AddProcessInformationClient(new Client);
    for (int i = 0; i < 6; ++i) Beat();
  }
  ~RealCycle() {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  void Beat() {
    files->milliseconds += kBeat;
    machine.runLoop.RunFor(mLasts);
    machine.log.Clear();
  }

 private:
  std::int64_t mLasts;
  SimulatedMachine machine;
  const std::shared_ptr<TimedFiles> files = std::make_shared<TimedFiles>();
  LinuxProcessTable table{files};
  Machine real{
      machine.clock,          machine.runLoop,       machine.preferenceDomain, table,
      machine.processManager, machine.iconServices,  machine.hostStatistics,   machine.tools,
      machine.signals,        machine.namedPipes,    machine.authorization,    machine.bundle,
      machine.alerts,         machine.logFiles,      machine.hotKeys,          machine.screen,
      machine.eventBus,       machine.costlyFigures, machine.processDetails,   machine.scheduler,
      machine.notifications};
  MachineInstallation installation{real};
};

/// Needs some columns of every process and reads them back.
class ColumnsClient final : public ProcessInformationClient {
 public:
  /// Which, for those that are made from now on.
  static inline std::vector<const char*> wanted;

  ColumnsClient() : ProcessInformationClient(nullptr, 1000), mColumns(wanted) {}

  NeedLevel NeedPidsForProcProperty(const char* property) override {
    return NeedPidProcProperty(0, property) ? kNeedAllPids : kNeedNoPids;
  }
  bool NeedPidProcProperty(int, const char* property) override {
    return std::ranges::any_of(
        mColumns, [property](const char* column) { return std::string_view(column) == property; });
  }
  void NotifyProcessesHaveBeenUpdated() override {
    for (const auto pid : PidBlob())
      for (const char* column : mColumns)
        benchmark::DoNotOptimize(GetPIDPropertyTypedValue(pid, column));
  }

 private:
  const std::vector<const char*> mColumns;
};

/// As many as the benchmark is asked for; null, and it is skipped, where the kernel has not that
/// many pids to give.
std::unique_ptr<IdleProcesses> MakeIdle(benchmark::State& state) {
  RaiseDescriptorLimit();
  std::int64_t mostPids = 0;
  std::ifstream("/proc/sys/kernel/pid_max") >> mostPids;
  std::unique_ptr<IdleProcesses> idle;
  if (state.range(0) < mostPids * 9 / 10) idle = std::make_unique<IdleProcesses>(state.range(0));
  if (idle != nullptr && idle->Count() == state.range(0)) return idle;
  state.SkipWithError("not that many processes are allowed here");
  return nullptr;
}

template <typename Cycle>
void MeasureBeats(benchmark::State& state, Cycle& cycle) {
  std::chrono::duration<double> longest{0};
  for (auto _ : state) {
    const auto begun = std::chrono::steady_clock::now();
    cycle.Beat();
    longest =
        std::max<std::chrono::duration<double>>(longest, std::chrono::steady_clock::now() - begun);
  }
  state.counters["longest"] = longest.count();
}

void BareStatPass(benchmark::State& state) {
  const auto idle = MakeIdle(state);
  if (idle == nullptr) return;
  const std::unique_ptr<DIR, int (*)(DIR*)> folder{::opendir("/proc"), &::closedir};
  char buffer[4096];
  for (auto _ : state) {
    ::rewinddir(folder.get());
    while (const dirent* entry = ::readdir(folder.get())) {
      if (entry->d_name[0] < '1' || entry->d_name[0] > '9') continue;
      const std::string path = std::string(entry->d_name) + "/stat";
      const FileDescriptor file(
          ::openat(::dirfd(folder.get()), path.c_str(), O_RDONLY | O_CLOEXEC));
      const auto bytes = ::read(file.Get(), buffer, sizeof buffer);
      benchmark::DoNotOptimize(bytes);
    }
  }
}

void BeatForTheTable(benchmark::State& state) {
  const auto idle = MakeIdle(state);
  if (idle == nullptr) return;
  RealCycle cycle(std::in_place_type<TableLikeClient>, 1000);
  MeasureBeats(state, cycle);
}

/// Four beats of the watchdog.
void BeatsForBirths(benchmark::State& state) {
  const auto idle = MakeIdle(state);
  if (idle == nullptr) return;
  RealCycle cycle(std::in_place_type<BirthClient>, 2000);
  MeasureBeats(state, cycle);
}

void BeatForColumns(benchmark::State& state, const std::vector<const char*>& columns) {
  const auto idle = MakeIdle(state);
  if (idle == nullptr) return;
  ColumnsClient::wanted = columns;
  RealCycle cycle(std::in_place_type<ColumnsClient>, 1000);
  std::chrono::duration<double> all{0};
  // The turns in which everything is read anew are among them.
  for (auto _ : state) {
    const auto begun = std::chrono::steady_clock::now();
    cycle.Beat();
    all += std::chrono::steady_clock::now() - begun;
  }
  state.counters["per_process"] =
      all.count() / static_cast<double>(state.iterations() * state.range(0));
}

/// Each figure that the process table reads by itself, and all of them together; what is read in
/// the background costs no beat.
const bool kAreColumnsRegistered = [] {
  const auto add = [](const std::string& name, const std::vector<const char*>& columns) {
    benchmark::RegisterBenchmark(
        ("BeatForColumns:" + name).c_str(),
        [columns](benchmark::State& state) { BeatForColumns(state, columns); })
        ->Arg(1000)
        ->Arg(5000)
        ->Iterations(20)
        ->Unit(benchmark::kMillisecond);
  };
  std::vector<const char*> all;
  add("none", {});
  for (const auto& row : FigureProperties()) {
    if (row.sources == 0 || (row.sources & kCostlyFigureSources) != 0) continue;
    add(std::string(row.name), {row.name.data()});
    all.push_back(row.name.data());
  }
  add("all", all);
  return true;
}();

/// Many are made once, not once more for each guess at how often to measure.
void Many(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10'000)->Arg(20'000)->Arg(32'000)->Iterations(20)->Unit(benchmark::kMillisecond);
}

BENCHMARK(BareStatPass)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BeatForTheTable)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareStatPass)->Apply(Many);
BENCHMARK(BeatForTheTable)->Apply(Many);
BENCHMARK(BeatsForBirths)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
