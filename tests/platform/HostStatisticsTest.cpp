// The machine's memory, from a made-up proc file system and from the real one.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <thread>

#include "platform/linux/LinuxHostStatistics.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

constexpr MachineSources kAllMachineSources = 2 * kGraphicsDevices - 1;

TEST(HostStatistics, AreReadByNameAndMissOnesAreTold) {
  const TemporaryFolder tree;
  const LinuxHostStatistics host(tree.Path());
  const std::int64_t page = host.PageSize().value() / 1024;
  VirtualMemoryStatistics statistics{7, 7, 7, 7};
  EXPECT_FALSE(host.ReadVirtualMemory(statistics));
  EXPECT_EQ(statistics.freePages, 7) << "what is not told stays";
  const auto line = [&](const char* name, std::int64_t pages) {
    return std::string(name) + ":   " + std::to_string(pages * page) + " kB\n";
  };
  const auto rest = line("SUnreclaim", 5) + line("KernelStack", 6) + line("PageTables", 7) +
                    line("Unevictable", 8);
  tree.Write("meminfo", line("MemTotal", 1000) + line("HighMemFree", 3) + line("MemFree", 100) +
                            line("MemAvailable", 350) + rest);
  tree.Write("vmstat", "pswpin 1\npswpout_other 2\npswpout 4294967296\n");
  ASSERT_TRUE(host.ReadVirtualMemory(statistics));
  EXPECT_EQ(statistics.freePages, 100);
  EXPECT_EQ(statistics.inactivePages, 250);
  EXPECT_EQ(statistics.wiredPages, 26);
  EXPECT_EQ(statistics.pageouts, 4'294'967'296);
  tree.Write("meminfo", line("MemFree", 100) + line("MemAvailable", 50));
  tree.Write("vmstat", "pswpout garbage\n");
  EXPECT_FALSE(host.ReadVirtualMemory(statistics));
  EXPECT_EQ(statistics.inactivePages, 0);
}

TEST(HostStatistics, OfTheRealMachineFitIntoItsMemory) {
  const LinuxHostStatistics host;
  VirtualMemoryStatistics statistics;
  ASSERT_TRUE(host.ReadVirtualMemory(statistics));
  const auto pages = host.PhysicalMemory() / host.PageSize().value();
  EXPECT_GT(statistics.freePages, 0);
  EXPECT_GT(statistics.wiredPages, 0);
  EXPECT_LE(statistics.freePages + statistics.inactivePages + statistics.wiredPages, pages);
  EXPECT_GE(host.Processors(), 1);
}

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::array<char, 4096> text{};
  const auto length = fread(text.data(), 1, text.size(), pipe.get());
  return {text.data(), length};
}
double NumberFrom(const std::string& command) {
  return std::atof(OutputOf(command).c_str());
}

TEST(HostStatistics, OfTheMachineAreWhatAShellFindsInItsFiles) {
  const LinuxHostStatistics host;
  // These go on: what is shown lies between what the shell finds before and after.
  const auto between = [](const char* command, auto read) {
    const double before = NumberFrom(command);
    const auto value = static_cast<double>(read());
    const double after = NumberFrom(command);
    EXPECT_LE(std::min(before, after) * 0.98 - 1e6, value) << command;
    EXPECT_GE(std::max(before, after) * 1.02 + 1e6, value) << command;
    EXPECT_GT(value, 0) << command;
  };
  between(
      "awk '/^cpu0 /{print ($2 + $3 + $4 + $7 + $8 + $9) * 1e6 / '$(getconf CLK_TCK)'}' /proc/stat",
      [&] { return host.Read(kProcessorTimes).processors.at(0).busy; });
  between("awk '/^cpu0 /{print ($5 + $6) * 1e6 / '$(getconf CLK_TCK)'}' /proc/stat",
          [&] { return host.Read(kProcessorTimes).processors.at(0).idle; });
  between("awk '/^MemAvailable/{print $2 * 1024}' /proc/meminfo",
          [&] { return host.Read(kMachineMemory).memory->available; });
  between("awk '/^MemTotal/{print $2 * 1024}' /proc/meminfo",
          [&] { return host.Read(kMachineMemory).memory->total; });
  EXPECT_EQ(static_cast<double>(host.Read(kProcessorTimes).processors.size()),
            NumberFrom("grep -c '^cpu[0-9]' /proc/stat"));
  const auto figures = host.Read(kAllMachineSources);
  ASSERT_TRUE(figures.load);
  EXPECT_NEAR((*figures.load)[2], NumberFrom("cut -d' ' -f3 /proc/loadavg"), 0.5);
  EXPECT_EQ(static_cast<double>(figures.interfaces.size()),
            NumberFrom("ls /sys/class/net | wc -l"));
  EXPECT_EQ(figures.processorPressure.has_value(),
            NumberFrom("cat /proc/pressure/cpu 2>/dev/null | wc -l") > 0);
  const auto disk = std::ranges::find_if(figures.disks, &MovedBytes::isPhysical);
  if (disk != figures.disks.end())
    between(("awk '$3 == \"" + disk->name + "\"{print $6 * 512}' /proc/diskstats").c_str(),
            [&] { return disk->in; });
  // Nothing is read that was not asked for.
  const auto load = host.Read(kLoad);
  EXPECT_TRUE(load.load && load.processors.empty() && !load.memory && load.interfaces.empty());
}

TEST(HostStatistics, OfAMadeUpMachineHaveWhatThisOneLacks) {
  const TemporaryFolder tree;
  const auto proc = [&](const char* path, const char* text) {
    tree.Write(std::string("proc/") + path, text);
  };
  const auto sys = [&](const char* path, const char* text) {
    tree.Write(std::string("sys/") + path, text);
  };
  tree.Make("proc");
  tree.Make("sys");
  const LinuxHostStatistics host(tree / "proc", tree / "sys");
  const auto empty = host.Read(kAllMachineSources);
  EXPECT_FALSE(empty.memory || empty.load || empty.processorPressure || empty.limits.memory);

  proc("meminfo",
       "MemTotal: 1000 kB\nMemAvailable: 300 kB\nCached: 70 kB\nSwapTotal: 50 kB\n"
       "SwapFree: 20 kB\nSwapCached: 9 kB\n");
  proc("stat", "cpu  1 2 3 4 5 6 7 8 0 0\ncpu0 1 2 3 4 5 6 7 8 0 0\nprocesses 9\n");
  proc("spl/kstat/zfs/arcstats", "13 1 0x01\nname type data\nc_min 4 51200\nsize 4 153600\n");
  proc("pressure/cpu", "some avg10=1.50 avg60=2.00 avg300=0.25 total=7\n");
  proc("pressure/io",
       "some avg10=0.00 avg60=0.00 avg300=1e99 total=7\n"
       "full avg10=3.00 avg60=0.00 avg300=0.00 total=7\n");
  proc("diskstats",
       "8 0 sda 1 2 30 4 5 6 70 8\n8 1 sda1 1 2 30 4 5 6 70 8\n7 0 loop0 1 2 9 4 5 6 9\n");
  sys("block/sda/device/model", "x");
  sys("block/loop0/size", "0");
  proc("net/dev", "head\n lo: 5 0 0 0 0 0 0 0 5 0\n eth0:7000000000 1 0 0 0 0 0 0 80 1\n");
  sys("class/net/eth0/device/vendor", "x");
  sys("class/hwmon/hwmon0/name", "k10temp\n");
  sys("class/hwmon/hwmon0/temp1_input", "45125\n");
  sys("class/hwmon/hwmon0/temp1_label", "Tctl\n");
  sys("class/hwmon/hwmon1/name", "amdgpu\n");
  sys("class/hwmon/hwmon1/temp1_input", "30000\n");
  sys("class/hwmon/hwmon1/device/power/runtime_status", "suspended\n");
  sys("devices/system/cpu/cpu1/cpufreq/scaling_cur_freq", "3400000\n");
  sys("class/drm/card0/device/gpu_busy_percent", "37\n");
  sys("class/drm/card0/device/mem_info_vram_total", "8000000000\n");
  sys("class/drm/card1/device/gpu_busy_percent", "9\n");
  sys("class/drm/card1/device/power/runtime_status", "suspended\n");
  sys("class/drm/card0-DP-1/device/gpu_busy_percent", "37\n");
  proc("self/cgroup", "0::/box/inner\n");
  sys("fs/cgroup/cgroup.controllers", "cpu memory\n");
  sys("fs/cgroup/box/memory.max", "512000\n");
  sys("fs/cgroup/box/memory.current", "1024\n");
  sys("fs/cgroup/box/cpu.max", "150000 100000\n");
  sys("fs/cgroup/box/inner/memory.max", "max\n");
  sys("fs/cgroup/box/inner/cpu.max", "max 100000\n");
  const auto figures = host.Read(kAllMachineSources);
  ASSERT_TRUE(figures.memory);
  EXPECT_EQ(figures.memory->available, 300 * 1024 + 102'400) << "what ZFS would give back counts";
  EXPECT_EQ(figures.memory->swapFree, 20 * 1024);
  EXPECT_EQ(figures.memory->cached, 70 * 1024);
  EXPECT_FALSE(figures.memory->buffers) << "what is not told is not 0";
  const std::int64_t tick = 1'000'000 / ::sysconf(_SC_CLK_TCK);
  ASSERT_TRUE(figures.modes && figures.processors.size() == 1);
  EXPECT_EQ(figures.modes->user, tick);
  EXPECT_EQ(figures.modes->stolen, 8 * tick);
  EXPECT_EQ(figures.processorPressure.value().someTime, 7);
  EXPECT_FALSE(figures.processorPressure.value().fullTime);
  EXPECT_EQ(figures.processorPressure.value().some, (std::array{1.5, 2.0, 0.25}));
  EXPECT_EQ(figures.diskPressure.value().some[2], 100.0) << "no absurd value";
  EXPECT_EQ(figures.diskPressure.value().full[0], 3.0);
  EXPECT_FALSE(figures.memoryPressure);
  ASSERT_EQ(figures.disks.size(), 2u) << "a partition is counted with its disk";
  EXPECT_TRUE(figures.disks[0].isPhysical && !figures.disks[1].isPhysical);
  EXPECT_EQ(figures.disks[0].in, 30 * 512);
  EXPECT_EQ(figures.disks[0].out, 70 * 512);
  EXPECT_EQ(figures.interfaces.at(1).in, 7'000'000'000);
  ASSERT_EQ(figures.temperatures.size(), 1u) << "a sleeping device is not woken";
  EXPECT_EQ(figures.temperatures[0].name, "k10temp Tctl");
  EXPECT_EQ(figures.temperatures[0].celsius, 45.125);
  ASSERT_EQ(figures.graphics.size(), 1u);
  EXPECT_EQ(figures.graphics[0].busy, 0.37);
  EXPECT_EQ(figures.graphics[0].memory, 8'000'000'000);
  EXPECT_FALSE(figures.graphics[0].memoryUsed);
  EXPECT_EQ(figures.frequencies.at(0).hertz, 3'400'000'000);
  EXPECT_EQ(figures.limits.memory, 512'000);
  EXPECT_EQ(figures.limits.memoryUsed, 1024);
  EXPECT_EQ(figures.limits.processors, 1.5);

  // The old hierarchies; a limit beyond what there is, is none.
  std::filesystem::remove(tree / "sys/fs/cgroup/cgroup.controllers");
  proc("self/cgroup", "4:memory:/a\n3:cpu,cpuacct:/\n1:name=systemd:/\n0::/\nodd\n");
  sys("fs/cgroup/memory/a/memory.limit_in_bytes", "9223372036854771712\n");
  sys("fs/cgroup/cpu,cpuacct/cpu.cfs_quota_us", "50000\n");
  sys("fs/cgroup/cpu,cpuacct/cpu.cfs_period_us", "100000\n");
  const auto old = host.Read(kLimits).limits;
  EXPECT_FALSE(old.memory);
  EXPECT_EQ(old.processors, 0.5);
}

TEST(HostStatistics, AreLeftOutWhereTheyAreGarbledAndTakenFromTheNextBestPlace) {
  const TemporaryFolder tree;
  const auto proc = [&](const char* path, const char* text) {
    tree.Write(std::string("proc/") + path, text);
  };
  const auto sys = [&](const char* path, const char* text) {
    tree.Write(std::string("sys/") + path, text);
  };
  proc("meminfo", "MemAvailable: 300 kB\n");
  proc("stat",
       "cpu  1 2 3\ncpu0 1 2 -3 4 5 6 7 8\ncpux 1 2 3 4 5 6 7 8\nprocesses many\n"
       "cpu7 0 1 2 3 4 5 6 7\n");
  proc("loadavg", "0.50 -1.00 2.00 1/2 3\n");
  proc("pressure/cpu", "half avg10=9 total=9\nsome avg10=x avg60=-3 total=-1\n");
  proc("pressure/memory", "half avg10=9 total=9\n");
  proc("pressure/io", "full avg300=4.5\n");
  proc("diskstats", "8 0 sda 1 2 3\n8 16 sdb 1 2 3 4 5 6 7\n");
  sys("block/sda/size", "1");
  proc("net/dev", "no colon\n eth0: 5 6 7\n");
  sys("class/hwmon/hwmon0/name", "broken\n");
  sys("class/hwmon/hwmon0/temp1_input", "hot\n");
  sys("class/thermal/thermal_zone0/type", "acpitz\n");
  sys("class/thermal/thermal_zone0/temp", "-2500\n");
  sys("class/thermal/thermal_zone1/type", "asleep\n");
  sys("class/drm/card0/device/gpu_busy_percent", "busy\n");
  sys("class/drm/card1/device/gpu_busy_percent", "250\n");
  sys("devices/system/cpu/cpufreq/scaling_cur_freq", "1\n");
  sys("devices/system/cpu/cpu3/topology", "1\n");
  proc("self/cgroup", "0\n0:\n0::/a/b\n");
  sys("fs/cgroup/cgroup.controllers", "cpu memory\n");
  sys("fs/cgroup/a/memory.max", "1000\n");
  sys("fs/cgroup/a/memory.current", "10\n");
  sys("fs/cgroup/a/cpu.max", "100000 0\n");
  sys("fs/cgroup/a/b/memory.max", "2000\n");
  sys("fs/cgroup/a/b/memory.current", "20\n");
  sys("fs/cgroup/a/b/cpu.max", "50000 100000\n");
  sys("fs/cgroup/cpu.max", "300000 100000\n");
  const LinuxHostStatistics host(tree / "proc", tree / "sys");
  const auto figures = host.Read(kAllMachineSources);
  EXPECT_FALSE(figures.memory || figures.modes || figures.begunTasks || figures.load);
  ASSERT_EQ(figures.processors.size(), 1u);
  EXPECT_EQ(figures.processors[0].number, 7);
  EXPECT_EQ(figures.processorPressure.value().some, (std::array{0.0, 0.0, 0.0}));
  EXPECT_FALSE(figures.processorPressure->someTime || figures.memoryPressure);
  EXPECT_EQ(figures.diskPressure.value().full[2], 4.5);
  EXPECT_FALSE(figures.diskPressure->fullTime);
  EXPECT_TRUE(figures.disks.empty() && figures.interfaces.empty() && figures.frequencies.empty());
  ASSERT_EQ(figures.temperatures.size(), 1u) << "zones count where no sensor tells anything";
  EXPECT_EQ(figures.temperatures[0].name, "acpitz");
  EXPECT_EQ(figures.temperatures[0].celsius, -2.5);
  ASSERT_EQ(figures.graphics.size(), 1u);
  EXPECT_EQ(figures.graphics[0].busy, 1.0) << "no more than all of it";
  EXPECT_EQ(figures.limits.memory, 1000) << "the tightest of all groups above";
  EXPECT_EQ(figures.limits.memoryUsed, 10);
  EXPECT_EQ(figures.limits.processors, 0.5);
  // Where the path is that of a machine outside, what is mounted here is our group.
  proc("self/cgroup", "0::/../b\n");
  EXPECT_EQ(host.Read(kLimits).limits.processors, 3);
}

TEST(HostStatistics, BecomeRatesByTheTimeThatHasPassed) {
  MachineFigures before, after;
  before.processors = {{0, 100, 900}, {1, 500, 500}, {3, 5, 5}};
  after.processors = {{0, 350, 1650}, {1, 400, 1600}, {2, 1, 1}};
  before.disks = {{"sda", 1000, 0, true}, {"dm-0", 1000, 0, false}, {"sdb", 9000, 0, true}};
  after.disks = {{"sda", 5000, 80, true}, {"dm-0", 5000, 0, false}, {"sdb", 10, 7, true}};
  before.interfaces = {{"lo", 0, 0, false}, {"veth", 100, 100, false}};
  after.interfaces = {{"lo", 9000, 9000, false}, {"veth", 500, 100, false}};
  MachineRates rates;
  EXPECT_FALSE(rates.Take(before, 1'000'000).diskRead) << "of one reading";
  const auto activity = rates.Take(after, 5'000'000);
  ASSERT_EQ(activity.processors.size(), 1u) << "went back, or was not there before";
  EXPECT_EQ(activity.processors[0], 0.25);
  EXPECT_EQ(activity.diskRead, 1000.0) << "of the physical ones that did not go back";
  EXPECT_EQ(activity.diskWritten, 20.0 + 7.0 / 4);
  ASSERT_EQ(activity.disks.size(), 2u);
  EXPECT_EQ(activity.disks[1].name, "sdb");
  EXPECT_FALSE(activity.disks[1].in) << "went back";
  EXPECT_EQ(activity.disks[1].out, 1.75);
  EXPECT_EQ(activity.received, 100.0) << "without the loopback";
  EXPECT_EQ(activity.sent, 0.0);
  EXPECT_FALSE(rates.Take(after, 5'000'000).received) << "no time has passed";
}

/// The kernel tells of births in the namespaces that it has begun with.
bool MayHearOfBirths() {
  std::error_code error;
  const auto pids = std::filesystem::read_symlink("/proc/self/ns/pid", error).string();
  const auto sameNetwork =
      std::filesystem::equivalent("/proc/self/ns/net", "/proc/1/ns/net", error);
  return ::geteuid() == 0 && pids == "pid:[4026531836]" && sameNetwork;
}

TEST(HostStatistics, CountEachProcessThatBeginsAndNoThread) {
  const LinuxHostStatistics host;
  const auto births = host.CountBirths();
  if (births != nullptr) {
    EXPECT_EQ(births->Since(), std::nullopt);
  }
  constexpr int kProcesses = 200;
  constexpr int kThreads = 50;
  const auto begun = [&host] { return host.Read(kProcessorTimes).begunTasks.value_or(0); };
  const auto before = begun();
  for (int i = 0; i < kProcesses; ++i) {
    const auto child = ::fork();
    if (child == 0) ::_exit(0);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
  }
  for (int i = 0; i < kThreads; ++i) std::thread([] {}).join();
  const auto told = births == nullptr ? std::nullopt : births->Since();
  if (told) {
    EXPECT_GE(*told, kProcesses);
    // Others may have begun meanwhile.
    EXPECT_LE(*told, begun() - before - kThreads);
  }
  EXPECT_TRUE(told || !MayHearOfBirths());
}

}  // namespace
}  // namespace lurkwell
