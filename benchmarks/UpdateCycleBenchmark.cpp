// One update cycle of the consolidator over simulated processes, with a client that needs what the
// main table needs: name, CPU time and the two sizes of every process. Then one with the watchdog's
// needs, some of every process, and those of many windows, each of one process.
#include <benchmark/benchmark.h>

#include <string>
#include <string_view>
#include <unordered_map>

#include "TableLikeClient.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

/// Needs names of all, signatures of some, and so something of every process.
class WatchdogLikeClient final : public ProcessInformationClient {
 public:
  WatchdogLikeClient() : ProcessInformationClient(nullptr, 500) {}
  NeedLevel NeedPidsForProcProperty(const char* property) override {
    const std::string_view name(property);
    if (name == "meta_name") return kNeedAllPids;
    return name == "carbonpsn_signature" ? kNeedSomePids : kNeedNoPids;
  }
  bool NeedPidProcProperty(int, const char* property) override {
    return std::string_view(property) == "meta_name";
  }
  void NotifyProcessesHaveBeenUpdated() override {}
};

/// Needs what a log of one process needs.
class LogLikeClient final : public ProcessInformationClient {
 public:
  explicit LogLikeClient(std::int32_t pid) : ProcessInformationClient(nullptr, 500), mPid(pid) {}
  NeedLevel NeedProcPropertiesForPid(int pid) override {
    return pid == mPid ? kNeedSomeProcProperties : kNeedNoProcProperties;
  }
  NeedLevel NeedPidsForProcProperty(const char* property) override {
    return NeedPidProcProperty(mPid, property) ? kNeedSomePids : kNeedNoPids;
  }
  bool NeedPidProcProperty(int pid, const char* property) override {
    const std::string_view name(property);
    return pid == mPid && (name == "meta_active_time" || name == "pid_rsz" || name == "pid_vsz");
  }
  void NotifyProcessesHaveBeenUpdated() override {}

 private:
  std::int32_t mPid;
};

class Cycle {
 public:
  enum class Clients { kTable, kWatchdogAndLogs };

  explicit Cycle(std::int64_t processes, Clients clients = Clients::kTable, int logs = 0) {
    for (std::int32_t pid = 100; pid < processes + 98; ++pid)
      machine.processTable.Birth(pid, "process" + std::to_string(pid % 50), 1 + pid % 7);
    // The same requests come in every cycle: making the answers is not what is measured.
    channel.SetAnswer([this](std::string_view request) {
      auto& answer = mAnswers[std::string(request)];
      if (answer.empty()) answer = machine.helper.Answer(request);
      return answer;
    });
    machine.helper.SetRecordsFigures(false);
    InitializeProcessInformationConsolidator();
    if (clients == Clients::kTable) {
      AddProcessInformationClient(new TableLikeClient);
    } else {
      AddProcessInformationClient(new WatchdogLikeClient);
      for (std::int32_t log = 0; log < logs; ++log)
        AddProcessInformationClient(new LogLikeClient(100 + log));
    }
    Beat();
    Beat();
  }
  ~Cycle() {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  void Beat() {
    machine.runLoop.RunFor(1000);
    machine.log.Clear();
  }

 private:
  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  HelperChannel channel{machine};
  std::unordered_map<std::string, std::string> mAnswers;
};

void BM_UpdateCycle(benchmark::State& state) {
  Cycle cycle(state.range(0));
  for (auto _ : state) cycle.Beat();
  state.counters["per_process"] = benchmark::Counter(
      static_cast<double>(state.range(0)),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_UpdateCycle)
    ->Arg(250)
    ->Arg(1000)
    ->Arg(5000)
    ->Arg(20000)
    ->Unit(benchmark::kMillisecond);

// Two beats an iteration.
void BM_UpdateCycleFollowing(benchmark::State& state) {
  Cycle cycle(state.range(0), Cycle::Clients::kWatchdogAndLogs, static_cast<int>(state.range(1)));
  for (auto _ : state) cycle.Beat();
}
BENCHMARK(BM_UpdateCycleFollowing)
    ->Args({5000, 0})
    ->Args({5000, 20})
    ->Args({5000, 200})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
