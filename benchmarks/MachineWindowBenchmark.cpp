// The machine's window, drawn without a display: what a moment takes beside the table's beat, with
// the window open over the last hour and with the window closed; on 8 and on 256 processors.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "OffscreenApplication.h"
#include "TableLikeClient.h"
#include "consolidator/PI_Consolidator.h"
#include "machine_window/MachineRecorder.h"
#include "machine_window/MachineWindow.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kFirstPid = 100;
constexpr std::int32_t kInterval = 2000;

enum Shown : std::int64_t { kNoRecorder, kClosed, kOpen };

class WatchedMachine {
 public:
  WatchedMachine(std::int64_t shown, std::int64_t processors) {
    EnsureApplication();
    for (std::int32_t pid = kFirstPid; pid < kFirstPid + kProcesses; ++pid)
      machine.processTable.Birth(pid, "process" + std::to_string(pid));
    machine.helper.SetRecordsFigures(false);
    auto& figures = machine.hostStatistics.machine;
    for (int number = 0; number < processors; ++number)
      figures.processors.push_back({number, 0, 0});
    figures.memory = MachineMemory{8LL << 30, 6LL << 30, 1LL << 30, 0};
    figures.disks = {{"sda", 0, 0, true}};
    figures.interfaces = {{"eth0", 0, 0, true}};
    SetPrefInt("MACHINE_WINDOW_MINUTES", 60);
    InitializeProcessInformationConsolidator();
    AddProcessInformationClient(new TableLikeClient(kInterval));
    if (shown == kOpen) MachineWindow::Open([](std::int32_t) { return true; });
    if (shown == kClosed) MachineRecorder::Running();
    // A full hour.
    for (int moment = 0; shown != kNoRecorder && moment < 1800; ++moment) {
      Work();
      machine.runLoop.RunFor(kInterval);
    }
    Turn();
  }
  ~WatchedMachine() {
    delete MachineWindow::IfOpen();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  void Work() {
    ++mTurn;
    for (std::int32_t i = 0; i < kProcesses; i += 20)
      machine.processTable.Find(kFirstPid + i)->UseCPU(10 + (mTurn * 37 + i) % 200);
    for (auto& processor : machine.hostStatistics.machine.processors) {
      const std::int64_t busy = (mTurn * 7'919 + processor.number * 104'729) % 2'000'000;
      processor.busy += busy;
      processor.idle += 2'000'000 - busy;
    }
    machine.hostStatistics.machine.disks[0].in += mTurn % 100 * 50'000;
    machine.log.Clear();
  }

  void Turn() {
    machine.runLoop.RunFor(kInterval);
    QApplication::processEvents();
  }

 private:
  static constexpr std::int32_t kProcesses = 1000;
  int mTurn = 0;
  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  HelperChannel channel{machine};
};

void BM_MachineMoment(benchmark::State& state) {
  WatchedMachine watched(state.range(0), state.range(1));
  for (auto _ : state) {
    state.PauseTiming();
    watched.Work();
    state.ResumeTiming();
    watched.Turn();
  }
}
// Without the recorder it is what the table's beat takes by itself.
BENCHMARK(BM_MachineMoment)
    ->ArgNames({"shown", "processors"})
    ->Args({kNoRecorder, 8})
    ->Args({kClosed, 8})
    ->Args({kOpen, 8})
    ->Args({kOpen, 256})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lurkwell
