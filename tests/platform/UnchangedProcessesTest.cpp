// What the process table takes over from one pass to the next, against the files in /proc.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <time.h>

#include <algorithm>
#include <condition_variable>
#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <sstream>
#include <stop_token>
#include <thread>
#include <vector>

#include "platform/linux/LinuxProcessTable.h"
#include "support/PidNamespace.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

/// What was asked of the kernel, and what time it is.
struct Counts {
  std::map<std::int32_t, int> reads;
  /// Of the files in a process's folder, by their names.
  std::map<std::int32_t, std::map<std::string, int>> readsOf;
  std::map<std::int32_t, int> assignments;
  int listings = 0;
  int clocks = 0;
  std::int64_t milliseconds = 0;
};

/// What the thread that made it reads; that of the names has no part in a pass.
class CountingFiles final : public ProcFiles {
 public:
  explicit CountingFiles(Counts& counts) : ProcFiles("/proc"), mCounts(counts) {}

  bool List(std::vector<ListedProcess>& processes) override {
    ++mCounts.listings;
    return ProcFiles::List(processes);
  }
  std::optional<std::uint64_t> RunTime(std::int32_t pid) override {
    ++mCounts.clocks;
    return ProcFiles::RunTime(pid);
  }
  std::int64_t Milliseconds() const override { return mCounts.milliseconds; }

  FileDescriptor OpenStat(std::int32_t pid) override {
    FileDescriptor file = ProcFiles::OpenStat(pid);
    if (IsCounted()) mPids[file.Get()] = pid;
    return file;
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    if (IsCounted()) ++mCounts.reads[mPids[file]];
    return ProcFiles::Read(file, buffer);
  }
  FileDescriptor OpenFolder(std::int32_t pid) override {
    FileDescriptor folder = ProcFiles::OpenFolder(pid);
    if (IsCounted()) mPids[folder.Get()] = pid;
    return folder;
  }
  std::ptrdiff_t ReadIn(int folder, const char* name, std::span<char> buffer) override {
    if (IsCounted()) ++mCounts.readsOf[mPids[folder]][name];
    return ProcFiles::ReadIn(folder, name, buffer);
  }
  std::optional<Assignment> AssignmentOf(std::int32_t pid) override {
    ++mCounts.assignments[pid];
    return ProcFiles::AssignmentOf(pid);
  }

 private:
  bool IsCounted() const { return std::this_thread::get_id() == mOwner; }

  Counts& mCounts;
  std::map<int, std::int32_t> mPids;
  const std::thread::id mOwner = std::this_thread::get_id();
};

struct Described {
  std::string text;
  char state = 0;
};

/// The process as its file says now, in the words of Describe(entry).
Described DescribeFile(pid_t pid) {
  std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
  std::stringstream all;
  all << file.rdbuf();
  const std::string text = all.str();
  if (text.empty()) return {"gone"};
  const auto open = text.find('('), close = text.rfind(')');
  std::istringstream rest(text.substr(close + 2));
  std::vector<std::string> fields(3);
  for (std::string field; rest >> field;) fields.push_back(field);
  const char state = fields[3][0];
  const auto shown = state == 'R' ? 2 : state == 'T' ? 4 : state == 'Z' ? 5 : 3;
  std::ostringstream description;
  description << text.substr(open + 1, close - open - 1) << " parent " << fields[4] << " priority "
              << fields[18] << " nice " << fields[19] << " start " << fields[22] << " state "
              << shown;
  return {description.str(), state};
}

std::string Describe(std::span<const ProcessTableEntry> entries, pid_t pid) {
  const auto found = std::ranges::find(entries, pid, &ProcessTableEntry::pid);
  if (found == entries.end()) return "gone";
  std::ostringstream description;
  description << found->commandName << " parent " << found->parentPid << " priority "
              << found->priority << " nice " << found->nice << " start " << found->startStamp
              << " state " << static_cast<int>(found->state);
  return description.str();
}

/// Waits until all sleep, are stopped, traced or ended: what is on its way changes while we look.
void Settle(const std::vector<pid_t>& pids) {
  const auto isUnderWay = [](pid_t pid) { return DescribeFile(pid).state == 'R'; };
  const timespec kMoment{0, 3'000'000};
  do {
    ::nanosleep(&kMoment, nullptr);
  } while (std::ranges::any_of(pids, isUnderWay));
}

class UnchangedProcesses : public ::testing::Test {
 protected:
  UnchangedProcesses() {
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    mTable = std::make_unique<LinuxProcessTable>(std::make_unique<CountingFiles>(mCounts));
  }
  ~UnchangedProcesses() override {
    for (const pid_t pid : mPids) ::kill(pid, SIGKILL);
    while (::waitpid(-1, nullptr, 0) > 0) continue;
  }

  void ExpectAsInProc(const std::string& after) {
    Settle(mPids);
    std::vector<std::string> before;
    std::span<const ProcessTableEntry> entries;
    const auto describeAll = [&] {
      std::vector<std::string> all;
      for (const pid_t pid : mPids) all.push_back(DescribeFile(pid).text);
      return all;
    };
    // A pass counts when nothing went on around it, as in the middle of an exec on a busy machine.
    do {
      before = describeAll();
      entries = mTable->Read();
    } while (describeAll() != before);
    for (std::size_t i = 0; i < mPids.size(); ++i)
      ASSERT_EQ(Describe(entries, mPids[i]), before[i]) << "after " << after;
  }

  /// A process that does what it is told by signal: USR1 to change its name, USR2 to become another
  /// program, HUP to start a thread, WINCH to run for a moment; with a child of the same kind.
  pid_t StartPair() {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe(ends.data()), 0);
    const pid_t pid = ::fork();
    if (pid == 0) {
      ::prctl(PR_SET_NAME, "pair");
      const pid_t child = ::fork();
      if (child > 0 && ::write(ends[1], &child, sizeof child) != sizeof child) ::_exit(1);
      ::prctl(PR_SET_PDEATHSIG, child > 0 ? SIGKILL : 0);
      Obey();
    }
    pid_t child = -1;
    EXPECT_EQ(::read(ends[0], &child, sizeof child), static_cast<ssize_t>(sizeof child));
    for (const int end : ends) ::close(end);
    mPids.push_back(pid);
    mPids.push_back(child);
    return pid;
  }

  /// From then on its pid may pass to another process.
  void Collect(pid_t pid) {
    int status = 0;
    if (::waitpid(pid, &status, WNOHANG) == pid && !WIFSTOPPED(status)) std::erase(mPids, pid);
  }

  Counts mCounts;
  std::unique_ptr<LinuxProcessTable> mTable;
  std::vector<pid_t> mPids;

 private:
  [[noreturn]] static void Obey() {
    sigset_t orders;
    ::sigemptyset(&orders);
    for (const int signal : {SIGUSR1, SIGUSR2, SIGHUP, SIGWINCH}) ::sigaddset(&orders, signal);
    ::sigprocmask(SIG_BLOCK, &orders, nullptr);
    for (int order = 0, count = 0; ::sigwait(&orders, &order) == 0;) {
      if (order == SIGUSR1) ::prctl(PR_SET_NAME, ("n" + std::to_string(++count)).c_str());
      // The program that it becomes ends with the next signal.
      if (order == SIGUSR2) ::sigprocmask(SIG_UNBLOCK, &orders, nullptr);
      if (order == SIGUSR2) ::execl("/bin/sleep", "sleep", "600", nullptr);
      if (order == SIGHUP) std::thread([] { ::pause(); }).detach();
    }
    ::_exit(1);
  }
};

/// A program of one thread gives the processes that it forks the thread sanitizer's own, which
/// makes them run now and then; one of several threads does not.
struct WithAnotherThread {
  std::jthread other{[](const std::stop_token& stop) {
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any().wait(lock, stop, [] { return false; });
  }};
};
class StillProcesses : private WithAnotherThread, public UnchangedProcesses {};

/// A turn in the time that a reading is kept, spread over its passes; what runs is read each time.
TEST_F(StillProcesses, AreReadInTurnsAndTheOthersInEveryPass) {
  constexpr int kPasses = 10, kTurns = 3;
  for (int i = 0; i < 20; ++i) StartPair();
  Settle(mPids);
  const auto wanted = [](std::int32_t) { return kFromStat; };
  const auto pass = [&] {
    mCounts.milliseconds += ProcessReader::kLongestKept / kPasses;
    mTable->Read(wanted);
  };
  for (int i = 0; i <= kPasses; ++i) pass();
  mCounts.reads.clear();
  int most = 0;
  for (int i = 0; i < kTurns * kPasses; ++i) {
    ::kill(mPids[0], SIGWINCH);
    Settle({mPids[0]});
    const auto before = mCounts.reads;
    pass();
    int read = 0;
    for (const pid_t pid : mPids)
      read += mCounts.reads[pid] - (before.contains(pid) ? before.at(pid) : 0);
    most = std::max(most, read);
  }
  EXPECT_EQ(mCounts.reads[mPids[0]], kTurns * kPasses);
  EXPECT_EQ(mCounts.reads[::getpid()], kTurns * kPasses);
  for (std::size_t i = 1; i < mPids.size(); ++i) EXPECT_EQ(mCounts.reads[mPids[i]], kTurns) << i;
  EXPECT_LT(most, static_cast<int>(mPids.size()) / 2) << "all in one pass";
}

/// The cost of a pass is that of what is wanted.
TEST_F(UnchangedProcesses, AreNotEvenLookedAtForWhomNobodyAsks) {
  const pid_t followed = StartPair();
  Settle(mPids);
  mTable->Read();
  mTable->Read();
  const auto counts = [&](auto step) {
    const int listings = mCounts.listings, clocks = mCounts.clocks, reads = mCounts.reads[followed];
    step();
    return std::vector<int>{mCounts.listings - listings, mCounts.clocks - clocks,
                            mCounts.reads[followed] - reads};
  };
  EXPECT_EQ(counts([&] { mTable->Read([](std::int32_t) { return 0u; }); })[2], 0);
  const auto ofOne = [&](std::int32_t pid) {
    return pid == followed ? kFromStat : FigureSources{};
  };
  EXPECT_EQ(counts([&] { EXPECT_TRUE(mTable->Refresh(ofOne, false)); }), (std::vector{0, 1, 0}));
  ::kill(followed, SIGWINCH);
  Settle(mPids);
  EXPECT_EQ(counts([&] {
              const auto entries = mTable->Refresh(ofOne, false);
              ASSERT_TRUE(entries);
              const auto entry = std::ranges::find(*entries, followed, &ProcessTableEntry::pid);
              EXPECT_EQ(entry->read, kFromStat);
            }),
            (std::vector{0, 1, 1}));
  // Nothing is said of the dead but that the list is needed.
  ::kill(followed, SIGKILL);
  Collect(followed);
  while (std::ranges::find(mPids, followed) != mPids.end()) Collect(followed);
  EXPECT_FALSE(mTable->Refresh(ofOne, false));
  const auto entries = mTable->Read(ofOne);
  EXPECT_EQ(std::ranges::find(entries, followed, &ProcessTableEntry::pid), entries.end());
}

/// Whoever shows all hears of an end without a listing, and of what was read beside it.
TEST_F(UnchangedProcesses, TellThatOneHasEndedByTheClocksAlone) {
  const pid_t ending = StartPair();
  const pid_t running = StartPair();
  Settle(mPids);
  mTable->Read();
  mTable->Read();
  const auto ofNone = [](std::int32_t) { return FigureSources{}; };
  const auto ofRunning = [&](std::int32_t pid) {
    return pid == running ? kFromStat : FigureSources{};
  };
  const int listings = mCounts.listings;
  EXPECT_TRUE(mTable->Refresh(ofNone, true));
  ::kill(running, SIGWINCH);
  Settle({running});
  ::kill(ending, SIGKILL);
  while (std::ranges::find(mPids, ending) != mPids.end()) Collect(ending);
  EXPECT_TRUE(mTable->Refresh(ofNone, false));
  EXPECT_FALSE(mTable->Refresh(ofRunning, true));
  EXPECT_EQ(mCounts.listings, listings);
  const auto entries = mTable->Read(ofRunning);
  EXPECT_EQ(std::ranges::find(entries, ending, &ProcessTableEntry::pid), entries.end());
  const auto entry = std::ranges::find(entries, running, &ProcessTableEntry::pid);
  ASSERT_NE(entry, entries.end());
  EXPECT_EQ(entry->read, kFromStat);
}

/// What others can change without a sign is read in turns, the rest when the process has run or its
/// memory was taken.
TEST_F(StillProcesses, AreAskedAgainForWhatOthersChange) {
  constexpr std::size_t kMapped = 4 << 20;
  const TemporaryFolder folder;
  const FileDescriptor file(::open((folder / "mapped").c_str(), O_RDWR | O_CREAT, 0600));
  ASSERT_EQ(::ftruncate(file.Get(), kMapped), 0);
  const pid_t pid = ::fork();
  if (pid == 0) {
    auto* memory = static_cast<char*>(
        ::mmap(nullptr, kMapped, PROT_READ | PROT_WRITE, MAP_SHARED, file.Get(), 0));
    for (std::size_t i = 0; i < kMapped; i += 4096) memory[i] = 1;
    for (;;) ::pause();
  }
  mPids.push_back(pid);
  std::int64_t mapped = 0;
  std::map<std::string, int> counts;
  const auto turns = [&](int count) {
    counts = {};
    for (int i = 0; i < count; ++i) {
      Settle(mPids);
      auto before = mCounts.readsOf[pid];
      before["affinity"] = mCounts.assignments[pid];
      mCounts.milliseconds += ProcessReader::kLongestKept;
      const auto entries = mTable->Read([](std::int32_t) {
        return kFromStat | kFromStatus | kFromIO | kFromThreads | kFromGroup | kFromAssignment;
      });
      const auto& figures =
          mTable->FiguresOf(*std::ranges::find(entries, pid, &ProcessTableEntry::pid));
      mapped = figures.Get(FigureCalled("pid_shared_memory"));
      auto after = mCounts.readsOf[pid];
      after["affinity"] = mCounts.assignments[pid];
      for (const auto& [name, reads] : after)
        if (reads > before[name]) counts[name] += reads - before[name];
    }
  };
  using Reads = std::map<std::string, int>;
  do {
    turns(2);
  } while (mapped < static_cast<std::int64_t>(kMapped));
  turns(3);
  EXPECT_EQ(counts, (Reads{{"affinity", 3}}));
  // The process itself does not run.
  ASSERT_EQ(::ftruncate(file.Get(), 0), 0);
  turns(1);
  EXPECT_EQ(counts, (Reads{{"affinity", 1}, {"status", 1}}));
  EXPECT_LT(mapped, static_cast<std::int64_t>(kMapped));
  ::kill(pid, SIGSTOP);
  turns(1);
  EXPECT_EQ(counts,
            (Reads{{"affinity", 1}, {"cgroup", 1}, {"io", 1}, {"schedstat", 1}, {"status", 1}}));
  // And for all that, after a minute more.
  turns(8);
  EXPECT_EQ(counts["io"], 1);
  EXPECT_EQ(counts["status"], 1);
  EXPECT_EQ(counts["cgroup"], 0);
  // Others rarely put what sleeps into another group.
  turns(31);
  EXPECT_EQ(counts["cgroup"], 1);
}

/// Births and ends are seen without a listing; threads, and processes that lived shortly, are none.
TEST_F(UnchangedProcesses, AreListedOnlyOnceAMinute) {
  const auto pass = [&](auto step) {
    mCounts.milliseconds += 1'000;
    step();
    return mTable->MayHaveBirths();
  };
  const auto liveShortly = [] {
    std::thread([] {}).join();
    const pid_t pid = ::fork();
    if (pid == 0) ::_exit(0);
    EXPECT_EQ(::waitpid(pid, nullptr, 0), pid);
  };
  for (int i = 0; i < 3; ++i) pass([&] { mTable->Read(); });
  const int listings = mCounts.listings;
  int tries = 0;
  while (pass(liveShortly)) ASSERT_LT(++tries, 30) << "the machine never rests";
  const pid_t pair = StartPair();
  EXPECT_TRUE(mTable->MayHaveBirths());
  EXPECT_NE(Describe(mTable->Read(), pair), "gone");
  ::kill(pair, SIGKILL);
  while (std::ranges::find(mPids, pair) != mPids.end()) Collect(pair);
  EXPECT_EQ(Describe(mTable->Read([](std::int32_t) { return FigureSources{}; }), pair), "gone");
  EXPECT_EQ(mCounts.listings, listings);
  mCounts.milliseconds += 60'000;
  EXPECT_TRUE(mTable->MayHaveBirths()) << "a process may have chosen its pid";
  mTable->Read();
  EXPECT_EQ(mCounts.listings, listings + 1);
}

/// What others do to a process, in any order, some of it more than once or to one that has ended.
/// The seed is fixed; a failure names the step.
TEST_F(UnchangedProcesses, ShowInTheNextPassWhatWasDoneToThem) {
  using Deed = std::function<void(pid_t)>;
  const auto signal = [](int number) { return [number](pid_t pid) { ::kill(pid, number); }; };
  const auto schedule = [](int policy, int priority) {
    return [policy, priority](pid_t pid) {
      const sched_param parameter{priority};
      ::sched_setscheduler(pid, policy, &parameter);
    };
  };
  int nice = 0;
  const std::vector<std::pair<const char*, Deed>> deeds = {
      {"stop", signal(SIGSTOP)},
      {"stop again", signal(SIGSTOP)},
      {"continue", signal(SIGCONT)},
      {"rename", signal(SIGUSR1)},
      {"thread", signal(SIGHUP)},
      {"run", signal(SIGWINCH)},
      {"renice",
       [&](pid_t pid) {
         ::setpriority(PRIO_PROCESS, static_cast<id_t>(pid), nice = (nice + 3) % 20);
       }},
      {"real time", schedule(SCHED_FIFO, 10)},
      {"batch", schedule(SCHED_BATCH, 0)},
      {"ordinary", schedule(SCHED_OTHER, 0)},
      {"trace", [](pid_t pid) { ::ptrace(PTRACE_ATTACH, pid, nullptr, nullptr); }},
      {"seize", [](pid_t pid) { ::ptrace(PTRACE_SEIZE, pid, nullptr, nullptr); }},
      {"interrupt", [](pid_t pid) { ::ptrace(PTRACE_INTERRUPT, pid, nullptr, nullptr); }},
      {"leave", [](pid_t pid) { ::ptrace(PTRACE_DETACH, pid, nullptr, nullptr); }},
      {"exec", signal(SIGUSR2)},
      {"kill", signal(SIGKILL)},
      {"collect", [&](pid_t pid) { Collect(pid); }}};
  std::mt19937 random(20240607);
  for (int i = 0; i < 8; ++i) StartPair();
  for (int pass = 0; pass < 3; ++pass) ExpectAsInProc("start");
  for (int step = 0; step < 600 && !HasFatalFailure(); ++step) {
    const auto& [name, deed] = deeds[random() % deeds.size()];
    const pid_t pid = mPids[random() % mPids.size()];
    deed(pid);
    // Some fall together, and some passes find nothing new.
    if (random() % 4 != 0) ExpectAsInProc(std::string(name) + ' ' + std::to_string(pid));
    if (step % 40 == 39) StartPair();
  }
}

/// Where the kernel does not tell what has run, everything is read.
TEST_F(UnchangedProcesses, AreReadInEveryPassWherePidsMeanOthers) {
  // Whatever the tests were started with.
  const Child child([] {
    const sched_param usual{};
    ::sched_setscheduler(0, SCHED_OTHER, &usual);
  });
  Settle({child.Pid()});
  EXPECT_TRUE(ReadRunTime(child.Pid()));
  EXPECT_EQ(ReadRunTime(child.Pid()), ReadRunTime(child.Pid()));
  EXPECT_EQ(ReadScheduling(child.Pid()), Scheduling{});
  for (const std::int32_t none : {0, -1}) EXPECT_FALSE(ReadRunTime(none) || ReadScheduling(none));
  EXPECT_EQ(RunForked([&]() -> std::string {
              // Its children have their own pids, but see the same tree.
              if (::unshare(CLONE_NEWPID) != 0) return "no namespace";
              return RunForked([&]() -> std::string {
                ProcFiles files("/proc");
                if (files.LastPid()) return "a last pid";
                return files.RunTime(child.Pid()) ? "a time" : "";
              });
            }),
            "");
}

}  // namespace
}  // namespace lurkwell
