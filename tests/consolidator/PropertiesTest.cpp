// The catalogue, the texts of values, and what reports do to them.
#include <clocale>
#include <cstdlib>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PidReport.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/SourceNeeds.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

class PropertiesTest : public ConsolidatorTest {
 protected:
  static void Report(std::int32_t pid, const char* property, const char* value) {
    BeginProcessInformationIteration(kInformationKindPID);
    ReportProcessInformationForPID(pid, property, value);
    EndProcessInformationIteration(kInformationKindPID);
  }

  static std::vector<std::byte> ClassicBlob(std::string_view name, std::uint32_t ticks) {
    std::vector<std::byte> bytes(396);
    const auto put = [&](std::size_t at, const void* data, std::size_t size) {
      std::memcpy(bytes.data() + at, data, size);
    };
    const std::uint32_t words[] = {0x40, 0x1234abcd, 3'000'000, 1'000'000};
    put(16, "APPLttxt", 8);
    put(24, words, sizeof words);
    put(52, &ticks, sizeof ticks);
    bytes[68] = static_cast<std::byte>(name.size());
    put(69, name.data(), name.size());
    return bytes;
  }
};

TEST_F(PropertiesTest, ColumnsOfPSHaveTypesOfTheirOwn) {
  const auto type = [](const char* name) {
    int changes = -1;
    const int value = GetProcPropertyType(name, &changes);
    return std::to_string(value) + (changes ? "c" : "s");
  };
  EXPECT_EQ(type("RSS"), "1c");
  EXPECT_EQ(type("RSZ"), "4c");
  EXPECT_EQ(type("WCHAN"), "1c");
  EXPECT_EQ(type("%CPU"), "2c");
  EXPECT_EQ(type("PADDR"), "3s");
  EXPECT_EQ(type("SESS"), "3c");
  EXPECT_EQ(type("PID"), "1s");
  EXPECT_EQ(type("PPID"), "1s");
  EXPECT_EQ(type("COMMAND"), "0c");
  EXPECT_EQ(type("no such thing"), "0c");
}

TEST_F(PropertiesTest, AKernelProcessHasTextsForWhatItHas) {
  auto& process = machine.processTable.Birth(321, "sixteen letters!", 1);
  process.entry.nice = -5;
  process.entry.startTime = {1'000'000'000, 42};
  process["pid_user_time"] = 12'000'005;
  process["pid_system_time"] = 3'999'999;
  process["pid_terminated_user_time"] = 100'500'000;
  process["pid_terminated_system_time"] = 600'000;
  process["pid_vsz"] = 6'000'000'000;
  Start();
  Add("all", 1000).NeedsEverything();
  machine.runLoop.RunFor(15'000);
  std::string texts;
  for (const char* property :
       {"meta_pid", "pid_p_comm", "meta_name", "meta_active_time", "meta_psn", "carbonpsn_name",
        "classicpsn_name", "pid_parent_pid", "pid_p_nice", "pid_p_starttime", "pid_vsz"})
    texts += Value(321, property) + '|';
  EXPECT_EQ(texts,
            "321|sixteen letters!|sixteen letters!|117.100004|00000000 00000000|(-)|()|1|-5|"
            "1000000000.000042|5463129088|");
}

TEST_F(PropertiesTest, AFigureIsWhatItsRowSaysWhereverItComesFrom) {
  auto& process = machine.processTable.Birth(321, "worker", 1);
  for (std::size_t i = 0; i < kFigureCount; ++i)
    process.figures[i] = 3'000'000'000 + static_cast<std::int64_t>(i);
  for (const Figure figure : kTextFigures)
    process.texts.Set(figure, std::string("of ") + RowOf(figure).property.data());
  machine.preferenceDomain.SetValue("MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT", 0);
  Start();
  auto& client = Add("client", 1000);
  const auto expect = [&](bool isTold, const FigureRow& row) {
    const auto value = GetPIDPropertyTypedValue(321, row.property.data());
    const auto figure = static_cast<Figure>(&row - kFigures.data());
    SCOPED_TRACE(row.property);
    if (!isTold) {
      EXPECT_EQ(value, TypedValue(Missing::kNotCounted));
    } else if (row.kind == FigureKind::kMicroseconds || row.kind == FigureKind::kElapsed) {
      EXPECT_EQ(value, TypedValue(TimeOfMicroseconds(process.Tell(figure))));
    } else if (row.kind == FigureKind::kText) {
      EXPECT_EQ(value, TypedValue("of " + std::string(row.property)));
    } else if (row.kind == FigureKind::kWords) {
      EXPECT_EQ(value, TypedValue(row.words(process.Tell(figure))));
    } else if (row.kind == FigureKind::kShare) {
      EXPECT_EQ(value, TypedValue(static_cast<double>(process.Tell(figure)) / 1000));
    } else {
      EXPECT_EQ(value, TypedValue(process.Tell(figure)));
    }
  };
  // One at a time, so that nothing comes with another's need.
  for (const bool isOpen : {false, true}) {
    machine.processTable.TellFigures(isOpen);
    for (const auto& row : kFigures) {
      client.Needs({row.property.data()});
      const auto whenDue = AddMilliseconds(machine.clock.Now(), 1000);
      const bool isCostly = (SourcesOf(row) & kCostlyFigureSources) != 0;
      EXPECT_EQ(SourceNeeds(whenDue).Of(321), isCostly ? 0 : SourcesOf(row)) << "and of no other";
      machine.runLoop.RunFor(isCostly ? 2000 : 1000);
      if (IsRate(row)) continue;
      expect(isOpen || isCostly ? row.origin.source != 0 : row.group != kNoGroup, row);
    }
  }
  // The helper's word counts where it has one, the table's else.
  SetPrefInt("FIGURES_FROM_HELPER", 1);
  client.Needs({"pid_descriptors"}).NeedsEverything();
  for (auto& value : process.figures) ++value;
  machine.runLoop.RunFor(1000);
  for (const auto& row : kFigures)
    if (!IsRate(row) && (row.origin.source & kCostlyFigureSources) == 0)
      expect(row.group != kNoGroup || row.origin.source != 0, row);
}

TEST_F(PropertiesTest, ARateIsTheGrowthBetweenTwoReadingsOfOneProcess) {
  auto* process = &machine.processTable.Birth(321, "worker", 1);
  machine.processTable.TellFigures(true);
  Start();
  Add("client", 1000).Needs({"pid_disk_read_rate", "pid_cpu_share", "pid_user_share"});
  const auto values = [](std::int32_t pid = 321) {
    std::string text;
    for (const char* name : {"pid_disk_read_rate", "pid_cpu_share", "pid_user_share"}) {
      const auto value = GetPIDPropertyTypedValue(pid, name);
      const auto* missing = std::get_if<Missing>(&value);
      text += (text.empty() ? "" : " ") +
              (missing == nullptr ? Value(pid, name)
                                  : "missing" + std::to_string(static_cast<int>(*missing)));
    }
    return text;
  };
  const auto pass = [&](std::int64_t read, std::int64_t user, std::int64_t system, int after) {
    (*process)["pid_disk_read"] += read;
    (*process)["pid_user_time"] += user;
    (*process)["pid_system_time"] += system;
    machine.runLoop.RunFor(after);
  };
  const std::string kBlank = "missing1 missing1 missing1";
  pass(7'000'000, 50'000'000, 0, 1000);
  EXPECT_EQ(values(), kBlank) << "not a rate since its birth";
  pass(5'000'000, 250'000, 125'000, 1000);
  EXPECT_EQ(values(), "5000000 37.500 25.000");
  pass(0, 0, 0, 1000);
  EXPECT_EQ(values(), "0 0.000 0.000") << "which is not missing";
  // Asleep for ten seconds, and then a beat at once.
  machine.clock.Advance(10'000);
  pass(1'000'000, 2'000'000, 0, 0);
  EXPECT_EQ(values(), "100000 20.000 20.000");
  pass(-1, -1, 0, 1000);
  EXPECT_EQ(values(), kBlank) << "what goes back is no negative rate";
  pass(10, 4'000'000, 0, 1000);
  EXPECT_EQ(values(), "10 400.000 400.000") << "four busy threads";
  SetPrefInt("CPU_SHARE_OF_MACHINE", 1);
  machine.hostStatistics.processors = 8;
  pass(10, 4'000'000, 0, 1000);
  EXPECT_EQ(values(), "10 50.000 50.000");
  // Beats that come too close say nothing.
  Add("often", 20).Needs({"pid_disk_read_rate"});
  pass(10, 0, 0, 40);
  EXPECT_TRUE(values().starts_with("10 ")) << values();
  process->owner = "root";
  pass(10, 0, 0, 1000);
  EXPECT_EQ(values(), "missing2 0.000 0.000");
  machine.processTable.Death(321);
  process = &machine.processTable.Birth(321, "next", 1);
  (*process)["pid_disk_read"] = 1'000'000'000;
  for (int beat = 0; beat < 20; ++beat) {
    pass(0, 0, 0, 20);
    EXPECT_TRUE(values().starts_with("missing1") || values().starts_with("missing0") ||
                values().starts_with("0 "))
        << values() << ": of another process";
  }
  EXPECT_TRUE(values().starts_with("0 ")) << values();
}

TEST_F(PropertiesTest, ValuesComeAsValuesOrSayWhyThereAreNone) {
  machine.processTable.Birth(321, "worker", 1)["pid_rsz"] = 5'000'000'000;
  machine.processTable.Birth(322, "ended", 1).entry.state = RunState::kZombie;
  Start();
  const auto value = [](const char* name) { return GetPIDPropertyTypedValue(321, name); };
  Add("names", 1000).Needs({"pid_p_comm"});
  machine.runLoop.RunFor(1'500);
  EXPECT_EQ(value("pid_p_comm"), TypedValue("worker"));
  EXPECT_EQ(value("pid_rsz"), TypedValue(Missing::kNotYetKnown));
  EXPECT_EQ(value("meta_active_time"), TypedValue(Missing::kNotYetKnown));
  EXPECT_EQ(Value(321, "pid_rsz"), "0");

  Add("sizes", 1000).Needs({"pid_rsz", "meta_active_time"});
  machine.runLoop.RunFor(1'500);
  EXPECT_EQ(value("pid_rsz"), TypedValue(5'000'000'000));
  EXPECT_EQ(value("meta_active_time"), TypedValue(TimeValue{}));
  EXPECT_EQ(value("carbonpsn_name"), TypedValue(Missing::kNone));
  EXPECT_EQ(value("meta_kind"), TypedValue("Process"));
  EXPECT_EQ(GetPIDPropertyTypedValue(322, "meta_kind"), TypedValue("Zombie"));
  EXPECT_EQ(GetPIDPropertyTypedValue(9, "pid_rsz"), TypedValue(Missing::kNone));

  const auto stamp = [] { return GlanceAt(321).changeStamp; };
  auto before = stamp();
  machine.runLoop.RunFor(3'000);
  EXPECT_EQ(stamp(), before) << "nothing has become another value";
  PidReport(321).NoValue(*FindBuiltInProperty("pid_rsz"), Missing::kNotAllowed);
  EXPECT_EQ(value("pid_rsz"), TypedValue(Missing::kNotAllowed));
  EXPECT_EQ(Value(321, "pid_rsz"), "0");
  EXPECT_NE(std::exchange(before, stamp()), stamp());
  PidReport(321).Integer(*FindBuiltInProperty("pid_rsz"), 0);
  EXPECT_EQ(value("pid_rsz"), TypedValue(std::int64_t{0}));
  EXPECT_NE(stamp(), before);
}

TEST_F(PropertiesTest, ApplicationsCarryWhatTheDesktopAndTheClassicEnvironmentSay) {
  machine.processTable.Birth(330, "textedit");
  machine.processManager.Launch({1, 330}, 330, "Text Edit", {'t', 't', 'x', 't'});
  machine.processManager.Launch({2, 0xBEEF}, std::nullopt, "Old Guest");
  Start();
  Add("client", 1000).Needs({"pid_p_comm", "carbonpsn_name"});
  machine.runLoop.RunFor(15'000);
  EXPECT_EQ(Value(330, "meta_name"), "Text Edit");
  EXPECT_EQ(Value(330, "meta_kind"), "OS X");
  EXPECT_EQ(Value(330, "meta_psn"), "00000001 0000014a");
  EXPECT_EQ(Value(330, "carbonpsn_signature"), "ttxt");
  EXPECT_EQ(Value(330, "carbonpsn_mode"), "0x00000040");
  EXPECT_EQ(Value(330, "carbonpsn_type", 4), "()");
  EXPECT_EQ(Value(330, "carbonpsn_nothing"), "()");

  EXPECT_EQ(Value(-2, "meta_kind"), "Classic");
  EXPECT_EQ(Value(-2, "pid_p_comm"), "(n/a)");
  EXPECT_EQ(Value(-2, "classicpsn_name"), "()") << "its report has not come yet";
  ReportProcessInformationClassicPSNBlob({2, 0xBEEF}, ClassicBlob("Guest", 1000).data());
  EXPECT_EQ(Value(-2, "classicpsn_name"), "Guest");
  EXPECT_EQ(Value(-2, "classicpsn_type"), "APPL");
  EXPECT_EQ(Value(-2, "classicpsn_signature"), "ttxt");
  EXPECT_EQ(Value(-2, "classicpsn_mode"), "0x00000040");
  EXPECT_EQ(Value(-2, "classicpsn_location"), "0x1234abcd");
  EXPECT_EQ(Value(-2, "classicpsn_size"), "3000000");
  EXPECT_EQ(Value(-2, "classicpsn_free_mem"), "1000000");
  EXPECT_EQ(Value(-2, "classicpsn_active_time"), "1000");
  EXPECT_EQ(Value(-2, "classicpsn_nothing"), "()");
  EXPECT_DEATH(Value(-2, "classicpsn_size", 10),
               "PI_Consolidator:[0-9]+: failed assertion `valueLength > 10'");
  EXPECT_DEATH(Value(-2, "classicpsn_name", 5),
               "failed assertion `valueLength > mpi->epir->name\\[0\\]'");
  EXPECT_DEATH(Value(-2, "classicpsn_type", 4), "failed assertion `valueLength > 4'");
  EXPECT_DEATH(Value(-2, "classicpsn_active_time", 8), "failed assertion `valueLength > 8'");

  // The longest name loses its last character to the terminator, so that every table's buffer of
  // 255 bytes takes it.
  ReportProcessInformationClassicPSNBlob({2, 0xBEEF}, ClassicBlob(std::string(255, 'n'), 1).data());
  EXPECT_EQ(Value(-2, "classicpsn_name", 255), std::string(254, 'n'));
  // Names are Mac Roman in the record; no character is cut in two.
  ReportProcessInformationClassicPSNBlob({2, 0xBEEF},
                                         ClassicBlob("n" + std::string(200, '\x8E'), 1).data());
  std::string accented = "n";
  for (int i = 0; i < 126; ++i) accented += "é";
  EXPECT_EQ(Value(-2, "classicpsn_name", 255), accented);
}

TEST_F(PropertiesTest, AnApplicationsNewNameIsAChangeAndItsFirstIsNot) {
  machine.processTable.Birth(331, "comm");
  Start();
  auto& client = Add("client", 1000).Needs({"carbonpsn_name"});
  machine.runLoop.RunFor(15'000);
  told.Clear();
  auto& application = machine.processManager.Launch({1, 331}, 331, "First Name");
  EXPECT_EQ(Told(1000), "client changed 331\nclient updated\n") << "a new block of data";
  EXPECT_EQ(Told(1000), "client updated\n");
  application.information.name = std::string(200, 'x');
  EXPECT_EQ(Told(1000), "client changed 331\nclient updated\n");
  EXPECT_EQ(Value(331, "carbonpsn_name"), std::string(127, 'x'));
  EXPECT_EQ(Value(331, "meta_name"), std::string(31, 'x'));
  EXPECT_EQ(Told(1000), "client updated\n") << "what is not shown of it does not differ";
  application.information.name = std::string(30, 'x') + "\xC3\xA9nd";
  EXPECT_EQ(Told(1000), "client changed 331\nclient updated\n");
  EXPECT_EQ(Value(331, "meta_name"), std::string(30, 'x')) << "no half characters";
  client.Needs({});
}

TEST_F(PropertiesTest, ShortBuffersGiveNoValueRatherThanHalfOfOne) {
  Start();
  Report(77, "pid_p_priority", "12345");
  Report(77, "pid_user_time", "1.5");
  Report(77, "pid_p_comm", "command");
  EXPECT_EQ(Value(77, "pid_p_priority", 6), "12345");
  EXPECT_EQ(Value(77, "pid_p_priority", 5), "()");
  EXPECT_EQ(Value(77, "pid_user_time", 14), "1.000005");
  EXPECT_EQ(Value(77, "pid_user_time", 13), "()");
  EXPECT_EQ(Value(77, "pid_system_time", 11), "0.000000");
  EXPECT_EQ(Value(77, "pid_p_comm", 10), "()");
  EXPECT_EQ(Value(77, "meta_name", 4), "com");
  EXPECT_EQ(Value(77, "pid_nothing"), "()");
  Report(77, "pid_parent_pid", "4194304");
  EXPECT_EQ(Value(77, "pid_parent_pid", 6), "()") << "does not fit, although the buffer is allowed";
  EXPECT_EQ(Value(78, "meta_pid"), "[]");
  testing::internal::CaptureStderr();
  EXPECT_EQ(Value(77, "meta_nonsense"), "()");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "unsupported property kind! meta_nonsense\n");
}

TEST_F(PropertiesTest, ReportedTextsAreReadTheWayTheirPropertiesWant) {
  Start();
  const auto after = [](const char* property, const char* value) {
    Report(88, property, value);
    return Value(88, property);
  };
  EXPECT_EQ(after("pid_p_nice", " -7 trailing"), "-7");
  EXPECT_EQ(after("pid_p_nice", "99999999999"), "-7") << "too large: the old value stays";
  EXPECT_EQ(after("pid_p_nice", "none"), "0");
  EXPECT_EQ(after("pid_parent_pid", "17"), "17");
  EXPECT_EQ(after("pid_parent_pid", "none"), "-1");
  EXPECT_EQ(after("pid_system_time", "12.5"), "12.000005");
  EXPECT_EQ(after("pid_system_time", "12"), "12.000000");
  EXPECT_EQ(after("pid_system_time", "1.3000000"), "4.000000");
  EXPECT_EQ(after("pid_rsz", "2147483648"), "2147483648");
  EXPECT_EQ(after("pid_vsz", "536870912"), "536870912");
  EXPECT_EQ(after("pid_vsz", "536870913"), "1");
  EXPECT_EQ(after("pid_vsz", "-1"), "3758096383") << "4 GiB - 1 in a 32-bit sender's words";
  machine.preferenceDomain.SetValue("MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT", 0);
  EXPECT_EQ(after("pid_vsz", "536870913"), "536870913");
  EXPECT_EQ(after("pid_p_comm", "a name that goes on beyond the field"),
            "a name that goes on beyond the ");
  Report(88, "meta_name", "ignored");
  EXPECT_NE(Value(88, "meta_name"), "ignored");
  Report(88, "pid_unheard_of", "5");
}

TEST_F(PropertiesTest, BrokenReportsStopTheProgram) {
  Start();
  machine.processTable.Birth(90, "app");
  machine.processManager.Launch({1, 90}, 90, "App");
  Report(90, "pid_p_comm", "app");
  EXPECT_DEATH(ReportProcessInformationForCarbonPSN({1, 90}, "pid_p_comm", "x"),
               "failed assertion `false'");
  EXPECT_DEATH(ReportProcessInformationForCarbonPSN({1, 90}, "carbonpsn_x", "x"),
               "failed assertion `!\"invalid property!\"'");
  EXPECT_DEATH(ReportProcessInformationForPID(-2, "pid_p_comm", "x"),
               "failed assertion `mpi->pidInfo'");
  EXPECT_DEATH(ReportProcessInformationForPID(-1, "pid_p_comm", "x"),
               "failed assertion `pid != kInvalidPID'");
  EXPECT_DEATH(ReportProcessInformationForPID(90, "NOSUCHCOLUMN", "x"),
               "failed assertion `inPSOptionThatGeneratedProperty != NULL'");
  EXPECT_DEATH(GetNthPSHeader(0, nullptr, 0, nullptr), "failed assertion `pipsh'");
}

TEST_F(PropertiesTest, SyntheticPidsAreKeptForTheFirst127) {
  Start();
  for (std::uint32_t i = 1; i <= 127; ++i)
    EXPECT_EQ(PSN2PID({9, i}), -1 - static_cast<std::int32_t>(i));
  EXPECT_EQ(PSN2PID({9, 127}), -128);
  EXPECT_EQ(PSN2PID({9, 128}), -129);
  EXPECT_EQ(PSN2PID({9, 128}), -130) << "the last slot is written again and never found";
  EXPECT_EQ(PSN2PID({9, 1}), -2);
  ProcessSerialNumber psn;
  PID2PSN(-128, &psn);
  EXPECT_EQ(psn, (ProcessSerialNumber{9, 127}));
  PID2PSN(-130, &psn);
  EXPECT_TRUE(psn.IsNone());
  machine.processManager.Launch({5, 5}, 44, "Kernel backed");
  EXPECT_EQ(PSN2PID({5, 5}), 44);
  PID2PSN(44, &psn);
  EXPECT_EQ(psn, (ProcessSerialNumber{5, 5}));
  // Used up, they start over below those that are kept; what a record has is left out.
  gPSN2PIDMap = SyntheticPidTable(std::numeric_limits<std::int32_t>::min());
  TouchProcessInformationForPID(-130, kInformationKindCarbonPSN);
  EXPECT_EQ(PSN2PID({9, 1}), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(PSN2PID({9, 2}), -129);
  EXPECT_EQ(PSN2PID({9, 3}), -131);
}

TEST_F(PropertiesTest, FamiliesAreFollowedUpwards) {
  auto& table = machine.processTable;
  table.Birth(10, "a");
  table.Birth(11, "b", 10);
  table.Birth(12, "c", 11);
  table.Birth(13, "other");
  Start();
  Add("client", 1000).Needs({"meta_name"});
  machine.runLoop.RunFor(15'000);
  EXPECT_TRUE(PidIsAncestor(12, 10));
  EXPECT_TRUE(PidIsAncestor(1, 0));
  EXPECT_FALSE(PidIsAncestor(10, 10));
  EXPECT_FALSE(PidIsAncestor(10, 12));
  EXPECT_FALSE(PidIsAncestor(0, 1));
  EXPECT_TRUE(PidIsParent(12, 11));
  EXPECT_FALSE(PidIsParent(12, 10));
  const auto list = [](int kind, std::int32_t of) {
    std::string text;
    for (const auto pid : PidBlob(kind, &of)) text += std::to_string(pid) + " ";
    return text;
  };
  EXPECT_EQ(list(kPidBlobAll, 0), "13 12 11 10 1 0 ");
  EXPECT_EQ(list(kPidBlobChildrenOf, 1), "13 10 ");
  EXPECT_EQ(list(kPidBlobChildrenOf, 0), "1 0 ");
  EXPECT_EQ(list(kPidBlobDescendantsOf, 10), "12 11 ");
  EXPECT_EQ(list(kPidBlobDescendantsOf, 0), "13 12 11 10 1 ");
  EXPECT_EQ(list(3, 10), "");
  machine.processTable.Birth(21, "chicken", 20);
  machine.processTable.Birth(20, "egg", 21);
  machine.runLoop.RunFor(15'000);
  EXPECT_EQ(list(kPidBlobDescendantsOf, 20), "20 21 ") << "a loop has an end";
  EXPECT_DEATH(PidIsAncestor(-1, 1), "failed assertion `pid != kInvalidPID'");
  EXPECT_DEATH(PidIsAncestor(1, -1), "failed assertion `potentialAncestorPid != kInvalidPID'");
  EXPECT_DEATH(
      {
        std::fclose(stdout);
        stdout = stderr;
        PidIsAncestor(99, 1);
      },
      "PidIsAncestor problem! pid 99 doesn't exist! \\(potential ancestor 1\\)\n"
      "PI_Consolidator:[0-9]+: failed assertion `mpi'");
  IncrementPidsKillCount(12);
  IncrementPidsKillCount(12);
  IncrementPidsKillCount(99);
  EXPECT_EQ(GetPidsKillCount(12), 2);
  EXPECT_EQ(GetPidsKillCount(99), 0);
}

TEST_F(PropertiesTest, ADeadParentCountsAsUnknownAndNoWalkMeetsAGap) {
  auto& table = machine.processTable;
  table.Birth(20, "parent");
  table.Birth(21, "child", 20);
  Start();
  // No client needs the child, so its parent is not reported again after the first client has gone.
  auto& first = Add("first", 1000).Needs({"meta_name"});
  machine.runLoop.RunFor(15'000);
  EXPECT_EQ(Value(21, "pid_parent_pid"), "20");
  first.OfPids({1});
  table.Death(20);
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(Value(21, "pid_parent_pid"), "-1");
  EXPECT_FALSE(PidIsAncestor(21, 0));
}

TEST_F(PropertiesTest, NumbersOfPsAreReadAsNumbersWhateverTheUsersLanguage) {
  const TemporaryFolder folder;
  ASSERT_EQ(std::system(("localedef -i de_DE -f UTF-8 " + folder / "comma.UTF-8").c_str()), 0);
  ::setenv("LOCPATH", folder.Path().c_str(), 1);
  ASSERT_NE(std::setlocale(LC_NUMERIC, "comma.UTF-8"), nullptr);
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  Start();
  Report(300, "pid_p_comm", "p");
  const auto read = [](const char* header, const char* text) {
    EnsureThatPSProcPropertyExists(header, "option");
    ReportProcessInformationForPID(300, header, text);
    return GetPIDPropertyTypedValue(300, header);
  };
  EXPECT_EQ(GetPIDPropertyTypedValue(300, "%CPU"), TypedValue(Missing::kNotYetKnown));
  EXPECT_EQ(read("%CPU", "12.5\n"), TypedValue(12.5));
  EXPECT_EQ(read("%CPU", "-0.25\n"), TypedValue(-0.25));
  EXPECT_EQ(read("%CPU", "inf"), TypedValue("inf"));
  EXPECT_EQ(read("NI", "-5\n"), TypedValue(std::int64_t{-5}));
  EXPECT_EQ(read("NI", "-\n"), TypedValue("-"));
  EXPECT_EQ(read("PENDING", "0000000000000017\n"), TypedValue("0000000000000017"));
  EXPECT_EQ(read("WCHAN", "99999999999999999999"), TypedValue("99999999999999999999"));
  EXPECT_EQ(GetPIDPropertyTypedValue(0, "NI"), TypedValue(Missing::kNone));
  std::setlocale(LC_NUMERIC, "C");
}

TEST_F(PropertiesTest, ThePsColumnsOfAProcessKeepTheirNewestText) {
  machine.tools.SetOutput("/bin/ps -Lww", "tt tty\n");
  machine.tools.SetOutput("/bin/ps 0 -o tt", "TT\n");
  machine.tools.SetOutput("/bin/ps 0 -o tty", "TT\n");
  Start();
  machine.runLoop.RunFor(0);
  char text[64];
  const int count = CountBuiltInProcPropertyHeaders();
  EXPECT_EQ(CountProcPropertyHeaders(), count + 1);
  EXPECT_TRUE(GetNthProcPropertyHeader(count, text, sizeof text));
  EXPECT_STREQ(text, "TT");
  EXPECT_EQ(GetNthPSHeadersGeneratingOptionCount(0), 2);
  GetNthPSHeadersNthGeneratingOption(0, 0, text, sizeof text);
  EXPECT_STREQ(text, "tty") << "the newest first";
  GetNthPSHeadersNthGeneratingOption(0, 1, text, sizeof text);
  EXPECT_STREQ(text, "tt");
  EXPECT_DEATH(GetNthPSHeadersNthGeneratingOption(0, 2, text, sizeof text),
               "failed assertion `successfullyRetrievedTheOption'");
  EXPECT_EQ(Value(1, "TT"), "()");
  ReportProcessInformationForPID(1, "TT", "s1\n");
  ReportProcessInformationForPID(1, "TT", "s2\n");
  ReportProcessInformationForPID(99, "TT", "dropped: no such record");
  EXPECT_EQ(Value(1, "TT"), "s2\n");
  EXPECT_EQ(Value(99, "TT"), "[]");
  EXPECT_DEATH(Value(1, "UNHEARD"), "failed assertion `pipsh'");
}

}  // namespace
}  // namespace lurkwell
