#include "channel/DaemonChannel.h"
#include "process_control/SimulatedControl.h"

namespace lurkwell {
namespace {

using Behaviour = SimulatedNamedPipes::Behaviour;

class ChannelTest : public SimulatedControl {
 protected:
  void AnswerWith(std::string answer) {
    machine.namedPipes.SetHelper([answer](std::string_view) { return answer; });
  }
};

TEST_F(ChannelTest, AnErrorIsAnEmptyAnswer) {
  Open();
  for (const auto& [answer, seen] :
       std::initializer_list<std::pair<const char*, const char*>>{{"!Error", " (6)"},
                                                                  {"!Error no", " (9)"},
                                                                  {"!Erro", "!Erro (5)"},
                                                                  {"x!Error", "x!Error (7)"}}) {
    AnswerWith(answer);
    EXPECT_EQ(Query("geteuid"), seen);
  }
  AnswerWith("!Error");
  EXPECT_EQ(Query("geteuid", 5), "!Erro (5)") << "cut before it can be told";
  EXPECT_GE(gFd_a2d, 0) << "a helper that refuses is a helper";
}

TEST_F(ChannelTest, ALongAnswerIsCutAndItsRestIsNobodysAnswer) {
  Open();
  AnswerWith("12345678901234567890");
  EXPECT_EQ(Query("geteuid", 10), "1234567890 (10)");
  AnswerWith("next");
  EXPECT_EQ(Query("geteuid", 10), "next (4)");
}

TEST_F(ChannelTest, ABrokenChannelIsClosedForGood) {
  for (const auto behaviour :
       {Behaviour::kStalls, Behaviour::kDiesOnRequest, Behaviour::kClosesAfterGreeting}) {
    machine.namedPipes.SetBehaviour(behaviour);
    Open();
    ASSERT_GE(gFd_a2d, 0);
    const std::string answer = Query("geteuid");
    EXPECT_EQ(answer, behaviour == Behaviour::kDiesOnRequest ? " (0)" : " (-1)");
    EXPECT_EQ(machine.namedPipes.OpenCount(), 0u);
    machine.namedPipes.SetBehaviour(Behaviour::kAnswers);
    machine.log.Clear();
    EXPECT_EQ(Query("geteuid"), " (-1)");
    EXPECT_EQ(Log(), "") << "a closed channel is not touched";
  }
}

TEST_F(ChannelTest, WhatNobodyAskedForIsTakenForNoAnswer) {
  Open();
  machine.namedPipes.SayUnasked("0");
  EXPECT_EQ(Query("Lkw Action Request:\nkill_halt 12"), " (-1)");
  EXPECT_EQ(machine.namedPipes.OpenCount(), 0u);
  EXPECT_EQ(Log().find("Helper"), std::string::npos) << "nor is anything asked";
}

TEST_F(ChannelTest, AHelperThatDoesNotComeLeavesNothingBehind) {
  SetHelperUnprivileged(true);
  for (const auto behaviour : {Behaviour::kDoesNotOpen, Behaviour::kDoesNotGreet}) {
    machine.namedPipes.SetBehaviour(behaviour);
    testing::internal::CaptureStderr();
    LaunchHelperDaemon();
    EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kStarting);
    machine.runLoop.RunFor(5500);
    const auto said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.starts_with("read error: 110\n"), behaviour == Behaviour::kDoesNotGreet) << said;
    EXPECT_EQ(QuitHelperDaemon(), -1);
    EXPECT_EQ(machine.namedPipes.OpenCount(), 0u);
    EXPECT_EQ(machine.namedPipes.NameCount(), 0u);
  }
  machine.namedPipes.RefuseFifos(true);
  LaunchHelperDaemon();
  EXPECT_EQ(gFd_a2d, -1);
  EXPECT_EQ(gFd_d2a, -1);
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kNone);
}

TEST_F(ChannelTest, AChannelOpenedOverAnotherReplacesIt) {
  Open();
  const int before = gFd_a2d;
  Open();
  EXPECT_NE(gFd_a2d, before);
  EXPECT_EQ(machine.namedPipes.OpenCount(), 2u);
}

/// A beat's request, as Query gives an action's.
std::string Beat(const char* request) {
  DaemonConversation conversation;
  char answer[256];
  const auto size = conversation.Query(request, answer, sizeof answer - 1);
  return std::string(answer) + " (" + std::to_string(size) + ")";
}

TEST_F(ChannelTest, ABeatGoesOnWithoutAnAnswerThatComesLater) {
  LaunchHelperDaemon();
  machine.namedPipes.SetBehaviour(Behaviour::kStalls);
  machine.namedPipes.RecordExchanges(true);
  machine.log.Clear();
  EXPECT_EQ(Beat("one"), " (-2)");
  EXPECT_EQ(Beat("two"), " (-3)") << "nothing is written before the answer has come";
  EXPECT_EQ(Log(), "NamedPipes.Write \"one\"\n");
  machine.namedPipes.SayUnasked("late");
  machine.namedPipes.SetBehaviour(Behaviour::kAnswers);
  EXPECT_EQ(Query("Lkw Action Request:\nkill_halt 12"), "done (4)") << "an action first takes it";
  EXPECT_EQ(DaemonConversation::TakeLateAnswer(), "late");
  EXPECT_EQ(DaemonConversation::TakeLateAnswer(), "") << "once";

  machine.namedPipes.SetBehaviour(Behaviour::kStalls);
  EXPECT_EQ(Beat("three"), " (-2)");
  machine.runLoop.RunFor(240);
  EXPECT_GE(gFd_a2d, 0);
  machine.namedPipes.SayUnasked("!Error");
  machine.runLoop.RunFor(20);
  EXPECT_GE(gFd_a2d, 0) << "in time";
  EXPECT_EQ(DaemonConversation::TakeLateAnswer(), "");
  EXPECT_EQ(Beat("four"), " (-2)");
  machine.runLoop.RunFor(260);
  EXPECT_EQ(gFd_a2d, -1) << "overdue";
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kNone);
}

class RelaunchTest : public SimulatedControl {
 protected:
  /// Starts from now on are recorded with their seconds, and succeed or not.
  void RecordStarts(bool succeed) {
    const auto begin = machine.clock.Now();
    machine.tools.OnStart([this, begin, succeed](const auto&) {
      mStarts += std::to_string(MillisecondsBetween(begin, machine.clock.Now()) / 1000) + " ";
      return succeed;
    });
  }
  std::string Starts() { return std::exchange(mStarts, {}); }

 private:
  std::string mStarts;
};

TEST_F(RelaunchTest, AnotherHelperIsStartedWithGrowingDelays) {
  LaunchHelperDaemon();
  machine.namedPipes.SetBehaviour(Behaviour::kStalls);
  testing::internal::CaptureStderr();
  Query("geteuid");
  RecordStarts(false);
  machine.log.Clear();
  machine.runLoop.RunFor(200'000);
  EXPECT_EQ(Starts(), "1 3 7 15 31 63 123 183 ");
  EXPECT_EQ(Log().find("Authorization"), std::string::npos) << "never with a question";
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lurkwell: the helper does not answer; starting another\n");
  EXPECT_EQ(machine.namedPipes.NameCount(), 0u);
}

TEST_F(RelaunchTest, OneThatDoesNotOpenIsGivenFiveSeconds) {
  machine.namedPipes.SetBehaviour(Behaviour::kDoesNotOpen);
  SetHelperUnprivileged(true);
  LaunchHelperDaemon();
  RecordStarts(true);
  machine.runLoop.RunFor(20'000);
  EXPECT_EQ(Starts(), "5 11 18 ") << "the first from the bundle";
  machine.namedPipes.SetBehaviour(Behaviour::kDoesNotGreet);
  machine.runLoop.RunFor(11'000);
  EXPECT_EQ(gFd_a2d, -1);
  EXPECT_EQ(Starts(), "27 ");
  EXPECT_EQ(machine.namedPipes.OpenCount(), 2u) << "both ends, and the greeting is missing";
  QuitHelperDaemon();
  EXPECT_EQ(machine.namedPipes.OpenCount(), 0u) << "also in the middle of it";
  EXPECT_EQ(machine.namedPipes.NameCount(), 0u);
  machine.runLoop.RunFor(100'000);
  EXPECT_EQ(Starts(), "") << "after the end no other is started";
}

TEST_F(RelaunchTest, AGoodAnswerStartsTheDelaysOver) {
  LaunchHelperDaemon();
  machine.namedPipes.SetBehaviour(Behaviour::kStalls);
  Query("geteuid");
  RecordStarts(true);
  machine.runLoop.RunFor(2'000);
  EXPECT_EQ(Starts(), "1 ");
  EXPECT_GE(gFd_a2d, 0) << "it has greeted";
  Query("geteuid");
  machine.runLoop.RunFor(3'000);
  EXPECT_EQ(Starts(), "4 ") << "but a greeting is no answer";
  machine.namedPipes.SetBehaviour(Behaviour::kAnswers);
  EXPECT_EQ(Query("geteuid"), "0 (1)");
  machine.namedPipes.SetBehaviour(Behaviour::kStalls);
  Query("geteuid");
  machine.runLoop.RunFor(2'000);
  EXPECT_EQ(Starts(), "6 ");
}

}  // namespace
}  // namespace lurkwell
