#include <map>
#include <string>
#include <utility>
#include <vector>

#include "channel/DaemonChannel.h"
#include "consolidator/PI_Consolidator.h"
#include "process_control/ActionPlan.h"
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
    for (std::int32_t pid = 70; pid < 80; ++pid) machine.processTable.Birth(pid, "other");
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

  /// The helper is made to look at the process before it is to act on it.
  static std::string Request(const std::string& verb) {
    const auto pid = verb.substr(verb.find(' ') + 1);
    return "Helper Lkw Info Extraction:\\npid_internal_basic_info " + pid.substr(0, pid.find(' ')) +
           "\\n\nHelper Lkw Action Request:\\n" + verb + "\n";
  }

  /// Actions are answered so from now on, and figures as before.
  void AnswerActionsWith(std::string answer) {
    machine.namedPipes.SetHelper([this, answer](std::string_view request) {
      return request.starts_with("Lkw Action") ? answer : machine.helper.Answer(request);
    });
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

TEST_F(ActionsTest, AStepThatLeadsNowhereGoesOnToTheNextAtOnce) {
  machine.processManager.Launch({3, 70}, 70, "Without windows").cannotBeAskedToQuit = true;
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(NextKillStep(70), KillStep::kTerminate) << "known before it is tried";
  EXPECT_EQ(Killed(70, 3), "ProcessManager.Quit 3 70\nSignals.Send 70 15\n" +
                               Request("kill_normal 70") + Request("kill_harsh 70"));
  EXPECT_EQ(TimesAskedToEnd(70), 2);
  machine.signals.refuses = true;
  EXPECT_EQ(Killed(71, 2),
            "Signals.Send 71 15\n" + Request("kill_normal 71") + Request("kill_harsh 71"));
  EXPECT_EQ(TimesAskedToEnd(71), 1);
}

TEST_F(ActionsTest, WhatIsRefusedIsSaidLeavesNoBadgeAndIsNoStep) {
  machine.signals.refuses = true;
  AnswerActionsWith("!Error not permitted\n");
  const auto outcome = KillProcess(72);
  EXPECT_EQ(outcome.result, ActionResult::kRefused);
  EXPECT_EQ(outcome.helperWords, "not permitted");
  EXPECT_EQ(outcome.step, KillStep::kTerminateByHelper);
  EXPECT_EQ(NextKillStep(72), KillStep::kTerminate);
  EXPECT_EQ(TimesAskedToEnd(72), 0);
  EXPECT_EQ(HaltProcess(72), ActionResult::kRefused);
  EXPECT_EQ(SetLowPriority(72), ActionResult::kRefused);
  EXPECT_EQ(ProcessIndicatorImageName(72), nullptr);
  AnswerActionsWith("ok");
  SetLowPriority(72);
  AnswerActionsWith("!Error not permitted\n");
  EXPECT_EQ(SetNormalPriority(72), ActionResult::kRefused);
  EXPECT_STREQ(ProcessIndicatorImageName(72), "process_niced_low") << "it still is";
  machine.processTable.Death(72);
  EXPECT_EQ(HaltProcess(72), ActionResult::kGone);
  QuitHelperDaemon();
  EXPECT_EQ(HaltProcess(73), ActionResult::kNoHelper);
  EXPECT_EQ(ProcessIndicatorImageName(73), nullptr);
}

TEST_F(ActionsTest, NothingIsSentBeforeTheHelperHasSeenTheSameProcess) {
  const auto figures = [this](std::function<std::string(std::string_view)> answer) {
    machine.log.Clear();
    machine.namedPipes.SetHelper([this, answer](std::string_view request) {
      return request.starts_with("Lkw Info") ? answer(request) : machine.helper.Answer(request);
    });
  };
  // Its pid passes to another process while the helper answers.
  figures([this](std::string_view request) {
    machine.processTable.Death(74);
    machine.processTable.Birth(74, "next");
    return machine.helper.Answer(request);
  });
  EXPECT_EQ(HaltProcess(74), ActionResult::kGone);
  figures([](std::string_view) { return "!Error no such process\n"; });
  EXPECT_EQ(HaltProcess(75), ActionResult::kRefused);
  EXPECT_EQ(HaltProcess(75).helperWords, "no such process");
  figures([](std::string_view) { return "pid_rsz 76 4096\n"; });
  EXPECT_EQ(HaltProcess(75), ActionResult::kNoHelper) << "it has seen another one";
  EXPECT_EQ(Log().find("Action"), std::string::npos);
  EXPECT_EQ(HaltProcess(76), ActionResult::kDone);
  machine.log.Clear();
  machine.namedPipes.RecordExchanges(true);
  machine.namedPipes.SetBehaviour(SimulatedNamedPipes::Behaviour::kStalls);
  EXPECT_EQ(HaltProcess(77), ActionResult::kNoHelper);
  EXPECT_EQ(Log().find("Action"), std::string::npos);
}

TEST_F(ActionsTest, ACommandToManyHasAnEndHoweverSlowTheHelperIs) {
  std::vector<std::int32_t> pids;
  for (std::int32_t pid = 1000; pid < 1100; ++pid) {
    machine.processTable.Birth(pid, "many");
    pids.push_back(pid);
  }
  machine.runLoop.RunFor(2000);
  machine.namedPipes.SetHelper([this](std::string_view request) {
    machine.clock.Advance(30);
    return machine.helper.Answer(request);
  });
  const auto begun = machine.clock.Now();
  std::map<ActionResult, int> results;
  for (const auto& report : CarryOut(PlanAction(ProcessCommand::kHalt, pids)))
    ++results[report.outcome.result];
  EXPECT_LE(MillisecondsBetween(begun, machine.clock.Now()), 280);
  EXPECT_EQ(results[ActionResult::kDone], 4);
  EXPECT_EQ(results[ActionResult::kNoTime], 96);

  // An answer that is too late belongs to no request.
  machine.namedPipes.SetBehaviour(SimulatedNamedPipes::Behaviour::kStalls);
  gDaemonLimits.answering *= 2;
  auto reports = CarryOut(PlanAction(ProcessCommand::kHalt, pids));
  gDaemonLimits = {};
  EXPECT_EQ(reports.front().outcome, ActionResult::kNoHelper);
  EXPECT_EQ(reports.back().outcome, ActionResult::kNoTime);
  machine.namedPipes.SayUnasked("late");
  EXPECT_EQ(DaemonConversation::TakeLateAnswer(), "");
  EXPECT_GE(gFd_a2d, 0);
}

TEST_F(ActionsTest, BadgesFollowTheProcessAndTheKernel) {
  const auto badge = [this](std::int32_t pid, std::int64_t milliseconds = 1000) {
    machine.runLoop.RunFor(milliseconds);
    const char* name = ProcessIndicatorImageName(pid);
    return std::string(name != nullptr ? name : "");
  };
  HaltProcess(74);
  SetHighPriority(75);
  HaltProcess(76);
  EXPECT_EQ(badge(74), "process_halted");
  EXPECT_EQ(badge(75, 20'000), "process_niced_high");
  // Another program acts.
  machine.processTable.Continue(74);
  machine.processTable.Find(75)->entry.nice = 5;
  EXPECT_EQ(badge(74), "");
  EXPECT_EQ(badge(75, 0), "");
  // Another process gets the number.
  machine.processTable.Death(76);
  machine.processTable.Birth(76, "next");
  EXPECT_EQ(badge(76, 3000), "");
  // What takes a while to happen, and what never does.
  AnswerActionsWith("ok");
  HaltProcess(77);
  SetLowPriority(77);
  EXPECT_EQ(badge(77), "process_niced_low");
  EXPECT_TRUE(GetProcessAction(77, kProcessActionHalt, nullptr));
  EXPECT_EQ(badge(77, 20'000), "");
  testing::internal::CaptureStderr();
  machine.processTable.Stop(78);
  EXPECT_EQ(badge(78), "process_halted");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "detected a surreptitiously-halted process 78!\n");
}

TEST_F(ActionsTest, OneRuleSaysWhenTheUserIsAsked) {
  using Command = ProcessCommand;
  const auto asks = [](Command command, std::vector<std::int32_t> pids) {
    return PlanAction(command, pids).asks;
  };
  const auto asked = [&](std::vector<std::int32_t> pids) {
    std::string text;
    for (const auto command :
         {Command::kKill, Command::kHalt, Command::kContinue, Command::kHighPriority,
          Command::kNormalPriority, Command::kLowPriority})
      text += asks(command, pids) ? 'y' : '-';
    return text;
  };
  EXPECT_EQ(asked({70}), "yy----");
  EXPECT_EQ(asked({70, 71}), "yy---y");
  EXPECT_EQ(asked({kApplication}), "-y----") << "it is asked to quit";
  EXPECT_EQ(asked({kApplication, 70}), "yy---y");
  machine.processTable.Find(71)->owner = "root";
  EXPECT_EQ(asked({71}), "yy---y");
  machine.processTable.Find(71)->entry.nice = -5;
  EXPECT_EQ(asked({71}), "yy--yy") << "normal is lower, too";
  machine.processTable.Find(kApplication)->owner = "root";
  EXPECT_EQ(asked({kApplication}), "yy---y");

  machine.processTable.Find(72)->isKernelThread = true;
  const std::vector<std::int32_t> pids{0, 1, 70, 72, 79};
  machine.processTable.Death(79);
  auto plan = PlanAction(Command::kKill, pids);
  ASSERT_EQ(plan.targets.size(), 1U);
  machine.processTable.Death(70);
  std::string became;
  for (const auto& report : CarryOut(plan))
    became += std::to_string(report.pid) + "=" +
              std::to_string(static_cast<int>(report.outcome.result)) + " ";
  EXPECT_EQ(became, "70=1 0=2 1=2 72=3 79=1 ");
  EXPECT_EQ(Log(), "") << "nothing was sent";
}

TEST_F(ActionsTest, TheFirstProcessesAreLeftAlone) {
  for (const std::int32_t pid : {0, 1}) {
    EXPECT_EQ(Killed(pid, 4), "");
    HaltProcessPID(pid);
    ContProcessPID(pid);
    testing::internal::CaptureStderr();
    ReniceProcessPID(pid, 20);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Renice returns \n");
    EXPECT_EQ(Log(), "");
  }
}

TEST_F(ActionsTest, WhatAReniceReturnsIsSaidAndItsRangeIsKept) {
  testing::internal::CaptureStderr();
  SetNormalPriority(kFaceless);
  EXPECT_EQ(ProcessIndicatorImageName(kFaceless), nullptr);
  EXPECT_FALSE(GetProcessAction(kFaceless, kProcessActionAny, nullptr));
  AnswerActionsWith("\x1B[2J is dangerous\n");
  ReniceProcessPID(kFaceless, -20);
  AnswerActionsWith("!Error refused");
  ReniceProcessPID(kFaceless, 20);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Renice returns done\nRenice returns \\033[2J is dangerous\nRenice returns \n");
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

}  // namespace
}  // namespace lurkwell
