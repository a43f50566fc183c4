// What the figures cost that are read in the background: the reading of one source of each process,
// without a budget ("per_process"), and two seconds of a client that shows all of them: the main
// thread's beat is the CPU time, the reading thread's is "thread_cpu".
#include <benchmark/benchmark.h>
#include <time.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

#include "IdleProcesses.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/PropertyCatalogue.h"
#include "platform/linux/CostlyReader.h"
#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/MachineOf.h"

namespace lurkwell {
namespace {

std::vector<CostlyWish> WishesOfAll(FigureSources sources) {
  LinuxProcessTable table;
  std::vector<CostlyWish> wishes;
  for (const auto& entry : table.Read())
    if (entry.pid > 0) wishes.push_back({{entry.pid, entry.startStamp}, sources});
  return wishes;
}

void ReadInBackground(benchmark::State& state, FigureSource source) {
  const IdleProcesses idle(state.range(0));
  const auto wishes = WishesOfAll(source);
  CostlyReader reader("/proc", {}, "/dev");
  reader.Keep(wishes);
  std::size_t read = 0;
  const auto begun = std::chrono::steady_clock::now();
  for (auto _ : state) {
    for (const auto& wish : wishes) benchmark::DoNotOptimize(reader.Read(wish.process, source));
    read += wishes.size();
  }
  state.counters["per_process"] =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count() /
      static_cast<double>(read);
}

/// Needs all that is read in the background.
class CostlyClient final : public ProcessInformationClient {
 public:
  CostlyClient() : ProcessInformationClient(nullptr, 2000) {}
  NeedLevel NeedPidsForProcProperty(const char* property) override {
    return NeedPidProcProperty(0, property) ? kNeedAllPids : kNeedNoPids;
  }
  bool NeedPidProcProperty(int, const char* property) override {
    const auto* row = FindBuiltInProperty(property);
    return row != nullptr && (row->sources & kCostlyFigureSources) != 0;
  }
  void NotifyProcessesHaveBeenUpdated() override {}
};

/// In seconds.
double CPUTime(clockid_t clock) {
  timespec time{};
  ::clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void BeatWithBackgroundColumns(benchmark::State& state) {
  const IdleProcesses idle(state.range(0));
  SimulatedMachine machine;
  LinuxProcessTable table;
  LinuxCostlyFigures figures;
  Machine real = MachineOf(machine, table, figures);
  const MachineInstallation installation(real);
  InitializeProcessInformationConsolidator();
  AddProcessInformationClient(new CostlyClient);
  const auto passes = [&] {
    machine.runLoop.RunFor(2000);
    machine.log.Clear();
  };
  // New processes have an allowance of their own.
  for (int i = 0; i < 6; ++i, std::this_thread::sleep_for(std::chrono::seconds(1))) passes();
  const auto others = [] {
    return CPUTime(CLOCK_PROCESS_CPUTIME_ID) - CPUTime(CLOCK_THREAD_CPUTIME_ID);
  };
  const auto taken = others();
  for (auto _ : state) {
    passes();
    state.PauseTiming();
    std::this_thread::sleep_for(std::chrono::seconds(2));
    state.ResumeTiming();
  }
  state.counters["thread_cpu"] = (others() - taken) / static_cast<double>(state.iterations());
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyProcessInformationConsolidator();
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(ReadInBackground, Memory, kFromMemoryMap)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadInBackground, Descriptors, kFromDescriptorCount)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadInBackground, Network, kFromSockets)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadInBackground, NetworkOfUnit, kFromUnitSockets)->Apply(Sizes);
// The machine need not have a device: what is looked for is whether the process has one open.
BENCHMARK_CAPTURE(ReadInBackground, Graphics, kFromGraphics)->Apply(Sizes);
BENCHMARK(BeatWithBackgroundColumns)->Apply(Sizes)->Iterations(5);

}  // namespace
}  // namespace lurkwell
