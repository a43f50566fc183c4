// CPU history windows over 250 simulated processes, drawn without a display: an update of one, and
// of twenty, with the collecting that it takes; a full redraw.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "OffscreenApplication.h"
#include "consolidator/PI_Consolidator.h"
#include "monitor_windows/CPUHistoryWindow.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kFirstPid = 100;
constexpr std::int32_t kInterval = 250;

class Histories {
 public:
  explicit Histories(std::int64_t windows, std::int32_t processes = 250, bool tracks = false)
      : mWindows(static_cast<std::int32_t>(windows)) {
    EnsureApplication();
    if (tracks) SetPrefInt("CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", 1);
    // Families of four generations.
    for (std::int32_t pid = kFirstPid; pid < kFirstPid + processes; ++pid)
      machine.processTable.Birth(pid, "process" + std::to_string(pid),
                                 pid < kFirstPid + processes / 4 ? 1 : pid - processes / 4);
    machine.helper.SetRecordsFigures(false);
    InitializeProcessInformationConsolidator();
    const WindowRect rect{100, 100, 263, 170};
    for (std::int32_t window = 0; window < mWindows; ++window) {
      const auto uuid = Uuid::Fresh();
      CreateCPUHistoryWindow(kInterval, kFirstPid + window, &uuid, &rect);
    }
    Turn();
  }
  ~Histories() {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  void Work() {
    for (std::int32_t window = 0; window < mWindows; ++window)
      machine.processTable.Find(kFirstPid + window)->UseCPU(10 + (mTurn * 37 + window) % 200);
    ++mTurn;
    machine.log.Clear();
  }

  /// Every window gets one point, and is drawn.
  void Turn() {
    machine.runLoop.RunFor(kInterval);
    QApplication::processEvents();
  }

  void RedrawAll() {
    ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType("*");
    QApplication::processEvents();
  }

 private:
  std::int32_t mWindows;
  int mTurn = 0;
  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  HelperChannel channel{machine};
};

void BM_HistoryUpdate(benchmark::State& state) {
  Histories histories(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    histories.Work();
    state.ResumeTiming();
    histories.Turn();
  }
}
// None shows what the simulated machine takes by itself.
BENCHMARK(BM_HistoryUpdate)->Arg(0)->Arg(1)->Arg(20)->Unit(benchmark::kMicrosecond);

// With all descendants, of 5000 processes.
void BM_HistoryUpdateTracking(benchmark::State& state) {
  Histories histories(state.range(0), 5000, true);
  for (auto _ : state) {
    state.PauseTiming();
    histories.Work();
    state.ResumeTiming();
    histories.Turn();
  }
}
BENCHMARK(BM_HistoryUpdateTracking)->Arg(0)->Arg(1)->Arg(20)->Unit(benchmark::kMicrosecond);

void BM_HistoryRedraw(benchmark::State& state) {
  Histories histories(state.range(0));
  for (auto _ : state) histories.RedrawAll();
}
BENCHMARK(BM_HistoryRedraw)->Arg(1)->Arg(20)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lurkwell
