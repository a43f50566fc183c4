// Figures that are read in the background: who asks for them, whose they are, and how old.
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

/// Sees these processes.
class WatchingClient final : public RecordingClient {
 public:
  using RecordingClient::RecordingClient;
  std::vector<std::int32_t> PidsInSight() override { return inSight; }
  std::vector<std::int32_t> inSight;
};

class CostlyFeederTest : public ConsolidatorTest {
 protected:
  CostlyFeederTest() {
    machine.processTable.TellFigures(true);
    for (const int pid : {300, 301, 302}) {
      machine.processTable.Birth(pid, "p")["pid_pss"] = pid * 1000;
      machine.processTable.Find(pid)->figures[kDescriptors] = pid;
    }
    Start();
  }
  static TypedValue Read(std::int32_t pid, const char* name = "pid_pss") {
    return GetPIDPropertyTypedValue(pid, name);
  }
  bool IsAsked() { return machine.log.Take().find("CostlyFigures.Ask") != std::string::npos; }

  static constexpr auto kDescriptors = static_cast<std::size_t>(FigureCalled("pid_descriptors"));
};

TEST_F(CostlyFeederTest, NothingIsReadThatNobodyNeeds) {
  auto& client = Add("client", 1000);
  client.Needs({"pid_rsz", "meta_name"});
  machine.runLoop.RunFor(5000);
  EXPECT_FALSE(IsAsked());
  EXPECT_EQ(Read(300), TypedValue(Missing::kNotYetKnown));
  client.Needs({"pid_descriptors"}).OfPids({301});
  machine.runLoop.RunFor(1000);
  ASSERT_EQ(machine.costlyFigures.wishes.size(), 1u);
  EXPECT_EQ(machine.costlyFigures.wishes[0].process.pid, 301);
  EXPECT_EQ(machine.costlyFigures.wishes[0].sources, FigureSources{kFromDescriptorCount});
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(Read(301, "pid_descriptors"), TypedValue(std::int64_t{301}));
  EXPECT_EQ(Read(301), TypedValue(Missing::kNotYetKnown));
  client.Needs({});
  machine.runLoop.RunFor(1000);
  IsAsked();
  machine.runLoop.RunFor(5000);
  EXPECT_FALSE(IsAsked());
}

TEST_F(CostlyFeederTest, WhatIsInSightIsMarkedAndTheClientsOfOtherTurnsAreAskedToo) {
  auto* table = new WatchingClient("table", 10'000, told);
  table->Needs({"pid_pss"});
  table->inSight = {301};
  AddProcessInformationClient(table);
  Add("quick", 1000).Needs({"pid_descriptors"}).OfPids({302});
  machine.runLoop.RunFor(2500);
  std::string asked;
  for (const auto& wish : machine.costlyFigures.wishes)
    if (wish.process.pid >= 300)
      asked += std::to_string(wish.process.pid) + ' ' + std::to_string(wish.sources >> 16) +
               (wish.isInSight ? "! " : " ");
  EXPECT_EQ(asked, "300 1 301 1! 302 3 ");
}

TEST_F(CostlyFeederTest, AReadingIsOfTheProcessThatWasMeantAndTellsItsAge) {
  machine.processTable.Find(302)->owner = "other";
  Add("client", 1000).Needs({"pid_pss", "pid_uss", "pid_descriptors"});
  const auto second = [&] { machine.runLoop.RunFor(1000); };
  machine.runLoop.RunFor(500);
  second();
  machine.costlyFigures.age = 3000;
  second();
  EXPECT_EQ(Read(300), TypedValue(std::int64_t{300'000}));
  EXPECT_EQ(AgeOfPIDProperty(300, "pid_pss"), 3500);
  EXPECT_EQ(AgeOfPIDProperty(300, "pid_rsz"), std::nullopt);
  EXPECT_EQ(Read(302), TypedValue(Missing::kNotAllowed));
  EXPECT_EQ(Read(302, "pid_descriptors"), TypedValue(std::int64_t{302}));
  EXPECT_EQ(Read(0), TypedValue(Missing::kNotCounted));
  // While nothing comes, beats go on and the value gets older.
  machine.costlyFigures.isBusy = true;
  told.Clear();
  machine.runLoop.RunFor(5000);
  EXPECT_EQ(told.Take(),
            "client updated\nclient updated\nclient updated\nclient updated\n"
            "client updated\n");
  EXPECT_EQ(AgeOfPIDProperty(300, "pid_pss"), 8500);
  // A late reading of a process whose pid another one has by now.
  CostlyReading late;
  late.process = {300, machine.processTable.Find(300)->entry.startStamp};
  late.sources = kFromMemoryMap;
  late.figures.Set(FigureCalled("pid_pss"), 7);
  machine.costlyFigures.late.push_back(late);
  machine.processTable.Death(300);
  second();
  machine.processTable.Birth(300, "another");
  machine.costlyFigures.late.push_back(late);
  second();
  second();
  EXPECT_EQ(Read(300), TypedValue(Missing::kNotYetKnown));
}

TEST_F(CostlyFeederTest, RatesAreOfTheTimeBetweenTheReadingsAndNotBetweenTheBeats) {
  auto& process = *machine.processTable.Find(300);
  process["pid_net_sent"] = 1000;
  Add("client", 1000).Needs({"pid_net_send_rate"});
  const auto rate = [&](std::int64_t age) {
    machine.costlyFigures.age = age;
    machine.runLoop.RunFor(1000);
    return Read(300, "pid_net_send_rate");
  };
  machine.runLoop.RunFor(1500);
  EXPECT_EQ(rate(0), TypedValue(Missing::kNotYetKnown)) << "of one reading";
  process["pid_net_sent"] = 2000;
  EXPECT_EQ(rate(500), TypedValue(std::int64_t{2000}));
  process["pid_net_sent"] = 1500;
  EXPECT_EQ(rate(0), TypedValue(Missing::kNotYetKnown)) << "it went back";
}

}  // namespace
}  // namespace lurkwell
