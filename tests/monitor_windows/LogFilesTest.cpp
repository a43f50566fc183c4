// Log files on the disk, and a disk that fails.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/linux/LinuxServices.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

namespace fs = std::filesystem;

class LogFilesTest : public testing::Test {
 protected:
  LogFilesTest() { ::setenv("XDG_DATA_HOME", temporary.Path().c_str(), 1); }
  ~LogFilesTest() override { ::unsetenv("XDG_DATA_HOME"); }

  fs::path Logs() const { return folder / "lurkwell" / "logs"; }

  TemporaryFolder temporary;
  fs::path folder{temporary.Path()};
  LinuxLogFiles files;
};

TEST_F(LogFilesTest, AFileIsNewPrivateAndGrowsByLines) {
  const auto first = files.Create("prog-12");
  const auto second = files.Create("prog-12");
  ASSERT_TRUE(first.file != nullptr && second.file != nullptr) << first.problem;
  EXPECT_NE(first.file->Path(), second.file->Path());
  EXPECT_EQ(first.file->Path(), (Logs() / "prog-12.tsv").string());
  EXPECT_EQ(second.file->Path(), (Logs() / "prog-12-2.tsv").string());
  EXPECT_EQ(fs::status(Logs()).permissions(), fs::perms::owner_all);
  EXPECT_EQ(ModeOf(first.file->Path()), 0600U);
  EXPECT_EQ(first.file->Append("one\t1"), "");
  EXPECT_EQ(first.file->Append("two\t2"), "");
  EXPECT_EQ(ReadFile(first.file->Path()), "one\t1\ntwo\t2\n");
  fs::remove(first.file->Path());
  EXPECT_NE(first.file->Append("three"), "") << "the file is gone";
}

TEST_F(LogFilesTest, OneThatIsContinuedIsBegunAnewBeforeItIsTooLarge) {
  auto log = files.Continue("alerts", "header", 60);
  ASSERT_NE(log.file, nullptr) << log.problem;
  const std::string path = log.file->Path();
  EXPECT_EQ(ModeOf(path), 0600U);
  EXPECT_EQ(log.file->Append("one"), "");
  log = files.Continue("alerts", "header", 60);
  // Another program's.
  const auto other = files.Continue("alerts", "header", 60);
  EXPECT_EQ(other.file->Append("two"), "");
  EXPECT_EQ(log.file->Append("three"), "");
  EXPECT_EQ(ReadFile(path), "header\none\ntwo\nthree\n");
  EXPECT_EQ(log.file->Append(std::string(40, 'x')), "");
  EXPECT_EQ(other.file->Append("four"), "");
  EXPECT_EQ(ReadFile(path), "header\n" + std::string(40, 'x') + "\nfour\n");
  EXPECT_EQ(ReadFile(Logs() / "alerts-1.tsv"), "header\none\ntwo\nthree\n");
  fs::remove(path);
  EXPECT_EQ(log.file->Append("five"), "");
  EXPECT_EQ(ReadFile(path), "header\nfive\n");
  // What others put there is not written to.
  fs::remove(path);
  std::ofstream(folder / "victim") << "mine";
  fs::create_symlink(folder / "victim", path);
  EXPECT_NE(log.file->Append("six"), "");
  EXPECT_EQ(files.Continue("alerts", "header", 60).file, nullptr);
  fs::remove(path);
  fs::create_hard_link(folder / "victim", path);
  EXPECT_EQ(files.Continue("alerts", "header", 60).file, nullptr);
  fs::remove(path);
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(files.Continue("alerts", "header", 60).file, nullptr);
  EXPECT_EQ(ReadFile(folder / "victim"), "mine");
}

TEST_F(LogFilesTest, WhatWaitsUnderAGuessedNameIsNotTouched) {
  const auto victim = folder / "victim";
  std::ofstream(victim) << "mine";
  fs::create_directories(Logs());
  fs::create_symlink(victim, Logs() / "prog-12.tsv");
  fs::create_symlink(folder / "nowhere", Logs() / "prog-12-2.tsv");
  ASSERT_EQ(::mkfifo((Logs() / "prog-12-3.tsv").c_str(), 0600), 0);
  std::ofstream(Logs() / "prog-12-4.tsv") << "theirs";
  const auto creation = files.Create("prog-12");
  ASSERT_NE(creation.file, nullptr) << creation.problem;
  EXPECT_EQ(creation.file->Path(), (Logs() / "prog-12-5.tsv").string());
  EXPECT_EQ(creation.file->Append("row"), "");
  EXPECT_EQ(ReadFile(victim), "mine");
  EXPECT_EQ(ReadFile(Logs() / "prog-12-4.tsv"), "theirs");
  EXPECT_FALSE(fs::exists(folder / "nowhere"));
  for (int number = 5; number <= 100; ++number)
    std::ofstream(Logs() / ("prog-12-" + std::to_string(number) + ".tsv"));
  EXPECT_EQ(files.Create("prog-12").file, nullptr) << "it does not try for ever";
}

TEST_F(LogFilesTest, AFolderThatCannotBeMadeIsAProblemAndNothingElse) {
  std::ofstream(folder / "lurkwell") << "a file";
  const auto creation = files.Create("prog-12");
  EXPECT_EQ(creation.file, nullptr);
  EXPECT_NE(creation.problem, "");
}

TEST_F(LogFilesTest, ALineThatDoesNotFitIsTakenBackWhole) {
  const auto creation = files.Create("prog-12");
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
  EXPECT_EQ(ReadFile(creation.file->Path()), "1234567\n");
  EXPECT_EQ(creation.file->Append("again"), "");
  EXPECT_EQ(ReadFile(creation.file->Path()), "1234567\nagain\n");
}

}  // namespace
}  // namespace lurkwell
