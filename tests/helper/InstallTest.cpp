// Who gets a copy with rights, who may use one, and which versions may.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <thread>

#include "helper/HelperProcess.h"

namespace lurkwell::helper::testing {
namespace {

// What a refused step ends with.
constexpr int kBadCopy = 65, kNoHelper = 72, kCannotWrite = 73, kNoAdministrator = 77,
              kBadFolder = 78;

/// A user's data folder with the application's folder and its copy of the helper in it.
struct Home {
  explicit Home(uid_t user, const std::string& program = HelperPath()) : data(0700, user) {
    path = data / "Lurkwell";
    copy = path + "/Lurkwell_helper";
    std::filesystem::create_directory(path);
    if (chown(path.c_str(), user, user) != 0) throw std::runtime_error("chown");
    Install(program, copy, user, user, 0755);
  }

  struct stat Info() const {
    struct stat info {};
    lstat(copy.c_str(), &info);
    return info;
  }

  TemporaryFolder data;
  std::string path, copy;
};

std::string EffectiveUser(uid_t user, const std::string& program) {
  HelperProcess helper(user, program);
  return helper.IsOpen() ? helper.Ask("geteuid") : "closed";
}

TEST(InstallTest, TheStepGivesTheCopyItsRightsAndTheUserTheHelper) {
  const Home home(kUser);
  const struct stat before = home.Info();
  ASSERT_EQ(RunPermissionStep(StepPath(), home.path, kUser), 0);
  const struct stat after = home.Info();
  EXPECT_NE(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_uid, 0u);
  EXPECT_EQ(after.st_gid, kUser);
  EXPECT_EQ(after.st_mode, mode_t{S_IFREG | 04750});
  EXPECT_TRUE(ReadFile(home.copy) == ReadFile(HelperPath()));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(home.path), {}), 1);
  HelperProcess helper(kUser, home.copy);
  EXPECT_EQ(helper.Ask("geteuid"), "0");
  Canary foreign(kStranger);
  EXPECT_EQ(helper.Act("renice " + std::to_string(foreign.Pid()) + " -19"), "ok");
  EXPECT_EQ(helper.Act("kill_harsh " + std::to_string(foreign.Pid())), "ok");
  // Once more over the file that it has made itself, and not by a user who is no administrator.
  EXPECT_EQ(RunPermissionStep(StepPath(), home.path, kUser), 0);
  const Home other(kStranger);
  const auto ownAttempt = [&] {
    return InChild([&] {
      BecomeUser(kStranger);
      if (chdir(other.path.c_str()) != 0) return 98;
      execl(StepPath().c_str(), "p", "--set_permissions_appropriately", nullptr);
      return 97;
    });
  };
  EXPECT_EQ(ownAttempt(), kNoAdministrator) << "and nothing else";
  EXPECT_EQ(other.Info().st_uid, kStranger);
  WriteFile(other.copy, "no helper");
  EXPECT_EQ(ownAttempt(), kBadCopy) << "which no administrator can mend";
  EXPECT_EQ(InChild([] { return execl(StepPath().c_str(), "p", nullptr); }), 64);
}

TEST(InstallTest, WhatIsNotAsItShouldBeIsRefusedAndLeftAlone) {
  // Each spoils a copy L in its folder D below the data folder A.
  struct Case {
    const char* name;
    const char* spoil;
    int status;
  };
  const Case cases[] = {
      {"other bytes", "echo '#!/bin/sh' > $L", kBadCopy},
      {"one byte more", "printf x >> $L", kBadCopy},
      {"no copy", "rm $L", kBadCopy},
      {"link", "mv $L $D/real; ln -s real $L", kBadCopy},
      {"second name", "ln $L $D/second", kBadCopy},
      {"pipe", "rm $L; mkfifo $L", kBadCopy},
      {"folder", "rm $L; mkdir $L", kBadCopy},
      {"stranger's copy", "chown 61002 $L", kBadCopy},
      {"stranger's folder", "chown 61002 $D", kBadFolder},
      {"stranger above", "chown 61002 $A", kBadFolder},
      {"group may write", "chmod 0770 $D", kBadFolder},
      {"all may write", "chmod 0777 $D", kBadFolder},
      {"group may write above", "chmod 0770 $A; chgrp 61002 $A", kBadFolder},
  };
  for (const auto& [name, spoil, status] : cases) {
    const Home home(kUser);
    Shell("A=" + home.data.Path() + " D=" + home.path + " L=" + home.copy + "; " + spoil);
    const struct stat before = home.Info();
    EXPECT_EQ(RunPermissionStep(StepPath(), home.path, kUser), status) << name;
    const struct stat after = home.Info();
    EXPECT_EQ(before.st_ino, after.st_ino) << name;
    EXPECT_EQ(before.st_mode, after.st_mode) << name;
    EXPECT_EQ(before.st_uid, after.st_uid) << name;
    EXPECT_FALSE(std::filesystem::exists(home.path + "/.Lurkwell_helper.new")) << name;
  }
  const Home home(kUser);
  EXPECT_EQ(RunPermissionStep(StepPath(), home.path, kStranger), kBadFolder) << "another's folder";
  // The user's copy cannot give rights to itself.
  Install(StepPath(), home.path + "/Lurkwell_permissions", 0, 0, 0755);
  EXPECT_EQ(RunPermissionStep(home.path + "/Lurkwell_permissions", home.path, kUser), kBadFolder);
  // A step without a helper beside it.
  const TemporaryFolder alone;
  Install(StepPath(), alone / "Lurkwell_permissions", 0, 0, 0755);
  EXPECT_EQ(RunPermissionStep(alone / "Lurkwell_permissions", home.path, kUser), kNoHelper);
  EXPECT_EQ(home.Info().st_uid, kUser);
}

TEST(InstallTest, AFileSystemThatIgnoresTheRightsIsRefused) {
  ASSERT_EQ(unshare(CLONE_NEWNS), 0);
  Shell("mount --make-rprivate /");
  for (const std::string flag : {"nosuid", "noexec", "ro"}) {
    const Home home(kUser);
    Shell("D=" + home.path + "; mount --bind $D $D && mount -o remount,bind," + flag + " $D");
    EXPECT_EQ(RunPermissionStep(StepPath(), home.path, kUser), kBadFolder) << flag;
    EXPECT_EQ(home.Info().st_uid, kUser);
    Shell("umount " + home.path);
    EXPECT_EQ(RunPermissionStep(StepPath(), home.path, kUser), 0) << flag;
  }
}

/// Whatever in the folder has the right to run as root, has the helper's own bytes.
bool OnlyHelpersAreBlessed(const std::string& path, const std::string& bytes) {
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    struct stat info {};
    if (lstat(entry.path().c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
        (info.st_mode & S_ISUID) != 0 && info.st_uid == 0 && ReadFile(entry.path()) != bytes)
      return false;
  }
  return true;
}

/// In a process of the user: swaps the copy for other files, links and folders as fast as it can.
[[noreturn]] void SwapForEver(const std::string& path) {
  BecomeUser(kUser);
  if (chdir(path.c_str()) != 0) _exit(1);
  for (unsigned round = 0;; ++round) {
    std::filesystem::copy_options over = std::filesystem::copy_options::overwrite_existing;
    std::error_code ignored;
    switch (round % 5) {
      case 0:
        rename("evil", "Lurkwell_helper");
        break;
      case 1:
        rename(".Lurkwell_helper.new", "caught");
        break;
      case 2:
        rename("good", "Lurkwell_helper");
        break;
      case 3:
        unlink("Lurkwell_helper");
        if (symlink("/bin/sh", "Lurkwell_helper") != 0) continue;
        break;
      default:
        rename("evil", ".Lurkwell_helper.new");
        if (link("evil", "Lurkwell_helper") != 0) continue;
    }
    std::filesystem::copy_file("/bin/true", "evil", over, ignored);
    std::filesystem::copy_file("original", "good", over, ignored);
  }
}

TEST(InstallTest, SwappingTheCopyDuringTheStepBlessesNothingForeign) {
  const Home home(kUser);
  Install(HelperPath(), home.path + "/original", kUser, kUser, 0755);
  const std::string bytes = ReadFile(HelperPath());
  const pid_t swapper = Fork();
  if (swapper == 0) SwapForEver(home.path);
  int done = 0, refused = 0;
  for (int round = 0; round < 500; ++round) {
    const int status = RunPermissionStep(StepPath(), home.path, kUser);
    done += status == 0;
    refused += status == kBadCopy || status == kCannotWrite;
    if (round % 20 == 0) {
      kill(swapper, SIGSTOP);
      ASSERT_TRUE(OnlyHelpersAreBlessed(home.path, bytes)) << round;
      // Undisturbed it succeeds, whatever lies about.
      unlink(home.copy.c_str());
      Install(HelperPath(), home.copy, kUser, kUser, 0755);
      EXPECT_EQ(RunPermissionStep(StepPath(), home.path, kUser), 0) << round;
      kill(swapper, SIGCONT);
    }
  }
  kill(swapper, SIGKILL);
  WaitFor(swapper);
  EXPECT_TRUE(OnlyHelpersAreBlessed(home.path, bytes));
  EXPECT_EQ(done + refused, 500);
  EXPECT_GT(refused, 0);
}

TEST(InstallTest, AnExchangeRightBehindTheStepIsNoticed) {
  const Home home(kUser);
  const pid_t step = Fork([&] {
    if (chdir(home.path.c_str()) != 0 || setenv("PKEXEC_UID", "61001", 1) != 0) return 98;
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    execl(StepPath().c_str(), "p", "--set_permissions_appropriately", nullptr);
    return 97;
  });
  int status = 0;
  ASSERT_EQ(waitpid(step, &status, 0), step);
  ptrace(PTRACE_SETOPTIONS, step, nullptr, PTRACE_O_TRACESYSGOOD);
  ASSERT_TRUE(RunBehind(step, SYS_renameat));
  ASSERT_EQ(home.Info().st_mode & S_ISUID, mode_t{S_ISUID});
  const std::string hidden = home.path + "/hidden";
  ASSERT_EQ(rename(home.copy.c_str(), hidden.c_str()), 0);
  Install("/bin/true", home.copy, kUser, kUser, 0755);
  ptrace(PTRACE_DETACH, step, nullptr, nullptr);
  EXPECT_EQ(WaitFor(step), kCannotWrite);
  EXPECT_EQ(ModeOf(hidden), mode_t{0}) << "a set-user-id file under another name";
}

TEST(InstallTest, AFileHeldOpenBeforeTheStepNeverBecomesTheHelper) {
  const std::string bytes = ReadFile(HelperPath());
  for (int round = 0; round < 50; ++round) {
    const Home home(kUser);
    const int file = open(home.copy.c_str(), O_RDWR | O_CLOEXEC);
    void* const mapping = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    ASSERT_NE(mapping, MAP_FAILED);
    ASSERT_EQ(RunPermissionStep(StepPath(), home.path, kUser), 0);
    std::memset(mapping, 'x', 4096);
    ASSERT_EQ(pwrite(file, "evil", 4, 5000), 4);
    munmap(mapping, 4096);
    close(file);
    ASSERT_TRUE(ReadFile(home.copy) == bytes);
    ASSERT_EQ(home.Info().st_mode & 07777, mode_t{04750});
  }
}

TEST(InstallTest, OnlyTheUserWhoseFolderItIsIsServedWithPrivilege) {
  int cases = 0;
  for (const mode_t mode : {04750u, 04710u, 04755u})
    for (const char* place : {"own", "stranger's", "root's"}) {
      const uid_t owner = *place == 'o' ? kUser : *place == 's' ? kStranger : 0;
      const TemporaryFolder folder(0755, owner);
      const std::string program = folder / "Lurkwell_helper";
      Install(HelperPath(), program, 0, kUser, mode);
      // The user, a stranger in the user's group, a stranger outside, the user "nobody".
      for (const auto& [user, group] : std::vector<std::pair<uid_t, gid_t>>{
               {kUser, kUser}, {kStranger, kUser}, {kStranger, kStranger}, {65534, 65534}}) {
        ++cases;
        const int end = InChild([&, who = user, with = group] {
          if (setresgid(with, with, with) != 0 || setresuid(who, who, who) != 0) return 98;
          HelperProcess helper(who, program);
          if (!helper.IsOpen()) return 1;
          return helper.Ask("geteuid") == "0" ? 0 : 2;
        });
        EXPECT_EQ(end == 0, user == owner && (group == kUser || mode == 04755))
            << place << ' ' << user << ' ' << group << ' ' << end;
      }
    }
  EXPECT_EQ(cases, 36);
}

/// From another hand than the helper's.
std::string HexDigest(const std::string& path) {
  const TemporaryFolder folder;
  Shell("sha256sum < " + path + " > " + (folder / "digest"));
  return ReadFile(folder / "digest").substr(0, 64);
}

std::string UpperCase(std::string text) {
  for (char& letter : text) letter = static_cast<char>(std::toupper(letter));
  return text;
}

/// A helper built for a package, whose list lies in a folder that this test has to itself.
class PackagedTest : public ::testing::Test {
 protected:
  static constexpr char kFolder[] = LURKWELL_TEST_PACKAGE;
  const std::string mProgram = std::string(kFolder) + "/Lurkwell_helper";
  const std::string mStep = std::string(kFolder) + "/Lurkwell_permissions";
  const std::string mList = std::string(kFolder) + "/helper-digests";
  const std::string mReplaced = std::string(kFolder) + "/replaced-helpers";
  const std::string mOther = std::string(64, 'a') + '\n';

  void SetUp() override {
    ASSERT_EQ(unshare(CLONE_NEWNS), 0);
    Shell(std::string("mount --make-rprivate / && mount -t tmpfs -o mode=755 none ") + kFolder);
    // Root's, whichever user has built them.
    Install(LURKWELL_TEST_PACKAGED_HELPER, mProgram, 0, 0, 0755);
    Install(LURKWELL_TEST_PACKAGED_STEP, mStep, 0, 0, 0755);
    WriteList(mOther + HexDigest(mProgram) + '\n');
  }

  void WriteList(const std::string& text) { WriteList(mList, text); }
  static void WriteList(const std::string& path, const std::string& text) {
    unlink(path.c_str());
    WriteFile(path, text);
    chmod(path.c_str(), 0644);
  }
};

TEST_F(PackagedTest, OnlyAListedVersionInItsPlaceKeepsItsRights) {
  const std::string own = HexDigest(mProgram) + '\n';
  Home home(kUser, mProgram);
  ASSERT_EQ(RunPermissionStep(mStep, home.path, kUser), 0);
  const auto keepsRights = [&] { return EffectiveUser(kUser, home.copy) == "0"; };
  ASSERT_TRUE(keepsRights());
  for (const std::string& list :
       {std::string(), mOther, own.substr(0, 63), own.substr(1), 'x' + own, mOther + ' ' + own}) {
    WriteList(list);
    EXPECT_FALSE(keepsRights()) << list;
  }
  for (const char* spoil :
       {"rm $L", "chown 61001 $L", "chmod 664 $L", "mv $L $L.real; ln -s $L.real $L"}) {
    WriteList(own);
    Shell("L=" + mList + "; " + spoil);
    EXPECT_FALSE(keepsRights()) << spoil;
  }
  // The machine's list of replaced helpers counts as well, but not by itself, and never against a
  // mark.
  WriteList(mReplaced, own);
  EXPECT_FALSE(keepsRights()) << "a removed package";
  WriteList(mOther);
  EXPECT_TRUE(keepsRights()) << "replaced";
  // Withdrawn in whatever spelling, in front of the version and behind it.
  for (const std::string& mark : {"- " + own, '-' + own, " -\t" + own, "- " + own.substr(0, 64),
                                  "- " + UpperCase(own), "- " + mOther.substr(0, 64) + ' ' + own,
                                  own.substr(0, 64) + " withdrawn\n", own.substr(0, 64) + "\r\n"})
    for (const std::string& list : {mark, own + mark, mark.back() == '\n' ? mark + own : mark}) {
      WriteList(list);
      EXPECT_FALSE(keepsRights()) << list;
    }
  WriteList(mOther);
  Shell("chown 61001 " + mReplaced);
  EXPECT_FALSE(keepsRights()) << "a user's list";
  WriteList(mReplaced, "- " + own);
  WriteList(own);
  EXPECT_FALSE(keepsRights()) << "withdrawn before";
  unlink(mReplaced.c_str());
  ASSERT_TRUE(keepsRights());
  Shell("ln " + home.copy + ' ' + home.path + "/second");
  EXPECT_FALSE(keepsRights()) << "two names";
  const TemporaryFolder elsewhere;
  Shell("rm " + home.path + "/second; mv " + home.copy + ' ' + (elsewhere / "h"));
  EXPECT_EQ(EffectiveUser(kUser, elsewhere / "h"), std::to_string(kUser)) << "moved";
}

}  // namespace
}  // namespace lurkwell::helper::testing
