// Records of windows in the preferences, damaged ones among them.
#include "monitor_windows/FollowingTest.h"
#include "monitor_windows/FollowingWindows.h"

namespace lurkwell {
namespace {

class RememberedWindowsTest : public FollowingTest {
 protected:
  const Uuid mFirst = Uuid::Fresh();
  const Uuid mSecond = Uuid::Fresh();
};

TEST_F(RememberedWindowsTest, RecordsAreMadeWholeChangedInPartAndRemovedWhereverTheyAre) {
  const WindowRect rect{1, 2, 3, 4};
  EXPECT_EQ(SetPersistentClientInfo("LOGGING_WINDOW", nullptr, nullptr, &rect, &mFirst), -1);
  EXPECT_EQ(SetPersistentClientInfo("LOGGING_WINDOW", "a", nullptr, &rect, &mFirst), -1);
  EXPECT_EQ(GetPrefArrayCount("LOGGING_WINDOW"), 0) << "never in part";
  auto writes = machine.preferenceDomain.SynchronizeCount();
  EXPECT_EQ(SetPersistentClientInfo("LOGGING_WINDOW", "a", "OS X", &rect, &mFirst), 0);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes + 1) << "a record is one write";
  EXPECT_EQ(SetPersistentClientInfo("LOGGING_WINDOW", "b", "OS X", &rect, &mSecond), 1);
  const WindowRect moved{-5, -6, 7, 8};
  EXPECT_EQ(SetPersistentClientInfo("LOGGING_WINDOW", nullptr, nullptr, &moved, &mSecond), 1);
  EXPECT_EQ(ReadRememberedRect("LOGGING_WINDOW", 1), moved);
  EXPECT_EQ(ReadRememberedRect("LOGGING_WINDOW", 0), rect);
  char name[kRememberedTextSize];
  ReadRememberedText("LOGGING_WINDOW", 1, "PROCESS_NAME", name);
  EXPECT_STREQ(name, "b");
  SetPrefArrayString("LOGGING_WINDOW", 2, "WINDOW_UUID", mFirst.Text().c_str());
  RemovePersistentClientInfo("LOGGING_WINDOW", &mFirst);
  EXPECT_EQ(GetPrefArrayCount("LOGGING_WINDOW"), 1) << "both of them";
  EXPECT_EQ(GetAppropriateIndexForUUID("LOGGING_WINDOW", &mSecond), 0);
  EXPECT_EQ(GetAppropriateIndexForUUID("LOGGING_WINDOW", &mFirst), 1);
  writes = machine.preferenceDomain.SynchronizeCount();
  SetPersistentClientInfo("LOGGING_WINDOW", "b", "OS X", &moved, &mSecond);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes) << "nothing was new";
}

TEST_F(RememberedWindowsTest, AWindowIsForgottenWhetherItsProgramRunsOrNot) {
  auto& process = machine.processTable.Birth(300, "a-rather-long-na");
  process.commandLine = "/opt/a-rather-long-name --fast";
  auto& log = Log(300, "a-rather-long-na");
  Remember(kCPUHistoryWindowKind, "sleeper", mFirst);
  Remember(kLoggingWindowKind, "sleeper", mSecond);
  RememberedWindowsPanel panel(nullptr);
  const auto text = [&panel] {
    QString rows;
    for (int row = 0; row < panel.List()->topLevelItemCount(); ++row)
      rows += panel.List()->topLevelItem(row)->text(0) + QLatin1Char('|') +
              panel.List()->topLevelItem(row)->text(2) + QLatin1Char('|') +
              panel.List()->topLevelItem(row)->text(3) + QLatin1Char('\n');
    return rows.toStdString();
  };
  EXPECT_EQ(text(),
            "sleeper|CPU history|waits for the program to start\n"
            "a-rather-long-name|Log|pid 300\n"
            "sleeper|Log|waits for the program to start\n");
  panel.List()->topLevelItem(0)->setSelected(true);
  panel.List()->topLevelItem(1)->setSelected(true);
  panel.ForgetSelected();
  EXPECT_EQ(text(), "sleeper|Log|waits for the program to start\n");
  EXPECT_EQ(GetPrefArrayCount(kCPUHistoryWindowKind), 0);
  EXPECT_EQ(GetAppropriateIndexForUUID(kLoggingWindowKind, &mSecond), 0);
  EXPECT_TRUE(log.window()->isVisible()) << "until it is closed";
  machine.processTable.Birth(301, "sleeper");
  StartWatchdog();
  Turn();
  EXPECT_EQ(opened.Take(), "main\n") << "the history is forgotten";
  EXPECT_EQ(windows.CountOpenWindows(), 2) << "two logs";
}

TEST_F(RememberedWindowsTest, DamagedRecordsOpenNothingAndHarmNothing) {
  PreferenceArray records(8);
  records[1] = {{"PROCESS_NAME", std::string("prog")}};
  records[2] = {{"PROCESS_NAME", std::int64_t{5}}, {"PROCESS_KIND", 1.5}};
  records[3] = {{"PROCESS_NAME", std::string("prog")}, {"PROCESS_KIND", std::string("Darwin")}};
  records[4] = records[3];
  records[4]["WINDOW_UUID"] = std::string("no identifier");
  records[5] = records[3];
  records[5]["PROCESS_NAME"] = std::string(500, 'p');
  records[5]["WINDOW_UUID"] = mFirst.Text();
  records[6] = records[3];
  records[6]["WINDOW_UUID"] = mFirst.Text();
  records[6]["WINDOW_RECT_LEFT"] = std::string("left");
  records[6]["WINDOW_RECT_RIGHT"] = 1e300;
  records[6]["LOG_TIMESTAMP_COL_WIDTH"] = std::string("wide");
  records[6]["LOG_ACTIVE_COL_WIDTH"] = -1e300;
  records[6]["CUSTOM_UPDATE_INTERVAL"] = std::int64_t{-1};
  records[6]["INCLUDE_TIMESTAMP"] = std::string("yes");
  machine.preferenceDomain.SetValue("LOGGING_WINDOW", records);
  machine.preferenceDomain.SetValue("CPU_HISTORY_WINDOW", std::string("no array"));
  machine.processTable.Birth(300, "prog");
  StartWatchdog();
  EXPECT_EQ(opened.Take(), "main\n");
  ASSERT_EQ(Windows().size(), 1U) << "the one that still says whose it is";
  machine.processTable.Find(300)->UseCPU(100);
  Turn();
  EXPECT_EQ(Windows().front()->rowCount(), 1);
  machine.processTable.Death(300);
  Turn();
  EXPECT_EQ(GetPrefArrayCount("LOGGING_WINDOW"), 8);
}

}  // namespace
}  // namespace lurkwell
