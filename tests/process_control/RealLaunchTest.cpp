#include <dirent.h>
#include <sched.h>
#include <sys/mount.h>

#include <cctype>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <vector>

#include "preferences/PreferencesRetrieval.h"
#include "process_control/RealControl.h"

namespace lurkwell {
namespace {

using std::chrono::milliseconds;

/// The application as a plain user starts it, with the administrator's consent given by a stand-in.
class RealLaunchTest : public RealControl {
 protected:
  RealLaunchTest() {
    folder.Make("bin");
    std::filesystem::copy_file(LURKWELL_TEST_STAND_IN, Pkexec());
    EXPECT_EQ(::chmod(Pkexec().c_str(), 04755), 0);
    folder.Make("data", 0755, kUser);
    folder.Make("said", 0755, kUser);
  }

  std::string Pkexec() const { return folder / "bin/pkexec"; }
  void AdministratorSays(const char* mode) { WriteFile(folder / "bin/mode", mode); }
  /// What pkexec was asked.
  std::string Asked() const { return Shortened(ReadFile(folder / "bin/asked")); }
  /// With "$" for the test's folder.
  std::string Shortened(std::string text) const {
    for (auto at = text.find(folder.Path()); at != std::string::npos; at = text.find(folder.Path()))
      text.replace(at, folder.Path().size(), "$");
    return text;
  }

  /// Starts the helper as the user; what it says about its rights, "none" without a helper, and
  /// what was said on standard error.
  std::string Launched(bool always = false) {
    const std::string report = folder / "said/report", errors = folder / "said/errors";
    const int status = InChild([&] {
      BecomeUser(kUser);
      const int file = ::open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      if (::dup2(file, STDERR_FILENO) < 0) return 98;
      if (ignoresChildren) ::signal(SIGCHLD, SIG_IGN);
      RealMachine machine(folder.Path());
      if (always) SetPrefInt("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", 1);
      LaunchHelperDaemon();
      machine.RunUntil([] { return gFd_a2d >= 0; });
      WriteFile(report, gFd_a2d >= 0 ? Query("geteuid") : "none");
      if (whileOpen) whileOpen(machine);
      QuitHelperDaemon();
      return 0;
    });
    EXPECT_EQ(status, 0);
    return ReadFile(report) + "\n" + Shortened(ReadFile(errors));
  }

  bool ignoresChildren = false;
  std::function<void(RealMachine&)> whileOpen;
};

/// What is said where there is no user to answer.
std::string Refused(std::string reason) {
  const std::string clause = "lurkwell: the helper gets no rights: " + reason + "\n";
  reason[0] = static_cast<char>(std::toupper(reason[0]));
  return std::to_string(kUser) + "\n" + clause +
         "lurkwell: Lurkwell must be authenticated in order to run on this computer with an "
         "administrator password. " +
         reason +
         ".\n\nWithout an administrator's rights Lurkwell shows every process and acts on your "
         "own. It will not ask at the next start; the status line says how to be asked. (Continue "
         "Without)\n";
}
constexpr char kStep[] =
    "$/data/Lurkwell|--disable-internal-agent|--keep-cwd|"
    "$/lib/lurkwell/Contents/Resources/Lurkwell_permissions|--set_permissions_appropriately\n";

TEST_F(RealLaunchTest, TheAdministratorGivesTheCopyItsRightsOnce) {
  AdministratorSays("yes");
  EXPECT_EQ(Launched(), "0\n");
  EXPECT_EQ(Asked(), kStep);
  EXPECT_EQ(ModeOf(Installed()), 04750u);
  EXPECT_EQ(Launched(), "0\n") << "and later without any question";
  EXPECT_EQ(Asked(), kStep);

  EXPECT_EQ(Launched(true), "0\n") << "through pkexec, as the preference wants";
  const std::string asked = Asked().substr(2 * sizeof kStep - 2);
  EXPECT_TRUE(
      asked.starts_with("$/data/Lurkwell|--disable-internal-agent|--keep-cwd|"
                        "$/lib/lurkwell/Contents/Resources/Lurkwell_helper|$/pipes/lurkwell-"))
      << asked;
}

TEST_F(RealLaunchTest, AHelperThatPkexecStartedLeavesNoZombie) {
  AdministratorSays("yes");
  whileOpen = [](RealMachine& machine) {
    gDaemonLimits.pulse = milliseconds(50);
    // The helper has the user's uid, but may not be signalled by him; it ends with its channel.
    const auto children = [] {
      std::ifstream file("/proc/self/task/" + std::to_string(::getpid()) + "/children");
      return std::string(std::istreambuf_iterator<char>(file), {});
    };
    EXPECT_NE(children(), "");
    CloseDaemonChannel();
    gDaemonChannelWatcher->Lost();
    machine.RunUntil([&] { return children().empty(); });
    EXPECT_EQ(children(), "");
    if (testing::Test::HasFailure()) ::_exit(97);
  };
  EXPECT_EQ(Launched(true).substr(0, 2), "0\n");
}

TEST_F(RealLaunchTest, ConsentIsNoticedWhereNobodyLearnsHowChildrenEnd) {
  AdministratorSays("yes");
  ignoresChildren = true;
  EXPECT_EQ(Launched(), "0\n");
  EXPECT_EQ(Asked(), kStep);
}

TEST_F(RealLaunchTest, WithoutConsentTheHelperHasTheUsersRights) {
  for (const auto& [mode, reason] : std::initializer_list<std::pair<const char*, const char*>>{
           {"126", "the question was dismissed"},
           {"127", "the authorisation was refused, or there is no agent to ask for it"},
           {"72", "the installed helper is missing, or others than root can change it"},
           {"73", "the helper in $/data/Lurkwell cannot be replaced"},
           {"77", "the permission step ended with status 77"},
           {"killed", "the permission step was killed"}}) {
    AdministratorSays(mode);
    EXPECT_EQ(Launched(), Refused(reason));
  }
  WriteFile(Pkexec(), "no program");
  EXPECT_EQ(Launched(), Refused("cannot start $/bin/pkexec: Exec format error"));
  std::filesystem::remove(Pkexec());
  EXPECT_EQ(Launched(), Refused("there is no $/bin/pkexec to ask an administrator with"));
  EXPECT_EQ(ModeOf(Installed()), 0755u);
}

TEST_F(RealLaunchTest, WhatNoPasswordMendsIsMendedOrSaidAndNobodyAskedInVain) {
  // As another installation left it, with rights or without.
  for (const mode_t mode : {04750u, 0755u}) {
    AdministratorSays("yes");
    std::filesystem::remove_all(folder / "data/Lurkwell");
    std::filesystem::remove(folder / "bin/asked");
    folder.Make("data/Lurkwell", 0700, kUser);
    WriteFile(Installed(), "an unknown version");
    EXPECT_EQ(::chown(Installed().c_str(), mode == 0755 ? kUser : 0, kUser), 0);
    EXPECT_EQ(::chmod(Installed().c_str(), mode), 0);
    const std::string launched = Launched();
    EXPECT_EQ(
        launched,
        "0\nlurkwell: the helper in $/data/Lurkwell is not one that this Lurkwell knows; it is "
        "$/data/Lurkwell/Lurkwell_helper.unknown now, and a fresh copy takes its place\n");
    EXPECT_EQ(Asked(), kStep) << "once";
    EXPECT_TRUE(ReadFile(Installed()) == ReadFile(LURKWELL_TEST_HELPER));
    EXPECT_EQ(ReadFile(Installed() + ".unknown"), "an unknown version");
  }
  // The folder is nothing that the program mends by itself.
  std::filesystem::remove(Installed());
  std::filesystem::remove(folder / "bin/asked");
  EXPECT_EQ(::chmod((folder / "data/Lurkwell").c_str(), 0770), 0);
  EXPECT_EQ(Launched(),
            Refused("the folder $/data/Lurkwell is not yours alone, or is reached over a link"));
  EXPECT_EQ(Asked(), "");
}

TEST_F(RealLaunchTest, NobodyIsAskedForAProgramThatOthersThanRootCanChange) {
  AdministratorSays("yes");
  const std::string resources = folder / "lib/lurkwell/Contents/Resources";
  const std::string step = resources + "/Lurkwell_permissions";
  const auto spoilt = [&](const std::function<void()>& spoil) {
    spoil();
    const std::string launched = Launched();
    EXPECT_NE(launched.find("./package makes can get rights"), std::string::npos) << launched;
    EXPECT_EQ(::chown(resources.c_str(), 0, 0), 0);
    EXPECT_EQ(::chmod(resources.c_str(), 0755), 0);
    EXPECT_EQ(::chown(step.c_str(), 0, 0), 0);
  };
  spoilt([&] { EXPECT_EQ(::chown(step.c_str(), kUser, kUser), 0); });
  spoilt([&] { EXPECT_EQ(::chown(resources.c_str(), kUser, kUser), 0); });
  spoilt([&] { EXPECT_EQ(::chmod(resources.c_str(), 0775), 0); });
  // Root's folders lead to one that is not.
  std::filesystem::rename(resources, folder / "real");
  std::filesystem::create_directory_symlink(folder / "real", resources);
  spoilt([&] { EXPECT_EQ(::chmod((folder / "real").c_str(), 0777), 0); });
  EXPECT_EQ(Asked(), "");
}

TEST_F(RealLaunchTest, WhoMayNotAskAsksNobody) {
  AdministratorSays("yes");
  const int status = InChild([&] {
    BecomeUser(kUser);
    const LinuxBundle bundle(folder / "bin/lurkwell");
    PolkitAuthorization authorization(bundle, PolkitAuthorization::Consent::kOnlyIfGiven, Pkexec());
    const auto reference = authorization.Create();
    const bool executed = authorization.ExecuteWithPrivileges(*reference, Installed(),
                                                              {"--set_permissions_appropriately"});
    return executed || authorization.FailureReason().empty() ? 1 : 0;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Asked(), "");
}

TEST_F(RealLaunchTest, AFileSystemWithoutRightsIsExplainedAndNobodyAsked) {
  AdministratorSays("yes");
  const std::string data = folder / "data";
  for (const auto& [flag, name] : std::initializer_list<std::pair<unsigned long, const char*>>{
           {MS_NOSUID, "nosuid"}, {MS_NOEXEC, "noexec"}, {MS_RDONLY, "read-only"}}) {
    const int status = InChild([&, flag = flag, name = name] {
      if (::unshare(CLONE_NEWNS) != 0 ||
          ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
          ::mount("tmpfs", data.c_str(), "tmpfs", 0, "mode=0755,uid=61001,gid=61001") != 0)
        return 97;
      folder.Make("data/Lurkwell", 0700, kUser);
      std::filesystem::copy_file(LURKWELL_TEST_HELPER, Installed());
      if (::chown(Installed().c_str(), kUser, kUser) != 0 ||
          ::mount(nullptr, data.c_str(), nullptr, MS_REMOUNT | flag, nullptr) != 0)
        return 98;
      std::string expected =
          Refused("the file system of $/data/Lurkwell gives programs no rights (" +
                  std::string(name) + ")");
      if (flag == MS_NOEXEC)
        expected +=
            "lurkwell: the helper runs with your own rights: the installed one does not start\n";
      const std::string launched = Launched();
      if (launched != expected) std::fprintf(stderr, "%s", launched.c_str());
      return launched == expected ? 0 : 1;
    });
    EXPECT_EQ(status, 0) << name;
  }
  EXPECT_EQ(Asked(), "");
}

TEST_F(RealLaunchTest, TheBundleKnowsItsFolders) {
  const LinuxBundle bundle("/opt/prefix/bin/lurkwell");
  EXPECT_EQ(bundle.Path(), "/opt/prefix/lib/lurkwell");
  EXPECT_EQ(LinuxBundle("/bin/lurkwell").Path(), "/lib/lurkwell");
  EXPECT_EQ(bundle.ApplicationSupportFolder(), folder / "data");
  ::setenv("XDG_DATA_HOME", "relative", 1);
  ::setenv("HOME", (folder / "home/new").c_str(), 1);
  EXPECT_EQ(bundle.ApplicationSupportFolder(), folder / "home/new/.local/share");
  EXPECT_EQ(ModeOf(folder / "home/new/.local"), 0700u) << "made for the user alone";
  WriteFile(folder / "file", "");
  ::setenv("HOME", (folder / "file").c_str(), 1);
  EXPECT_EQ(bundle.ApplicationSupportFolder(), std::nullopt);
  WriteFile(folder / "lib/lurkwell/Contents/build-tree", "");
  EXPECT_EQ(LinuxBundle(folder / "bin/lurkwell").ApplicationSupportFolder(),
            folder / "Application Support");
}

/// Names that a shell, a format, or a careless parser would make something of.
std::vector<std::string> HostileNames() {
  std::istringstream pieces(
      "$(touch ruined)^`touch ruined`^; touch ruined;^| touch ruined^& touch ruined &^"
      "\ntouch ruined\n^' ; touch ruined '^\" ; touch ruined \"^\\^\\\"; touch ruined^%s%n%d^*^"
      "?[a-z]^-rf^--set_permissions_appropriately^~^#^!!^{a,b}^$IFS$9^\xC3\xA9\xE2\x80\xAE^"
      "\xFF\xFE^\x01\x1B[2J^ ^\t^<in >out^...^\\$(touch ruined)\"`touch ruined`");
  std::vector<std::string> names{std::string(255, 'x')};
  for (std::string name; std::getline(pieces, name, '^');) names.push_back(name);
  return names;
}

TEST_F(RealLaunchTest, HostileFolderNamesAreNamesAndNothingElse) {
  const std::string work = folder.Make("work");
  std::filesystem::current_path(work);
  for (const auto& name : HostileNames()) {
    const std::string prefix = folder.Make("apps/" + name);
    const std::string data = folder.Make("homes/" + name);
    ::setenv("XDG_DATA_HOME", data.c_str(), 1);
    RealMachine::Install(prefix);
    RealMachine machine(prefix);
    testing::internal::CaptureStderr();
    LaunchHelperDaemon();
    machine.RunUntil([] { return gFd_a2d >= 0; });
    EXPECT_EQ(Query("geteuid"), "0") << name;
    QuitHelperDaemon();
    // An application below a double quote finds no helper to install, and uses its own.
    const bool quoted = name.find('"') != std::string::npos;
    EXPECT_EQ(testing::internal::GetCapturedStderr().empty(), !quoted) << name;
    EXPECT_EQ(std::filesystem::exists(data + "/Lurkwell/Lurkwell_helper"), !quoted) << name;
    std::filesystem::remove_all(prefix);
  }
  EXPECT_TRUE(std::filesystem::is_empty(work)) << "a command ran";
  std::filesystem::current_path("/");
}

}  // namespace
}  // namespace lurkwell
