// What the helper answers and does, on a machine that exists in memory.
#include <errno.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "helper/Figures.h"
#include "helper/RecordingSystem.h"
#include "helper/ReferenceReader.h"
#include "helper/Session.h"
#include "platform/ProcessFigures.h"

namespace lurkwell::helper::testing {
namespace {

class SessionTest : public ::testing::Test {
 protected:
  SessionTest() : mSession(std::make_unique<Session>()) {
    mSurroundings.startUser = 0;
    mSurroundings.user = 1000;
    mSurroundings.ownPid = 50;
    mSurroundings.peerPid = 60;
    for (const int pid : {1, 2, 50, 60, 70, 4194304}) mMachine.processes[pid] = {};
    mSession->Begin(mMachine.Calls(), mSurroundings);
  }

  std::string Ask(std::string_view request) { return std::string(mSession->Answer(request)); }
  std::string Act(const std::string& line) { return Ask("Lkw Action Request:\n" + line); }
  std::string Figures(const std::string& lines) { return Ask("Lkw Info Extraction:\n" + lines); }

  RecordingSystem mMachine;
  Surroundings mSurroundings;
  std::unique_ptr<Session> mSession;
};

using Effects = std::vector<std::string>;

TEST_F(SessionTest, WhatIsNotInTheTableIsRefusedBeforeAnyCall) {
  EXPECT_EQ(Ask("geteuid"), "0");
  const std::string figures = "Lkw Info Extraction:\n";
  for (const std::string& line : Pieces(
           "kill_normal 50|kill_halt 50|renice 50 5|kill_halt 60|kill_normal 070|kill_normal 70\n|"
           "kill_normal 70kill_normal 2|kill_normal|Kill_normal 70|kill_hard 70||renice 70 +1|"
           "renice 70 -0|renice 70 --1|renice 70|renice 70 1 |renice 70 99999999999|"
           "kill_normal 70\nkill_normal 2|\nkill_normal 70",
           '|'))
    EXPECT_EQ(Act(line).substr(0, 7), "!Error ") << line;
  EXPECT_EQ(Act(std::string("kill_normal 7\0", 14)), "!Error malformed request\n");
  for (const std::string& request :
       Pieces("|geteuid\n|geteuidgeteuid|kill_normal 70|Lkw Action Request:|" + figures + "|" +
                  figures + "kill_normal 70\n|" + figures + "pid_internal 70|" + figures +
                  "pid_internal_basic_info_thread_time 70\n|" + figures + "pid_internal 70\n\n|" +
                  figures + "Lkw Action Request:\nkill_normal 70|" + figures +
                  "pid_internal_thread_time_thread_time 70\n",
              '|'))
    EXPECT_EQ(Ask(request), "!Error malformed request\n") << request;
  EXPECT_TRUE(mMachine.effects.empty());
  EXPECT_TRUE(mMachine.opened.empty());
}

TEST_F(SessionTest, AProcessOtherThanTheOneReportedIsLeftAlone) {
  EXPECT_NE(Figures("pid_internal 70\n"), "");
  mMachine.processes[70].start = 2000;
  EXPECT_EQ(Act("kill_harsh 70"), "!Error another process has this pid\n");
  EXPECT_EQ(Act("renice 70 5"), "!Error another process has this pid\n");
  EXPECT_TRUE(mMachine.effects.empty());
  // Reported again, it is the one that is meant.
  Figures("pid_internal_basic_info 70\n");
  EXPECT_EQ(Act("kill_harsh 70"), "ok");
  mMachine.processes.erase(70);
  EXPECT_EQ(Act("kill_harsh 70"), "!Error no such process\n");
  // To have been told that it is gone does not make its pid's next holder the one that is meant.
  EXPECT_EQ(Figures("pid_internal 70\n"), "!Error no such process\n");
  mMachine.effects.clear();
  mMachine.processes[70] = {.start = 3000};
  EXPECT_EQ(Act("kill_harsh 70"), "!Error another process has this pid\n");
  EXPECT_TRUE(mMachine.effects.empty());
  // A process that changes under a renice is noticed.
  mMachine.beforeEffect = [](RecordingSystem& machine) { machine.processes[2].start = 7; };
  EXPECT_EQ(Act("renice 2 5"), "!Error another process has this pid\n");
  mMachine.beforeEffect = nullptr;
  for (const auto& [error, words] : {std::pair(EPERM, "this takes an administrator's rights"),
                                     {ESRCH, "no such process"},
                                     {EINVAL, "refused by the system"}}) {
    mMachine.signalError = mMachine.niceError = -error;
    EXPECT_EQ(Act("kill_cont 2"), "!Error " + std::string(words) + "\n");
    EXPECT_EQ(Act("renice 2 5"), "!Error " + std::string(words) + "\n");
  }
}

TEST_F(SessionTest, EveryActionIsOneLineOfTheLogWhateverTheName) {
  for (int code = 1; code < 256; ++code) {
    mMachine.processes[70].name = std::string("a) S 1 \n<1>uid=0 \"") + static_cast<char>(code);
    Act("kill_cont 70");
  }
  mMachine.processes[70].name = std::string(64, '\n');
  Act("renice 70 -5");
  ASSERT_EQ(mMachine.log.size(), 256u);
  EXPECT_NE(mMachine.log[255].find(" verb=renice pid=70 nice=-5 start="), std::string::npos);
  Act("renice 70 0");
  EXPECT_NE(mMachine.log[256].find(" nice=0 start="), std::string::npos);
  for (const std::string& line : mMachine.log) {
    for (const char character : line) EXPECT_TRUE(character >= ' ' && character < 0x7f) << line;
    EXPECT_EQ(std::count(line.begin(), line.end(), '"'), 2) << line;
    EXPECT_TRUE(line.ends_with(" result=ok")) << line;
  }
  EXPECT_EQ(mMachine.log[64],
            "<86>Lurkwell_helper[50]: uid=1000 verb=kill_cont pid=70 start=1000 "
            "name=\"a) S 1 \\x0a<1>uid=0 \\x22A\" result=ok");
  Act("kill_halt 60");
  EXPECT_EQ(mMachine.log.back(),
            "<86>Lurkwell_helper[50]: uid=1000 verb=kill_halt pid=60 start=0 name=\"\" "
            "result=not permitted");
}

TEST_F(SessionTest, FiguresComeFromTheFilesOfTheAskedGroups) {
  mMachine.processes[70] = {
      .start = 5,
      .name = "od d) (x",
      .fields = {{3, "T"},
                 {10, "40"},
                 {12, "2"},
                 {14, "1234"},
                 {15, "7"},
                 {19, "-5"},
                 {23, "9007199254740993"},
                 {24, "3"},
                 {25, "18446744073709551615"},
                 {41, "6"}},
      .status = "Name:\tx\nvoluntary_ctxt_switches:\t30\nnonvoluntary_ctxt_switches:\t4\n",
      .io = "rchar: 9\nwchar: 9\nsyscr: 100\nsyscw: 11\n"};
  EXPECT_EQ(Figures("pid_internal_thread_time 70\n"),
            "pid_user_time 70 12.340000\npid_system_time 70 0.070000\n");
  EXPECT_EQ(mMachine.opened, Effects{"/proc/70/stat"});
  EXPECT_EQ(Figures("pid_internal_basic_info_events_info 70\npid_internal_events_info 71\n"
                    "pid_internal_thread_time_events_info 0\n"),
            "pid_vsz 70 9007199254740993\npid_rsz 70 12288\npid_suspend_count 70 1\n"
            "pid_terminated_user_time 70 0.000000\npid_terminated_system_time 70 0.000000\n"
            "pid_policy 70 6\n"
            "pid_faults 70 42\npid_pageins 70 2\npid_cow_faults 70 0\npid_messages_sent 70 0\n"
            "pid_messages_received 70 0\npid_syscalls_mach 70 0\npid_syscalls_unix 70 111\n"
            "pid_csw 70 34\n"
            "pid_user_time 0 12.340000\npid_system_time 0 0.560000\n"
            "pid_faults 0 0\npid_pageins 0 0\npid_cow_faults 0 0\npid_messages_sent 0 0\n"
            "pid_messages_received 0 0\npid_syscalls_mach 0 0\npid_syscalls_unix 0 0\n"
            "pid_csw 0 0\n");
  EXPECT_NE(Figures("pid_internal_basic_info 2\n").find("pid_suspend_count 2 0\n"),
            std::string::npos);
  // Each group has the figures whose rows name it.
  for (const auto& [group, word] : kFigureGroupWords) {
    std::istringstream answer(Figures("pid_internal" + std::string(word) + " 70\n"));
    std::string property, rest;
    for (const auto& row : kFigures) {
      if (row.group != group) continue;
      answer >> property;
      std::getline(answer, rest);
      EXPECT_EQ(property, row.property);
    }
    EXPECT_FALSE(answer >> property) << property;
  }
  // What may not be read is 0, and a pid without a process is nothing.
  mMachine.processes[70].io.clear();
  mMachine.processes[70].status.clear();
  const std::string closed = Figures("pid_internal_events_info 70\n");
  EXPECT_NE(closed.find("pid_syscalls_unix 70 0\npid_csw 70 0\n"), std::string::npos) << closed;
  EXPECT_EQ(Figures("pid_internal_thread_time 71\n"), "!Error no such process\n");
  EXPECT_TRUE(mMachine.open.empty());
}

TEST_F(SessionTest, NoAnswerIsLongerThanOneReadAndEachEndsWithAWholeProcess) {
  std::string lines;
  std::size_t largestBatch = 0;
  for (int count = 0; count < 130; ++count) {
    const int pid = 4000000 + count;
    mMachine.processes[pid] = {.fields = {{10, "18446744073709551615"},
                                          {14, "18446744073709551615"},
                                          {15, "18446744073709551615"},
                                          {23, "18446744073709551615"},
                                          {24, "4503599627370495"},
                                          {41, "4294967295"}},
                               .status =
                                   "\nvoluntary_ctxt_switches: 9223372036854775807\n"
                                   "nonvoluntary_ctxt_switches: 9223372036854775807\n",
                               .io = "\nsyscr: 9223372036854775807\nsyscw: 9223372036854775807\n"};
    lines += "pid_internal_thread_time_basic_info_events_info " + std::to_string(pid) + "\n";
    const std::string answer = Figures(lines);
    ASSERT_LE(answer.size(), 8191u);
    ASSERT_TRUE(answer.ends_with("\n"));
    // The application begins anew once a request has more than 512 characters.
    if (lines.size() - 56 <= 512 - 21) largestBatch = answer.size();
    std::istringstream stream(answer);
    std::string property, last;
    while (stream >> property) std::getline(stream, last);
    EXPECT_EQ(property, "pid_csw");
  }
  EXPECT_LE(largestBatch, 6500u);
}

}  // namespace
}  // namespace lurkwell::helper::testing
