// The process table and signals on the real machine.
#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/ProcessFigures.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxScheduler.h"
#include "platform/linux/LinuxServices.h"
#include "platform/linux/ProcFiles.h"
#include "support/PidNamespace.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

std::optional<ProcessTableEntry> Find(std::span<const ProcessTableEntry> entries, pid_t pid) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [pid](const auto& entry) { return entry.pid == pid; });
  return found == entries.end() ? std::nullopt : std::optional(*found);
}

/// What is wrong with a table whatever runs at the moment; "" when nothing is.
std::string Complaint(std::span<const ProcessTableEntry> entries) {
  if (entries.empty() || entries.back().pid != 0) return "no idle task at the end";
  std::map<std::int32_t, std::uint64_t> stamps = {{0, 0}};
  std::int32_t last = 0;
  for (const auto& entry : entries.first(entries.size() - 1)) {
    if (entry.pid <= last) return "out of order at " + std::to_string(entry.pid);
    last = entry.pid;
    stamps[entry.pid] = entry.startStamp;
  }
  for (const auto& entry : entries) {
    if (entry.parentPid == kInvalidPID) continue;
    const auto parent = stamps.find(entry.parentPid);
    if (parent == stamps.end() || parent->second > entry.startStamp) {
      return "parent of " + std::to_string(entry.pid) + " is " + std::to_string(entry.parentPid);
    }
  }
  return {};
}

void SleepMilliseconds(long milliseconds) {
  const timespec time{0, milliseconds * 1'000'000};
  ::nanosleep(&time, nullptr);
}

TEST(LiveProcesses, AreFoundUnderTheirPidWhateverTheirName) {
  const std::vector<std::string> pieces = {")", "\n",   "\x1b[2J", "\xe2\x80\xae", "\xff", " ",
                                           "(", "S 1 ", "\\",      "%s",           "\t",   "a"};
  std::map<pid_t, std::string> names;
  std::vector<Child> children;
  for (std::size_t i = 0; i < 100; ++i) {
    std::string name;
    for (std::size_t j = 0; name.size() < i % 18; ++j)
      name += pieces[(i * 5 + j * 7) % pieces.size()];
    children.emplace_back([&name] { ::prctl(PR_SET_NAME, name.c_str()); });
    names[children.back().Pid()] = name.substr(0, 15);
  }
  LinuxProcessTable table;
  for (int pass = 0; pass < 2; ++pass) {
    const auto entries = table.Read();
    EXPECT_EQ(Complaint(entries), "");
    for (const auto& [pid, name] : names) {
      const auto entry = Find(entries, pid);
      ASSERT_TRUE(entry);
      EXPECT_EQ(entry->commandName, name);
      EXPECT_EQ(entry->parentPid, ::getpid());
      EXPECT_EQ(entry->state, RunState::kSleeping);
    }
  }
}

TEST(LiveProcesses, HaveNamesOfSixteenCharacters) {
  const TemporaryFolder folder;
  const std::string program = folder.Path() + "/sixteen-or-more-characters";
  std::filesystem::copy_file("/bin/sleep", program);
  // By its path; under another name, which leaves the executable's; and before the exec, when it
  // has this program's name, from the beginning of the table.
  LinuxProcessTable table;
  table.Read();
  std::vector<pid_t> pids;
  for (const char* called : {program.c_str(), "x"}) {
    const pid_t pid = ::fork();
    if (pid == 0) {
      ::execl(program.c_str(), called, "60", nullptr);
      ::_exit(127);
    }
    pids.push_back(pid);
  }
  const auto isNamed = [&](pid_t pid) {
    const auto entry = Find(table.Read(), pid);
    return entry && std::string_view(entry->commandName) == "sixteen-or-more-";
  };
  for (const pid_t pid : pids) {
    bool named = false;
    for (int tries = 0; tries < 500 && !named; ++tries) {
      named = isNamed(pid);
      if (!named) SleepMilliseconds(10);
    }
    EXPECT_TRUE(named);
    EXPECT_TRUE(isNamed(pid));
    ::kill(pid, SIGKILL);
    ::waitpid(pid, nullptr, 0);
  }
}

TEST(LiveProcesses, ShowTheirStateNiceValueAndStart) {
  const Child stopped;
  ::kill(stopped.Pid(), SIGSTOP);
  ::waitpid(stopped.Pid(), nullptr, WUNTRACED);
  const Child traced([] { ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr); });
  ::kill(traced.Pid(), SIGSTOP);
  ::waitpid(traced.Pid(), nullptr, 0);
  const Child nice([] { ::setpriority(PRIO_PROCESS, 0, 7); });
  const pid_t zombie = ::fork();
  if (zombie == 0) ::_exit(0);
  siginfo_t ended{};
  ::waitid(P_PID, static_cast<id_t>(zombie), &ended, WEXITED | WNOWAIT);

  LinuxProcessTable table;
  const auto entries = table.Read();
  EXPECT_EQ(Find(entries, stopped.Pid())->state, RunState::kStopped);
  EXPECT_EQ(Find(entries, traced.Pid())->state, RunState::kSleeping);
  EXPECT_EQ(Find(entries, zombie)->state, RunState::kZombie);
  EXPECT_EQ(Find(entries, ::getpid())->state, RunState::kRunning);
  EXPECT_EQ(Find(entries, nice.Pid())->nice, 7);
  EXPECT_EQ(Find(entries, nice.Pid())->priority, 27);
  const auto start = Find(entries, nice.Pid())->startTime;
  EXPECT_LE(std::abs(start.seconds - ::time(nullptr)), 60);
  EXPECT_EQ(Find(table.Read(), nice.Pid())->startTime, start);
  EXPECT_EQ(table.CurrentIdentity(nice.Pid())->startStamp, Find(entries, nice.Pid())->startStamp);
  EXPECT_FALSE(table.CurrentIdentity(0));
  ::waitpid(zombie, nullptr, 0);
  EXPECT_FALSE(Find(table.Read(), zombie));
}

/// What a table that is made anew tells of the figures that /proc/PID/io has.
std::string DiskFigures(pid_t pid) {
  LinuxProcessTable table;
  const auto entries = table.Read([](std::int32_t) { return FigureSources{kFromIO}; });
  const auto entry = std::ranges::find(entries, pid, &ProcessTableEntry::pid);
  if (entry == entries.end()) return "no process";
  const auto& figures = table.FiguresOf(*entry);
  std::string text;
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto figure = static_cast<Figure>(i);
    if (kFigures[i].origin.source != kFromIO) continue;
    const auto state = figures.StateOf(figure);
    text += state == FigureState::kRefused ? "refused "
            : state != FigureState::kKnown ? "unknown "
                                           : std::to_string(figures.Get(figure)) + ' ';
  }
  return text;
}

constexpr std::int64_t kWritten = 8 << 20;

/// In the current folder, which is on a disk more likely than a temporary one.
void WriteToDisk() {
  const std::string name = "written." + std::to_string(::getpid());
  const FileDescriptor file(::open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600));
  ::unlink(name.c_str());
  const std::vector<char> block(1 << 20, 'x');
  for (std::int64_t written = 0; written < kWritten;) {
    const auto bytes = ::write(file.Get(), block.data(), block.size());
    if (bytes <= 0) ::_exit(1);
    written += bytes;
  }
  ::fsync(file.Get());
}

TEST(LiveProcesses, DoNotTellOthersWhatTheyHaveReadAndWritten) {
  const Child writer(WriteToDisk);
  EXPECT_EQ(RunForked([&]() -> std::string {
              if (::setresgid(61001, 61001, 61001) != 0 || ::setresuid(61001, 61001, 61001) != 0)
                return "no other user";
              return DiskFigures(writer.Pid());
            }),
            "refused refused refused refused refused ");
  // Root is told of all.
  const Child other([] {
    WriteToDisk();
    if (::setresuid(61001, 61001, 61001) != 0) ::_exit(1);
  });
  EXPECT_GE(std::stoll(DiskFigures(other.Pid())), 8) << "calls";
}

constexpr std::int64_t kMiB = 1 << 20;

/// Maps 100 MiB and touches half of them, is pinned, waits behind everybody else, gives up what it
/// may, and writes.
void DoAllThatIsShown() {
  constexpr std::size_t kMapped = 100 << 20;
  auto* memory = static_cast<char*>(
      ::mmap(nullptr, kMapped, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  if (memory == MAP_FAILED) ::_exit(1);
  for (std::size_t at = 0; at < kMapped / 2; at += 4096) memory[at] = 1;
  for (int i = 0; i < 8; ++i) WriteToDisk();
  cpu_set_t first;
  CPU_ZERO(&first);
  CPU_SET(0, &first);
  const sched_param parameters{};
  constexpr int kIdleAtDisks = 3 << 13;
  if (::sched_setaffinity(0, sizeof first, &first) != 0 ||
      ::sched_setscheduler(0, SCHED_BATCH, &parameters) != 0 ||
      ::syscall(SYS_ioprio_set, 1, 0, kIdleAtDisks) != 0 ||
      ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::setresuid(61001, 61001, 61001) != 0)
    ::_exit(1);
}

TEST(LiveProcesses, AreShownToDoWhatTheyDo) {
  const Child child(DoAllThatIsShown);
  // A control group of its own, where root may make one.
  std::string group = "/sys/fs/cgroup/unified";
  if (!std::filesystem::exists(group + "/cgroup.procs")) group = "/sys/fs/cgroup";
  const auto name = "/lurkwell-test-" + std::to_string(child.Pid()) + ".service";
  std::error_code error;
  const bool hasGroup = std::filesystem::create_directory(group + name, error) &&
                        (std::ofstream(group + name + "/cgroup.procs") << child.Pid()).flush();
  LinuxProcessTable table;
  const auto entries = table.Read(
      [&](std::int32_t pid) { return pid == child.Pid() ? kAllFigureSources : FigureSources{0}; });
  const auto entry = std::ranges::find(entries, child.Pid(), &ProcessTableEntry::pid);
  ASSERT_NE(entry, entries.end());
  const auto& figures = table.FiguresOf(*entry);
  const auto number = [&](Figure figure) {
    EXPECT_EQ(figures.StateOf(figure), FigureState::kKnown) << RowOf(figure).property;
    return figures.Get(figure);
  };
  const auto words = [&](Figure figure) {
    const auto& row = RowOf(figure);
    return row.words != nullptr ? row.words(number(figure)) : figures.GetText(figure);
  };
  EXPECT_EQ(number(FigureCalled("pid_shared_memory")) / (10 * kMiB), 5) << "half of 100 MiB";
  EXPECT_GE(number(FigureCalled("pid_highest_rsz")), 50 * kMiB);
  EXPECT_LT(number(FigureCalled("pid_highest_rsz")), 200 * kMiB) << "a sanitizer's memory included";
  EXPECT_GE(number(FigureCalled("pid_vsz")), 100 * kMiB);
  EXPECT_GE(number(FigureCalled("pid_bytes_written")), 64 * kMiB);
  EXPECT_EQ(words(FigureCalled("pid_affinity")), "0");
  EXPECT_EQ(words(FigureCalled("pid_scheduler")), "batch");
  EXPECT_EQ(words(FigureCalled("pid_io_priority")), "idle");
  EXPECT_EQ(words(FigureCalled("pid_no_new_privileges")), "yes");
  EXPECT_EQ(words(FigureCalled("pid_capabilities")), "none");
  EXPECT_EQ(words(FigureCalled("pid_elevated")), "no");
  EXPECT_EQ(words(FigureCalled("pid_owner")), "61001");
  EXPECT_EQ(words(FigureCalled("pid_state")), "sleeping");
  EXPECT_EQ(words(FigureCalled("pid_inner_pid")), "");
  if (hasGroup) {
    EXPECT_EQ(words(FigureCalled("pid_cgroup")), name);
    EXPECT_EQ(words(FigureCalled("pid_unit")), name.substr(1));
    std::ofstream(group + "/cgroup.procs") << child.Pid();
    std::filesystem::remove(group + name, error);
  } else {
    std::printf("no control group could be made\n");
  }
}

TEST(LiveProcesses, HaveNoUnknownParentsWhereOthersAreHidden) {
  const TemporaryFolder folder;
  const auto complaint = RunInPidNamespace(folder.Path(), "hidepid=2", [&]() -> std::string {
    // Process 1 is root's and hidden from the other user, whose child and grandchild look on.
    return RunForked([&]() -> std::string {
      // Root's group, which sudo leaves, would see all.
      BecomeUser(61001);
      const Child grandchild;
      LinuxProcessTable table(folder.Path());
      for (int pass = 0; pass < 200; ++pass) {
        const auto entries = table.Read();
        if (const auto wrong = Complaint(entries); !wrong.empty()) return wrong;
        if (entries.size() != 3) return std::to_string(entries.size()) + " entries";
        const auto self = Find(entries, ::getpid());
        const auto below = Find(entries, grandchild.Pid());
        if (!self || self->parentPid != kInvalidPID) return "a parent that is hidden";
        if (!below || below->parentPid != ::getpid()) return "no parent that is not hidden";
      }
      return {};
    });
  });
  EXPECT_EQ(complaint, "");
}

/// The folder of this process's descriptors, opened while there still are some.
class OwnDescriptors {
 public:
  OwnDescriptors() : mFolder(::opendir("/proc/self/fd"), &::closedir) {}

  /// Those that lead to what is called so, or lies there.
  std::size_t CountTo(std::string_view path) {
    std::size_t count = 0;
    std::array<char, 4096> target;
    ::rewinddir(mFolder.get());
    while (const dirent* entry = ::readdir(mFolder.get())) {
      const auto length =
          ::readlinkat(::dirfd(mFolder.get()), entry->d_name, target.data(), target.size());
      const auto size = static_cast<std::size_t>(std::max<ssize_t>(length, 0));
      if (std::string_view(target.data(), size).starts_with(path)) ++count;
    }
    return count;
  }

 private:
  std::unique_ptr<DIR, int (*)(DIR*)> mFolder;
};

TEST(LiveProcesses, AreNotMixedUpWhenAPidComesRound) {
  const TemporaryFolder folder;
  const auto complaint = RunInPidNamespace(folder.Path(), "", [&]() -> std::string {
    LinuxProcessTable table(folder.Path());
    LinuxSignals signals(folder.Path());
    const auto start = [&](const char* name) {
      std::ofstream(folder.Path() + "/sys/kernel/ns_last_pid") << 299;
      return Child([name] { ::prctl(PR_SET_NAME, name); });
    };
    Child first = start("first");
    if (first.Pid() != 300) return "pid " + std::to_string(first.Pid());
    const auto before = Find(table.Read(), 300);
    if (!before || std::string_view(before->commandName) != "first") return "no first";
    if (OwnDescriptors().CountTo(folder.Path() + "/300") != 1) return "not kept open";
    first.End();
    // Into another tick.
    SleepMilliseconds(40);
    Child second = start("second");
    if (second.Pid() != 300) return "second pid " + std::to_string(second.Pid());
    const auto after = Find(table.Read(), 300);
    if (!after || std::string_view(after->commandName) != "second") return "no second";
    if (after->startStamp == before->startStamp) return "the same stamp";
    if (table.CurrentIdentity(300)->startStamp != after->startStamp) return "another identity";
    if (signals.Send({300, before->startStamp}, SIGKILL)) return "sent to the wrong process";
    if (!signals.Send({300, after->startStamp}, 0)) return "not sent to the right process";
    if (!WIFSIGNALED(second.End())) return "no end";
    if (signals.Send({300, after->startStamp}, 0)) return "sent to nobody";
    return {};
  });
  EXPECT_EQ(complaint, "");
}

TEST(LiveProcesses, AreAllShownWithFewDescriptors) {
  EXPECT_EQ(RunForked([]() -> std::string {
              const rlimit limit{40, 40};
              ::setrlimit(RLIMIT_NOFILE, &limit);
              std::vector<Child> children;
              for (int i = 0; i < 100; ++i) children.emplace_back();
              OwnDescriptors descriptors;
              LinuxProcessTable table;
              // Then other code takes all that are left.
              for (int pass = 0; pass < 4; ++pass) {
                const auto entries = table.Read();
                if (descriptors.CountTo("/proc/") > DescriptorLimit() / 2 + 3)
                  return "too many kept";
                for (const auto& child : children) {
                  if (!Find(entries, child.Pid())) return "missing in pass " + std::to_string(pass);
                }
                if (pass == 1) {
                  while (::dup(0) >= 0) continue;
                }
              }
              return {};
            }),
            "");
}

TEST(LiveSignals, ReachTheProcessThatIsMeantAndNoOther) {
  Child child;
  LinuxProcessTable table;
  LinuxSignals signals;
  const auto identity = table.CurrentIdentity(child.Pid());
  ASSERT_TRUE(identity);
  EXPECT_FALSE(signals.Send({child.Pid(), identity->startStamp + 1}, SIGKILL));
  for (const std::int32_t pid : {1, 0, -1, -child.Pid()}) {
    EXPECT_FALSE(signals.Send({pid, 0}, 0)) << pid;
  }
  EXPECT_TRUE(signals.Send(*identity, SIGSTOP));
  int status = 0;
  ::waitpid(child.Pid(), &status, WUNTRACED);
  EXPECT_TRUE(WIFSTOPPED(status));
  EXPECT_TRUE(signals.Send({child.Pid(), 0}, SIGTERM));
  EXPECT_TRUE(signals.Send(*identity, SIGCONT));
  ::waitpid(child.Pid(), &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
  EXPECT_FALSE(signals.Send(*identity, SIGKILL));
  EXPECT_EQ(RunForked([]() -> std::string {
              if (::setresuid(61001, 61001, 61001) != 0) return "no other user";
              const bool sent = LinuxSignals().Send({::getppid(), 0}, SIGWINCH);
              return sent ? "sent to another user's process" : "";
            }),
            "");
}

TEST(LiveScheduler, ChangesAllThreadsOfTheProcessThatIsMeantAndNoOther) {
  Child child(
      [] { std::thread([] { std::this_thread::sleep_for(std::chrono::minutes(5)); }).detach(); });
  const pid_t pid = child.Pid();
  const auto threads = [pid] {
    std::vector<std::string> found;
    for (const auto& entry :
         std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task"))
      found.push_back(entry.path());
    return found;
  };
  while (threads().size() < 2) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  LinuxScheduler scheduler;
  const auto identity = LinuxProcessTable().CurrentIdentity(pid);
  ASSERT_TRUE(identity);
  const auto all = scheduler.Processors();
  const auto first = ProcessorsOfList(ListOfProcessors(all).substr(0, 1));
  ASSERT_TRUE(first);
  const ProcessIdentity other{pid, identity->startStamp + 1};
  EXPECT_EQ(scheduler.Change(other, *first), SchedulingAnswer::kGone);
  EXPECT_EQ(ListOfProcessors(scheduler.StateOf(*identity)->processors), ListOfProcessors(all));
  EXPECT_EQ(scheduler.Change(*identity, *first), SchedulingAnswer::kDone);
  constexpr std::int32_t kBatch = 3, kIdleClass = 3;
  EXPECT_EQ(scheduler.Change(*identity, SchedulingPolicy{kBatch, 0}), SchedulingAnswer::kDone);
  EXPECT_EQ(scheduler.Change(*identity, IOPriority{kIdleClass, 0}), SchedulingAnswer::kDone);
  for (const auto& thread : threads()) {
    const auto number = std::stoi(thread.substr(thread.rfind('/') + 1));
    EXPECT_EQ(ListOfProcessors(ReadAssignment(number)->processors), ListOfProcessors(*first));
    EXPECT_NE(
        ReadFile(thread + "/status").find("Cpus_allowed_list:\t" + ListOfProcessors(*first) + "\n"),
        std::string::npos);
    EXPECT_EQ(::sched_getscheduler(number), kBatch);
    EXPECT_EQ(IOPriority::OfPacked(ReadAssignment(number)->ioPriority),
              (IOPriority{kIdleClass, 0}));
  }
  EXPECT_EQ(scheduler.StateOf(*identity)->policy, (SchedulingPolicy{kBatch, 0}));
  EXPECT_EQ(scheduler.Change(*identity, SchedulingPolicy{99, 0}), SchedulingAnswer::kImpossible);
  EXPECT_EQ(scheduler.Change(*identity, *ProcessorsOfList("16383")), SchedulingAnswer::kImpossible);
  for (const std::int32_t system : {1, 0, -1})
    EXPECT_EQ(scheduler.Change({system, 0}, *first), SchedulingAnswer::kRefused) << system;
  child.End();
  EXPECT_EQ(scheduler.Change(*identity, *first), SchedulingAnswer::kGone);
  EXPECT_FALSE(scheduler.StateOf(*identity));
}

TEST(LiveScheduler, SaysThatAnotherUsersProcessIsRefused) {
  EXPECT_EQ(RunForked([]() -> std::string {
              if (::setresuid(61001, 61001, 61001) != 0) return "no other user";
              LinuxScheduler scheduler;
              const ProcessIdentity parent{::getppid(), 0};
              return scheduler.Change(parent, SchedulingPolicy{3, 0}) == SchedulingAnswer::kRefused
                         ? ""
                         : "not refused";
            }),
            "");
}

TEST(LiveProcesses, AreDescribedByOwnerCommandLineAndState) {
  ASSERT_EQ(::geteuid(), 0U) << "needs root to make a process of another user";
  LinuxProcessTable table;
  const Child own;
  const Child other([] {
    if (::setuid(1) != 0) ::_exit(1);
  });
  ::kill(other.Pid(), SIGSTOP);
  int status = 0;
  ::waitpid(other.Pid(), &status, WUNTRACED);
  const std::vector<std::int32_t> pids{other.Pid(), 2'000'000'000, own.Pid(), 2};
  const auto described = table.Describe(pids);
  ASSERT_GE(described.size(), 2U);
  EXPECT_EQ(described[0].process, table.CurrentIdentity(other.Pid()));
  EXPECT_EQ(described[0].owner, "daemon");
  EXPECT_FALSE(described[0].isOwn);
  EXPECT_TRUE(described[0].isStopped);
  EXPECT_EQ(described[1].owner, "root");
  EXPECT_TRUE(described[1].isOwn);
  EXPECT_FALSE(described[1].isStopped || described[1].isKernelThread);
  EXPECT_NE(described[1].commandLine.find("platform_live_processes"), std::string::npos);
  // The kernel's own, where the namespace has it.
  if (described.size() != 3) return;
  EXPECT_EQ(described[2].isKernelThread, described[2].commandLine.empty());
}

}  // namespace
}  // namespace lurkwell
