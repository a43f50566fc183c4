// A heartbeat over this machine's processes with 250, 1,000 and 5,000 idle ones more, for a client
// that needs what the main table needs and for one that waits for births, beside the bare pass that
// opens and reads every stat file. Two seconds pass in each, as far as the feeders can tell.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "IdleProcesses.h"
#include "TableLikeClient.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/linux/DescriptorLimit.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/LinuxProcessTable.h"
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
  bool NeedsRenamings() override { return false; }
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
      machine.clock,          machine.runLoop,      machine.preferenceDomain, table,
      machine.processManager, machine.iconServices, machine.hostStatistics,   machine.tools,
      machine.signals,        machine.namedPipes,   machine.authorization,    machine.bundle,
      machine.alerts,         machine.logFiles,     machine.hotKeys,          machine.screen,
      machine.eventBus};
  MachineInstallation installation{real};
};

void BareStatPass(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
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
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  RealCycle cycle(std::in_place_type<TableLikeClient>, 1000);
  for (auto _ : state) cycle.Beat();
}

/// Four beats of the watchdog.
void BeatsForBirths(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  RealCycle cycle(std::in_place_type<BirthClient>, 2000);
  for (auto _ : state) cycle.Beat();
}

BENCHMARK(BareStatPass)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BeatForTheTable)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BeatsForBirths)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
