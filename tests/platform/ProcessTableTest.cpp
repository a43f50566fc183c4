#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <set>
#include <string>

#include "platform/ProcessFigures.h"
#include "platform/ScriptedProc.h"
#include "platform/linux/LinuxProcessTable.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

std::size_t OpenDescriptors() {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator("/proc/self/fd"))
    ++count;
  return count;
}

TEST(MadeUpProcTree, ShowsEveryStateAndTheIdleTask) {
  const TemporaryFolder tree;
  tree.Write("stat", "cpu 1 2 3\nintr 5 0 0\nbtime 1700000000\nprocesses 7\n");
  tree.Write("sys/kernel/pid_max", "4194304\n");
  for (std::int32_t i = 0; i < 8; ++i) {
    const std::int32_t pid = 4'000'000 + i;
    tree.Write(std::to_string(pid) + "/stat",
               StatText{.pid = pid,
                        .name = "task",
                        .state = "RSDTtZXI"[i],
                        .priority = 10 + i,
                        .nice = i - 20,
                        .startStamp = static_cast<std::uint64_t>(100 + i)}
                   .Text());
  }
  LinuxProcessTable table(tree.Path());
  const auto entries = table.Read();
  ASSERT_EQ(entries.size(), 9u);
  using enum RunState;
  const RunState states[] = {kRunning,  kSleeping, kSleeping, kStopped,
                             kSleeping, kZombie,   kZombie,   kIdle};
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(entries[i].state, states[i]) << i;
  EXPECT_EQ(entries[7].pid, 4'000'007);
  EXPECT_EQ(entries[7].priority, 17);
  EXPECT_EQ(entries[7].nice, -13);
  EXPECT_EQ(entries[7].startTime, (TimeValue{1'700'000'001, 70'000}));
  EXPECT_EQ(entries[8].pid, 0);
  EXPECT_STREQ(entries[8].commandName, "swapper");
  EXPECT_EQ(entries[8].startTime, (TimeValue{1'700'000'000, 0}));
  EXPECT_EQ(table.MaximumPid(), 4'194'304);
}

/// Figures that no single file of the process has.
TEST(MadeUpProcTree, AddsUpThreadsAndTellsWhatUnitsCount) {
  const TemporaryFolder tree, units;
  const auto start = [&](std::int32_t pid, std::int64_t threads, const std::string& unit) {
    const auto folder = std::to_string(pid) + '/';
    tree.Write(folder + "stat", StatText{.pid = pid, .threads = threads}.Text());
    tree.Write(folder + "cgroup", "9:blkio:/other.service\n0::" + unit + "\n");
  };
  start(10, 1, "/a.slice/x.service");
  tree.Write("10/schedstat", "900000000 1500000 3\n");
  start(11, 4, "/a.slice/x.service");
  tree.Write("11/schedstat", "5 1000999 1\n");
  tree.Write("11/task/11/schedstat", "5 1000999 1\n");
  tree.Write("11/task/12/schedstat", "5 18446744073709551 7\n");
  // It ends between the listing and its turn.
  std::filesystem::create_directories(tree.Path() + "/11/task/13");
  // Out of our sight, and not accounted.
  start(12, 1, "/../beside");
  start(13, 1, "/b.slice");
  const auto count = [&](const char* text) { units.Write("a.slice/x.service/io.stat", text); };
  count("8:0 rbytes=1000 wbytes=50 rios=1 dbytes=9\n8:16 rbytes=24 wbytes=7\n");

  LinuxProcessTable table(tree.Path(), units.Path());
  const auto figures = [&] {
    std::string text;
    for (const auto& entry : table.Read([](std::int32_t) { return kFromThreads | kFromUnit; })) {
      const auto& its = table.FiguresOf(entry);
      text += std::to_string(entry.pid) + ':';
      for (const auto figure : {FigureCalled("pid_cpu_wait"), FigureCalled("pid_unit_disk_read"),
                                FigureCalled("pid_unit_disk_written")})
        text += its.StateOf(figure) == FigureState::kKnown ? ' ' + std::to_string(its.Get(figure))
                                                           : " none";
      text += '\n';
    }
    return text;
  };
  EXPECT_EQ(figures(),
            "10: 1500 1024 57\n11: 18446744074710 1024 57\n12: none none none\n"
            "13: none none none\n0: none none none\n");
  count("");
  start(10, 1, "/b.slice");
  EXPECT_EQ(figures(),
            "10: 1500 none none\n11: 18446744074710 0 0\n12: none none none\n"
            "13: none none none\n0: none none none\n");
}

TEST(MadeUpProcTree, IsNotHeldUpByANameThatCannotBeRead) {
  using Clock = std::chrono::steady_clock;
  const TemporaryFolder tree;
  const auto add = [&](std::int32_t pid) {
    tree.Write(std::to_string(pid) + "/stat",
               StatText{.pid = pid, .name = "lkw_helper_daem"}.Text());
    return tree.Path() + '/' + std::to_string(pid) + "/cmdline";
  };
  std::ofstream(add(1)) << "lkw_helper_daemon";
  // It is never written to.
  ASSERT_EQ(::mkfifo(add(2).c_str(), 0600), 0);
  LinuxProcessTable table(tree.Path());
  const auto names = [&] {
    const auto before = Clock::now();
    std::string text;
    for (const auto& entry : table.Read())
      if (entry.pid != 0) text += std::string(entry.commandName) + ' ';
    EXPECT_LT(Clock::now() - before, std::chrono::milliseconds(500));
    return text;
  };
  EXPECT_EQ(names(), "lkw_helper_daemo lkw_helper_daem ");
  std::ofstream(add(3)) << "lkw_helper_daemon";
  const std::string all = "lkw_helper_daemo lkw_helper_daem lkw_helper_daemo ";
  const auto start = Clock::now();
  while (names() != all && Clock::now() - start < std::chrono::seconds(20)) ::usleep(20'000);
  EXPECT_GT(Clock::now() - start, std::chrono::milliseconds(500)) << "the reader was not held up";
  EXPECT_EQ(names(), all);
}

TEST(MadeUpProcTree, LeavesOutWhatIsNotAProcess) {
  const TemporaryFolder tree;
  for (int i = 1; i <= 200; ++i) {
    const auto pid = std::to_string(i);
    const std::string right = StatText{.pid = i, .name = "n", .parentPid = i / 2}.Text();
    const std::string texts[] = {right,
                                 "",
                                 right.substr(0, 20),
                                 std::string(3000, '(') + ")",
                                 StatText{.pid = i + 1, .name = "other"}.Text(),
                                 std::string(100'000, '\0')};
    if (i % 7 == 6) {
      std::filesystem::create_directories(tree.Path() + '/' + pid + "/stat");
    } else {
      tree.Write(pid + "/stat", texts[i % 7]);
    }
  }
  for (const char* folder : {"0", "-1", "007", "99999999999", "self", "8 ", "9x"}) {
    tree.Write(folder + std::string("/stat"), StatText{.pid = 7}.Text());
  }
  LinuxProcessTable table(tree.Path());
  std::set<std::int32_t> pids;
  for (const auto& entry : table.Read()) {
    EXPECT_TRUE(pids.insert(entry.pid).second);
    EXPECT_EQ(entry.pid % 7, 0);
  }
  EXPECT_EQ(pids.size(), 29u);
  EXPECT_EQ(table.MaximumPid(), 4'194'304);
  EXPECT_TRUE(LinuxProcessTable(tree.Path() + "/nowhere").Read().empty());
}

/// Every pass has to show whole processes: each entry is one that ran under that pid, nothing of it
/// from another, and all that were left alone are there.
void ExpectWholeProcesses(const ScriptedProc& proc, std::span<const ProcessTableEntry> entries,
                          std::int32_t touched) {
  std::set<std::int32_t> shown;
  for (const auto& entry : entries.first(entries.size() - 1)) {
    const auto* process = proc.Find(entry.startStamp);
    ASSERT_NE(process, nullptr);
    ASSERT_EQ(process->pid, entry.pid);
    ASSERT_EQ(process->Nice(), entry.nice);
    const std::string name = process->KernelName();
    if (entry.commandName != name) {
      ASSERT_EQ(entry.commandName, name + process->Following());
    }
    shown.insert(entry.pid);
  }
  for (const auto& [pid, stamp] : proc.Running()) {
    ASSERT_TRUE(pid == touched || shown.contains(pid)) << pid;
  }
}

/// A fork takes its number first and has it for long before its process is there.
enum class Mishap { kEnds, kIsReplaced, kDescriptorsRunOut, kIsBorn };

constexpr std::int32_t kProcesses = 100;
/// In accesses: it reaches from one pass into the next.
constexpr int kLongFork = 110;

/// Two passes, in which the mishap comes before one access, and one after it, which shows all; with
/// or without the machine's word on births. Returns whether there was an access of that number.
bool SurvivesMishap(Mishap mishap, int access, bool isTold) {
  const auto owned = std::make_shared<ScriptedProc>();
  ScriptedProc& proc = *owned;
  for (std::int32_t pid = 1; pid <= kProcesses; ++pid) proc.Start(pid);
  LinuxProcessTable table(owned);
  const std::size_t openBefore = OpenDescriptors();
  const auto read = [&] {
    proc.milliseconds += 1'000;
    return table.Read();
  };
  if (isTold) {
    proc.lastPid = kProcesses;
    for (int pass = 0; pass < 2; ++pass) read();
  }
  const int listings = proc.listings;
  int count = 0;
  std::int32_t touched = kInvalidPID;
  int error = 0;
  proc.beforeAccess = [&](std::int32_t pid) {
    if (count++ == access) {
      touched = mishap == Mishap::kIsBorn ? kProcesses + 1 : pid;
      if (mishap == Mishap::kDescriptorsRunOut) error = EMFILE;
      if (mishap == Mishap::kEnds || mishap == Mishap::kIsReplaced) proc.End(pid);
      if (mishap == Mishap::kIsReplaced) proc.Start(pid);
      if (mishap == Mishap::kIsBorn) proc.lastPid = touched;
    }
    if (mishap == Mishap::kIsBorn && count == access + kLongFork) proc.Start(touched);
    return std::exchange(error, 0);
  };
  for (int pass = 0; pass < 2; ++pass) {
    const auto entries = read();
    ExpectWholeProcesses(proc, entries, touched);
  }
  const bool happened = count > access + (mishap == Mishap::kIsBorn ? kLongFork : 0);
  count = access + kLongFork + 1;
  const auto entries = read();
  EXPECT_EQ(proc.listings, isTold ? listings : listings + 3);
  if (mishap == Mishap::kIsBorn && !happened) return false;
  ExpectWholeProcesses(proc, entries, kInvalidPID);
  EXPECT_EQ(entries.size(), proc.Running().size() + 1);
  // What was not kept for want of descriptors is opened again in its turn.
  proc.milliseconds += ProcessReader::kLongestKept;
  table.Read();
  EXPECT_EQ(OpenDescriptors() - openBefore, proc.Running().size());
  return happened;
}

TEST(ScriptedProcTree, NeverMixesProcessesWhateverVanishesWhen) {
  const std::size_t before = OpenDescriptors();
  int points = 0;
  const auto tryAll = [&](Mishap mishap, bool isTold) {
    for (int access = 0; SurvivesMishap(mishap, access, isTold); ++access, ++points)
      ASSERT_FALSE(::testing::Test::HasFailure())
          << static_cast<int>(mishap) << ' ' << isTold << ' ' << access;
  };
  for (const bool isTold : {false, true})
    for (const Mishap mishap : {Mishap::kEnds, Mishap::kIsReplaced, Mishap::kDescriptorsRunOut})
      tryAll(mishap, isTold);
  tryAll(Mishap::kIsBorn, true);
  EXPECT_GT(points, 2'000);
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(ScriptedProcTree, ShowsWhatItKnowsWhenTheMachineIsShort) {
  const auto proc = std::make_shared<ScriptedProc>();
  for (std::int32_t pid = 1; pid <= kProcesses; ++pid) proc->Start(pid);
  LinuxProcessTable table(proc);
  const std::size_t openBefore = OpenDescriptors();
  table.Read();
  EXPECT_GT(OpenDescriptors(), openBefore);
  proc->beforeAccess = [](std::int32_t) { return ENFILE; };
  ExpectWholeProcesses(*proc, table.Read(), kInvalidPID);
  EXPECT_EQ(OpenDescriptors(), openBefore);
  proc->beforeAccess = [](std::int32_t) { return 0; };
  proc->listingFails = true;
  testing::internal::CaptureStderr();
  for (int pass = 0; pass < 3; ++pass) ExpectWholeProcesses(*proc, table.Read(), kInvalidPID);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  testing::internal::CaptureStderr();
  EXPECT_TRUE(table.Read().empty());
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lurkwell: the processes cannot be listed: Cannot allocate memory\n");
  proc->listingFails = false;
  ExpectWholeProcesses(*proc, table.Read(), kInvalidPID);
}

}  // namespace
}  // namespace lurkwell
