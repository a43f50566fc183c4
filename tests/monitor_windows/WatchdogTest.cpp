// The watchdog: programs that end and start again.
#include <chrono>

#include "monitor_windows/FollowingTest.h"

namespace lurkwell {
namespace {

class WatchdogTest : public FollowingTest {
 protected:
  std::string Logs() {
    std::string text;
    auto logs = Windows();
    std::ranges::sort(
        logs, {}, [](auto* log) { return std::pair(log->stateInfo().pid, log->window()->x()); });
    for (auto* log : logs)
      text += std::to_string(log->stateInfo().pid) + " at " + std::to_string(log->window()->x()) +
              (log->stateInfo().pidWentAway ? " ended\n" : "\n");
    return text;
  }
};

TEST_F(WatchdogTest, WindowsComeBackWithTheirProgram) {
  machine.processTable.Birth(300, "prog");
  StartWatchdog();
  Turn();
  const WindowRect rect{120, 130, 620, 430};
  LoggingWindowUI::CreateLoggingWindowWithInterval(disk, 2500, 300, nullptr, &rect, -1);
  Remember(kCPUHistoryWindowKind, "prog", Uuid::Fresh(), {5, 6, 7, 8});
  Turn();
  auto& log = *Windows().front();
  const auto uuid = log.client()->Identifier();
  log.window()->move(150, 160);
  log.table()->setColumnWidth(0, 211);
  machine.processTable.Death(300);
  Turn(3000);
  EXPECT_EQ(Logs(), "300 at 150 ended\n");
  Close(log);
  opened.Clear();
  machine.processTable.Birth(400, "prog");
  machine.processTable.Birth(401, "Prog");
  machine.processTable.Birth(402, "program");
  Turn(500);
  EXPECT_EQ(opened.Take(), "history of 400 every 250 at 5 6 7 8\n") << "within its interval";
  EXPECT_EQ(Logs(), "400 at 150\n");
  auto& again = *Windows().front();
  EXPECT_EQ(again.client()->Identifier(), uuid);
  EXPECT_EQ(again.client()->Interval(), 2500) << "its own";
  EXPECT_EQ(again.table()->columnWidth(0), 211);
  EXPECT_EQ(GetPrefArrayCount(kLoggingWindowKind), 1);
  machine.processTable.Birth(500, "prog");
  Turn();
  EXPECT_EQ(Logs(), "400 at 150\n500 at 150\n") << "one for each instance";
  for (auto* each : Windows())
    if (each->stateInfo().pid == 500) each->window()->move(350, 160);
  machine.processTable.Death(500);
  machine.processTable.Birth(600, "prog");
  Turn(500);
  EXPECT_EQ(Logs(), "400 at 150\n500 at 350\n600 at 350\n") << "it was back before the log knew";
}

TEST_F(WatchdogTest, EveryRecordOfAProgramOpensItsWindow) {
  machine.processTable.Birth(300, "prog");
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {10, 50, 410, 300});
  Remember(kLoggingWindowKind, "other", Uuid::Fresh(), {20, 50, 410, 300});
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {30, 50, 410, 300}, "Classic");
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {40, 50, 410, 300});
  StartWatchdog();
  EXPECT_EQ(Logs(), "300 at 10\n300 at 40\n");
  machine.processTable.Find(300)->SetName("other");
  Turn(3000);
  EXPECT_EQ(Logs(), "300 at 10\n300 at 20\n300 at 40\n") << "it has become another program";
  machine.processTable.Birth(301, "prog");
  Remember(kCPUHistoryWindowKind, "prog", Uuid::Fresh());
  for (const char* name : {"prog", "other", "prog"}) {
    machine.processTable.Find(300)->SetName(name);
    Turn(3000);
  }
  EXPECT_EQ(Logs(), "300 at 10\n300 at 20\n300 at 40\n301 at 10\n301 at 40\n")
      << "each has its windows once";
  EXPECT_EQ(histories.size(), 2U);
}

TEST_F(WatchdogTest, StartUpWindowsAreThoseOfThePreferences) {
  SetPrefInt("DEFAULT_SHOW_PROCESS_QUIVA_WINDOW", 1);
  StartWatchdog();
  EXPECT_EQ(opened.Take(), "main\nview\n");
  SetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", 0);
  SetPrefInt("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", 1);
  StartWatchdog();
  EXPECT_EQ(opened.Take(), "full screen\n");
}

TEST_F(WatchdogTest, ItNeedsNamesOfAllAndSignaturesOfApplications) {
  machine.processTable.Birth(300, "prog");
  machine.processTable.Birth(301, "plain");
  machine.processManager.Launch({1, 300}, 300, "Program");
  StartWatchdog();
  auto* dog = new ProcessWatchdog(500, windows);
  EXPECT_EQ(dog->NeedPidsForProcProperty("meta_kind"), ProcessInformationClient::kNeedAllPids);
  EXPECT_EQ(dog->NeedPidsForProcProperty("carbonpsn_signature"),
            ProcessInformationClient::kNeedSomePids);
  EXPECT_EQ(dog->NeedPidsForProcProperty("pid_rsz"), ProcessInformationClient::kNeedNoPids);
  EXPECT_TRUE(dog->NeedPidProcProperty(-2, "carbonpsn_signature"));
  EXPECT_TRUE(dog->NeedPidProcProperty(300, "carbonpsn_signature"));
  EXPECT_FALSE(dog->NeedPidProcProperty(301, "carbonpsn_signature"));
  EXPECT_FALSE(dog->NeedPidProcProperty(-1, "carbonpsn_signature"));
}

TEST_F(WatchdogTest, AHundredThousandRecordsDoNotHoldUpTheStart) {
  PreferenceArray records(100'000);
  for (std::size_t number = 0; number < records.size(); ++number)
    records[number] = {{"PROCESS_NAME", "prog" + std::to_string(number % 500)},
                       {"PROCESS_KIND", std::string("Darwin")},
                       {"WINDOW_UUID", Uuid::Fresh().Text()},
                       {"WINDOW_RECT_LEFT", static_cast<std::int64_t>(number) * 1000},
                       {"LOG_TO_FILE", std::int64_t{1}}};
  machine.preferenceDomain.SetValue("CPU_HISTORY_WINDOW",
                                    PreferenceArray(records.begin(), records.begin() + 100));
  machine.preferenceDomain.SetValue("LOGGING_WINDOW", std::move(records));
  for (int pid = 300; pid < 800; ++pid)
    machine.processTable.Birth(pid, "prog" + std::to_string(pid - 300));
  const auto start = std::chrono::steady_clock::now();
  StartWatchdog();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  RecordProperty("seconds", std::to_string(seconds.count()));
  std::printf("start: %.2f s\n", seconds.count());
  EXPECT_EQ(windows.CountOpenWindows(), MonitorWindowKinds::kMostOpenWindows);
  EXPECT_EQ(windows.CountRoom(), 0);
  EXPECT_LT(seconds.count(), 20) << "3 s on a machine that has nothing else to do";
}

}  // namespace
}  // namespace lurkwell
