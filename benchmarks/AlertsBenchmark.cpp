// A beat at 5,000 processes with rules of alerts, and without. A tenth of the processes is busy, as
// on a machine that has much to do; the table's client is there in both.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <variant>

#include "TableLikeClient.h"
#include "alerts/AlertWatcher.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kProcesses = 5000;

class AlertBeats {
 public:
  explicit AlertBeats(int rules) {
    machine.processTable.TellFigures(true);
    for (std::int32_t pid = 100; pid < kProcesses + 98; ++pid)
      machine.processTable.Birth(pid, "process" + std::to_string(pid % 50), 1 + pid % 7);
    InitializeProcessInformationConsolidator();
    AddProcessInformationClient(new TableLikeClient(2000));
    if (rules > 0) Watch(rules);
    for (int i = 0; i < 3; ++i) Beat();
  }
  ~AlertBeats() {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  void Beat() {
    for (std::int32_t pid = 100 + mBeat++ % 10; pid < kProcesses; pid += 10)
      machine.processTable.Find(pid)->UseCPU(10);
    machine.runLoop.RunFor(2000);
    machine.log.Clear();
  }

 private:
  void Watch(int rules) {
    const std::string kinds[] = {"name:process%1 mem>4G for 5m", "any cpu>9%1% for 10m",
                                 "name=absent%1 absent for 1h",
                                 "total mem>1%1G name:process1 until mem<1G"};
    AlertWatcher::Watches watches;
    for (int i = 0; i < rules; ++i) {
      auto text = kinds[i % 4];
      text.replace(text.find("%1"), 2, std::to_string(i % 10));
      watches.push_back(
          std::make_shared<RuleWatch>(std::move(std::get<AlertRule>(AlertRule::Read(text)))));
    }
    auto* watcher = new AlertWatcher({[](const RuleWatch&, const AlertEvent&) {}, {}, {}});
    watcher->SetWatches(std::move(watches));
    // With every beat, which is as often as it comes.
    watcher->SetInterval(2000);
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  int mBeat = 0;
};

void BM_BeatWithAlerts(benchmark::State& state) {
  AlertBeats beats(static_cast<int>(state.range(0)));
  for (auto _ : state) beats.Beat();
}
BENCHMARK(BM_BeatWithAlerts)->Arg(0)->Arg(1)->Arg(20)->Arg(100)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
