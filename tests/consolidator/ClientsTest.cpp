// The registry of clients and what it makes of their needs.
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using ClientsTest = ConsolidatorTest;
using Client = ProcessInformationClient;

TEST_F(ClientsTest, LevelsAggregateWithinTheirFamily) {
  const auto pids = {Client::kNeedNoPids, Client::kNeedSomePids, Client::kNeedAllPids};
  const auto properties = {Client::kNeedNoProcProperties, Client::kNeedSomeProcProperties,
                           Client::kNeedAllProcProperties};
  for (const auto& family : {pids, properties})
    for (const auto a : family)
      for (const auto b : family) EXPECT_EQ(Client::AggregateNeedLevels(a, b), std::max(a, b));
  EXPECT_DEATH(Client::AggregateNeedLevels(Client::kNeedNoPids, Client::kNeedNoProcProperties),
               "^ProcessInformationClient:[0-9]+: failed assertion "
               "`\\(need2 >= kNeedNoPids\\) && \\(need2 <= kNeedAllPids\\)'\n$");
  EXPECT_DEATH(Client::AggregateNeedLevels(Client::kNeedAllProcProperties, Client::kNeedAllPids),
               "`\\(need2 >= kNeedNoProcProperties\\) && \\(need2 <= kNeedAllProcProperties\\)'");
  testing::internal::CaptureStderr();
  EXPECT_EQ(Client::AggregateNeedLevels(static_cast<Client::NeedLevel>(6), Client::kNeedAllPids),
            Client::kNeedNoPids);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "got to a bad place!!! ProcessInformationClient::AggregateNeedLevels\n");
}

TEST_F(ClientsTest, ANeedForADerivedPropertyIsANeedForItsSourcesAndBack) {
  Start();
  auto& client = Add("client", 1000);
  const auto level = [](const char* property) {
    return static_cast<int>(Client::NeedAnyPidForProcProperty(property, nullptr));
  };
  const auto needed = [](const char* property) {
    return Client::NeedAnyPidProcProperty(1, property, nullptr);
  };
  client.Needs({"meta_name"});
  EXPECT_EQ(level("pid_p_comm"), 2);
  EXPECT_EQ(level("carbonpsn_name"), 2);
  EXPECT_EQ(level("pid_user_time"), 0);
  client.Needs({"pid_terminated_system_time"}).OfPids({1});
  EXPECT_EQ(level("meta_active_time"), 1);
  EXPECT_TRUE(needed("meta_active_time"));
  EXPECT_FALSE(needed("pid_user_time")) << "sources do not imply one another";
  client.Needs({"meta_active_time"});
  for (const auto* source : {"pid_user_time", "pid_system_time", "classicpsn_active_time",
                             "pid_terminated_user_time", "pid_terminated_system_time"}) {
    EXPECT_EQ(level(source), 1) << source;
    EXPECT_TRUE(needed(source)) << source;
  }
  testing::internal::CaptureStderr();
  level("meta_kind");
  needed("meta_psn");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "uh-oh. Unhandled meta type!\n"
            "uh-oh. Unhandled meta type in NeedAnyPidProcProperty!\n");
}

TEST_F(ClientsTest, OnlyDueClientsAreAsked) {
  Start();
  const TimeValue start = machine.clock.Now();
  Add("client", 1000).Needs({"pid_vsz"});
  const auto level = [](TimeValue now) {
    return static_cast<int>(Client::NeedAnyPidForProcProperty("pid_vsz", &now));
  };
  EXPECT_EQ(level(AddMilliseconds(start, 999)), 0);
  EXPECT_EQ(level(AddMilliseconds(start, 1000)), 2);
  const TimeValue now = AddMilliseconds(start, 400);
  EXPECT_EQ(Client::GetMillisecondsToNextHeartbeat(&now), 600);
  const TimeValue late = AddMilliseconds(start, 1500);
  EXPECT_EQ(Client::GetMillisecondsToNextHeartbeat(&late), -500);
  EXPECT_DEATH(Client::GetMillisecondsToNextHeartbeat(nullptr),
               "failed assertion `curTime != NULL'");
  EXPECT_DEATH(Client::NotifyAllProcessesHaveBeenUpdated(nullptr),
               "failed assertion `curTime != NULL'");
}

TEST_F(ClientsTest, AddingTwiceIsABrokenInvariantAndAddingAgainTellsEverythingAgain) {
  Start();
  machine.runLoop.RunFor(0);
  auto& client = Add("client", 1000).Needs({"pid_p_comm"});
  EXPECT_DEATH(AddProcessInformationClient(&client), "failed assertion `!node->active'");
  told.Clear();
  RemoveProcessInformationClient(&client);
  machine.processTable.Birth(60, "unseen");
  EXPECT_EQ(Told(20'000), "");
  AddProcessInformationClient(&client);
  EXPECT_EQ(told.Take(), "client added 1\nclient added 0\nclient added 60\n");
}

TEST_F(ClientsTest, PreferenceChangesReachClassesByTheBeginningOfTheirNames) {
  Start();
  Add("CPUHistoryWindow", 1000);
  Add("CPUHistoryWindowInformationClient", 1000);
  RemoveProcessInformationClient(&Add("CPUHistoryWindowGone", 1000));
  Add("Main", 1000);
  Client::NotifyPreferencesHaveBeenUpdatedForType("CPUHistoryWindow");
  EXPECT_EQ(told.Take(),
            "CPUHistoryWindowInformationClient preferences\nCPUHistoryWindow preferences\n");
  Client::NotifyPreferencesHaveBeenUpdatedForType("CPUHistoryWindowInf");
  EXPECT_EQ(told.Take(), "CPUHistoryWindowInformationClient preferences\n");
  Client::NotifyPreferencesHaveBeenUpdatedForType("*");
  EXPECT_EQ(told.Take(),
            "Main preferences\nCPUHistoryWindowInformationClient preferences\n"
            "CPUHistoryWindow preferences\n");
}

TEST_F(ClientsTest, ShutdownCleansUpUntilNobodyHasAnythingLeftAndDeletesAll) {
  class Tidy : public RecordingClient {
   public:
    Tidy(std::string name, int work, AccessLog& log)
        : RecordingClient(name, 1000, log), mName(std::move(name)), mWork(work), mTheLog(log) {}
    bool NotifyOptionalCleanup() override {
      mTheLog.Add(mName + " cleanup");
      return mWork-- > 0;
    }

   private:
    std::string mName;
    int mWork;
    AccessLog& mTheLog;
  };
  Start();
  new Tidy("a", 1, told);
  new Tidy("b", 1, told);
  Client::DeleteAllProcessInformationClients();
  EXPECT_EQ(told.Take(),
            "b cleanup\n"
            "b cleanup\na cleanup\n"
            "b cleanup\na cleanup\n"
            "b deleted\na deleted\n");
}

TEST_F(ClientsTest, EveryClientHasAnIdentityOfItsOwnOrTheGivenOne) {
  const auto uuid = Uuid::FromText("0123ABCD-4567-89ef-8123-456789abcdef");
  ASSERT_TRUE(uuid);
  EXPECT_EQ(uuid->Text(), "0123ABCD-4567-89EF-8123-456789ABCDEF");
  EXPECT_FALSE(Uuid::FromText("0123ABCD-4567-89ef-8123-456789abcdeX"));
  EXPECT_FALSE(Uuid::FromText("0123ABCD04567-89ef-8123-456789abcdef"));
  struct Nameless : ProcessInformationClient {
    explicit Nameless(const Uuid* its) : ProcessInformationClient(its, 1000) {}
    bool NeedPidProcProperty(int, const char*) override { return false; }
    void NotifyProcessesHaveBeenUpdated() override {}
  };
  const Nameless given(&*uuid), one(nullptr), other(nullptr);
  EXPECT_EQ(given.Identifier(), *uuid);
  EXPECT_FALSE(one.Identifier() == other.Identifier());
  EXPECT_EQ(Uuid::FromText(one.Identifier().Text()), one.Identifier());
}

}  // namespace
}  // namespace lurkwell
