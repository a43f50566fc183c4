// What the feeders ask of the machine and of the helper, and what they make of the answers.
#include <set>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/PrintfOutputClient.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

class FeedersTest : public ConsolidatorTest {
 protected:
  /// Runs up to the first turn of clients that were added before the heart began to beat.
  std::string Accesses(std::int64_t milliseconds) {
    machine.log.Clear();
    machine.runLoop.RunFor(milliseconds);
    return machine.log.Take();
  }
};

TEST_F(FeedersTest, RequestsRepeatTheLinesBeforeThemUntilTheTextIsLong) {
  for (int pid = 10001; pid <= 10010; ++pid) machine.processTable.Birth(pid, "p");
  Start();
  Add("client", 1000).Needs({"meta_active_time", "pid_faults"});
  const std::string header = "Helper Lkw Info Extraction:\\n";
  const auto line = [](int pid) {
    return "pid_internal_thread_time_basic_info_events_info " + std::to_string(pid) + "\\n";
  };
  // 21 characters of header and 54 of each line: the tenth makes it more than 512.
  std::string expected = "ProcessTable.Read\n";
  std::string text = header;
  for (int pid = 10010; pid >= 10001; --pid) {
    text += line(pid);
    expected += text + "\n";
  }
  text = header + line(1);
  expected += text + "\n";
  expected += text + line(0) + "\n";
  EXPECT_EQ(Accesses(1000), "ProcessTable.Read\n" + expected);
}

TEST_F(FeedersTest, OnlyTheGroupsThatSomebodyNeedsAreAskedFor) {
  machine.processTable.Birth(30, "watched");
  machine.processTable.Birth(31, "other");
  Start();
  auto& client = Add("client", 1000).OfPids({30});
  const auto asked = [&](const char* property) {
    client.Needs({property});
    const auto text = Accesses(1000);
    const auto at = text.find("pid_internal");
    return at == std::string::npos ? "" : text.substr(at, text.find("\\n", at) - at);
  };
  Accesses(0);
  EXPECT_EQ(asked("pid_p_comm"), "");
  EXPECT_EQ(asked("pid_system_time"), "pid_internal_thread_time_basic_info 30")
      << "a source of the CPU time is needed, and so the CPU time";
  EXPECT_EQ(asked("pid_rsz"), "pid_internal_basic_info 30");
  EXPECT_EQ(asked("pid_csw"), "pid_internal_events_info 30");
  EXPECT_EQ(asked("meta_active_time"), "pid_internal_thread_time_basic_info 30");
  EXPECT_EQ(asked("pid_terminated_user_time"), "pid_internal_thread_time_basic_info 30");
  client.NeedsEverything();
  machine.log.Clear();
  machine.runLoop.RunFor(1000);
  EXPECT_NE(machine.log.Take().find("_thread_time_basic_info_events_info 31"), std::string::npos);
}

TEST_F(FeedersTest, WithoutAnyNeedTheHelperIsLeftAlone) {
  Start();
  Add("client", 1000);
  EXPECT_EQ(Accesses(2000), "ProcessTable.Read\nProcessTable.Read\nProcessTable.Read\n");
}

TEST_F(FeedersTest, AnswersThatWereNotAskedForChangeNothing) {
  machine.processTable.Birth(40, "a");
  machine.processTable.Birth(41, "b");
  Start();
  Add("client", 1000).Needs({"pid_rsz"}).OfPids({40});
  std::string answer;
  helper->SetAnswer([&](std::string_view) { return answer; });
  const auto after = [&](const char* text) {
    answer = text;
    machine.runLoop.RunFor(1000);
    return Value(40, "pid_rsz") + " " + Value(40, "pid_csw") + " " + Value(41, "pid_rsz");
  };
  Accesses(0);
  EXPECT_EQ(after("pid_rsz 40 17\n"), "17 0 0");
  EXPECT_EQ(after("pid_rsz 41 99\npid_csw 40 99\nmeta_pid 40 99\npid_p_nice 40 99\n"), "0 0 0")
      << "nor is what was known before known any longer";
  EXPECT_EQ(after("pid_rsz 40 99999999999999999999\n"), "0 0 0") << "it does not fit";
  EXPECT_EQ(after("pid_rsz 40 18"), "18 0 0") << "the last line needs no newline";
  EXPECT_EQ(after("noise\n\n\npid_rsz\npid_rsz x\npid_rsz 40 19\n"), "19 0 0");
  EXPECT_EQ(after("!Error\n"), "0 0 0");
  EXPECT_EQ(after(""), "0 0 0");
  EXPECT_EQ(after("pid_vsz 40 536870913\npid_rsz 40 20\n"), "20 0 0");
  EXPECT_EQ(Value(40, "pid_vsz"), "1");
}

TEST_F(FeedersTest, TheHelperIsAskedWhereTheMachineTellsNothingOrThePreferenceSaysSo) {
  auto& process = machine.processTable.Birth(45, "busy");
  process["pid_vsz"] = 0x20000005;
  process["pid_rsz"] = 4096;
  process["pid_policy"] = 3;
  process["pid_faults"] = 10;
  process["pid_pageins"] = 11;
  process["pid_csw"] = 17;
  Start();
  Add("client", 1000).NeedsEverything();
  const auto figures = [&] {
    machine.runLoop.RunFor(1000);
    std::string text = AreCPUTimesFresh(45) && AreCPUTimesFresh(0) ? "" : "old: ";
    for (const char* property : {"meta_active_time", "pid_vsz", "pid_rsz", "pid_suspend_count",
                                 "pid_policy", "pid_faults", "pid_pageins", "pid_csw"})
      text += Value(45, property) + ' ';
    return text;
  };
  process.UseCPU(1500);
  EXPECT_EQ(figures(), "1.500000 5 4096 0 3 10 11 17 ");
  process.UseCPU(1000);
  int asked = 0;
  helper->SetAnswer([&](std::string_view) {
    ++asked;
    return "pid_rsz 45 17\npid_user_time 0 1.0\n";
  });
  EXPECT_EQ(figures(), "old: 0.000000 5 17 0 3 0 0 0 ");
  machine.processTable.TellFigures(true);
  ++process["pid_pageins"];
  ++process["pid_csw"];
  asked = 0;
  EXPECT_EQ(figures(), "2.500000 5 4096 0 3 10 12 18 ");
  EXPECT_EQ(asked, 0);
  SetPrefInt("FIGURES_FROM_HELPER", 1);
  process.UseCPU(1000);
  EXPECT_EQ(figures(), "3.500000 5 17 0 3 10 12 18 ") << "the helper's where it has them";
  EXPECT_GT(asked, 0);
  QuitHelperDaemon();
  EXPECT_EQ(figures(), "3.500000 5 4096 0 3 10 12 18 ");
  machine.processTable.TellFigures(false);
  EXPECT_EQ(figures(), "old: 0.000000 0 0 0 0 0 0 0 ");
}

TEST_F(FeedersTest, ASlowHelperIsAskedForOthersInEachBeat) {
  for (int pid = 5000; pid > 0; --pid)
    if (pid != 1) machine.processTable.Birth(pid, "p")["pid_rsz"] = 4096;
  Start();
  Add("client", 1000).Needs({"pid_rsz"});
  // Each answer takes a millisecond of the sixty that a beat has.
  helper->SetAnswer([this](std::string_view request) {
    machine.clock.Advance(1);
    return machine.helper.Answer(request);
  });
  machine.helper.SetRecordsFigures(false);
  const auto known = [] {
    std::size_t count = 0;
    for (const auto pid : PidBlob()) count += IsKnown(GetPIDPropertyTypedValue(pid, "pid_rsz"));
    return count;
  };
  std::set<std::int32_t> seen;
  for (int beat = 0; beat < 90; ++beat) {
    machine.runLoop.RunFor(1000);
    EXPECT_LE(known(), 62u) << "what was not asked for in this beat is not known";
    for (const auto pid : PidBlob())
      if (IsKnown(GetPIDPropertyTypedValue(pid, "pid_rsz"))) seen.insert(pid);
  }
  EXPECT_EQ(seen.size(), 5001u);
  EXPECT_GE(gFd_a2d, 0);
}

TEST_F(FeedersTest, FiguresThatStayTheSameForABeatAreFreshInTheNext) {
  auto& process = machine.processTable.Birth(45, "busy");
  Start();
  Add("client", 1000).Needs({"meta_active_time"});
  Accesses(1000);
  EXPECT_EQ(Value(45, "meta_active_time"), "0.000000");
  process.UseCPU(1500);
  Accesses(1000);
  EXPECT_EQ(Value(45, "meta_active_time"), "1.500000");
}

TEST_F(FeedersTest, APidAboveTheMachinesLimitIsPassedOver) {
  machine.processTable.Birth(65535, "last");
  machine.processTable.Birth(65536, "beyond");
  Start();
  Add("client", 1000).Needs({"meta_name"});
  testing::internal::CaptureStderr();
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "BAD pid! (?)\nBAD pid! (?)\n")
      << "in both beats";
  EXPECT_EQ(Value(65535, "meta_name"), "last");
  EXPECT_EQ(Value(65536, "meta_name"), "[]");
}

class PSFeederTest : public FeedersTest {
 protected:
  PSFeederTest() {
    auto& tools = machine.tools;
    tools.SetOutput("/bin/ps -Lww", "pid %cpu rss rsz\ntt command\n");
    tools.SetOutput("/bin/ps 0 -o pid", "  PID\n");
    tools.SetOutput("/bin/ps 0 -o %cpu", "%CPU\n");
    tools.SetOutput("/bin/ps 0 -o rss", "   RSZ\n    1\n");
    tools.SetOutput("/bin/ps 0 -o rsz", "RSZ\n");
    tools.SetOutput("/bin/ps 0 -o tt", "TT\n");
    machine.processTable.Birth(60, "a");
    machine.processTable.Birth(61, "b");
  }
};

TEST_F(PSFeederTest, ColumnsAreFoundOnceAndKnownByTheirHeaders) {
  helper.emplace(machine);
  InitializeProcessInformationConsolidator();
  EXPECT_EQ(machine.log.Take(),
            "Tools.Start /bin/ps -Lww\nTools.Start /bin/ps 0 -o pid\n"
            "Tools.Start /bin/ps 0 -o %cpu\nTools.Start /bin/ps 0 -o rss\n"
            "Tools.Start /bin/ps 0 -o rsz\nTools.Start /bin/ps 0 -o tt\n"
            "Tools.Start /bin/ps 0 -o command\n");
  std::string headers;
  for (int i = 0; i < GetPSHeaderCount(); ++i) {
    char name[64];
    GetNthPSHeader(i, name, sizeof name, nullptr);
    headers += std::string(name) + std::to_string(GetNthPSHeadersGeneratingOptionCount(i)) + " ";
  }
  EXPECT_EQ(headers, "PID1 %CPU1 RSZ2 TT1 ") << "a keyword that prints nothing is no column";
}

TEST_F(PSFeederTest, ANeededColumnIsOneRunAndItsValuesKeepTheirNewline) {
  machine.tools.SetOutput("/bin/ps -axww -o pid,rsz",
                          "  PID    RSZ\n    1   123\n   60  45 6 \n   61\n    0   99\n x 5\n");
  Start();
  Add("client", 1000).Needs({"RSZ", "PID"});
  EXPECT_EQ(Accesses(1000),
            "ProcessTable.Read\nProcessTable.Read\nTools.Start /bin/ps -axww -o pid,rsz\n");
  EXPECT_EQ(Value(1, "RSZ"), "()") << "there is no waiting for ps";
  EXPECT_EQ(Accesses(1000), "ProcessTable.Read\nTools.Start /bin/ps -axww -o pid,rsz\n");
  EXPECT_EQ(Value(1, "RSZ"), "123\n");
  EXPECT_EQ(Value(60, "RSZ"), "45 6 \n");
  EXPECT_EQ(Value(61, "RSZ"), "");
  EXPECT_EQ(Value(0, "RSZ"), "()");
  EXPECT_EQ(Value(60, "TT"), "()") << "known, but not needed";
  bool current = false;
  GetNthPSHeader(2, nullptr, 0, &current);
  EXPECT_TRUE(current);
  GetNthPSHeader(3, nullptr, 0, &current);
  EXPECT_FALSE(current);
}

TEST_F(PSFeederTest, WhoeverAskedIsServedWhenPsHasAnswered) {
  machine.tools.SetOutput("/bin/ps -axww -o pid,tt", "PID TT\n60 s0\n");
  machine.tools.SetStuck("/bin/ps -Lww");
  Start();
  Told(0);
  auto& client = Add("client", 3'600'000).Needs({"TT"});
  told.Clear();
  RequestUpdate(&client);
  std::string seen;
  client.onPSColumns = [&] { seen += ArePSColumnsKnown() ? Value(60, "TT") : "too early"; };
  EXPECT_EQ(Told(500), "client updated\n") << "there is no waiting for ps";
  EXPECT_EQ(seen + std::to_string(GetPSHeaderCount()), "0");
  machine.tools.SetStuck("/bin/ps -Lww", false);
  EXPECT_EQ(Told(100), "") << "no turn is made for it";
  EXPECT_EQ(seen, "s0\n");
}

TEST_F(PSFeederTest, ForSomeProcessesOnlyTheirValuesAreKept) {
  machine.tools.SetOutput("/bin/ps -axww -o pid,tt", "PID TT\n60 s0\n61 s1\n99 s9\n");
  Start();
  bool isCurrent = false;
  auto& client = Add("client", 1000).Needs({"TT"}).OfPids({61});
  client.onUpdated = [&] { GetNthPSHeader(3, nullptr, 0, &isCurrent); };
  // A client whose turn comes in between takes nothing from the one that asked.
  Add("other", 300);
  Told(1000);
  EXPECT_EQ(Value(61, "TT"), "()");
  EXPECT_EQ(Told(1000).find("added"), std::string::npos) << "99 had ended before its line came";
  EXPECT_EQ(Value(60, "TT"), "()");
  EXPECT_EQ(Value(61, "TT"), "s1\n");
  EXPECT_TRUE(isCurrent);
  machine.tools.SetOutput("/bin/ps -axww -o pid,tt", "PID TT\n");
  Told(2000);
  EXPECT_FALSE(isCurrent);
}

TEST_F(PSFeederTest, AColumnThatHangsKeepsWhatItHadAndRestsForLongerEachTime) {
  const std::string command = "/bin/ps -axww -o pid,tt";
  machine.tools.SetOutput(command, "PID TT\n60 whole\n61 cut");
  machine.tools.SetStuck(command);
  Start();
  Add("client", 500).Needs({"TT"});
  // In half seconds: one for the first turn, two in which it may run, and the rest in between.
  const auto runs = [&] {
    std::string text;
    for (int turn = 1; turn <= 200; ++turn)
      if (Accesses(500).find(command) != std::string::npos) text += std::to_string(turn) + ' ';
    return text;
  };
  testing::internal::CaptureStderr();
  EXPECT_EQ(runs(), "1 7 17 35 69 135 ") << "2, 4, 8, 16, 32 seconds";
  EXPECT_EQ(Value(60, "TT"), "whole\n");
  EXPECT_EQ(Value(61, "TT"), "()");
  const auto said = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(
      said.starts_with("lurkwell: ps did not finish the column TT; asking again in 2 s\n"
                       "lurkwell: ps did not finish the column TT; asking again in 4 s\n"))
      << said;
  EXPECT_EQ(std::ranges::count(said, '\n'), 6);
  machine.tools.SetStuck(command, false);
  machine.runLoop.RunFor(120'000);
  EXPECT_NE(Accesses(500).find(command), std::string::npos) << "all is forgiven";
}

TEST_F(PSFeederTest, WhatCannotBeStartedIsTriedAgainAtOnce) {
  Start();
  Add("client", 1000).Needs({"TT"});
  machine.tools.SetShort(true);
  testing::internal::CaptureStderr();
  for (int turn = 0; turn < 3; ++turn)
    EXPECT_NE(Accesses(1000).find("-o pid,tt"), std::string::npos) << turn;
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lurkwell: ps cannot be started; trying again with each update\n");
  machine.tools.SetShort(false);
  machine.tools.SetOutput("/bin/ps -axww -o pid,tt", "PID TT\n60 s0\n");
  Accesses(2000);
  EXPECT_EQ(Value(60, "TT"), "s0\n");
}

TEST_F(PSFeederTest, ColumnsThatCannotBeFoundOutAtTheStartAreFoundOutLater) {
  machine.tools.SetStuck("/bin/ps -Lww");
  testing::internal::CaptureStderr();
  Start();
  machine.runLoop.RunFor(6000);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lurkwell: ps does not tell its columns; asking again in 2 s\n");
  EXPECT_EQ(GetPSHeaderCount(), 0);
  machine.tools.SetStuck("/bin/ps -Lww", false);
  Add("client", 1000).Needs({"TT"});
  machine.runLoop.RunFor(10'000);
  EXPECT_EQ(GetPSHeaderCount(), 4);
}

TEST_F(PSFeederTest, ColumnsUnderNamesThatNobodyKnowsOrThatAreTakenAreLeftOut) {
  machine.tools.SetOutput("/bin/ps 0 -o command", "pid_rsz\n");
  Start();
  EXPECT_EQ(GetPSHeaderCount(), 4);
  Add("client", 1000).Needs({"TT", "RSZ"});
  machine.tools.SetOutput("/bin/ps -axww -o pid,tt", "PID TTY\n60 s0\n");
  machine.tools.SetOutput("/bin/ps -axww -o pid,rsz", "PID pid_p_nice\n60 5\n");
  machine.runLoop.RunFor(2000);
  EXPECT_EQ(Value(60, "TT"), "()");
  EXPECT_EQ(Value(60, "pid_p_nice"), "0");
}

TEST(PSValues, WhatDoesNotReadAsAValueIsATextAsItIs) {
  const auto read = [](PropertyType type, const char* text) {
    const auto value = ReadPSValue({type, true, 1024}, text);
    if (const auto* time = std::get_if<TimeValue>(&value)) return std::to_string(time->seconds);
    if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
    return '"' + std::get<std::string>(value) + '"';
  };
  EXPECT_EQ(read(kPropertyTypeMemory, "3\n"), "3072");
  EXPECT_EQ(read(kPropertyTypeMemory, "9007199254740993"), "\"9007199254740993\"");
  EXPECT_EQ(read(kPropertyTypeInteger, "-20"), "-20");
  EXPECT_EQ(read(kPropertyTypeInteger, "0000000000004003"), "\"0000000000004003\"");
  EXPECT_EQ(read(kPropertyTypeClock, "1-02:03:04\n"), "93784");
  EXPECT_EQ(read(kPropertyTypeClock, "100:01"), "6001");
  for (const char* text : {"", "-", "1-2", "1:2:3:4", "12", "-1:00", "9999999999:00"})
    EXPECT_EQ(read(kPropertyTypeClock, text), '"' + std::string(text) + '"');
  for (const char* text : {"", "Nov22", "Sun Nov 22 05:06:29", "Sun Nob 22 05:06:29 2026"})
    EXPECT_EQ(read(kPropertyTypeDate, text), '"' + std::string(text) + '"');
}

TEST_F(PSFeederTest, AMachineWithoutPsHasNoColumns) {
  machine.tools.SetOutput("/bin/ps -Lww", "");
  Start();
  EXPECT_EQ(GetPSHeaderCount(), 0);
  Add("client", 1000).Needs({"TT"});
  EXPECT_EQ(Accesses(1000), "ProcessTable.Read\nProcessTable.Read\n");
}

TEST_F(PSFeederTest, TheKeywordListIsCutAtItsLimit) {
  std::string list(1020, 'x');
  machine.tools.SetOutput("/bin/ps -Lww", list + "\nabcdef\n");
  helper.emplace(machine);
  InitializeProcessInformationConsolidator();
  EXPECT_EQ(machine.log.Take(), "Tools.Start /bin/ps -Lww\nTools.Start /bin/ps 0 -o " +
                                    std::string(255, 'x') + "\nTools.Start /bin/ps 0 -o ab\n");
}

TEST_F(PSFeederTest, ThePrintfClientPrintsALinePerProcess) {
  machine.processTable.Find(60)->UseCPU(1234);
  machine.processTable.Find(61)->SetName("\x1B[2Jb\n");
  machine.tools.SetOutput("/bin/ps -axww -o pid,rsz", "PID RSZ\n60 456\n");
  Start();
  BeginPrintfOutput();
  testing::internal::CaptureStdout();
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "   61:           \\033[2Jb\\012    0.000000     1                      \n"
            "   60:                      a    1.234000     1                      \n"
            "    1:                launchd    0.000000     0                      \n"
            "    0:            kernel_task    0.000000     0                      \n");
  EXPECT_EQ(machine.log.Take().find("-axww"), std::string::npos) << "it fetches no ps column";
  Add("other", 1000).Needs({"RSZ"});
  machine.runLoop.RunFor(2000);
  testing::internal::CaptureStdout();
  machine.runLoop.RunFor(1000);
  EXPECT_NE(testing::internal::GetCapturedStdout().find("\n   60:                      a    "
                                                        "1.234000     1       456            \n"),
            std::string::npos);
}

}  // namespace
}  // namespace lurkwell
