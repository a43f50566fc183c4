// The whole way between real programs: environment, bus, nub, helper, and the consolidator here.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <limits>
#include <sstream>

#include "channel/DaemonCommunication.h"
#include "consolidator/ClassicReports.h"
#include "consolidator/PI_Consolidator.h"
#include "desktop/TestBus.h"
#include "monitor_windows/ClassicWatchdog.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/ClassicProcessManager.h"
#include "platform/desktop/DBusEventBus.h"
#include "platform/desktop/QtRunLoop.h"
#include "platform/linux/LinuxNamedPipes.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxServices.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/NoDesktop.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/ProcessActions.h"
#include "support/ChildProgram.h"
#include "support/EventLoop.h"
#include "support/MachineOf.h"
#include "support/RecordingClient.h"

namespace lurkwell {
namespace {

std::string Value(std::int32_t pid, const char* property) {
  char text[256];
  GetPIDPropertyValue(pid, property, text, sizeof text, nullptr);
  return text;
}

/// A line per Classic process: pid, kind, names, type, signature, size, free memory.
std::string Table() {
  std::string table;
  for (const std::int32_t pid : PidBlob()) {
    if (pid >= kInvalidPID) continue;
    table += Value(pid, "meta_pid");
    for (const char* property : {"meta_kind", "meta_name", "classicpsn_name", "classicpsn_type",
                                 "classicpsn_signature", "classicpsn_size", "classicpsn_free_mem"})
      table += ' ' + Value(pid, property);
    table += '\n';
  }
  return table;
}

std::int32_t PidOf(const std::string& name) {
  for (const std::int32_t pid : PidBlob())
    if (pid < kInvalidPID && Value(pid, "meta_name") == name) return pid;
  return kInvalidPID;
}

/// The nub's program as ps has it, on this bus.
std::vector<std::int32_t> NubPids(const TestBus& bus) {
  std::vector<std::int32_t> pids;
  for (const std::int32_t pid : PidBlob()) {
    if (pid <= 0 || !Value(pid, "meta_name").starts_with("ClassicProcessI")) continue;
    std::ifstream file("/proc/" + std::to_string(pid) + "/cmdline");
    const std::string words{std::istreambuf_iterator<char>(file), {}};
    if (words.find(bus.Address()) != std::string::npos) pids.push_back(pid);
  }
  return pids;
}

class ClassicPrograms : public testing::Test {
 protected:
  ClassicPrograms() {
    SetPrefInt("CLASSIC_WATCHDOG_INTERVAL", 300);
    SetPrefInt("CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX", 12);
    SetPrefDouble("CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER", 0.5);
    InitializeProcessInformationConsolidator();
    SetHelperUnprivileged(true);
    LaunchHelperDaemon();
    ClassicPSNSetupProcessExtractionAppleEvent();
    TurnOnClassicNub();
    auto* client = new RecordingClient("client", 200, told);
    client->NeedsEverything();
    AddProcessInformationClient(client);
  }
  ~ClassicPrograms() override {
    if (gClassicWatchdog != nullptr) TurnOffClassicNub();
    QuitHelperDaemon();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  /// Waits until the table is this.
  testing::AssertionResult Shows(const std::string& table) {
    if (SoonTrue([&] { return Table() == table; })) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the table is\n" << Table() << "instead of\n" << table;
  }

  TestBus bus;
  SimulatedMachine simulated;
  LinuxClock clock;
  QtRunLoop runLoop{clock};
  LinuxProcessTable processTable;
  LinuxTools tools;
  LinuxNamedPipes namedPipes;
  LinuxBundle bundle;
  NoProcessManager desktop;
  DBusEventBus eventBus{{bus.Address(), QStringLiteral("application"), QString()}};
  ClassicProcessManager processManager{desktop, eventBus, eventBus.Connection()};
  Machine services = MachineOf(simulated, clock, runLoop, processTable, processManager, tools,
                               namedPipes, bundle, eventBus);
  MachineInstallation installation{services};
  AccessLog told;
};

class EnvironmentProgram {
 public:
  explicit EnvironmentProgram(const TestBus& bus)
      : mProgram({LURKWELL_ENVIRONMENT}, {{"DBUS_SESSION_BUS_ADDRESS", bus.Address()}}) {
    EXPECT_EQ(mProgram.ReadLine(), "ready");
  }
  void Say(const std::string& line) const {
    mProgram.Say(line);
    EXPECT_EQ(mProgram.ReadLine(), "ok");
  }
  void Kill() { mProgram.End(); }
  std::int32_t Pid() const { return mProgram.Pid(); }

 private:
  ChildProgram mProgram;
};

TEST_F(ClassicPrograms, GuestsComeRunAndEndWhateverDiesMeanwhile) {
  EXPECT_TRUE(SoonTrue([] { return gClassicWatchdogState == kClassicNotSeen; }));
  EXPECT_EQ(Table(), "");
  EnvironmentProgram environment(bus);
  environment.Say("burn 40");
  environment.Say("guest 2 1 FNDR MACS 1000 500 45 Finder");
  const std::string finder = "-2 Classic Finder Finder FNDR MACS 1000 500\n";
  const auto nub = [](int pid) {
    return std::to_string(pid) +
           " Classic ClassicProcessInfoNub ClassicProcessInfoNub APPL zrNv 0 0\n";
  };
  // The desktop's list comes first, the records when the nub runs.
  EXPECT_TRUE(Shows(finder + nub(-3)));
  EXPECT_EQ(gClassicNubPid, -3);
  environment.Say("guest 2 2 APPL ttxt 3000000000 7 15 SimpleText \xC3\xA9");
  const std::string text =
      "-4 Classic SimpleText \xC3\xA9 SimpleText \xC3\xA9 APPL ttxt -1294967296 7\n";
  EXPECT_TRUE(Shows(finder + nub(-3) + text));
  EXPECT_EQ(Value(-4, "meta_psn"), "00000002 00000002");

  // A second or so of running: the shares are those of the ticks, their sum that of the
  // environment.
  const auto used = [](std::int32_t pid) {
    return std::atof(Value(pid, "meta_active_time").c_str());
  };
  EXPECT_TRUE(SoonTrue([&] { return used(-2) > 0.1 && used(-4) > 0.02; }));
  const double finderBefore = used(-2);
  const double textBefore = used(-4);
  const double environmentBefore = used(environment.Pid());
  EXPECT_TRUE(SoonTrue([&] { return used(-2) > finderBefore + 0.6; }));
  const double finderUse = used(-2) - finderBefore;
  const double textUse = used(-4) - textBefore;
  EXPECT_NEAR(finderUse / textUse, 3.0, 1.0);
  EXPECT_NEAR((finderUse + textUse) / (used(environment.Pid()) - environmentBefore), 1.0, 0.4);

  environment.Say("end 2 2");
  EXPECT_TRUE(Shows(finder + nub(-3)));
  environment.Say("guest 2 5 APPL CARO 10 20 0 Acrobat");
  const std::string acrobat = "-5 Classic Acrobat Acrobat APPL CARO 10 20\n";
  EXPECT_TRUE(Shows(finder + nub(-3) + acrobat));
  KillProcess(-5);
  EXPECT_TRUE(Shows(finder + nub(-3)));

  // The nub is killed: another takes its place and reports on.
  const auto nubs = NubPids(bus);
  ASSERT_EQ(nubs.size(), 1U);
  ::kill(nubs[0], SIGKILL);
  EXPECT_TRUE(Shows(finder + nub(-6)));
  const auto ticks = Value(-2, "classicpsn_active_time");
  EXPECT_TRUE(SoonTrue([&] { return Value(-2, "classicpsn_active_time") != ticks; }));
  EXPECT_EQ(gClassicWatchdogState, kClassicNubTold);

  // The user asks the nub itself to quit, through its row.
  KillProcess(-6);
  EXPECT_TRUE(Shows(finder + nub(-7)));

  environment.Kill();
  EXPECT_TRUE(Shows(""));
  EXPECT_TRUE(
      SoonTrue([&] { return gClassicWatchdogState == kClassicNotSeen && NubPids(bus).empty(); }));

  // A new environment, which does not answer at first; and at the end of the watch its nub goes by
  // itself.
  EnvironmentProgram second(bus);
  second.Say("refuse 2");
  // A guest that claims to be a process of the kernel's is not believed.
  const auto self = SerialNumberOf(*ProcFolder("/proc").Identify(::getpid()));
  second.Say("guest " + std::to_string(self.high) + " " + std::to_string(self.low) +
             " APPL LIAR 1 1 0 Impostor");
  second.Say("guest 3 1 APPL ABCD 1 2 0 Guest");
  EXPECT_TRUE(SoonTrue([] { return gClassicWatchdogState == kClassicNubTold; }));
  EXPECT_TRUE(processManager.GetProcessInformation({3, 1}));
  EXPECT_FALSE(processManager.GetProcessInformation(self));
  TurnOffClassicNub();
  EXPECT_TRUE(SoonTrue([] { return PidOf("ClassicProcessInfoNub") == kInvalidPID; }));
  EXPECT_TRUE(SoonTrue([&] { return NubPids(bus).empty(); }));
  EXPECT_EQ(Value(PidOf("Guest"), "meta_kind"), "Classic");
}

TEST_F(ClassicPrograms, AFloodOfGuestsIsBoundedAndGoes) {
  EnvironmentProgram environment(bus);
  environment.Say("guest 2 1 FNDR MACS 1000 500 45 Finder");
  EXPECT_TRUE(SoonTrue([] { return Value(-2, "classicpsn_size") == "1000"; }));
  environment.Say("flood 100000 6000");
  std::int32_t most = 0, guests = 0;
  EXPECT_TRUE(SoonTrue([&] {
    guests = static_cast<std::int32_t>(
        std::ranges::count_if(PidBlob(), [](std::int32_t pid) { return pid < kInvalidPID; }));
    most = std::max(most, guests);
    return most > 3000 && guests < 10;
  })) << most;
  EXPECT_LE(most, static_cast<std::int32_t>(kMostClassicApplications));
  environment.Say("flood 0 0");
  EXPECT_EQ(gClassicWatchdogState, kClassicNubTold);
}

TEST_F(ClassicPrograms, TheNubEndsWithTheProgramThatItServes) {
  TurnOffClassicNub();
  EnvironmentProgram environment(bus);
  ChildProgram nub({LURKWELL_NUB, "--bus", bus.Address()});
  ChildProgram served({"sleep", "1000"});
  const auto process = ProcFolder("/proc").Identify(served.Pid());
  ASSERT_TRUE(process);
  int reports = 0;
  eventBus.InstallEventHandler({'Z', 'r', 'v', 'q'}, {'Z', 'r', 'q', '0'},
                               [&](const Event&) { ++reports; });
  Event control{{'Z', 'r', 'v', 'q'},
                {'Z', 'r', 'v', '_'},
                {{{'Z', 'r', 'v', '1'}, SerialNumberOf(*process)}, {{'Z', 'r', 'v', '2'}, 30}},
                {}};
  ASSERT_TRUE(SoonTrue([&] {
    return eventBus.Send(FourCharCode{'z', 'r', 'N', 'v'}, control) == EventBus::kNoError;
  }));
  // 30 ticks are half a second.
  ASSERT_TRUE(SoonTrue([&] { return reports == 1; }));
  const auto start = std::chrono::steady_clock::now();
  ASSERT_TRUE(SoonTrue([&] { return reports == 4; }));
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  EXPECT_NEAR(passed.count(), 1.5, 0.4);
  // However long it is told to sleep.
  control.parameters[1].value = std::numeric_limits<std::int32_t>::max();
  eventBus.Send(FourCharCode{'z', 'r', 'N', 'v'}, control);
  ASSERT_TRUE(SoonTrue([&] { return reports == 5; }));
  EXPECT_FALSE(nub.Ends(0.2));
  served.End();
  EXPECT_TRUE(nub.Ends(3));
}

}  // namespace
}  // namespace lurkwell
