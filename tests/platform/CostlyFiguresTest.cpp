// The figures that are read in the background: of this machine's processes, and of made-up ones
// that hang.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxProcessTable.h"
#include "support/Child.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

using std::chrono::steady_clock;

constexpr std::int64_t kMebibyte = 1 << 20;

ProcessIdentity IdentityOf(pid_t pid) {
  return LinuxProcessTable().CurrentIdentity(pid).value_or(ProcessIdentity{});
}

/// The next reading of these processes that is collected, as beats would; nothing when none comes
/// in ten seconds.
std::optional<CostlyReading> NextReading(CostlyFigures& figures,
                                         const std::vector<CostlyWish>& wishes) {
  for (int i = 0; i < 1000; ++i) {
    if (i % 100 == 0) figures.Ask(wishes);
    auto readings = figures.Collect();
    if (!readings.empty()) return readings.back();
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return std::nullopt;
}

std::optional<CostlyReading> ReadingOf(CostlyFigures& figures, pid_t pid,
                                       FigureSources sources = kCostlyFigureSources) {
  return NextReading(figures, {{IdentityOf(pid), sources}});
}

/// Maps 100 MiB and touches half of them.
void* TakeMemory() {
  constexpr std::size_t kSize = 100 * kMebibyte;
  void* memory = ::mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  std::fill_n(static_cast<char*>(memory), kSize / 2, 'x');
  return memory;
}

std::string Descriptors(pid_t pid) {
  const std::string command = "ls /proc/" + std::to_string(pid) + "/fd | wc -l";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  int count = 0;
  return std::fscanf(pipe.get(), "%d", &count) == 1 ? std::to_string(count) : "";
}

TEST(CostlyFigures, TellWhatMemoryIsItsOwnAndWhatIsShared) {
  constexpr Figure kPss = FigureCalled("pid_pss"), kUss = FigureCalled("pid_uss");
  LinuxCostlyFigures figures;
  const Child alone([] { TakeMemory(); });
  const auto own = ReadingOf(figures, alone.Pid(), kFromMemoryMap);
  ASSERT_TRUE(own);
  EXPECT_EQ(own->sources, FigureSources{kFromMemoryMap});
  // Beside it there are a few pages of the test program.
  EXPECT_NEAR(static_cast<double>(own->figures.Get(kUss)), 50 * kMebibyte, 4 * kMebibyte);
  EXPECT_NEAR(static_cast<double>(own->figures.Get(kPss)), 50 * kMebibyte, 6 * kMebibyte);
  const Child sharing([] {
    TakeMemory();
    if (::fork() == 0) {
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);
      // There is no waiting for what this one has open.
      ::close_range(3, ~0u, 0);
      for (;;) ::pause();
    }
  });
  const auto half = ReadingOf(figures, sharing.Pid(), kFromMemoryMap);
  ASSERT_TRUE(half);
  EXPECT_LT(half->figures.Get(kUss), 4 * kMebibyte);
  EXPECT_NEAR(static_cast<double>(half->figures.Get(kPss)), 25 * kMebibyte, 4 * kMebibyte);
}

TEST(CostlyFigures, CountDescriptorsAndTellWhatIsNotAllowed) {
  ASSERT_EQ(::geteuid(), 0u);
  const Child child([] {
    for (int i = 0; i < 40; ++i) EXPECT_GE(::open("/dev/null", O_RDONLY), 0);
  });
  constexpr Figure kCount = FigureCalled("pid_descriptors");
  LinuxCostlyFigures ours;
  const auto reading = ReadingOf(ours, child.Pid());
  ASSERT_TRUE(reading);
  EXPECT_EQ(std::to_string(reading->figures.Get(kCount)), Descriptors(child.Pid()));
  EXPECT_GE(reading->figures.Get(kCount), 40);
  EXPECT_EQ(RunForked([&]() -> std::string {
              BecomeUser(kStranger);
              LinuxCostlyFigures figures;
              const auto others = ReadingOf(figures, child.Pid());
              if (!others) return "nothing was read";
              if (others->figures.StateOf(FigureCalled("pid_pss")) != FigureState::kRefused)
                return "memory was not refused";
              // Kernels of 6.2 and later tell every user the number.
              if (others->figures.StateOf(kCount) == FigureState::kKnown &&
                  others->figures.Get(kCount) != reading->figures.Get(kCount))
                return "another number of descriptors";
              return "";
            }),
            "");
}

TEST(CostlyFigures, OfAnEndedProcessAreNotTakenForThoseOfTheNextOne) {
  LinuxCostlyFigures figures;
  const Child child;
  auto earlier = IdentityOf(child.Pid());
  --earlier.startStamp;
  const auto reading = NextReading(figures, {{earlier, kCostlyFigureSources, true},
                                             {IdentityOf(child.Pid()), kFromDescriptorCount}});
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->process, IdentityOf(child.Pid()));
}

/// A made-up process without memory or descriptors, but for what a test puts there.
void Make(const TemporaryFolder& tree, int pid) {
  const auto folder = std::to_string(pid);
  tree.Write(folder + "/stat", folder +
                                   " (x) S 1 0 0 0 0 0 0 0 0 0 0 0 0 0 20 0 1 0 77 4096 1 0 0 0 0 0"
                                   " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\n");
  tree.Write(folder + "/smaps_rollup", "x\nPss: 5 kB\nPrivate_Clean: 1 kB\nPrivate_Dirty: 2 kB\n");
  std::filesystem::create_directories(tree.Path() + '/' + folder + "/fd");
}

TEST(CostlyFigures, ComeOnAlthoughAReadingHangs) {
  const TemporaryFolder tree;
  for (int pid = 2; pid <= 4; ++pid) Make(tree, pid);
  const std::string stuck = tree.Path() + "/2/smaps_rollup";
  std::filesystem::remove(stuck);
  ASSERT_EQ(::mkfifo(stuck.c_str(), 0600), 0);
  const auto begun = steady_clock::now();
  {
    LinuxCostlyFigures figures(tree.Path());
    const std::vector<CostlyWish> wishes = {{{2, 77}, kFromMemoryMap, true},
                                            {{3, 77}, kFromMemoryMap},
                                            {{4, 77}, kFromDescriptorCount}};
    std::vector<std::int32_t> read;
    for (int beat = 0; beat < 100 && read.size() < 2; ++beat) {
      figures.Ask(wishes);
      for (const auto& reading : figures.Collect()) {
        read.push_back(reading.process.pid);
        if (reading.process.pid != 3) continue;
        EXPECT_EQ(reading.figures.Get(FigureCalled("pid_uss")), 3 * 1024);
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    EXPECT_EQ(read, (std::vector<std::int32_t>{3, 4}));
    EXPECT_GE(steady_clock::now() - begun, std::chrono::milliseconds(900)) << "it did hang";
  }
  // The thread that hung ends with its reading.
  ::close(::open(stuck.c_str(), O_WRONLY));
}

TEST(CostlyFigures, TakeNoMoreTimeThanTheyAreAllowed) {
  const TemporaryFolder tree;
  Make(tree, 2);
  Make(tree, 3);
  LinuxCostlyFigures figures(tree.Path());
  std::vector<CostlyWish> wishes(200'000, {{2, 77}, kCostlyFigureSources, false});
  // What is in sight goes before.
  wishes.push_back({{3, 77}, kCostlyFigureSources, true});
  const auto begun = steady_clock::now();
  figures.Ask(wishes);
  std::this_thread::sleep_for(std::chrono::seconds(1));
  const auto taken = figures.TakenTime();
  const auto passed =
      std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - begun);
  const auto readings = figures.Collect();
  ASSERT_GT(readings.size(), 100u);
  EXPECT_LT(readings.size(), wishes.size());
  EXPECT_EQ(readings.front().process.pid, 3);
  // The beginning, 50 us in each millisecond, and what a reading may take too long.
  EXPECT_LE(taken, 100'000 + 50 * passed.count() + 60'000);
  // And nothing runs while nothing is asked.
  figures.Ask({});
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  const auto before = figures.TakenTime();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_EQ(figures.TakenTime(), before);
}

}  // namespace
}  // namespace lurkwell
