// The real helper at the other end of real pipes: how long it takes to be there, one request, and
// whole heartbeats over the processes of this machine and many idle children. "helper_cpu" is the
// processor time that the helper itself takes in one round, on top of the application's.
#include <benchmark/benchmark.h>
#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "IdleProcesses.h"
#include "TableLikeClient.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/linux/LinuxHostStatistics.h"
#include "platform/linux/LinuxNamedPipes.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxServices.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/NoDesktop.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/PropertyListDomain.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/OpenChannel.h"

namespace lurkwell {
namespace {

/// A real clock that the benchmark puts forward, so that clients are due when it wants them to be.
class ForwardedClock final : public Clock {
 public:
  TimeValue Now() override { return mClock.Now() + mForward; }
  TimeValue CalendarNow() override { return mClock.CalendarNow(); }
  void Forward(std::int32_t seconds) { mForward = mForward + TimeValue{seconds, 0}; }

 private:
  LinuxClock mClock;
  TimeValue mForward;
};

class ScratchFolder {
 public:
  ScratchFolder() : mPath(std::filesystem::temp_directory_path() / "lurkwell-benchmark-XXXXXX") {
    if (::mkdtemp(mPath.data()) == nullptr) mPath.clear();
  }
  ~ScratchFolder() {
    std::error_code ignored;
    if (!mPath.empty()) std::filesystem::remove_all(mPath, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::string& Path() const { return mPath; }

 private:
  std::string mPath;
};

/// What a heartbeat touches is real; the desktop and the questions are not there.
class RealMachine {
 public:
  RealMachine() {
    // As the program does at its start.
    RaiseDescriptorLimit();
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
  }

  ForwardedClock clock;

 private:
  ScratchFolder mFolder;
  PropertyListDomain mPreferences{mFolder.Path()};
  LinuxProcessTable mTable;
  NoProcessManager mManager;
  LinuxHostStatistics mStatistics;
  LinuxTools mTools;
  LinuxNamedPipes mPipes;
  SimulatedMachine mRest;
  Machine mServices{clock,
                    mRest.runLoop,
                    mPreferences,
                    mTable,
                    mManager,
                    mRest.iconServices,
                    mStatistics,
                    mTools,
                    mRest.signals,
                    mPipes,
                    mRest.authorization,
                    mRest.bundle,
                    mRest.alerts,
                    mRest.logFiles,
                    mRest.hotKeys,
                    mRest.screen,
                    mRest.eventBus,
                    mRest.costlyFigures,
                    mRest.processDetails,
                    mRest.scheduler,
                    mRest.notifications};
  MachineInstallation mInstallation{mServices};
};

/// The helper is an orphan by design; as a child of the benchmark it can be found and collected.
class Helper {
 public:
  Helper() {
    OpenChannel(LURKWELL_BENCHMARK_HELPER);
    if (gFd_a2d >= 0) mPid = FindChild();
  }
  ~Helper() {
    QuitHelperDaemon();
    if (mPid > 0) ::waitpid(mPid, nullptr, 0);
  }
  Helper(const Helper&) = delete;
  Helper& operator=(const Helper&) = delete;

  bool IsOpen() const { return mPid > 0; }

  /// Nanoseconds on a processor so far, the first figure of its schedstat.
  double ProcessorTime() const {
    double nanoseconds = 0;
    std::ifstream("/proc/" + std::to_string(mPid) + "/schedstat") >> nanoseconds;
    return nanoseconds;
  }

 private:
  static pid_t FindChild() {
    const std::string parent = " " + std::to_string(::getpid()) + " ";
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
      const std::string name = entry.path().filename();
      if (name.find_first_not_of("0123456789") != std::string::npos) continue;
      std::string stat;
      std::getline(std::ifstream(entry.path() / "stat"), stat);
      const auto end = stat.rfind(')');
      if (end != std::string::npos && stat.find("(lkw_helper") != std::string::npos &&
          stat.substr(end + 3).starts_with(parent)) {
        return std::stoi(name);
      }
    }
    return -1;
  }

  pid_t mPid = -1;
};

/// Writes the average of the helper's processor time, in seconds, into the report.
class HelperTime {
 public:
  HelperTime(benchmark::State& state, const Helper& helper)
      : mState(state), mHelper(helper), mBefore(helper.ProcessorTime()) {}
  ~HelperTime() {
    mState.counters["helper_cpu"] = benchmark::Counter((mHelper.ProcessorTime() - mBefore) / 1e9,
                                                       benchmark::Counter::kAvgIterations);
  }
  HelperTime(const HelperTime&) = delete;
  HelperTime& operator=(const HelperTime&) = delete;

 private:
  benchmark::State& mState;
  const Helper& mHelper;
  double mBefore;
};

void BM_HelperStartToFirstAnswer(benchmark::State& state) {
  const RealMachine machine;
  char answer[256];
  for (auto _ : state) {
    const Helper helper;
    if (QueryDaemon("geteuid", answer, sizeof answer - 1) <= 0)
      return state.SkipWithError("the helper does not answer");
  }
}
BENCHMARK(BM_HelperStartToFirstAnswer)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_HelperQuery(benchmark::State& state, const char* groups) {
  const RealMachine machine;
  const Helper helper;
  if (!helper.IsOpen()) return state.SkipWithError("the helper does not come");
  const std::string request =
      std::string("Lkw Info Extraction:\n") + groups + " " + std::to_string(::getpid()) + "\n";
  char answer[8192];
  const HelperTime time(state, helper);
  for (auto _ : state)
    if (QueryDaemon(request.c_str(), answer, sizeof answer - 1) <= 0)
      return state.SkipWithError("the helper does not answer");
}
BENCHMARK_CAPTURE(BM_HelperQuery, Table, "pid_internal_thread_time_basic_info")
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BM_HelperQuery, All, "pid_internal_thread_time_basic_info_events_info")
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();

void BM_WholeCycle(benchmark::State& state) {
  RealMachine machine;
  const IdleProcesses children(state.range(0));
  if (children.Count() != state.range(0))
    return state.SkipWithError("not that many processes are allowed here");
  const Helper helper;
  if (!helper.IsOpen()) return state.SkipWithError("the helper does not come");
  InitializeProcessInformationConsolidator();
  auto* const client = new TableLikeClient;
  AddProcessInformationClient(client);
  const auto timer = TheMachine().runLoop.AddTimer(0, 0, [] {});
  const auto beat = [&] {
    machine.clock.Forward(1);
    HeartbeatCFTimerFunc(timer.get());
  };
  beat();
  beat();
  {
    const HelperTime time(state, helper);
    for (auto _ : state) beat();
  }
  state.counters["per_process"] = benchmark::Counter(
      static_cast<double>(client->Processes()),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  if (gFd_a2d < 0) state.SkipWithError("the helper was lost");
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyProcessInformationConsolidator();
}
BENCHMARK(BM_WholeCycle)
    ->Arg(1000)
    ->Arg(5000)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace lurkwell
