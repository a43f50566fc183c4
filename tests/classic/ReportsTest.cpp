// Reports of the Classic environment, from the event to the table's properties.
#include <malloc.h>

#include "classic/ClassicRecords.h"
#include "consolidator/ClassicReports.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using Bytes = std::vector<std::byte>;

class ClassicReports : public ConsolidatorTest {
 protected:
  void StartClassic() {
    Start();
    ClassicPSNSetupProcessExtractionAppleEvent();
  }
  void Report(const Bytes& records) { EXPECT_TRUE(machine.eventBus.Deliver(ReportOf(records))); }
  std::string Output(const std::function<void()>& action) {
    testing::internal::CaptureStderr();
    action();
    std::fflush(stdout);
    return testing::internal::GetCapturedStderr();
  }
};

TEST_F(ClassicReports, GuestsLiveAsLongAsTheDesktopListsThem) {
  machine.processManager.Launch({2, 1}, std::nullopt, "SimpleText", {'t', 't', 'x', 't'});
  machine.processManager.Launch({5, 1}, 1, "Application");
  StartClassic();
  Add("client", 1000).NeedsEverything();
  EXPECT_NE(Told(1000).find("client added -2\n"), std::string::npos);
  EXPECT_EQ(Value(-2, "classicpsn_name"), "()");
  // One byte more than a record; a record without a number; one of an application that is not
  // listed.
  auto report = ClassicBytes({2, 1}, "SimpleText", 77);
  report.push_back(std::byte{1});
  Report(report);
  EXPECT_EQ(Value(-2, "classicpsn_active_time"), "77");
  EXPECT_EQ(Value(-2, "classicpsn_signature"), "ttxt");
  Report(ClassicBytes({0, 0}, "Nobody", 1));
  Report(ClassicBytes({7, 7}, "Unlisted", 1));
  EXPECT_EQ(Value(-3, "meta_kind"), "Classic");
  // Nor is anything known of a process of the kernel's from here.
  Report(ClassicBytes({5, 1}, "Claims", 1));
  EXPECT_EQ(Value(1, "classicpsn_name"), "()");
  // Came and went between two heartbeats: no client hears of it.
  // But a client that shows the other one, from the desktop's list, hears that there is more.
  EXPECT_EQ(Told(1000), "client changed -2\nclient updated\n");
  EXPECT_EQ(Value(-3, "meta_kind"), "[]");
  Report(ClassicBytes({2, 1}, "SimpleText", 78));
  EXPECT_EQ(Told(1000), "client updated\n");
  machine.processManager.Remove({2, 1});
  EXPECT_EQ(Told(1000), "client removed -2\nclient updated\n");
  EXPECT_EQ(PidBlob().size(), 2);
}

TEST_F(ClassicReports, BrokenParametersAreALineAndNothingElse) {
  StartClassic();
  const auto handle = [&](std::vector<EventParameter> parameters) {
    return Output([&] {
      machine.eventBus.Deliver(
          {{'Z', 'r', 'v', 'q'}, {'Z', 'r', 'q', '0'}, std::move(parameters), {}});
    });
  };
  const std::string complaint = "Apple Event Handler got an error! -1701\n";
  EXPECT_EQ(handle({}), complaint);
  EXPECT_EQ(handle({{{'Z', 'r', 'v', '#'}, 5}}), complaint);
  EXPECT_EQ(handle({{{'Z', 'r', 'v', '#'}, Bytes(395)}}), "");
  EXPECT_EQ(PidBlob().size(), 0);
}

// 100 ms of the environment's CPU a second, then 900 ms: the share follows at a twentieth.
TEST_F(ClassicReports, TheEstimateIsExactToTheMicrosecond) {
  auto& environment = machine.processTable.Birth(300, "TruBlueEnv");
  machine.processManager.Launch({2, 1}, std::nullopt, "Busy");
  machine.processManager.Launch({2, 2}, std::nullopt, "Idle");
  StartClassic();
  Add("client", 1000).NeedsEverything();
  std::uint32_t ticks = 1000;
  const auto second = [&](std::int64_t milliseconds, std::uint32_t passed) {
    environment.UseCPU(milliseconds);
    machine.runLoop.RunFor(1000);
    ticks += passed;
    Bytes report = ClassicBytes({2, 1}, "Busy", ticks);
    const auto idle = ClassicBytes({2, 2}, "Idle", 5);
    report.insert(report.end(), idle.begin(), idle.end());
    Report(report);
  };
  environment.UseCPU(40);
  machine.runLoop.RunFor(0);
  Report(ClassicBytes({2, 1}, "Busy", ticks));
  EXPECT_EQ(Value(-2, "meta_active_time"), "0.000001");
  second(100, 60);  // share 0.1: 60 * 0.1 / 60.25 = 0.0995850...
  EXPECT_EQ(Value(-2, "meta_active_time"), "0.099586");
  second(900, 60);  // 0.1 + 0.05 * 0.8 = 0.14: 0.1394190...
  EXPECT_EQ(Value(-2, "meta_active_time"), "0.239005");
  second(900, 6025);  // 0.14 + 0.05 * 0.76 = 0.178: 17.8 to the microsecond
  EXPECT_EQ(Value(-2, "meta_active_time"), "18.039005");
  // It began again: nothing is taken back.
  ticks = 0;
  second(900, 10);
  EXPECT_EQ(Value(-2, "meta_active_time"), "18.039005");
  EXPECT_EQ(Value(-3, "meta_active_time"), "0.000001");
}

TEST_F(ClassicReports, OneEnvironmentIsMeasuredAtATime) {
  machine.processTable.Birth(300, "TruBlueEnv").UseCPU(1'000'000);
  machine.processTable.Birth(301, "TruBlueToo").UseCPU(500);
  machine.processManager.Launch({2, 1}, std::nullopt, "Busy");
  StartClassic();
  Add("client", 1000).NeedsEverything();
  std::uint32_t ticks = 0;
  const auto usedAfter = [&](int seconds) {
    for (int i = 0; i < seconds; ++i) {
      for (const int pid : {300, 301, 302})
        if (auto* environment = machine.processTable.Find(pid)) environment->UseCPU(100);
      machine.runLoop.RunFor(1000);
      Report(ClassicBytes({2, 1}, "Busy", ticks += 60));
    }
    return std::stod(Value(-2, "meta_active_time"));
  };
  constexpr double kSecond = 60 * 0.1 / 60.25;
  // What the helper has not told yet is not what the environments have used since.
  helper->SetAnswer([](std::string_view) { return "pid_rsz 1 17\n"; });
  EXPECT_EQ(usedAfter(3), 0.000001);
  helper->SetAnswer([this](std::string_view request) { return machine.helper.Answer(request); });
  EXPECT_NEAR(usedAfter(9), 9 * kSecond, 0.001);
  machine.processTable.Death(301);
  EXPECT_NEAR(usedAfter(10), 19 * kSecond, 0.001);
  // A new one, with preferences out of range: as it was, then a whole processor, then at once 0.1.
  SetPrefDouble("CLASSIC_INITIAL_ASSUMED_CPU_USAGE", 1e30);
  SetPrefDouble("CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER", 1e30);
  machine.processTable.Death(300);
  machine.processTable.Birth(302, "TruBlueEnv").UseCPU(10);
  EXPECT_NEAR(usedAfter(2), 30 * kSecond, 0.001);
  EXPECT_NEAR(usedAfter(10), 40 * kSecond, 0.001);
  // Misread once: neither taken back nor counted.
  (*machine.processTable.Find(302))["pid_user_time"] = 1;
  EXPECT_NEAR(usedAfter(2), 42 * kSecond, 0.001);
}

TEST_F(ClassicReports, ABeatThatReadsNoTimesMeasuresNothing) {
  auto& environment = machine.processTable.Birth(300, "TruBlueEnv");
  machine.processManager.Launch({2, 1}, std::nullopt, "Busy");
  StartClassic();
  Add("table", 1000).NeedsEverything();
  machine.runLoop.RunFor(999);
  // Due a millisecond before the table, again and again.
  Add("other", 1000);
  for (std::uint32_t second = 0; second < 50; ++second) {
    environment.UseCPU(100);
    machine.runLoop.RunFor(1000);
    Report(ClassicBytes({2, 1}, "Busy", second * 60));
  }
  // 49 seconds of 60 ticks at a share of 0.1.
  EXPECT_NEAR(std::stod(Value(-2, "meta_active_time")), 49 * 60 * 0.1 / 60.25, 0.001);
}

TEST_F(ClassicReports, ReportsBeyondTheTableOfMadeUpPidsKeepTheirRecords) {
  for (std::uint32_t i = 1; i <= 200; ++i)
    machine.processManager.Launch({2, i}, std::nullopt, "Guest");
  StartClassic();
  // No client needs them, so they are only touched.
  Add("client", 1000);
  Told(1000);
  EXPECT_EQ(Told(5000),
            "client updated\nclient updated\nclient updated\nclient updated\nclient "
            "updated\n");
  EXPECT_EQ(PidBlob().size(), 202);
  for (std::uint32_t i = 1; i <= 200; ++i) machine.processManager.Remove({2, i});
  Told(1000);
  EXPECT_EQ(PidBlob().size(), 2);
}

TEST_F(ClassicReports, AFloodOfSerialNumbersIsBoundedAndLeavesNothing) {
  StartClassic();
  Add("client", 1000).NeedsEverything();
  Told(1000);
  constexpr std::uint32_t kRecords = 100'000;
  constexpr std::uint32_t kInReport = 5000;
  std::uint32_t number = 0;
  const auto flood = [&] {
    for (std::uint32_t sent = 0; sent < kRecords; sent += kInReport) {
      Bytes report;
      for (std::uint32_t i = 0; i < kInReport; ++i) {
        const auto record = ClassicBytes({5, ++number}, "Flood", number);
        report.insert(report.end(), record.begin(), record.end());
      }
      Report(report);
      // Every fourth time the heart beats in between.
      if (sent % (4 * kInReport) == 0) {
        EXPECT_EQ(Told(1000), "client updated\n");
      }
      EXPECT_LE(PidBlob().size(), static_cast<std::int32_t>(2 + kMostClassicApplications));
    }
    Told(1000);
    EXPECT_EQ(PidBlob().size(), 2);
    return ::mallinfo2().uordblks;
  };
  const auto once = flood();
  const auto twice = flood();
  // The sanitizers count no memory here: 0.
  EXPECT_LE(twice, once + once / 20);
}

}  // namespace
}  // namespace lurkwell
