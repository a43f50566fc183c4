// The main window over simulated processes, drawn without a display: a turn of the table without
// the collecting, the gauges of the toolbar, a sort by another column, a page of scrolling.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <memory>
#include <string>

#include "OffscreenApplication.h"
#include "consolidator/PI_Consolidator.h"
#include "main_window/MainWindow.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

/// Whose children the processes are.
enum class Family : std::uint8_t { kUsual, kFlat, kChain };

std::int32_t ParentOf(std::int32_t pid, Family family) {
  if (pid == 100 || family == Family::kFlat) return 1;
  return family == Family::kChain ? pid - 1 : pid < 120 ? 1 : 100 + pid % 20;
}

class Window : public ApplicationCommands {
 public:
  explicit Window(std::int64_t processes, Family family = Family::kUsual)
      : mFamily(family), mNext(static_cast<std::int32_t>(processes) + 98) {
    EnsureApplication();
    for (std::int32_t pid = 100; pid < mNext; ++pid)
      machine.processTable.Birth(pid, "process" + std::to_string(pid % 50), ParentOf(pid, family));
    machine.helper.SetRecordsFigures(false);
    machine.processTable.TellFigures(true);
    InitializeProcessInformationConsolidator();
    window = std::make_unique<MainWindow>(*this);
    window->show();
    machine.runLoop.RunFor(2000);
    QApplication::processEvents();
  }
  ~Window() {
    window.reset();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  /// Two of a hundred processes have worked since the last turn; what is measured is the window's.
  void Work() {
    UseCPU();
    machine.runLoop.RunFor(1900);
    machine.log.Clear();
  }

  /// The same before a whole beat; one process has ended and another one begun, if wanted.
  void WorkForBeat(bool comeAndGo) {
    UseCPU();
    machine.log.Clear();
    if (!comeAndGo) return;
    const int ended = mOldest++;
    const int begun = mNext++;
    machine.processTable.Death(ended);
    machine.processTable.Birth(begun, "process" + std::to_string(ended % 50),
                               mFamily == Family::kChain ? begun - 1 : ParentOf(ended, mFamily));
  }

  /// Collecting included.
  [[gnu::noinline]] void Beat() {
    machine.runLoop.RunFor(2000);
    QApplication::processEvents();
  }

  /// What the consolidator does at the end of a heartbeat, and the drawing.
  void Turn() {
    window->controller().synchronizer()->NotifyProcessesHaveBeenUpdated();
    QApplication::processEvents();
  }

  void SetShape(TableShape shape) {
    window->controller().setShape(shape);
    machine.runLoop.RunFor(2000);
    QApplication::processEvents();
  }

  void SetFreePages(std::int64_t pages) { machine.hostStatistics.virtualMemory->freePages = pages; }

  void SortBy(const char* key) {
    auto& controller = window->controller();
    const auto& keys = controller.keysWeTrackForUI();
    const auto column = std::find(keys.begin(), keys.end(), InternKey(key)) - keys.begin();
    controller.shouldSelectTableColumn(static_cast<int>(column));
    QApplication::processEvents();
  }

  void ScrollPage() {
    auto& bar = *window->table().verticalScrollBar();
    bar.setValue(bar.value() + bar.pageStep() > bar.maximum() ? 0 : bar.value() + bar.pageStep());
    QApplication::processEvents();
  }

 private:
  void doThePrefs() override {}
  void doAboutPanel() override {}
  void doShowMainWindow() override {}
  void doQuit() override {}
  bool isLastWindow(const QWidget&) const override { return false; }

  void UseCPU() {
    int at = 0;
    for (const auto& row : window->controller().rows().All())
      if (++at % 50 == 0)
        if (auto* process = machine.processTable.Find(row->Pid())) process->UseCPU(10 + at % 90);
  }

  Family mFamily;
  /// The next process to end, where they come and go.
  std::int32_t mOldest = 130;
  std::int32_t mNext;
  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  HelperChannel channel{machine};
  std::unique_ptr<MainWindow> window;
};

void CountPerProcess(benchmark::State& state) {
  state.counters["per_process"] = benchmark::Counter(
      static_cast<double>(state.range(0)),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_MainWindowTurn(benchmark::State& state) {
  Window window(state.range(0));
  window.SortBy("internal_CPUPercent");
  for (auto _ : state) {
    state.PauseTiming();
    window.Work();
    state.ResumeTiming();
    window.Turn();
  }
  CountPerProcess(state);
}
BENCHMARK(BM_MainWindowTurn)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

/// Whole beats in each shape: 0 list, 1 tree, 2 applications; of a usual family, a flat one or one
/// in which everybody has one child. Sorted by name, where nothing moves, or by CPU usage; with the
/// same processes all the time, or one that ends and one that begins in each beat.
void BM_MainWindowBeat(benchmark::State& state) {
  Window window(5000, static_cast<Family>(state.range(1)));
  window.SortBy(state.range(2) != 0 ? "internal_CPUPercent" : "meta_name");
  window.SetShape(static_cast<TableShape>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    window.WorkForBeat(state.range(3) != 0);
    state.ResumeTiming();
    window.Beat();
  }
}
BENCHMARK(BM_MainWindowBeat)
    ->ArgNames({"shape", "family", "by_cpu", "births"})
    ->ArgsProduct({{0, 1, 2}, {0, 1, 2}, {0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

/// A turn with next to no table: the gauges' pictures stay what they are, or one of them changes.
void BM_MainWindowGauges(benchmark::State& state) {
  Window window(2);
  std::int64_t pages = 65'536;
  for (auto _ : state) {
    window.SetFreePages(state.range(0) != 0 ? (pages = 196'608 - pages) : pages);
    window.Turn();
  }
}
BENCHMARK(BM_MainWindowGauges)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_MainWindowSort(benchmark::State& state) {
  Window window(state.range(0));
  for (auto _ : state) {
    window.SortBy("meta_name");
    window.SortBy("meta_pid");
  }
  CountPerProcess(state);
}
BENCHMARK(BM_MainWindowSort)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_MainWindowScrollPage(benchmark::State& state) {
  Window window(state.range(0));
  for (auto _ : state) window.ScrollPage();
}
BENCHMARK(BM_MainWindowScrollPage)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
