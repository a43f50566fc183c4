// The engine on this machine's processes and its ps; only time is simulated.
#include <fcntl.h>
#include <sched.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "consolidator/Feeders.h"
#include "platform/ProcessFigures.h"
#include "platform/linux/LinuxHostStatistics.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxTools.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/Child.h"
#include "support/ChildProgram.h"
#include "support/ConsolidatorTest.h"
#include "support/MachineOf.h"

namespace lurkwell {
namespace {

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string text;
  std::array<char, 4096> piece;
  while (const auto bytes = fread(piece.data(), 1, piece.size(), pipe.get()))
    text.append(piece.data(), bytes);
  return text;
}

std::string Trimmed(std::string text) {
  const auto first = text.find_first_not_of(" \n");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \n") - first + 1);
}

class RealMachineTest : public ConsolidatorTest {
 protected:
  LinuxProcessTable processTable;
  LinuxHostStatistics hostStatistics;
  LinuxTools tools;
  Machine real = MachineOf(machine, processTable, hostStatistics, tools);
  MachineInstallation realInstallation{real};
};

TEST_F(RealMachineTest, EveryColumnOfPsHasTheValueThatPsPrints) {
  const ChildProgram sleeper({"sleep", "1000"});
  Start();
  EXPECT_EQ(GetPSHeaderCount(), 0) << "there is no waiting for ps";
  AwaitPSColumns(std::chrono::seconds(20));
  ASSERT_GT(GetPSHeaderCount(), 80);
  std::map<std::string, std::string> optionOf;
  for (int i = 0; i < GetPSHeaderCount(); ++i) {
    char header[64];
    char option[256];
    GetNthPSHeader(i, header, sizeof header, nullptr);
    GetNthPSHeadersNthGeneratingOption(i, 0, option, sizeof option);
    optionOf[header] = option;
  }
  const auto direct = [&](const std::string& option) {
    return Trimmed(OutputOf("LC_ALL=C /bin/ps -ww -p " + std::to_string(sleeper.Pid()) + " -o " +
                            option + "="));
  };
  // In simulated time every ps would be late.
  SetPSPatience(std::chrono::seconds(20));
  // A beat a minute: as long as a column rests at most whose ps crashed.
  constexpr std::int32_t kBeat = 61'000;
  auto& client = Add("client", kBeat);
  std::vector<std::string> headers;
  for (const auto& [header, option] : optionOf) headers.push_back(header);
  // Some at a time, as a table would show, so that all runs end within their time.
  for (std::size_t at = 0; at < headers.size(); at += 5) {
    const std::vector<std::string> group(
        headers.begin() + static_cast<std::ptrdiff_t>(at),
        headers.begin() + static_cast<std::ptrdiff_t>(std::min(at + 5, headers.size())));
    client.Needs({group.begin(), group.end()});
    // Some move on between two runs (ELAPSED), others with what else runs here (PSS): these get
    // another beat.
    std::vector<std::string> open = group;
    for (int beat = 0; beat < 10 && !open.empty(); ++beat) {
      std::map<std::string, std::string> before;
      for (const auto& header : open) before[header] = direct(optionOf[header]);
      machine.runLoop.RunFor(kBeat);
      std::erase_if(open, [&](const std::string& header) {
        // The pid's own column is not fetched.
        if (header == "PID") return true;
        const auto value = Trimmed(Value(sleeper.Pid(), header.c_str()));
        // What is shared or its own changes with every process of the same programs, our own ps
        // among them.
        if (header == "PSS" || header == "USS") return std::stoi(value) > 0;
        return value == before[header] || value == direct(optionOf[header]);
      });
    }
    for (const auto& header : open) {
      ADD_FAILURE() << header << " (" << optionOf[header] << "): '"
                    << Value(sleeper.Pid(), header.c_str()) << "', directly '"
                    << direct(optionOf[header]) << "'";
    }
  }
}

// Nothing where this machine does not count it.
#define UNIT_SUM(name)                                                          \
  "s=/sys/fs/cgroup; [ -e $s/cgroup.procs ] || s=$s/unified;"                   \
  "f=$s$(sed -n 's/^0:://p' cgroup)/io.stat; [ ! -e $f ] || tr ' ' '\\n' <$f |" \
  "awk -F= '$1 == \"" name "\"{n += $2} END{print n + 0}'"

/// How a shell takes a figure from the process's folder, which it stands in; its pid is $1.
struct TakenByShell {
  const char* property;
  const char* command;
};

constexpr TakenByShell kTakenByShell[] = {
    {"pid_user_time", "awk '{printf \"%.6f\", $14 / '$(getconf CLK_TCK)'}' stat"},
    {"pid_system_time", "awk '{printf \"%.6f\", $15 / '$(getconf CLK_TCK)'}' stat"},
    {"pid_vsz", "awk '{print $23}' stat"},
    {"pid_rsz", "awk '{print $24 * '$(getconf PAGESIZE)'}' stat"},
    {"pid_suspend_count", "awk '{print $3 == \"T\"}' stat"},
    {"pid_processor", "awk '{print $39}' stat"},
    {"pid_policy", "awk '{print $41}' stat"},
    {"pid_faults", "awk '{print $10 + $12}' stat"},
    {"pid_pageins", "awk '{print $12}' stat"},
    {"pid_syscalls_unix", "awk '/^sysc/{n += $2} END{print n}' io"},
    {"pid_disk_read", "awk '/^read_bytes/{print $2}' io"},
    {"pid_disk_written", "awk '/^write_bytes/{print $2}' io"},
    {"pid_bytes_read", "awk '/^rchar/{print $2}' io"},
    {"pid_bytes_written", "awk '/^wchar/{print $2}' io"},
    {"pid_cpu_wait",
     "[ ! -e schedstat ] || cat task/*/schedstat |"
     "awk '{n += $2} END{printf \"%.6f\", int(n / 1000) / 1000000}'"},
    {"pid_unit_disk_read", UNIT_SUM("rbytes")},
    {"pid_unit_disk_written", UNIT_SUM("wbytes")},
    {"pid_csw", "awk '/ctxt_switches/{n += $2} END{print n}' status"},
    {"pid_owner", "ps -o ruser:32= -p $1"},
    {"pid_state", "[ $(ps -o stat= -p $1) != T ] || echo stopped"},
    {"pid_threads", "ps -o nlwp= -p $1"},
    {"pid_terminal", "ps -o tty= -p $1 | tr -d '?'"},
    {"pid_command_line", "ps -o args= -p $1"},
    {"pid_executable", "readlink exe"},
    {"pid_running_time",
     "awk -v t=$(awk '{print $22}' stat) '{print int($1 - t / '$(getconf CLK_TCK)')}' "
     "/proc/uptime"},
    {"pid_affinity", "awk '/^Cpus_allowed_list/{print $2}' status"},
    {"pid_scheduler", "chrt -p $1 | sed -n 's/.*policy: SCHED_OTHER/normal/p'"},
    {"pid_io_priority", "ionice -p $1 | sed 's/^none: prio 0$/by nice value/; s/-/ /; s/: prio//'"},
    {"pid_shared_memory", "awk '/^Rss(File|Shmem)/{n += $2} END{print n * 1024}' status"},
    {"pid_swap", "awk '/^VmSwap/{print $2 * 1024}' status"},
    {"pid_highest_rsz", "awk '/^VmHWM/{print $2 * 1024}' status"},
    {"pid_memory_share",
     "r=$(awk '{print $24}' stat); awk -v r=$r 'BEGIN{printf \"%.3f\","
     "int(r * 100000 / '$(getconf _PHYS_PAGES)') / 1000}'"},
    {"pid_oom_score", "cat oom_score"},
    {"pid_cgroup",
     "p=$(sed -n 's/^0:://p' cgroup); [ \"$p\" != / ] || p=$(sed -n 's/.*:name=systemd://p' "
     "cgroup);"
     "[ \"${p:-/}\" != / ] || p=$(cut -d: -f3- cgroup |"
     "awk '{if (length($0) > length(l)) l = $0} END{print l}'); echo \"$p\""},
    {"pid_namespace", "readlink ns/pid | tr -dc 0-9"},
    {"pid_seccomp", "awk '/^Seccomp:/{print $2 == 2 ? \"filter\" : \"off\"}' status"},
    {"pid_no_new_privileges", "awk '/^NoNewPrivs/{print $2 == 1 ? \"yes\" : \"no\"}' status"},
    {"pid_label", "ps -o label= -p $1 | sed 's/^-$//'"},
    {"pid_elevated",
     "awk '/^Uid/{u = $3} /^CapEff/{c = $2} END{print u == 0 ? \"root\" :"
     "c ~ /^0*$/ ? \"no\" : \"capabilities\"}' status"},
};

/// Those that a process has only in a place of its own, and the rates.
constexpr const char* kTestedElsewhere[] = {"pid_unit",      "pid_slice",     "pid_app_scope",
                                            "pid_container", "pid_inner_pid", "pid_capabilities"};

TEST_F(RealMachineTest, EveryFigureIsWhatItsFileSays) {
  SetPrefInt("KEEP_COMMAND_LINES", 1);
  // Whatever the tests were started with.
  const sched_param usual{};
  ::sched_setscheduler(0, SCHED_OTHER, &usual);
  // Figures of different sizes, at rest.
  const ChildProgram worker(
      {"sh", "-c",
       "i=0; while [ $i -lt 300000 ]; do i=$((i+1)); done;"
       "head -c 1000000 /etc/services /proc/self/maps > /dev/null; kill -STOP $$"});
  waitid(P_PID, static_cast<id_t>(worker.Pid()), nullptr, WSTOPPED | WNOWAIT);
  Start();
  QuitHelperDaemon();
  auto& client = Add("client", 1000);
  machine.runLoop.RunFor(1000);
  const std::string pid = std::to_string(worker.Pid());
  std::set<std::string> tested(std::begin(kTestedElsewhere), std::end(kTestedElsewhere));
  for (const auto& [property, command] : kTakenByShell) {
    const auto direct = [&, command = std::string(command)] {
      return Trimmed(OutputOf("cd /proc/" + pid + " && set -- " + pid + " && " + command));
    };
    SCOPED_TRACE(property);
    client.Needs({property});
    // The unit's figures go on.
    const auto before = direct();
    machine.runLoop.RunFor(1000);
    const auto after = direct();
    auto value = GetPIDPropertyTypedValue(worker.Pid(), property);
    // Names of users and command lines come a pass later when the machine is busy.
    for (int pass = 0; pass < 100 && value == TypedValue(Missing::kNotYetKnown); ++pass) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      machine.runLoop.RunFor(1000);
      value = GetPIDPropertyTypedValue(worker.Pid(), property);
    }
    tested.insert(property);
    if (after.empty()) {
      EXPECT_TRUE(value == TypedValue(Missing::kNotCounted) || value == TypedValue(Missing::kNone));
      continue;
    }
    ASSERT_TRUE(IsKnown(value));
    if (const auto* text = std::get_if<std::string>(&value)) {
      EXPECT_EQ(*text, after);
      continue;
    }
    const double shown = std::stod(Value(worker.Pid(), property));
    EXPECT_LE(std::stod(before), shown);
    EXPECT_LE(shown, std::stod(after));
  }
  for (const auto& row : kFigures)
    EXPECT_EQ(tested.contains(std::string(row.property)),
              (row.origin.source & kAllFigureSources) != 0)
        << row.property;
}

/// A number of the environment, for a run that is to last longer.
int FromEnvironment(const char* name, int usual) {
  const char* text = getenv(name);
  return text != nullptr ? std::stoi(text) : usual;
}

double ResidentMiB() {
  long pages = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

/// Bears so many children, 2,000 a second, and ends when all of them have ended: each lives for a
/// moment, and one of ten becomes another program.
[[noreturn]] void BearChildren(int count) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  auto next = std::chrono::steady_clock::now();
  for (int i = 0; i < count; ++i) {
    std::this_thread::sleep_until(next += std::chrono::microseconds(500));
    while (waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    if (fork() != 0) continue;
    if (i % 10 == 0) execlp("true", "true", nullptr);
    std::this_thread::sleep_for(std::chrono::milliseconds(i % 4));
    _exit(0);
  }
  while (wait(nullptr) > 0) {
  }
  _exit(0);
}

/// With LURKWELL_BIRTHS=120000 for a minute. Every process that is announced leaves again, and with
/// it what it took.
TEST_F(RealMachineTest, ShortLivedChildrenAreAnnouncedOnceOrNotAtAll) {
  const int births = FromEnvironment("LURKWELL_BIRTHS", 2000);
  Start();
  Add("client", 20).Needs({"pid_p_comm"});
  machine.runLoop.RunFor(20);
  std::set<std::string> alive;
  std::size_t announced = 0;
  const auto follow = [&] {
    for (const auto& line : told.Lines()) {
      if (line.starts_with("client added ")) {
        EXPECT_TRUE(alive.insert(line.substr(13)).second) << line;
        ++announced;
      } else if (line.starts_with("client removed ")) {
        EXPECT_EQ(alive.erase(line.substr(15)), 1U) << line;
      }
    }
    told.Clear();
  };
  follow();
  const auto there = alive.size();
  const pid_t mother = Fork([births]() -> int { BearChildren(births); });
  const auto took = [begun = std::chrono::steady_clock::now()] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
  };
  double before = 0;
  while (waitpid(mother, nullptr, WNOHANG) == 0) {
    machine.runLoop.RunFor(20);
    follow();
    if (before == 0 && took() * 4000 > births) before = ResidentMiB();
  }
  const double seconds = took();
  machine.runLoop.RunFor(40);
  follow();
  EXPECT_NEAR(static_cast<double>(alive.size()), static_cast<double>(there), 100);
  EXPECT_LE(ResidentMiB(), before + 2);
  std::printf("%.0f births a second for %.1f s, %zu announced, resident %.1f MiB, then %.1f\n",
              births / seconds, seconds, announced - there, before, ResidentMiB());
  const ChildProgram lasting({"sleep", "1000"});
  machine.runLoop.RunFor(40);
  follow();
  EXPECT_TRUE(alive.contains(std::to_string(lasting.Pid())));
  EXPECT_EQ(Value(lasting.Pid(), "pid_parent_pid"), std::to_string(getpid()));
  // No record is left of anything that has gone.
  for (const auto pid : PidBlob()) {
    char name[64];
    GetPIDPropertyValue(pid, "pid_p_comm", name, sizeof name, nullptr);
    EXPECT_STRNE(name, "true") << pid;
  }
}

void RunFor(std::chrono::microseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (std::chrono::steady_clock::now() < end) {
  }
}

/// What a child of the test does until it is killed.
using Load = std::function<void()>;

void Rest() {
  for (;;) pause();
}

/// Runs now and then, for these times at most.
Load Restless(std::chrono::microseconds most, std::chrono::microseconds rest) {
  return [=] {
    std::minstd_rand random(static_cast<unsigned>(gettid()));
    for (;;) {
      RunFor(most * (random() % 100) / 100);
      std::this_thread::sleep_for(rest / 2 + rest * (random() % 100) / 100);
    }
  };
}

void RunInKernel() {
  std::array<char, 65536> zeros;
  const int file = open("/dev/zero", O_RDONLY | O_CLOEXEC);
  for (;; std::this_thread::sleep_for(std::chrono::milliseconds(20)))
    for (int i = 0; i < 200; ++i)
      if (read(file, zeros.data(), zeros.size()) < 0) _exit(1);
}

void RunInThreads() {
  using std::chrono::milliseconds;
  std::thread(Restless(milliseconds(8), milliseconds(300))).detach();
  std::thread(Restless(milliseconds(1), milliseconds(5))).detach();
  Rest();
}

void RunByChildren() {
  for (;; std::this_thread::sleep_for(std::chrono::milliseconds(5)))
    WaitFor(Fork([] { return RunFor(std::chrono::milliseconds(1)), 0; }));
}

/// A child with such a load, at the lowest priority; it goes with this object.
class Laden {
 public:
  explicit Laden(const Load& load)
      : mPid(Fork([&load] {
          prctl(PR_SET_PDEATHSIG, SIGKILL);
          if (nice(19) != -1) load();
          return 1;
        })) {}
  ~Laden() {
    kill(mPid, SIGKILL);
    WaitFor(mPid);
  }
  Laden(const Laden&) = delete;
  Laden& operator=(const Laden&) = delete;
  pid_t Pid() const { return mPid; }

  /// User and system time in ticks as a second reader of the stat file sees them.
  std::array<long, 2> Ticks() const {
    std::ifstream file("/proc/" + std::to_string(mPid) + "/stat");
    std::string text(std::istreambuf_iterator<char>(file), {});
    std::istringstream fields(text.substr(text.rfind(')') + 2));
    std::string word;
    for (int field = 3; field < 14; ++field) fields >> word;
    std::array<long, 2> ticks{};
    fields >> ticks[0] >> ticks[1];
    return ticks;
  }

 private:
  pid_t mPid;
};

/// LURKWELL_ACCURACY_SECONDS lets it go on for longer than some seconds.
TEST_F(RealMachineTest, TimesAreThoseOfTheKernelToATickAndNobodyRunsUnseen) {
  std::vector<std::unique_ptr<Laden>> children;
  using std::chrono::milliseconds;
  const std::pair<Load, int> loads[] = {
      {Rest, 100},
      {[] { RunFor(std::chrono::hours(1)); }, 1},
      {Restless(milliseconds(8), milliseconds(40)), 3},
      {Restless(milliseconds(40), milliseconds(2500)), 30},
      {Restless(std::chrono::microseconds(100), milliseconds(10)), 5},
      {RunInKernel, 1},
      {RunInThreads, 3},
      {RunByChildren, 1}};
  for (const auto& [load, count] : loads)
    for (int i = 0; i < count; ++i) children.push_back(std::make_unique<Laden>(load));
  Start();
  QuitHelperDaemon();
  Add("client", 1000).Needs({"pid_user_time", "pid_system_time"});
  machine.runLoop.RunFor(1000);

  struct Seen {
    std::array<long, 2> shown{}, after{};
  };
  std::vector<Seen> seen(children.size());
  const double tick = 1.0 / static_cast<double>(sysconf(_SC_CLK_TCK));
  long readings = 0, runs = 0, late = 0;
  std::minstd_rand random(16);
  const auto end = std::chrono::steady_clock::now() +
                   std::chrono::seconds(FromEnvironment("LURKWELL_ACCURACY_SECONDS", 12));
  for (bool isFirst = true; std::chrono::steady_clock::now() < end; isFirst = false) {
    std::vector<std::array<long, 2>> before;
    for (const auto& child : children) before.push_back(child->Ticks());
    machine.runLoop.RunFor(1000);
    for (std::size_t i = 0; i < children.size(); ++i, ++readings) {
      auto& last = seen[i];
      const auto pid = children[i]->Pid();
      const Seen now{{std::lround(std::stod(Value(pid, "pid_user_time")) / tick),
                      std::lround(std::stod(Value(pid, "pid_system_time")) / tick)},
                     children[i]->Ticks()};
      for (const std::size_t kind : {0u, 1u}) {
        late += now.shown[kind] < before[i][kind];
        ASSERT_GE(now.shown[kind], before[i][kind] - 1) << pid << ", child " << i;
        ASSERT_LE(now.shown[kind], now.after[kind] + 1) << pid << ", child " << i;
      }
      const auto sum = [](const std::array<long, 2>& ticks) { return ticks[0] + ticks[1]; };
      if (!isFirst && sum(before[i]) > sum(last.after)) {
        ++runs;
        ASSERT_GT(sum(now.shown), sum(last.shown)) << pid << " ran, child " << i;
      }
      last = now;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50 + random() % 300));
  }
  EXPECT_GT(runs, 100);
  std::printf("%ld readings, %ld after runs, %ld a tick late\n", readings, runs, late);
}

}  // namespace
}  // namespace lurkwell
