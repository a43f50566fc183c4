// The figures that are read in the background, of made-up processes: some hang, some use devices
// that this machine has not; and how much time all of that may take.
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "CostlyReadings.h"
#include "platform/linux/LinuxCostlyFigures.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

using std::chrono::steady_clock;

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

TEST(CostlyFigures, OfGraphicsDevicesCountAClientOnceAndLookAtNothingElse) {
  const TemporaryFolder tree;
  Make(tree, 2);
  Make(tree, 3);
  Make(tree, 4);
  tree.Write("dri/renderD128", "");
  const auto link = [&](const std::string& descriptor, const std::string& target) {
    std::filesystem::remove(tree / descriptor);
    std::filesystem::create_symlink(target, tree / descriptor);
  };
  const auto use = [&](const std::string& descriptor, const char* client, const char* cycles) {
    tree.Write(descriptor, std::string("drm-driver:\txe\ndrm-client-id:\t") + client +
                               "\ndrm-resident-vram0:\t4 MiB\ndrm-cycles-rcs:\t" + cycles +
                               "\ndrm-total-cycles-rcs:\t" + cycles + "00\n");
  };
  for (const char* descriptor : {"2/fd/3", "2/fd/4"}) link(descriptor, tree / "dri/renderD128");
  link("2/fd/5", "/dev/null");
  link("4/fd/0", "/dev/nvidia0");
  for (const char* info : {"2/fdinfo/3", "2/fdinfo/4", "2/fdinfo/5"})
    use(info, info == std::string("2/fdinfo/5") ? "8" : "7", "1");
  constexpr Figure kShareFigure = FigureCalled("pid_gpu_share");
  constexpr Figure kMemory = FigureCalled("pid_gpu_memory");
  LinuxCostlyFigures figures(tree.Path(), tree.Path(), tree / "dri");
  const auto read = [&](std::int32_t pid) {
    return NextReading(figures, {{{pid, 77}, kFromGraphics}}).value_or(CostlyReading{}).figures;
  };
  EXPECT_EQ(read(3).StateOf(kShareFigure), FigureState::kKnown) << "without a device it uses none";
  EXPECT_EQ(read(4).StateOf(kShareFigure), FigureState::kUncounted)
      << "a driver that tells nothing";
  // All processes of interest stay asked for, else they are forgotten.
  const auto first = read(2);
  EXPECT_EQ(first.StateOf(kShareFigure), FigureState::kUnread) << "of one look";
  EXPECT_EQ(first.Get(kMemory), 4 * kMebibyte);
  // A number that was another file's a moment ago is not looked at again so soon.
  link("2/fd/5", tree / "dri/renderD128");
  for (const char* info : {"2/fdinfo/3", "2/fdinfo/4"}) use(info, "7", "31");
  const auto second = read(2);
  EXPECT_EQ(second.Get(kShareFigure), 1000) << "a hundredth of the cycles";
  EXPECT_EQ(second.GetText(FigureCalled("pid_gpu_engine")), "rcs");
  EXPECT_EQ(second.Get(kMemory), 4 * kMebibyte);
  LinuxCostlyFigures without(tree.Path(), tree.Path(), tree / "none");
  const auto reading = NextReading(without, {{{2, 77}, kFromGraphics}});
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->figures.StateOf(kMemory), FigureState::kUncounted);
}

/// Processor time of all threads but this one so far, in microseconds.
std::int64_t TimeOfOthers() {
  const auto timeOf = [](clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return time.tv_sec * std::int64_t{1'000'000} + time.tv_nsec / 1000;
  };
  return timeOf(CLOCK_PROCESS_CPUTIME_ID) - timeOf(CLOCK_THREAD_CPUTIME_ID);
}

TEST(CostlyFigures, TakeNoMoreTimeThanTheyAreAllowed) {
  const TemporaryFolder tree;
  Make(tree, 2);
  Make(tree, 3);
  LinuxCostlyFigures figures(tree.Path());
  constexpr FigureSources kCheap = kFromMemoryMap | kFromDescriptorCount;
  std::vector<CostlyWish> wishes(50'000, {{2, 77}, kCheap, false});
  // What is in sight goes before.
  wishes.push_back({{3, 77}, kCheap, true});
  const auto begun = steady_clock::now();
  const auto atFirst = TimeOfOthers();
  figures.Ask(wishes);
  std::this_thread::sleep_for(std::chrono::seconds(1));
  const auto taken = TimeOfOthers() - atFirst;
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
  const auto before = TimeOfOthers();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_NEAR(static_cast<double>(TimeOfOthers()), static_cast<double>(before), 5'000);
}

}  // namespace
}  // namespace lurkwell
