#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <variant>

#include "alerts/AlertWatcher.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

/// Rules on the processes of a simulated machine. What happens comes as "+NAME" and "-NAME",
/// "!NAME" for a process that has ended.
class AlertWatcherTest : public ConsolidatorTest {
 protected:
  void SetUp() override {
    machine.processTable.TellFigures(true);
    Birth(200, "postgres");
    Birth(201, "postgres");
    Birth(300, "make");
    Start();
  }

  SimulatedProcess& Birth(std::int32_t pid, const char* name) {
    auto& process = machine.processTable.Birth(pid, name);
    process["pid_rsz"] = 100 << 20;
    return process;
  }
  SimulatedProcess& Process(std::int32_t pid) { return *machine.processTable.Find(pid); }
  void SetMemory(std::int32_t pid, std::int64_t mebibytes) {
    Process(pid)["pid_rsz"] = mebibytes << 20;
  }

  RuleWatch& Watch(const char* text) {
    mWatches.push_back(
        std::make_shared<RuleWatch>(std::move(std::get<AlertRule>(AlertRule::Read(text)))));
    if (mWatcher == nullptr)
      mWatcher = new AlertWatcher(
          {[this](const RuleWatch&, const AlertEvent& event) {
             using enum AlertEvent::Kind;
             const char* mark = event.kind == kBegan ? "+" : event.kind == kEnded ? "-" : "!";
             mHappened += mark + event.subject.name;
             if (event.subject.process.pid != kInvalidPID)
               mHappened += std::to_string(event.subject.process.pid);
             mHappened += ' ';
             mLast = event;
           },
           {},
           {}});
    mWatcher->SetWatches(mWatches);
    return *mWatches.back();
  }
  std::string Happens(int seconds) {
    machine.runLoop.RunFor(seconds * 1000);
    return std::exchange(mHappened, {});
  }

  AlertWatcher::Watches mWatches;
  AlertWatcher* mWatcher = nullptr;
  std::string mHappened;
  AlertEvent mLast;
};

TEST_F(AlertWatcherTest, EachProcessIsWatchedByItself) {
  auto& watch = Watch("name:postgres mem>500M for 60s until mem<400M");
  EXPECT_EQ(Happens(30), "");
  SetMemory(200, 600);
  SetMemory(300, 900);
  EXPECT_EQ(Happens(40), "");
  EXPECT_EQ(watch.Pending(), 1u);
  EXPECT_EQ(Happens(40), "+postgres200 ");
  ASSERT_EQ(mLast.subject.figures.size(), 1u);
  EXPECT_EQ(mLast.subject.figures[0], AlertFigure("pid_rsz", std::int64_t{600} << 20));
  SetMemory(201, 700);
  EXPECT_EQ(Happens(80), "+postgres201 ");
  // Between both limits it goes on.
  SetMemory(200, 450);
  EXPECT_EQ(Happens(80), "");
  SetMemory(200, 300);
  EXPECT_EQ(Happens(10), "-postgres200 ");
  // A later process of the same pid is another.
  machine.processTable.Death(201);
  Birth(201, "postgres");
  SetMemory(201, 700);
  EXPECT_EQ(Happens(40), "!postgres201 ");
  EXPECT_EQ(Happens(60), "+postgres201 ");
}

TEST_F(AlertWatcherTest, OneAlertForAnyProcess) {
  auto& watch = Watch("any mem>500M for 10s");
  SetMemory(200, 600);
  SetMemory(300, 600);
  EXPECT_EQ(Happens(20), "+make300 ");
  EXPECT_EQ(watch.Firing(), 2u);
  SetMemory(201, 600);
  machine.processTable.Death(300);
  EXPECT_EQ(Happens(40), "");
  SetMemory(200, 100);
  SetMemory(201, 100);
  EXPECT_EQ(Happens(20), "");
  EXPECT_EQ(Happens(20).front(), '-');
}

TEST_F(AlertWatcherTest, WhatIsAbsentAndWhatAddsUp) {
  Watch("name=make absent for 60s");
  auto& total = Watch("total mem>1G name:postgres until mem<800M");
  EXPECT_EQ(Happens(80), "");
  EXPECT_EQ(total.Total(), 200.0 * (1 << 20));
  machine.processTable.Death(300);
  EXPECT_EQ(Happens(50), "");
  EXPECT_EQ(Happens(20), "+ ");
  SetMemory(200, 600);
  SetMemory(201, 600);
  EXPECT_EQ(Happens(10), "+ ");
  EXPECT_EQ(mLast.subject.figures[0], AlertFigure("pid_rsz", std::int64_t{1200} << 20));
  SetMemory(201, 300);
  EXPECT_EQ(Happens(10), "");
  SetMemory(200, 300);
  EXPECT_EQ(Happens(10), "- ");
  Birth(301, "make");
  EXPECT_EQ(Happens(50), "- ");
}

TEST_F(AlertWatcherTest, WhatMayNotBeReadNeitherBeginsNorEnds) {
  Process(200)["pid_pss"] = std::int64_t{600} << 20;
  Process(300)["pid_pss"] = std::int64_t{900} << 20;
  auto& watch = Watch("name:postgres pss>500M for 10s");
  EXPECT_EQ(Happens(20), "+postgres200 ");
  EXPECT_EQ(watch.Gaps().notAllowed, 0);
  // Costly figures are read of those alone that the rest of the rule is about.
  EXPECT_TRUE(mWatcher->NeedPidProcProperty(201, "pid_pss"));
  EXPECT_FALSE(mWatcher->NeedPidProcProperty(300, "pid_pss"));
  Process(200).owner = Process(201).owner = "root";
  EXPECT_EQ(Happens(120), "");
  EXPECT_EQ(watch.Gaps().notAllowed, 2);
  EXPECT_EQ(watch.Firing(), 1u);
  Process(200).owner = "user";
  Process(200)["pid_pss"] = 1 << 20;
  EXPECT_EQ(Happens(60), "-postgres200 ");
}

TEST_F(AlertWatcherTest, TimeThatNobodySawDoesNotCount) {
  SetMemory(200, 600);
  auto& watch = Watch("name:postgres mem>500M for 5m");
  EXPECT_EQ(Happens(60), "");
  machine.clock.Advance(3'600'000);
  EXPECT_EQ(Happens(10), "");
  EXPECT_EQ(watch.Pending(), 1u);
  EXPECT_LT(watch.LongestPending(), std::chrono::minutes(2));
  // Without rules nothing is asked for.
  mWatcher->SetWatches({});
  EXPECT_EQ(ProcessInformationClient::DueClients(nullptr).size(), 0u);
}

}  // namespace
}  // namespace lurkwell
