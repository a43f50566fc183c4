// simulated_day [HOURS [PROCESSES]]: the whole program on a simulated machine whose clock is
// driven, with everything open: the table, windows that follow processes, the machine's window,
// details and alerts. Processes come and go all the time. Prints an object of JSON with a row for
// each hour; ends with 1 when the program grew by more than 1 MiB since the histories of an hour
// were full, or when the last hour's beats took over 5 % more than the first's.
#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "OffscreenApplication.h"
#include "alerts/AlertSettings.h"
#include "app/appDelegate.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kBeat = 2000;
constexpr int kBeatsOfHour = 1800;
constexpr std::int32_t kFirstPid = 20'000;
constexpr std::int32_t kFollowed = 4;

/// Seconds on processors, of all threads.
double ProcessorTime() {
  timespec now{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

std::int64_t ResidentKiB() {
  std::int64_t total = 0;
  std::int64_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * ::sysconf(_SC_PAGESIZE) / 1024;
}

struct Hour {
  /// The median: what the start and other programs take now and then is not in it.
  double millisecondsOfBeat = 0;
  double meanMilliseconds = 0;
  std::int64_t heapKiB = 0;
  std::int64_t residentKiB = 0;
};

class Day {
 public:
  explicit Day(std::int32_t processes) : mProcesses(processes) {
    EnsureApplication();
    machine.namedPipes.SetHelper(
        [this](std::string_view request) { return machine.helper.Answer(request); });
    machine.helper.SetRecordsFigures(false);
    machine.processTable.TellFigures(true);
    auto& figures = machine.hostStatistics.machine;
    for (int number = 0; number < 8; ++number) figures.processors.push_back({number, 0, 0});
    for (std::int32_t i = 0; i < processes; ++i)
      machine.processTable.Birth(kFirstPid + i, "process" + std::to_string(i % 50),
                                 i < 20 ? 1 : kFirstPid + i % 20);
    StoreAlertSetting(0, {"any cpu>90% for 10m", "", true, false});
    StoreAlertSetting(1, {"total mem>8G name:process1", "", true, false});
    mDelegate = std::make_unique<vqAppDelegate>();
    mDelegate->init();
    mDelegate->applicationDidFinishLaunching();
    OpenEverything();
  }
  ~Day() {
    mDelegate->applicationWillTerminate();
    mDelegate.reset();
  }

  Hour Pass() {
    std::vector<double> beats;
    for (int beat = 0; beat < kBeatsOfHour; ++beat) {
      Work();
      const double begun = ProcessorTime();
      machine.runLoop.RunFor(kBeat);
      QApplication::processEvents();
      beats.push_back(1000 * (ProcessorTime() - begun));
    }
    Hour hour;
    for (const double beat : beats) hour.meanMilliseconds += beat / kBeatsOfHour;
    std::ranges::nth_element(beats, beats.begin() + kBeatsOfHour / 2);
    hour.millisecondsOfBeat = beats[kBeatsOfHour / 2];
    ::malloc_trim(0);
    const auto heap = ::mallinfo2();
    hour.heapKiB = static_cast<std::int64_t>((heap.uordblks + heap.hblkhd) / 1024);
    hour.residentKiB = ResidentKiB();
    return hour;
  }

 private:
  void OpenEverything() {
    auto& windows = mDelegate->monitorWindows();
    for (std::int32_t i = 0; i < kFollowed; ++i) {
      const auto history = Uuid::Fresh();
      windows.CreateCPUHistoryWindow(1000, kFirstPid + i, &history, nullptr);
      const auto log = Uuid::Fresh();
      windows.CreateLoggingWindow(1000, kFirstPid + i, &log, nullptr, -1);
    }
    mDelegate->doShowMachineWindow();
    mDelegate->doShowAlerts();
    mDelegate->doShowAddress(QStringLiteral("lurkwell://pid/%1").arg(kFirstPid));
    mDelegate->mainWindow().controller().processCommands().ShowDetails();
    QApplication::processEvents();
  }

  /// Two of a hundred work, and two processes end and begin.
  void Work() {
    ++mBeat;
    for (std::int32_t i = 0; i < kFollowed; ++i)
      machine.processTable.Find(kFirstPid + i)->UseCPU(10 + (mBeat * 37 + i) % 900);
    for (std::int32_t i = kFollowed; i < mProcesses / 2; i += 50)
      machine.processTable.Find(kFirstPid + i)->UseCPU(10 + (mBeat * 37 + i) % 200);
    for (int turn = 0; turn < 2; ++turn) {
      // The upper half comes and goes, each place in its turn, under pids that go round as well.
      const auto place = mProcesses / 2 + mBorn % (mProcesses - mProcesses / 2);
      auto& pid = mPids[static_cast<std::size_t>(place)];
      machine.processTable.Death(pid == 0 ? kFirstPid + place : pid);
      pid = 30'000 + mBorn++ % 30'000;
      machine.processTable.Birth(pid, "process" + std::to_string(place % 50),
                                 kFirstPid + place % 20);
    }
    for (auto& processor : machine.hostStatistics.machine.processors) {
      const std::int64_t busy = (mBeat * 7'919 + processor.number * 104'729) % 2'000'000;
      processor.busy += busy;
      processor.idle += 2'000'000 - busy;
    }
    machine.log.Clear();
  }

  std::int32_t mProcesses;
  int mBeat = 0;
  std::int32_t mBorn = 0;
  /// Of those that have taken the places of others, else 0.
  std::vector<std::int32_t> mPids = std::vector<std::int32_t>(static_cast<std::size_t>(mProcesses));
  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  std::unique_ptr<vqAppDelegate> mDelegate;
};

void Run(int hours, std::int32_t processes) {
  Day day(processes);
  std::printf("{\"processes\": %d, \"hours\": [", processes);
  for (int hour = 0; hour < hours; ++hour) {
    const auto row = day.Pass();
    std::printf(
        "%s\n  {\"ms\": %.3f, \"mean_ms\": %.3f, \"heap_kib\": %lld, \"resident_kib\": %lld}",
        hour == 0 ? "" : ",", row.millisecondsOfBeat, row.meanMilliseconds,
        static_cast<long long>(row.heapKiB), static_cast<long long>(row.residentKiB));
    std::fflush(stdout);
  }
  std::printf("]}\n");
}

}  // namespace
}  // namespace lurkwell

int main(int count, char* arguments[]) {
  const int hours = count > 1 ? std::atoi(arguments[1]) : 24;
  const int processes = count > 2 ? std::atoi(arguments[2]) : 250;
  if (hours < 1 || processes < 100 || processes > 9000) {
    std::fprintf(stderr, "usage: simulated_day [HOURS [PROCESSES, 100 to 9000]]\n");
    return 2;
  }
  lurkwell::Run(hours, processes);
  return EXIT_SUCCESS;
}
