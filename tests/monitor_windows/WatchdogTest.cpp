// The watchdog: programs that end and start again.
#include "monitor_windows/FollowingTest.h"
#include "monitor_windows/ScreenPlacement.h"

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
  const int rows = log.rowCount();
  machine.processTable.Birth(300, "stranger").UseCPU(500);
  Turn(3000);
  EXPECT_EQ(log.rowCount(), rows) << "a process of the same number is another one";
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
}

TEST_F(WatchdogTest, NobodyIsWokenOftenForWindowsThatAreNotThere) {
  StartWatchdog();
  Turn();
  machine.log.Clear();
  Turn(16'000);
  const auto looks = std::ranges::count(machine.log.Lines(), "ProcessTable.Read");
  EXPECT_TRUE(looks >= 3 && looks <= 5) << looks;
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {10, 50, 410, 300});
  Turn(4000);
  machine.processTable.Birth(300, "prog");
  Turn(500);
  EXPECT_EQ(Logs(), "300 at 10\n");
}

TEST_F(WatchdogTest, ARecordHasOneOpenWindowAtATimeHoweverManyInstancesThereAre) {
  for (int pid = 300; pid < 340; ++pid) machine.processTable.Birth(pid, "shell");
  Remember(kLoggingWindowKind, "shell", Uuid::Fresh(), {10, 50, 410, 300});
  Remember(kCPUHistoryWindowKind, "shell", Uuid::Fresh());
  StartWatchdog();
  EXPECT_EQ(Logs(), "300 at 10\n") << "the first of those that are new at once";
  machine.processTable.Birth(400, "shell");
  Turn();
  EXPECT_EQ(windows.CountOpenWindows(), 2);
  machine.processTable.Find(300)->UseCPU(1000);
  Turn();
  auto& log = *Windows().front();
  const int rows = log.rowCount();
  machine.processTable.Death(300);
  Turn(3000);
  EXPECT_EQ(Logs(), "300 at 10 ended\n") << "none has started since";
  machine.processTable.Birth(401, "shell").UseCPU(500);
  Turn(3000);
  EXPECT_EQ(Logs(), "401 at 10\n") << "the window goes on with the next one";
  EXPECT_EQ(log.rowCount(), rows + 2) << "a mark, and what that one does";
  EXPECT_EQ(log.window()->windowTitle(), QLatin1String("Logging shell pid:401"));
  EXPECT_EQ(histories.size(), 1U);
  EXPECT_EQ(histories.front().second, 401);
}

TEST_F(WatchdogTest, APidThatTheProgramGetsAgainAtOnceIsFollowed) {
  machine.processTable.Birth(300, "prog").UseCPU(1000);
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {10, 50, 410, 300});
  StartWatchdog();
  Turn();
  machine.processTable.Death(300);
  machine.processTable.Birth(300, "prog").UseCPU(20);
  Turn(3000);
  EXPECT_EQ(Logs(), "300 at 10\n");
  auto& log = *Windows().front();
  const int rows = log.rowCount();
  machine.processTable.Find(300)->UseCPU(30);
  Turn();
  EXPECT_EQ(log.rowCount(), rows + 1);
}

TEST_F(WatchdogTest, TheProcessThatWasFollowedLastComesFirst) {
  for (int pid = 300; pid < 310; ++pid) machine.processTable.Birth(pid, "shell");
  Start();
  Add("keeper", 100).Needs({"meta_name", "meta_kind"});
  Turn(200);
  Remember(kLoggingWindowKind, "shell", Uuid::Fresh(), {10, 50, 410, 300});
  machine.processTable.Find(305)->owner = "somebody";
  RememberProcess(kLoggingWindowKind, 0, 305);
  StartWatchdog();
  EXPECT_EQ(Logs(), "305 at 10\n");
  Close(*Windows().front());
  Remember(kLoggingWindowKind, "shell", Uuid::Fresh(), {10, 50, 410, 300});
  RememberProcess(kLoggingWindowKind, 0, 305);
  machine.processTable.Death(305);
  for (int pid = 310; pid < 315; ++pid) machine.processTable.Birth(pid, "shell");
  machine.processTable.Find(313)->owner = "somebody";
  Turn(3000);
  EXPECT_EQ(Logs(), "313 at 10\n") << "then those of the same owner";
}

TEST_F(WatchdogTest, EveryRecordOfAProgramOpensItsWindow) {
  machine.processTable.Birth(300, "prog");
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {10, 50, 110, 150});
  Remember(kLoggingWindowKind, "other", Uuid::Fresh(), {220, 50, 320, 150});
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {330, 50, 430, 150}, "Classic");
  Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {440, 50, 540, 150});
  StartWatchdog();
  EXPECT_EQ(Logs(), "300 at 10\n300 at 440\n");
  machine.processTable.Find(300)->SetName("other");
  Turn(3000);
  EXPECT_EQ(Logs(), "300 at 10\n300 at 220\n300 at 440\n") << "it has become another program";
  Remember(kCPUHistoryWindowKind, "prog", Uuid::Fresh());
  for (const char* name : {"prog", "other", "prog"}) {
    machine.processTable.Find(300)->SetName(name);
    Turn(3000);
  }
  EXPECT_EQ(Logs(), "300 at 10\n300 at 220\n300 at 440\n") << "each has its windows once";
  EXPECT_EQ(histories.size(), 1U);
}

TEST_F(WatchdogTest, WindowsThatWouldLieOnEachOtherAreMovedApart) {
  machine.processTable.Birth(300, "prog");
  for (int record = 0; record < 3; ++record)
    Remember(kLoggingWindowKind, "prog", Uuid::Fresh(), {100, 100, 200, 180});
  StartWatchdog();
  std::vector<QRect> frames;
  for (auto* log : Windows()) frames.push_back(log->window()->geometry());
  ASSERT_EQ(frames.size(), 3U);
  for (std::size_t i = 0; i < frames.size(); ++i)
    for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(frames[i].intersects(frames[j]));
  EXPECT_EQ(PlaceApart({100, 100, 200, 180}, {{150, 140, 100, 80}}),
            (WindowRect{100, 100, 200, 180}))
      << "what covers a part only is the user's wish";
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

TEST_F(WatchdogTest, ManyRecordsDoNotHoldUpTheStart) {
  constexpr std::size_t kRecords = 10'000;
  PreferenceArray records(kRecords);
  const auto identifier = [](std::size_t number) {
    const auto digits = std::to_string(number);
    return "00000000-0000-0000-0000-" + std::string(12 - digits.size(), '0') + digits;
  };
  for (std::size_t number = 0; number < records.size(); ++number)
    records[number] = {{"PROCESS_NAME", "prog" + std::to_string(number % 500)},
                       {"PROCESS_KIND", std::string("Darwin")},
                       {"WINDOW_UUID", identifier(number)},
                       {"WINDOW_RECT_LEFT", static_cast<std::int64_t>(number) * 1000},
                       {"LOG_TO_FILE", std::int64_t{1}}};
  machine.preferenceDomain.SetValue("CPU_HISTORY_WINDOW",
                                    PreferenceArray(records.begin(), records.begin() + 100));
  machine.preferenceDomain.SetValue("LOGGING_WINDOW", std::move(records));
  for (int pid = 300; pid < 800; ++pid)
    machine.processTable.Birth(pid, "prog" + std::to_string(pid - 300));
  const auto before = machine.preferenceDomain.LookUpCount();
  StartWatchdog();
  EXPECT_EQ(windows.CountOpenWindows(), MonitorWindowKinds::kMostOpenWindows);
  EXPECT_EQ(windows.CountRoom(), 0);
  // Each record is looked at some times, and not for each of the processes.
  EXPECT_LT(machine.preferenceDomain.LookUpCount() - before, 40 * kRecords);
}

}  // namespace
}  // namespace lurkwell
