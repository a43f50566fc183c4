#include "consolidator/PI_Consolidator.h"
#include "process_control/ProcessActions.h"
#include "process_control/SimulatedControl.h"
#include "support/RecordingClient.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kFaceless = 60;
constexpr std::int32_t kApplication = 61;

class ActionsTest : public SimulatedControl {
 protected:
  ActionsTest() {
    machine.processTable.Birth(kFaceless, "faceless");
    machine.processTable.Birth(kApplication, "application");
    machine.processManager.Launch({1, 5}, kApplication, "Application");
    machine.processManager.Launch({2, 9}, std::nullopt, "Classic Application");
    OpenChannel("/helper");
    InitializeProcessInformationConsolidator();
    auto* client = new RecordingClient("client", 1000, told);
    client->NeedsEverything();
    AddProcessInformationClient(client);
    machine.runLoop.RunFor(1000);
    machine.log.Clear();
  }
  ~ActionsTest() override {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  /// What so many kills of a process do.
  std::string Killed(std::int32_t pid, int times) {
    machine.log.Clear();
    for (int i = 0; i < times; ++i) KillProcess(pid);
    return Log();
  }

  static std::string Request(const std::string& verb) {
    return "Helper Lkw Action Request:\\n" + verb + "\n";
  }

  AccessLog told;
};

TEST_F(ActionsTest, KillingGetsHarsherWithEachCall) {
  const std::string signalled = "Signals.Send 60 15\n";
  EXPECT_EQ(Killed(kFaceless, 4), signalled + Request("kill_normal 60") + Request("kill_harsh 60") +
                                      Request("kill_harsh 60"));
  EXPECT_EQ(Killed(kApplication, 5), "ProcessManager.Quit 1 5\nSignals.Send 61 15\n" +
                                         Request("kill_normal 61") + Request("kill_harsh 61") +
                                         Request("kill_harsh 61"));
  const std::int32_t classic = PSN2PID({2, 9});
  ASSERT_LT(classic, -1);
  EXPECT_EQ(Killed(classic, 2), "ProcessManager.Quit 2 9\nProcessManager.Quit 2 9\n");
  EXPECT_DEATH(KillProcess(-99),
               "ProcessActions:[0-9]+: failed assertion `psn.highLongOfPSN \\|\\| "
               "psn.lowLongOfPSN'");
}

TEST_F(ActionsTest, TheFirstProcessesAreLeftAlone) {
  for (const std::int32_t pid : {0, 1}) {
    EXPECT_EQ(Killed(pid, 4), "");
    HaltProcessPID(pid);
    ContProcessPID(pid);
    testing::internal::CaptureStdout();
    ReniceProcessPID(pid, 20);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Renice returns \n");
    EXPECT_EQ(Log(), "");
  }
}

TEST_F(ActionsTest, PrioritiesAreRequestedAndRemembered) {
  testing::internal::CaptureStdout();
  SetHighPriority(kFaceless);
  EXPECT_STREQ(ProcessIndicatorImageName(kFaceless), "process_niced_high");
  SetLowPriority(kFaceless);
  EXPECT_STREQ(ProcessIndicatorImageName(kFaceless), "process_niced_low");
  SetNormalPriority(kFaceless);
  EXPECT_EQ(ProcessIndicatorImageName(kFaceless), nullptr);
  EXPECT_FALSE(GetProcessAction(kFaceless, kProcessActionAny, nullptr));
  EXPECT_EQ(Log(), Request("renice 60 -19") + Request("renice 60 20") + Request("renice 60 0"));
  machine.namedPipes.SetHelper([](std::string_view) { return "\x1B[2J is dangerous\n"; });
  ReniceProcessPID(kFaceless, -20);
  machine.namedPipes.SetHelper([](std::string_view) { return "!Error refused"; });
  ReniceProcessPID(kFaceless, 20);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Renice returns done\nRenice returns done\nRenice returns done\n"
            "Renice returns \\033[2J is dangerous\nRenice returns \n");
  EXPECT_DEATH(ReniceProcessPID(kFaceless, -21),
               "ProcessActions:[0-9]+: failed assertion `niceValue >= -20'");
  EXPECT_DEATH(ReniceProcessPID(kFaceless, 21),
               "ProcessActions:[0-9]+: failed assertion `niceValue <= 20'");
}

TEST_F(ActionsTest, HaltingIsRememberedAndSurprisesAreSaid) {
  testing::internal::CaptureStderr();
  ContinueProcess(kFaceless);
  HaltProcess(kFaceless);
  EXPECT_STREQ(ProcessIndicatorImageName(kFaceless), "process_halted");
  HaltProcess(kFaceless);
  AddProcessAction(kFaceless, kProcessActionRenice, -19);
  EXPECT_STREQ(ProcessIndicatorImageName(kFaceless), "process_niced_high");
  ContinueProcess(kFaceless);
  EXPECT_FALSE(GetProcessAction(kFaceless, kProcessActionHalt, nullptr));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "unexpected: this pid should be in the halted list\n"
            "Not really expecting this pid to be in the halted list\n");
  EXPECT_EQ(Log(), Request("kill_cont 60") + Request("kill_halt 60") + Request("kill_halt 60") +
                       Request("kill_cont 60"));
}

TEST_F(ActionsTest, TheNewestEntryOfAKindCounts) {
  AddProcessAction(7, kProcessActionRenice, -19);
  AddProcessAction(7, kProcessActionHalt, 0);
  AddProcessAction(8, kProcessActionHalt, 0);
  EXPECT_EQ(AddProcessAction(7, kProcessActionRenice, 20)->value, 20);
  std::int32_t value = 1;
  EXPECT_TRUE(GetProcessAction(7, kProcessActionRenice, &value));
  EXPECT_EQ(value, 20);
  AddProcessAction(7, kProcessActionHalt, 0);
  EXPECT_TRUE(GetProcessAction(7, kProcessActionAny, &value));
  EXPECT_EQ(value, 0);
  RemoveProcessAction(7, kProcessActionHalt);
  EXPECT_FALSE(GetProcessAction(7, kProcessActionHalt, &value));
  EXPECT_TRUE(GetProcessAction(7, kProcessActionAny, nullptr));
  RemoveProcessAction(7, kProcessActionAny);
  EXPECT_FALSE(GetProcessAction(7, kProcessActionAny, nullptr));
  EXPECT_TRUE(GetProcessAction(8, kProcessActionHalt, nullptr));
}

TEST_F(ActionsTest, ApplicationsAreShownHiddenAndRevealed) {
  ShowProcessPSN({1, 5}, false);
  ShowProcessPSN({1, 5}, true);
  EXPECT_TRUE(RevealProcessInFinder({1, 5})) << "the desktop may start a file manager";
  machine.processManager.Launch({3, 1}, 1, "Files", {'M', 'A', 'C', 'S'});
  EXPECT_TRUE(RevealProcessInFinder({1, 5}));
  EXPECT_FALSE(RevealProcessInFinder({8, 8})) << "gone, but the file manager comes all the same";
  EXPECT_FALSE(KillProcessPSN({8, 8}));
  EXPECT_EQ(Log(),
            "ProcessManager.Hide 1 5\nProcessManager.Show 1 5\nProcessManager.Reveal 1 5\n"
            "ProcessManager.Reveal 1 5\n"
            "ProcessManager.SetFrontProcess 3 1\nProcessManager.Reveal 8 8\n"
            "ProcessManager.SetFrontProcess 3 1\nProcessManager.Quit 8 8\n");
}

TEST_F(ActionsTest, TheHelperClientNeedsNothing) {
  auto* client = new ProcessActionHelper(2000, 7, nullptr);
  AddProcessInformationClient(client);
  EXPECT_EQ(client->Interval(), 2000);
  EXPECT_EQ(client->Number(), 7);
  EXPECT_EQ(client->NeedProcPropertiesForPid(60), 3);
  EXPECT_EQ(client->NeedPidsForProcProperty("pid_rsz"), 0);
  EXPECT_FALSE(client->NeedPidProcProperty(60, "pid_rsz"));
}

}  // namespace
}  // namespace lurkwell
