// The machine's memory, from a made-up proc file system and from the real one.
#include "platform/linux/LinuxHostStatistics.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

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

}  // namespace
}  // namespace lurkwell
