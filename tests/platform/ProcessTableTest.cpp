#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "platform/MadeUpTree.h"
#include "platform/ScriptedProc.h"
#include "platform/linux/LinuxProcessTable.h"

namespace lurkwell {
namespace {

std::size_t OpenDescriptors() {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator("/proc/self/fd"))
    ++count;
  return count;
}

TEST(MadeUpProcTree, ShowsTenThousandProcessesAndTheIdleTask) {
  const MadeUpTree tree;
  tree.Write("stat", "cpu 1 2 3\nintr 5 0 0\nbtime 1700000000\nprocesses 7\n");
  tree.Write("sys/kernel/pid_max", "4194304\n");
  constexpr std::int32_t kCount = 10'000;
  std::map<std::int32_t, std::string> names;
  for (std::int32_t i = 0; i < kCount; ++i) {
    const std::int32_t pid = i == 0 ? 1 : 4'000'000 + i;
    names[pid] = "p" + std::to_string(i);
    tree.Write(std::to_string(pid) + "/stat",
               StatText{.pid = pid,
                        .name = names[pid],
                        .state = "RSDTtZXI"[i % 8],
                        .parentPid = i == 0 ? 0 : 1,
                        .priority = i % 40,
                        .nice = i % 40 - 20,
                        .startStamp = static_cast<std::uint64_t>(100 + i)}
                   .Text());
  }
  LinuxProcessTable table(tree.Root());
  for (int pass = 0; pass < 2; ++pass) {
    const auto entries = table.Read();
    ASSERT_EQ(entries.size(), kCount + 1u);
    auto expected = names.begin();
    for (const auto& entry : entries.first(kCount)) {
      ASSERT_EQ(entry.pid, expected->first);
      ASSERT_EQ(entry.commandName, expected->second);
      ASSERT_EQ(entry.parentPid, entry.pid == 1 ? 0 : 1);
      ++expected;
    }
    const auto& last = entries.back();
    EXPECT_EQ(last.pid, 0);
    EXPECT_EQ(last.parentPid, 0);
    EXPECT_EQ(last.startStamp, 0u);
    EXPECT_STREQ(last.commandName, "swapper");
    EXPECT_EQ(last.startTime, (TimeValue{1'700'000'000, 0}));
  }
  const auto entries = table.Read();
  const auto& one = entries[7];
  EXPECT_EQ(one.pid, 4'000'007);
  EXPECT_EQ(one.priority, 7);
  EXPECT_EQ(one.nice, -13);
  EXPECT_EQ(one.startStamp, 107u);
  EXPECT_EQ(one.startTime, (TimeValue{1'700'000'001, 70'000}));
  using enum RunState;
  const RunState states[] = {kRunning,  kSleeping, kSleeping, kStopped,
                             kSleeping, kZombie,   kZombie,   kIdle};
  for (std::size_t i = 1; i < 100; ++i) EXPECT_EQ(entries[i].state, states[i % 8]) << i;
  EXPECT_EQ(table.MaximumPid(), 4'194'304);
}

TEST(MadeUpProcTree, LeavesOutWhatIsNotAProcess) {
  const MadeUpTree tree;
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
      std::filesystem::create_directories(tree.Root() + '/' + pid + "/stat");
    } else {
      tree.Write(pid + "/stat", texts[i % 7]);
    }
  }
  for (const char* folder : {"0", "-1", "007", "99999999999", "self", "8 ", "9x"}) {
    tree.Write(folder + std::string("/stat"), StatText{.pid = 7}.Text());
  }
  LinuxProcessTable table(tree.Root());
  std::set<std::int32_t> pids;
  for (const auto& entry : table.Read()) {
    EXPECT_TRUE(pids.insert(entry.pid).second);
    EXPECT_EQ(entry.pid % 7, 0);
  }
  EXPECT_EQ(pids.size(), 29u);
  EXPECT_EQ(table.MaximumPid(), 4'194'304);
  EXPECT_TRUE(LinuxProcessTable(tree.Root() + "/nowhere").Read().empty());
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

enum class Mishap { kEnds, kIsReplaced, kDescriptorsRunOut };

constexpr std::int32_t kProcesses = 100;

/// Two passes, in which the mishap comes before one access, and one after it, which shows all.
/// Returns whether there was an access of that number.
bool SurvivesMishap(Mishap mishap, int access) {
  auto owned = std::make_unique<ScriptedProc>();
  ScriptedProc& proc = *owned;
  for (std::int32_t pid = 1; pid <= kProcesses; ++pid) proc.Start(pid);
  LinuxProcessTable table(std::move(owned));
  int count = 0;
  std::int32_t touched = kInvalidPID;
  int error = 0;
  proc.beforeAccess = [&](std::int32_t pid) {
    if (count++ == access) {
      if (mishap == Mishap::kDescriptorsRunOut) {
        error = EMFILE;
      } else {
        proc.End(pid);
      }
      if (mishap == Mishap::kIsReplaced) proc.Start(pid);
      touched = pid;
    }
    return std::exchange(error, 0);
  };
  for (int pass = 0; pass < 2; ++pass) {
    const auto entries = table.Read();
    ExpectWholeProcesses(proc, entries, touched);
  }
  const bool happened = count > access;
  count = access + 1;
  const auto entries = table.Read();
  ExpectWholeProcesses(proc, entries, kInvalidPID);
  EXPECT_EQ(entries.size(), proc.Running().size() + 1);
  // What was not kept for want of descriptors is opened again in its turn.
  for (int pass = 0; pass < LinuxProcessTable::kReadEvery; ++pass) table.Read();
  EXPECT_EQ(table.KeptDescriptors(), proc.Running().size());
  return happened;
}

TEST(ScriptedProcTree, NeverMixesProcessesWhateverVanishesWhen) {
  const std::size_t before = OpenDescriptors();
  int points = 0;
  for (const Mishap mishap : {Mishap::kEnds, Mishap::kIsReplaced, Mishap::kDescriptorsRunOut}) {
    for (int access = 0; SurvivesMishap(mishap, access); ++access, ++points) {
      ASSERT_FALSE(::testing::Test::HasFailure()) << static_cast<int>(mishap) << ' ' << access;
    }
  }
  EXPECT_GT(points, 2'000);
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(ScriptedProcTree, KeepsShowingProcessesWhenNoDescriptorIsLeft) {
  auto owned = std::make_unique<ScriptedProc>();
  ScriptedProc& proc = *owned;
  for (std::int32_t pid = 1; pid <= kProcesses; ++pid) proc.Start(pid);
  LinuxProcessTable table(std::move(owned));
  bool isShort = false;
  proc.beforeAccess = [&](std::int32_t) { return isShort ? ENFILE : 0; };
  table.Read();
  EXPECT_EQ(table.KeptDescriptors(), static_cast<std::size_t>(kProcesses));
  isShort = true;
  proc.End(5);
  proc.Start(kProcesses + 1);
  const auto entries = table.Read();
  EXPECT_EQ(entries.size(), static_cast<std::size_t>(kProcesses));
  ExpectWholeProcesses(proc, entries, kProcesses + 1);
  EXPECT_EQ(table.KeptDescriptors(), 0u);
  isShort = false;
  ExpectWholeProcesses(proc, table.Read(), kInvalidPID);
}

}  // namespace
}  // namespace lurkwell
