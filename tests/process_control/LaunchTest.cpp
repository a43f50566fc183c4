#include <cstring>

#include "channel/DaemonChannel.h"
#include "channel/DaemonInstallation.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/SimulatedControl.h"

namespace lurkwell {
namespace {

constexpr char kStep[] = "Authorization.ExecuteWithPrivileges $ --set_permissions_appropriately\n";
constexpr char kPrivileged[] = "Authorization.ExecuteWithPrivileges $";
constexpr char kAlert[] =
    "Alerts.RunAlertPanel \"Lurkwell must be authenticated in order to run on this computer with "
    "an administrator password.\" \"The administrator refused.\n\nWithout an administrator's "
    "rights Lurkwell shows every process and acts on your own. It will not ask at the next start; "
    "the status line says how to be asked.\" [Authenticate Again|Quit Lurkwell|Continue "
    "Without]\n";

class LaunchTest : public SimulatedControl {
 protected:
  /// The accesses of the next start, which ends with an open channel.
  std::string Opened(const std::string& how = "Tools.StartInBackground $") {
    const std::string requests = "/tmp/Lkw_a2d_" + std::to_string(++mPipes);
    const std::string answers = "/tmp/Lkw_d2a_" + std::to_string(++mPipes);
    mLast = "NamedPipes.Close " + answers + "\nNamedPipes.Close " + requests + "\n";
    return "NamedPipes.MakeFifo " + requests + " 010666\nNamedPipes.MakeFifo " + answers +
           " 010666\n" + how + " " + requests + " " + answers + "\nNamedPipes.OpenForWriting " +
           requests + "\nNamedPipes.Write \"" +
           std::string(DaemonGreeting().substr(0, DaemonGreeting().size() - 1)) +
           "\\n\"\nNamedPipes.OpenForReading " + answers + "\nNamedPipes.Unlink " + requests +
           "\nNamedPipes.Unlink " + answers + "\n";
  }
  /// In the order given, which operators would not keep.
  static std::string All(std::initializer_list<std::string> parts) {
    std::string text;
    for (const auto& part : parts) text += part;
    return text;
  }
  std::string Checked() {
    const std::string opened = Opened();
    return opened + "Helper geteuid\n" + mLast;
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

  static constexpr char kAsked[] = "Authorization.Create\nAuthorization.CollectChild\n";
  static constexpr char kDone[] = "Authorization.CollectChild\n";
  static constexpr char kFreed[] = "Authorization.Free\n";

 private:
  int mPipes = 0;
  std::string mLast;
};

TEST_F(LaunchTest, AHelperWithRightsIsCheckedAndThenStarted) {
  LaunchHelperDaemon();
  EXPECT_EQ(Log(), All({Checked(), Opened()}));
  EXPECT_GE(gFd_a2d, 0);
  EXPECT_EQ(Query("geteuid"), "0 (1)");
  QuitHelperDaemon();
  EXPECT_EQ(gFd_a2d, -1);
  EXPECT_EQ(gFd_d2a, -1);
  EXPECT_EQ(machine.namedPipes.OpenCount(), 0u);
  EXPECT_EQ(machine.namedPipes.NameCount(), 0u);
}

TEST_F(LaunchTest, AHelperWithoutRightsIsRepairedOnce) {
  machine.helper.SetEffectiveUid(501);
  StepGives(0);
  LaunchHelperDaemon();
  EXPECT_EQ(Log(), All({Checked(), kAsked, kStep, kDone, Checked(), Opened(), kFreed}));
}

TEST_F(LaunchTest, WhatCannotBeRepairedIsStartedWithPrivilege) {
  machine.helper.SetEffectiveUid(501);
  LaunchHelperDaemon();
  EXPECT_EQ(Log(), All({Checked(), kAsked, kStep, kDone, Checked(), Opened(kPrivileged), kFreed}));
}

TEST_F(LaunchTest, ThePreferenceTrustsNoInstalledHelper) {
  SetPrefInt("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", 1);
  machine.authorization.AsksFor(3);
  LaunchHelperDaemon();
  EXPECT_EQ(Log(), All({kAsked, kStep, kDone, Opened(kPrivileged), kFreed}));
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
  const std::string refused = std::string(kStep) + kAlert;
  EXPECT_EQ(Log(), All({Checked(), kAsked, refused, refused, refused, Opened(), kFreed}));
  EXPECT_EQ(Query("geteuid"), "501 (3)");
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kOwn);
  EXPECT_EQ(GetDaemonStatus().reason, "The administrator refused");

  machine.log.Clear();
  QuitHelperDaemon();
  machine.log.Clear();
  LaunchHelperDaemon();
  EXPECT_EQ(Log(), All({Checked(), Opened()})) << "the answer is remembered";
  EXPECT_TRUE(GetDaemonStatus().mayAsk);
  StepGives(0);
  QuitHelperDaemon();
  machine.log.Clear();
  AskForDaemonRights();
  EXPECT_EQ(Log(), All({Checked(), kAsked, kStep, kDone, Checked(), Opened(), kFreed}));
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kFull);
}

TEST_F(LaunchTest, WhatCannotHelpIsNotOffered) {
  machine.helper.SetEffectiveUid(501);
  StepIsRefused();
  machine.authorization.SetReason("it is not installed", Authorization::Remedy::kNone);
  LaunchHelperDaemon();
  EXPECT_EQ(Log(), All({Checked(), kAsked, kStep, Opened(), kFreed})) << "no question at all";
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
  EXPECT_EQ(Log(), Opened());
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
  char path[1024];
  const auto bundle = machine.bundle.Path();
  ASSERT_TRUE(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path, sizeof path));
  EXPECT_EQ(path, Helper());
  EXPECT_EQ(ReadFile(Helper()), "from the bundle");
  EXPECT_EQ(ModeOf(Helper()), 0755u);
  EXPECT_EQ(ModeOf(folder / "Support/Lurkwell"), 0700u);

  WriteFile(Helper(), "installed before");
  ASSERT_TRUE(EnsureThatDaemonIsInApplicationSupport("/nowhere", path, sizeof path));
  EXPECT_EQ(ReadFile(Helper()), "installed before");
  std::filesystem::directory_iterator left(folder / "Support/Lurkwell");
  EXPECT_EQ(std::distance(begin(left), end(left)), 1) << "no temporary copies";

  std::filesystem::remove(Helper());
  std::filesystem::create_symlink("nowhere", Helper());
  ASSERT_TRUE(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path, sizeof path));
  EXPECT_EQ(ReadFile(Helper()), "from the bundle") << "a link to nothing is no helper";

  EXPECT_DEATH(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path,
                                                      static_cast<std::int32_t>(Helper().size())),
               "DaemonCommunication:[0-9]+: failed assertion `strlen.*capacity'");
  machine.bundle.SetApplicationSupportFolder(std::nullopt);
  EXPECT_FALSE(EnsureThatDaemonIsInApplicationSupport(bundle.c_str(), path, sizeof path));
}

TEST_F(LaunchTest, WhatCannotBeInstalledRunsFromTheBundleWithTheUsersRights) {
  const std::string quoted = folder / "a \"quoted\" folder";
  std::filesystem::rename(machine.bundle.Path(), quoted);
  machine.bundle.SetPath(quoted);
  char path[1024];
  EXPECT_DEATH(EnsureThatDaemonIsInApplicationSupport(EscapedBundlePath().c_str(), path, 1024),
               "DaemonCommunication:[0-9]+: failed assertion `succeeded'");
  testing::internal::CaptureStderr();
  LaunchHelperDaemon();
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(said.starts_with("lurkwell: the helper runs with your own rights: cannot copy "))
      << said;
  EXPECT_EQ(Log(),
            Opened("Tools.StartInBackground " + quoted + "/Contents/Resources/Lurkwell_helper"));
  EXPECT_FALSE(std::filesystem::exists(Helper()));
}

}  // namespace
}  // namespace lurkwell
