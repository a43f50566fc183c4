// Whole heartbeats: who is told what, in which order, and when the next one comes.
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using HeartbeatTest = ConsolidatorTest;

TEST_F(HeartbeatTest, ALateClientStartsWithEveryProcessAndHearsOfChangesInItsTurns) {
  auto& table = machine.processTable;
  table.Birth(300, "editor");
  table.Birth(301, "shell", 300);
  Start();
  EXPECT_EQ(Told(0), "");
  Add("first", 1000).Needs({"pid_p_comm"});
  // The kernel's list has the newest first, so the oldest record is that of the newest process.
  EXPECT_EQ(Told(999), "first added 301\nfirst added 300\nfirst added 1\nfirst added 0\n");

  EXPECT_EQ(Told(1), "") << "without a client the heart rests for 15 seconds";
  EXPECT_EQ(Told(14'000), "first updated\n") << "the record's name was empty: not a change";

  table.Birth(302, "new");
  table.Find(300)->SetName("renamed");
  table.Death(301);
  EXPECT_EQ(Told(1000), "first added 302\nfirst changed 300\nfirst removed 301\nfirst updated\n");
  EXPECT_EQ(Told(1000), "first updated\n");
}

TEST_F(HeartbeatTest, ClientsOfDifferentIntervalsEachHearEverythingOnce) {
  auto& table = machine.processTable;
  table.Birth(200, "old");
  Start();
  Told(0);
  auto& slow = Add("slow", 5000).Needs({"pid_p_comm"});
  Add("fast", 1000).Needs({"pid_p_comm"});
  slow.NotifyPreferencesHaveBeenUpdated();
  told.Clear();
  // Bring the heart to the clients' pace: it was going to rest for 15 seconds.
  machine.runLoop.RunFor(15'000);
  EXPECT_EQ(told.Take(), "fast updated\nslow updated\n") << "newest client first";

  table.Birth(201, "a");
  EXPECT_EQ(Told(1000), "fast added 201\nfast updated\n");
  table.Birth(202, "b");
  table.Birth(203, "passing");
  EXPECT_EQ(Told(1000), "fast added 203\nfast added 202\nfast updated\n");
  table.Death(203);
  table.Death(200);
  table.Find(201)->SetName("renamed");
  EXPECT_EQ(Told(1000), "fast changed 201\nfast removed 200\nfast removed 203\nfast updated\n")
      << "removals are popped off a stack too: 203 is the newer record, found first";
  EXPECT_EQ(Told(1000), "fast updated\n");
  EXPECT_EQ(Told(1000),
            "slow added 202\nslow added 201\nslow changed 201\nslow removed 200\n"
            "fast updated\nslow updated\n")
      << "203 came and went between two turns of the slow client";
}

TEST_F(HeartbeatTest, AShorterIntervalIsNotWaitedForAsLongAsTheOneBefore) {
  Start();
  Told(0);
  auto& client = Add("client", 3'600'000);
  told.Clear();
  RequestUpdate(&client);
  EXPECT_EQ(Told(100), "client updated\n");
  client.SetInterval(1000);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType("*");
  EXPECT_EQ(Told(1000), "client preferences\nclient updated\n");
}

TEST_F(HeartbeatTest, TheNextBeatComesWhenTheMostUrgentClientIsDue) {
  Start();
  Told(0);
  const double start = machine.clock.AbsoluteTime();
  EXPECT_DOUBLE_EQ(machine.runLoop.NextFireDate(), start + 15.0);
  auto& client = Add("half", 500).Needs({"meta_pid"});
  Add("two", 2000).Needs({"meta_pid"});
  machine.runLoop.RunFor(15'000);
  EXPECT_DOUBLE_EQ(machine.runLoop.NextFireDate(), start + 15.5);
  RemoveProcessInformationClient(&client);
  machine.runLoop.RunFor(500);
  EXPECT_DOUBLE_EQ(machine.runLoop.NextFireDate(), start + 17.0);
}

TEST_F(HeartbeatTest, AnIntervalOfNothingDoesNotKeepTheMachineBusy) {
  Start();
  Told(0);
  Add("zero", 0).Needs({"meta_pid"});
  Add("negative", -5).Needs({"meta_pid"});
  machine.runLoop.RunFor(15'000);
  machine.log.Clear();
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(machine.log.Lines().size(), 50u) << "a reading every 20 ms";
}

TEST_F(HeartbeatTest, AProcessThatNobodyNeedsCostsATouchAndStaysKnown) {
  machine.processTable.Birth(400, "quiet");
  Start();
  Add("watcher", 1000).Needs({"pid_p_comm"}).OfPids({1});
  machine.runLoop.RunFor(15'000);
  EXPECT_EQ(Value(400, "pid_p_comm"), "");
  EXPECT_EQ(Value(400, "pid_parent_pid"), "-1");
  EXPECT_EQ(Value(1, "pid_p_comm"), "launchd");
  EXPECT_EQ(Value(1, "meta_name"), "launchd");
}

TEST_F(HeartbeatTest, RecordsThatLoseTheirValidityAtOnceAreNeverAnnounced) {
  Start();
  auto& client = Add("client", 1000).Needs({"carbonpsn_name"});
  Told(15'000);
  // An application that is listed but cannot be described loses its record in the same beat.
  auto& application = machine.processManager.Launch({0, 7}, std::nullopt, "Guest");
  EXPECT_EQ(Told(1000), "client added -2\nclient changed -2\nclient updated\n");
  application.cannotBeDescribed = true;
  EXPECT_EQ(Told(1000), "client removed -2\nclient updated\n");
  EXPECT_EQ(Told(1000), "client updated\n");
  // One whose process the kernel's table does not have is not known, needed or not.
  machine.processManager.Remove({0, 7});
  machine.processManager.Launch({0, 8}, 777, "Early");
  EXPECT_EQ(Told(1000), "client updated\n");
  client.OfPids({1});
  EXPECT_EQ(Told(1000), "client updated\n");
}

TEST_F(HeartbeatTest, APidThatPassesToAnotherProcessIsAnnouncedAsGoneAndThenAsNew) {
  auto& table = machine.processTable;
  table.Birth(500, "first");
  table.Birth(501, "child", 500);
  Start();
  Add("fast", 1000).Needs({"pid_p_comm"});
  Add("slow", 3000).Needs({"pid_p_comm"});
  machine.runLoop.RunFor(15'000);
  told.Clear();
  table.Death(500);
  table.Birth(500, "second");
  EXPECT_EQ(Told(1000), "fast removed 500\nfast updated\n");
  EXPECT_EQ(Value(500, "meta_name"), "[]");
  EXPECT_EQ(Value(501, "pid_parent_pid"), "1");
  EXPECT_EQ(Told(1000), "slow removed 500\nfast added 500\nfast updated\n")
      << "the slow client, not due yet, must hear of the end before the new beginning";
  EXPECT_EQ(Value(500, "meta_name"), "second");
  EXPECT_EQ(Told(1000), "slow added 500\nslow updated\nfast updated\n");
}

TEST_F(HeartbeatTest, AHandlerMayDeleteClientsAndWindowsOfTheirOwn) {
  machine.processTable.Birth(600, "program");
  Start();
  auto& own = Add("own", 1000).Needs({"meta_pid"});
  auto& killer = Add("killer", 1000).Needs({"meta_pid"});
  auto* victim = &Add("victim", 1000).Needs({"meta_pid"});
  machine.runLoop.RunFor(15'000);
  told.Clear();
  killer.onRemoved = [&](int) {
    delete victim;
    victim = nullptr;
  };
  own.onRemoved = [&](int) { delete &own; };
  machine.processTable.Death(600);
  EXPECT_EQ(Told(1000),
            "victim removed 600\nkiller removed 600\nvictim deleted\nown removed 600\n"
            "own deleted\nkiller updated\n");
  EXPECT_EQ(Told(1000), "killer updated\n");
}

TEST_F(HeartbeatTest, AReadingThatFailsRetiresEverybodyAndTheyComeBack) {
  machine.processTable.Birth(700, "survivor");
  Start();
  Add("client", 1000).Needs({"pid_p_comm"});
  Told(15'000);
  machine.processTable.FailReadings(1);
  EXPECT_EQ(Told(1000), "client removed 700\nclient removed 1\nclient removed 0\nclient updated\n");
  EXPECT_EQ(Told(1000), "client added 700\nclient added 1\nclient added 0\nclient updated\n");
}

TEST_F(HeartbeatTest, StartingTwiceIsABrokenInvariant) {
  Start();
  EXPECT_DEATH(InitializeProcessInformationConsolidator(),
               "^PI_Consolidator:[0-9]+: failed assertion "
               "`gProcessInformationConsolidatorMutex == NULL'\n$");
}

}  // namespace
}  // namespace lurkwell
