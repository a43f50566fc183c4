// The debugging window over a simulated machine.
#include <QApplication>

#include "monitor_windows/SystemWideInfo.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using SystemWideInfoTest = ConsolidatorTest;

TEST_F(SystemWideInfoTest, ShowsMemoryUsageAndPageoutsAndKeepsItsPlace) {
  auto& idle = *machine.processTable.Find(0);
  idle.UseCPU(600'000);
  Start();
  auto& host = machine.hostStatistics;
  host.physicalMemory = 2'147'483'648;
  host.pageSize = 1;
  host.virtualMemory = {.freePages = 1'073'741'824 + 513, .pageouts = 42};
  CreateSystemWideInfo(1000);
  const auto& info = *gSystemWideInfo;
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(info.MemoryLine(), QLatin1String("MB used: 1023/2048   "));
  EXPECT_EQ(info.UsageLine(), QLatin1String("cpu usage: 100.00  ")) << "nothing to compare with";
  EXPECT_EQ(info.PageoutsLine(), QLatin1String("pageouts: 42  "));
  idle.UseCPU(250);
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(info.UsageLine(), QLatin1String("cpu usage: 75.00  "));
  idle.UseCPU(1500);
  host.processors = 2;
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(info.UsageLine(), QLatin1String("cpu usage: 25.00  "));
  idle.UseCPU(1500);
  host.processors = 1;
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(info.UsageLine(), QLatin1String("cpu usage: -50.00  ")) << "not bounded";
  host.pageSize.reset();
  host.virtualMemory.reset();
  testing::internal::CaptureStderr();
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "didn't get pagesize so defaulting to 4K\nerror: failed to get stats\n");
  EXPECT_EQ(info.MemoryLine(), QLatin1String("MB used: 2048/2048   "));
  EXPECT_EQ(info.ContentBounds(), (WindowRect{100, 300, 290, 350}));
  EXPECT_DEATH(CreateSystemWideInfo(1000),
               "SystemWideInfo:[0-9]+: failed assertion `gSystemWideInfo == NULL'");
  info.Window()->move(150, 320);
  QApplication::processEvents();
  CleanupSystemWideInfo();
  EXPECT_EQ(gSystemWideInfo, nullptr);
  CleanupSystemWideInfo();
  EXPECT_EQ(GetPrefInt("QUBS_DEBUGGING_WINDOW_LEFT", nullptr, false, 0), 150);
  EXPECT_EQ(GetPrefInt("QUBS_DEBUGGING_WINDOW_BOTTOM", nullptr, false, 0), 370);
}

}  // namespace
}  // namespace lurkwell
