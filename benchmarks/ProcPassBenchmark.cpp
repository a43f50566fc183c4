// One pass over the process table of this machine beside what the bare system calls cost, with 0
// and 1,000 more idle processes.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "IdleProcesses.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {
namespace {

/// Calls `serve` with the name of every process folder.
template <typename Serve>
std::int64_t List(DIR* folder, Serve serve) {
  std::int64_t count = 0;
  ::rewinddir(folder);
  while (const dirent* entry = ::readdir(folder)) {
    if (entry->d_name[0] < '1' || entry->d_name[0] > '9') continue;
    serve(entry->d_name);
    ++count;
  }
  return count;
}

FileDescriptor OpenStat(DIR* folder, const char* pid) {
  char path[300];
  std::snprintf(path, sizeof path, "%s/stat", pid);
  return FileDescriptor(::openat(::dirfd(folder), path, O_RDONLY | O_CLOEXEC));
}

using Folder = std::unique_ptr<DIR, int (*)(DIR*)>;

Folder OpenProc() {
  return {::opendir("/proc"), &::closedir};
}

void BareListing(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  const Folder folder = OpenProc();
  std::int64_t processes = 0;
  for (auto _ : state) processes = List(folder.get(), [](const char*) {});
  state.counters["processes"] = static_cast<double>(processes);
}

void BareOpenReadClose(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  const Folder folder = OpenProc();
  char buffer[4096];
  std::int64_t processes = 0;
  for (auto _ : state) {
    processes = List(folder.get(), [&](const char* pid) {
      const FileDescriptor file = OpenStat(folder.get(), pid);
      const auto bytes = ::read(file.Get(), buffer, sizeof buffer);
      benchmark::DoNotOptimize(bytes);
    });
  }
  state.counters["processes"] = static_cast<double>(processes);
}

void BareReadOfKept(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  const Folder folder = OpenProc();
  std::vector<FileDescriptor> kept;
  List(folder.get(), [&](const char* pid) { kept.push_back(OpenStat(folder.get(), pid)); });
  char buffer[4096];
  std::int64_t processes = 0;
  for (auto _ : state) {
    processes = List(folder.get(), [](const char*) {});
    for (const auto& file : kept) {
      const auto bytes = ::pread(file.Get(), buffer, sizeof buffer, 0);
      benchmark::DoNotOptimize(bytes);
    }
  }
  state.counters["processes"] = static_cast<double>(processes);
}

void ProcessTablePass(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  LinuxProcessTable table;
  std::size_t entries = table.Read().size();
  for (auto _ : state) entries = table.Read().size();
  state.counters["processes"] = static_cast<double>(entries - 1);
}

/// The first pass reads the files of all processes.
void FirstPass(benchmark::State& state, FigureSources sources) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  const auto wanted = [sources](std::int32_t) { return sources; };
  std::size_t entries = 0;
  for (auto _ : state) entries = LinuxProcessTable().Read(wanted).size();
  state.counters["processes"] = static_cast<double>(entries - 1);
}

void FirstProcessTablePass(benchmark::State& state) {
  FirstPass(state, kFromStat | kFromScheduler);
}

void FirstPassWithIO(benchmark::State& state) {
  FirstPass(state, kFromStat | kFromIO);
}

void FirstPassWithThreads(benchmark::State& state) {
  FirstPass(state, kFromStat | kFromThreads);
}

void FirstPassWithUnits(benchmark::State& state) {
  FirstPass(state, kFromStat | kFromUnit);
}

/// Those of the units are read in every pass.
void NextPassWithUnits(benchmark::State& state) {
  RaiseDescriptorLimit();
  const IdleProcesses idle(state.range(0));
  LinuxProcessTable table;
  const auto wanted = [](std::int32_t) { return kFromStat | kFromUnit; };
  table.Read(wanted);
  for (auto _ : state) benchmark::DoNotOptimize(table.Read(wanted).size());
}

BENCHMARK(BareListing)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareOpenReadClose)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareReadOfKept)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(ProcessTablePass)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstProcessTablePass)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstPassWithIO)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstPassWithThreads)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstPassWithUnits)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(NextPassWithUnits)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
