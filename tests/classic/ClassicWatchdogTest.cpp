#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

#include "classic/ClassicRecords.h"
#include "monitor_windows/ClassicWatchdog.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ChildProgram.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

constexpr ProcessSerialNumber kGuest{2, 1};
constexpr ProcessSerialNumber kNub{2, 2};
constexpr char kControl[] = "EventBus.Send zrNv Zrvq/Zrv_ Zrv1={16962,4242} Zrv2=120\n";

/// Launches are another thread's, so they do not go to the machine's log.
class ClassicWatchdogTest : public ConsolidatorTest {
 protected:
  ClassicWatchdogTest() {
    machine.tools.OnStart([this](const std::vector<std::string>& arguments) {
      const std::lock_guard guard(mMutex);
      if (arguments.front().ends_with("Nub")) mLaunched.push_back(arguments);
      return true;
    });
  }
  void TurnOn() {
    Start();
    TurnOnClassicNub();
    machine.log.Clear();
  }
  /// Lets the watchdog look once, and a launch come to its end.
  std::int32_t Look() {
    const auto launches = Launches();
    const auto before = gClassicWatchdogState;
    machine.runLoop.RunFor(5000);
    if (gClassicWatchdogState == kClassicNubLaunched && before != kClassicNubLaunched) {
      EXPECT_TRUE(ComesTrue([&] { return Launches() > launches; }));
    }
    return gClassicWatchdogState;
  }
  std::size_t Launches() {
    const std::lock_guard guard(mMutex);
    return mLaunched.size();
  }
  void Guest() {
    machine.processManager.Launch(kGuest, std::nullopt, "SimpleText", {'t', 't', 'x', 't'});
  }
  void Nub(ProcessSerialNumber psn = kNub) {
    machine.processManager.Launch(psn, std::nullopt, "Nub", {'z', 'r', 'N', 'v'});
    machine.eventBus.status = EventBus::kNoError;
  }
  std::string Sent() {
    std::string sent;
    for (const auto& line : machine.log.Lines())
      if (line.starts_with("EventBus.")) sent += line + "\n";
    machine.log.Clear();
    return sent;
  }

  std::mutex mMutex;
  std::vector<std::vector<std::string>> mLaunched;
};

TEST_F(ClassicWatchdogTest, WithoutClassicNothingIsDone) {
  machine.processManager.Launch({2, 9}, 300, "An application", {'z', 'r', 'N', 'v'});
  machine.processTable.Birth(300, "application");
  TurnOn();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Look(), kClassicNotSeen);
  EXPECT_EQ(Sent(), "");
  EXPECT_EQ(Launches(), 0U);
  TurnOffClassicNub();
}

TEST_F(ClassicWatchdogTest, LaunchesTheNubTellsItAndLaunchesItAgain) {
  TurnOn();
  EXPECT_EQ(Look(), kClassicNotSeen);
  Guest();
  EXPECT_EQ(Look(), kClassicNubLaunched);
  ASSERT_EQ(Launches(), 1U);
  EXPECT_EQ(mLaunched[0], (std::vector<std::string>{
                              machine.bundle.Path() + "/Contents/Resources/ClassicProcessInfoNub",
                              "--bus", "simulated"}));
  // A slow start is waited for, not repeated.
  EXPECT_EQ(Look(), kClassicNubLaunched);
  EXPECT_EQ(Launches(), 1U);
  Nub();
  EXPECT_EQ(Look(), kClassicNubTold);
  EXPECT_EQ(Sent(), kControl);
  EXPECT_EQ(gClassicNubPid, -3);
  // Another program says that it is the nub, too; then the nub is replaced.
  Nub({2, 4});
  EXPECT_EQ(Look(), kClassicNubTold);
  EXPECT_EQ(Sent(), "");
  machine.processManager.Remove(kNub);
  EXPECT_EQ(Look(), kClassicNubTold);
  EXPECT_EQ(Sent(), kControl);
  EXPECT_EQ(gClassicNubPid, -4);
  machine.processManager.Remove({2, 4});
  EXPECT_EQ(Look(), kClassicNubLaunched);
  EXPECT_EQ(Launches(), 2U);
  // Listed, and gone when it is told: the next look starts another.
  Nub({2, 3});
  machine.eventBus.status = EventBus::kNoSuchProcess;
  EXPECT_EQ(Look(), kClassicNubMissing);
  EXPECT_EQ(gClassicNubPid, kInvalidPID);
  machine.eventBus.status = EventBus::kCannotBeSent;
  EXPECT_EQ(Look(), kClassicNubFound);
  machine.eventBus.status = EventBus::kNoError;
  EXPECT_EQ(Look(), kClassicNubTold);
  machine.log.Clear();
  TurnOffClassicNub();
  EXPECT_EQ(Sent(),
            "EventBus.Send zrNv Zrvq/Zrv_ Zrv1={0,0} Zrv2=2147483647\n"
            "EventBus.Send zrNv aevt/quit\n");
}

TEST_F(ClassicWatchdogTest, AMissingProgramIsSaidAndLookedForAgain) {
  const auto path = machine.bundle.Path() + "/Contents/Resources/ClassicProcessInfoNub";
  machine.tools.SetMissing(path);
  TurnOn();
  Guest();
  testing::internal::CaptureStderr();
  EXPECT_EQ(Look(), kClassicNubMissing);
  EXPECT_EQ(Look(), kClassicNubMissing);
  std::fflush(stdout);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "error -43 when looking for ClassicProcessInfoNub!\n"
            "error -43 when looking for ClassicProcessInfoNub!\n");
  EXPECT_EQ(Launches(), 0U);
  TurnOffClassicNub();
}

TEST_F(ClassicWatchdogTest, AStartThatFailsOrHangsHoldsNobodyUp) {
  std::atomic<bool> mayEnd{false};
  TurnOn();
  machine.tools.OnStart([&](const std::vector<std::string>&) {
    ComesTrue([&] { return mayEnd.load(); });
    return false;
  });
  Guest();
  testing::internal::CaptureStderr();
  const auto start = std::chrono::steady_clock::now();
  machine.runLoop.RunFor(20000);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  EXPECT_EQ(gClassicWatchdogState, kClassicNubLaunched);
  mayEnd = true;
  TurnOffClassicNub();
  std::fflush(stdout);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "error -10810 when launching!\n");
}

TEST_F(ClassicWatchdogTest, ANubThatDiesUnseenIsLaunchedAgainEverMoreRarely) {
  TurnOn();
  Guest();
  const auto launchesAfter = [&](int looks) {
    for (int i = 0; i < looks; ++i) {
      Look();
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return Launches();
  };
  EXPECT_EQ(launchesAfter(5), 2U);
  EXPECT_EQ(launchesAfter(70), 6U);
  Nub();
  EXPECT_EQ(Look(), kClassicNubTold);
  Look();
  machine.processManager.Remove(kNub);
  EXPECT_EQ(launchesAfter(5), 8U) << "a new chance";
  TurnOffClassicNub();
}

TEST_F(ClassicWatchdogTest, AGuestWithoutASignatureIsNoNubAndNoError) {
  TurnOn();
  ClassicPSNSetupProcessExtractionAppleEvent();
  machine.eventBus.status = EventBus::kNoError;
  EXPECT_EQ(Look(), kClassicNotSeen);
  // A report tells of it before the desktop does.
  machine.eventBus.Deliver(ReportOf(ClassicBytes(kGuest, "Silent", 1)));
  ASSERT_EQ(Value(-2, "carbonpsn_signature"), "(-)");
  gClassicWatchdog->NotifyPidHasBeenAdded(-2);
  gClassicWatchdog->NotifyProcessesHaveBeenUpdated();
  EXPECT_EQ(gClassicWatchdogState, kClassicNubLaunched);
  // A nub that was never listed is told to rest at the end all the same.
  TurnOffClassicNub();
  EXPECT_NE(Sent().find("aevt/quit"), std::string::npos);
}

}  // namespace
}  // namespace lurkwell
