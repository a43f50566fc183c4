// Log files on the disk, and a disk that fails.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/linux/LinuxLogFiles.h"

namespace lurkwell {
namespace {

namespace fs = std::filesystem;

class LogFilesTest : public testing::Test {
 protected:
  LogFilesTest() {
    std::string pattern = "/tmp/lurkwell-XXXXXX";
    folder = ::mkdtemp(pattern.data());
    ::setenv("TMPDIR", folder.c_str(), 1);
  }
  ~LogFilesTest() override {
    ::unsetenv("TMPDIR");
    fs::remove_all(folder);
  }

  static std::string Text(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
  }

  fs::path folder;
  LinuxLogFiles files;
};

TEST_F(LogFilesTest, AFileIsNewPrivateAndGrowsByLines) {
  const auto first = files.Create("Lkw_log_12_");
  const auto second = files.Create("Lkw_log_12_");
  ASSERT_TRUE(first.file != nullptr && second.file != nullptr) << first.problem;
  EXPECT_NE(first.file->Path(), second.file->Path());
  EXPECT_TRUE(first.file->Path().starts_with((folder / "Lkw_log_12_").string()));
  struct stat status {};
  ASSERT_EQ(::stat(first.file->Path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  EXPECT_EQ(first.file->Append("one\t1"), "");
  EXPECT_EQ(first.file->Append("two\t2"), "");
  EXPECT_EQ(Text(first.file->Path()), "one\t1\ntwo\t2\n");
  fs::remove(first.file->Path());
  EXPECT_NE(first.file->Append("three"), "") << "the file is gone";
}

TEST_F(LogFilesTest, WhatWaitsUnderAGuessedNameIsNotTouched) {
  const auto victim = folder / "victim";
  std::ofstream(victim) << "mine";
  fs::create_symlink(victim, folder / "Lkw_log_12_0");
  fs::create_symlink(folder / "nowhere", folder / "Lkw_log_12_1");
  ASSERT_EQ(::mkfifo((folder / "Lkw_log_12_2").c_str(), 0600), 0);
  std::ofstream(folder / "Lkw_log_12_3") << "theirs";
  int names = 0;
  LinuxLogFiles guessed([&] { return std::to_string(names++); });
  const auto creation = guessed.Create("Lkw_log_12_");
  ASSERT_NE(creation.file, nullptr) << creation.problem;
  EXPECT_EQ(creation.file->Path(), (folder / "Lkw_log_12_4").string());
  EXPECT_EQ(creation.file->Append("row"), "");
  EXPECT_EQ(Text(victim), "mine");
  EXPECT_EQ(Text(folder / "Lkw_log_12_3"), "theirs");
  EXPECT_FALSE(fs::exists(folder / "nowhere"));
  LinuxLogFiles stuck([] { return std::string("0"); });
  EXPECT_EQ(stuck.Create("Lkw_log_12_").file, nullptr) << "it does not try for ever";
}

TEST_F(LogFilesTest, AFolderThatIsGoneIsAProblemAndNothingElse) {
  fs::remove_all(folder);
  const auto creation = files.Create("Lkw_log_12_");
  EXPECT_EQ(creation.file, nullptr);
  EXPECT_NE(creation.problem, "");
}

TEST_F(LogFilesTest, ALineThatDoesNotFitIsTakenBackWhole) {
  const auto creation = files.Create("Lkw_log_12_");
  ASSERT_NE(creation.file, nullptr);
  EXPECT_EQ(creation.file->Append("1234567"), "");
  // The kernel writes what fits below a limit on the file's size, as on a disk that fills up.
  ::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{12, limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  const auto problem = creation.file->Append("does not fit");
  ::setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_NE(problem, "");
  EXPECT_EQ(Text(creation.file->Path()), "1234567\n");
  EXPECT_EQ(creation.file->Append("again"), "");
  EXPECT_EQ(Text(creation.file->Path()), "1234567\nagain\n");
}

}  // namespace
}  // namespace lurkwell
