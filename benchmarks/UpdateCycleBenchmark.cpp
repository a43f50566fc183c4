// One update cycle of the consolidator over simulated processes, with a client that needs what the
// main table needs: name, CPU time and the two sizes of every process.
#include <benchmark/benchmark.h>

#include <string>
#include <unordered_map>

#include "TableLikeClient.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

class Cycle {
 public:
  explicit Cycle(std::int64_t processes) {
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
    AddProcessInformationClient(new TableLikeClient);
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

}  // namespace
}  // namespace lurkwell
