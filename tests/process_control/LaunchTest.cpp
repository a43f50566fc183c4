#include <algorithm>
#include <cstring>
#include <sstream>

#include "channel/DaemonChannel.h"
#include "channel/DaemonInstallation.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/SimulatedControl.h"

namespace lurkwell {
namespace {

class LaunchTest : public SimulatedControl {
 protected:
  /// What a launch did, in words: who was asked for what, in the order of things. A helper that is
  /// checked is started for that.
  std::string Steps() {
    static constexpr std::pair<const char*, const char*> kWords[] = {
        {"Tools.StartInBackground $ /tmp", "start"},
        {"Helper geteuid", "check"},
        {"Authorization.Create", "authorize"},
        {"Authorization.ExecuteWithPrivileges $ --set_permissions_appropriately", "step"},
        {"Authorization.ExecuteWithPrivileges $ /tmp", "start-as-root"},
        {"Alerts.", "alert"},
        {"Authorization.Free", "free"}};
    std::string steps;
    std::istringstream lines(Log());
    for (std::string line; std::getline(lines, line);)
      for (const auto& [start, word] : kWords)
        if (line.starts_with(start)) steps += std::string(word) + ' ';
    return steps;
  }
  std::string Launched() {
    QuitHelperDaemon();
    machine.log.Clear();
    LaunchHelperDaemon();
    return Steps();
  }

  /// The administrator's step makes the helper answer `uid` from then on.
  void StepGives(int uid) {
    machine.authorization.OnExecute([this, uid](const auto&, const auto& arguments) {
      if (arguments.size() == 1) machine.helper.SetEffectiveUid(uid);
      return true;
    });
  }
  void StepIsRefused() {
    machine.authorization.OnExecute(
        [](const auto&, const auto& arguments) { return arguments.size() != 1; });
  }
};

TEST_F(LaunchTest, AHelperWithRightsIsCheckedAndThenStarted) {
  EXPECT_EQ(Launched(), "start check start ");
  EXPECT_GE(gFd_a2d, 0);
  EXPECT_EQ(Query("geteuid"), "0 (1)");
  QuitHelperDaemon();
  EXPECT_EQ(gFd_a2d, -1);
  EXPECT_EQ(gFd_d2a, -1);
  EXPECT_EQ(machine.namedPipes.OpenCount(), 0u);
  EXPECT_EQ(machine.namedPipes.NameCount(), 0u);
}

TEST_F(LaunchTest, AHelperWithoutRightsIsRepairedOnceOrStartedWithPrivilege) {
  machine.helper.SetEffectiveUid(501);
  EXPECT_EQ(Launched(), "start check authorize step start check start-as-root free ");
  StepGives(0);
  EXPECT_EQ(Launched(), "start check authorize step start check start free ");
  SetPrefInt("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", 1);
  machine.authorization.AsksFor(3);
  EXPECT_EQ(Launched(), "authorize step start-as-root free ") << "no installed helper is trusted";
  EXPECT_GE(gFd_a2d, 0);
}

TEST_F(LaunchTest, ARefusedUserMayTryAgainAndGoOnWithout) {
  machine.helper.SetEffectiveUid(501);
  StepIsRefused();
  machine.alerts.WillAnswer({AlertButton::kDefault, AlertButton::kDefault, AlertButton::kOther});
  testing::internal::CaptureStderr();
  LaunchHelperDaemon();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lurkwell: the helper gets no rights: the administrator refused\n")
      << "once, though refused three times";
  const auto log = machine.log.Lines();
  const auto alert = std::ranges::find_if(
      log, [](const std::string& line) { return line.starts_with("Alerts."); });
  ASSERT_NE(alert, log.end());
  EXPECT_TRUE(alert->ends_with("[Authenticate Again|Quit Lurkwell|Continue Without]")) << *alert;
  EXPECT_EQ(Steps(), "start check authorize step alert step alert step alert start free ");
  EXPECT_EQ(Query("geteuid"), "501 (3)");
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kOwn);
  EXPECT_EQ(GetDaemonStatus().reason, "The administrator refused");

  EXPECT_EQ(Launched(), "start check start ") << "the answer is remembered";
  EXPECT_TRUE(GetDaemonStatus().mayAsk);
  StepGives(0);
  QuitHelperDaemon();
  machine.log.Clear();
  AskForDaemonRights();
  EXPECT_EQ(Steps(), "start check authorize step start check start free ");
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kFull);
}

TEST_F(LaunchTest, WhatCannotHelpIsNotOffered) {
  machine.helper.SetEffectiveUid(501);
  StepIsRefused();
  machine.authorization.SetReason("it is not installed", Authorization::Remedy::kNone);
  EXPECT_EQ(Launched(), "start check authorize step start free ") << "no question at all";
  EXPECT_EQ(GetDaemonStatus().reason, "It is not installed");
  EXPECT_FALSE(GetDaemonStatus().mayAsk);
  QuitHelperDaemon();

  machine.authorization.SetReason("there is no pkexec", Authorization::Remedy::kMachine);
  LaunchHelperDaemon();
  const std::string log = Log();
  EXPECT_NE(log.find("\"There is no pkexec."), std::string::npos);
  EXPECT_NE(log.find("[|Quit Lurkwell|Continue Without]"), std::string::npos);
}

TEST_F(LaunchTest, QuittingInTheAlertEndsTheProgram) {
  machine.helper.SetEffectiveUid(501);
  StepIsRefused();
  machine.alerts.WillAnswer({AlertButton::kDefault, AlertButton::kAlternate});
  LaunchHelperDaemon();
  EXPECT_TRUE(machine.runLoop.IsStopped());
  EXPECT_EQ(gFd_a2d, -1);
}

TEST_F(LaunchTest, UnprivilegedAsksNobody) {
  SetHelperUnprivileged(true);
  SetPrefInt("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", 1);
  LaunchHelperDaemon();
  const std::string greeting(DaemonGreeting().substr(0, DaemonGreeting().size() - 1));
  EXPECT_EQ(Log(),
            "NamedPipes.MakeFifo /tmp/Lkw_a2d_1 010666\nNamedPipes.MakeFifo /tmp/Lkw_d2a_2 010666\n"
            "Tools.StartInBackground $ /tmp/Lkw_a2d_1 /tmp/Lkw_d2a_2\n"
            "NamedPipes.OpenForWriting /tmp/Lkw_a2d_1\nNamedPipes.Write \"" +
                greeting +
                "\\n\"\nNamedPipes.OpenForReading /tmp/Lkw_d2a_2\n"
                "NamedPipes.Unlink /tmp/Lkw_a2d_1\nNamedPipes.Unlink /tmp/Lkw_d2a_2\n");
}

TEST_F(LaunchTest, TheCheckLooksAtTheFirstCharacterOnly) {
  StepIsRefused();
  machine.authorization.SetReason("no", Authorization::Remedy::kNone);
  const auto rights = [this] {
    LaunchHelperDaemon();
    machine.runLoop.RunFor(6000);
    const auto status = GetDaemonStatus();
    QuitHelperDaemon();
    return status.rights;
  };
  for (const auto& [answer, good] :
       std::initializer_list<std::pair<const char*, bool>>{{"0", true},
                                                           {"0 ", true},
                                                           {"01", true},
                                                           {"10", false},
                                                           {" 0", false},
                                                           {"!Error 0", false}}) {
    machine.namedPipes.SetHelper([text = std::string(answer)](std::string_view) { return text; });
    EXPECT_EQ(rights(), good ? DaemonRights::kFull : DaemonRights::kOwn) << answer;
  }
  machine.namedPipes.SetBehaviour(SimulatedNamedPipes::Behaviour::kStalls);
  EXPECT_EQ(rights(), DaemonRights::kOwn) << "after some patience";
}

TEST_F(LaunchTest, TheHelperIsInstalledOnceAndNeverReplaced) {
  char path[kHelperPathCapacity];
  std::string obstacle;
  const auto bundle = machine.bundle.Path();
  ASSERT_TRUE(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path, sizeof path, obstacle));
  EXPECT_EQ(path, Helper());
  EXPECT_EQ(ReadFile(Helper()), "from the bundle");
  EXPECT_EQ(ModeOf(Helper()), 0755u);
  EXPECT_EQ(ModeOf(folder / "Support/Lurkwell"), 0700u);

  WriteFile(Helper(), "installed before");
  ASSERT_TRUE(EnsureThatDaemonIsInApplicationSupport("/nowhere", path, sizeof path, obstacle));
  EXPECT_EQ(ReadFile(Helper()), "installed before");
  std::filesystem::directory_iterator left(folder / "Support/Lurkwell");
  EXPECT_EQ(std::distance(begin(left), end(left)), 1) << "no temporary copies";

  std::filesystem::remove(Helper());
  std::filesystem::create_symlink("nowhere", Helper());
  ASSERT_TRUE(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path, sizeof path, obstacle));
  EXPECT_EQ(ReadFile(Helper()), "from the bundle") << "a link to nothing is no helper";

  EXPECT_DEATH(EnsureThatDaemonIsInApplicationSupport(
                   bundle.c_str(), path, static_cast<std::int32_t>(Helper().size()), obstacle),
               "DaemonCommunication:[0-9]+: failed assertion `strlen.*capacity'");
  machine.bundle.SetApplicationSupportFolder(std::nullopt);
  EXPECT_FALSE(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path, sizeof path, obstacle));
}

TEST_F(LaunchTest, WhatCannotBeInstalledRunsFromTheBundleWithTheUsersRights) {
  const std::string quoted = folder / "a \"quoted\" folder";
  std::filesystem::rename(machine.bundle.Path(), quoted);
  machine.bundle.SetPath(quoted);
  testing::internal::CaptureStderr();
  LaunchHelperDaemon();
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(said.starts_with("lurkwell: the helper runs with your own rights: cannot copy "))
      << said;
  EXPECT_NE(
      Log().find("Tools.StartInBackground " + quoted + "/Contents/Resources/Lurkwell_helper "),
      std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(Helper()));
}

}  // namespace
}  // namespace lurkwell
