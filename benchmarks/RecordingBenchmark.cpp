// A simulated day of a machine with 300 processes and more is recorded, a beat every two seconds:
// what a beat takes of the processors ("cpu_ms", with the background thread and the feeders) and of
// the main thread ("Time" is for a minute), and what the day takes on the disk. A tenth of the
// processes run between two beats, and ten a minute are born and end.
#include <benchmark/benchmark.h>
#include <sys/stat.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"
#include "recording/Recorder.h"

namespace lurkwell {
namespace {

constexpr int kBeatsInMinute = 30;
constexpr std::int64_t kBeat = 2000;

double ProcessorSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

class RecordedDay {
 public:
  explicit RecordedDay(std::int64_t processes) {
    machine.processTable.TellFigures(true);
    for (std::int64_t i = 0; i < processes; ++i) Give();
    InitializeProcessInformationConsolidator();
    std::filesystem::remove(path);
    std::string words;
    recorder = Recorder::Create(path, {}, words);
    if (recorder != nullptr) AddProcessInformationClient(recorder);
  }
  ~RecordedDay() {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
    for (const char* end : {"", "-wal", "-shm"}) std::filesystem::remove(path + end);
  }

  void Minute() {
    for (int beat = 0; beat < kBeatsInMinute; ++beat) {
      for (std::int32_t i = 0; i < (mNewest - mOldest) / 10; ++i) Use(*Any());
      if (beat % 3 == 0) {
        machine.processTable.Death(mOldest++);
        Give();
      }
      machine.runLoop.RunFor(kBeat);
      machine.log.Clear();
    }
  }

  void AwaitDisk() const {
    while (recorder->Progress().waiting > 0) std::this_thread::yield();
  }

  double Bytes() const {
    double bytes = 0;
    for (const char* end : {"", "-wal"}) {
      struct stat info {};
      if (::stat((path + end).c_str(), &info) == 0) bytes += static_cast<double>(info.st_size);
    }
    return bytes;
  }

  Recorder* recorder = nullptr;

 private:
  void Give() {
    const auto pid = mNewest++;
    auto& process = machine.processTable.Birth(pid, "program" + std::to_string(pid % 80), 1);
    const auto name = "program" + std::to_string(pid % 80);
    const auto put = [&](Figure figure, const std::string& text) {
      process.texts.Set(figure, text);
    };
    put(FigureCalled("pid_owner"), pid % 3 == 0 ? "root" : "user");
    put(FigureCalled("pid_command_line"), "/usr/lib/" + name + "/" + name);
    put(FigureCalled("pid_executable"), "/usr/lib/" + name + "/" + name);
    put(FigureCalled("pid_cgroup"),
        "/user.slice/user-1000.slice/user@1000.service/app.slice/app-" + name + ".scope");
    put(FigureCalled("pid_unit"), "app-" + name + ".scope");
    put(FigureCalled("pid_slice"), "app.slice");
    process["pid_vsz"] = 4096LL * Below(200'000);
    process["pid_rsz"] = 4096LL * Below(20'000);
    process["pid_user_time"] = 10'000LL * Below(100'000);
    process["pid_threads"] = 1 + Below(20);
    process["pid_bytes_read"] = Below(1 << 30);
    process["pid_bytes_written"] = Below(1 << 30);
    process["pid_faults"] = Below(1 << 20);
  }

  static void Use(SimulatedProcess& process) {
    process["pid_user_time"] += 10'000LL * Below(4);
    process["pid_system_time"] += 10'000LL * Below(2);
    process["pid_faults"] += Below(3) == 0 ? Below(200) : 0;
    if (Below(4) == 0) process["pid_rsz"] += 4096LL * (Below(64) - 32);
    process["pid_bytes_read"] += Below(2) == 0 ? Below(8192) : 0;
    process["pid_bytes_written"] += Below(2) == 0 ? Below(8192) : 0;
    if (Below(10) == 0) process["pid_disk_written"] += 4096LL * Below(16);
    process["pid_state"] = Below(8) == 0 ? 'R' : 'S';
  }

  static std::int32_t Below(std::int32_t limit) {
    static std::mt19937 random(1);
    return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(limit));
  }

  SimulatedProcess* Any() { return machine.processTable.Find(mOldest + Below(mNewest - mOldest)); }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  const std::string path = std::filesystem::current_path() / "recording-benchmark.lwr";
  std::int32_t mOldest = 100;
  std::int32_t mNewest = 100;
};

void RecordMinutes(benchmark::State& state) {
  RecordedDay day(state.range(0));
  if (day.recorder == nullptr) return state.SkipWithError("nothing can be recorded here");
  const double before = ProcessorSeconds();
  for (auto _ : state) {
    day.Minute();
    day.AwaitDisk();
  }
  const auto minutes = static_cast<double>(state.iterations());
  state.counters["cpu_ms"] = (ProcessorSeconds() - before) * 1000 / minutes / kBeatsInMinute;
  state.counters["MiB_a_day"] = day.Bytes() / (1 << 20) / minutes * 1440;
  state.counters["bytes_per_process_day"] =
      day.Bytes() / minutes * 1440 / static_cast<double>(state.range(0));
  state.counters["lost"] = static_cast<double>(day.recorder->Progress().lost);
}

BENCHMARK(RecordMinutes)->Arg(300)->Iterations(1440)->Unit(benchmark::kMillisecond);
BENCHMARK(RecordMinutes)->Arg(1000)->Arg(5000)->Iterations(60)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
