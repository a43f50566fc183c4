// What a beat does not look at, counted on a proc file system in memory.
#include <memory>

#include "platform/ScriptedProc.h"
#include "platform/linux/LinuxProcessTable.h"
#include "support/ConsolidatorTest.h"
#include "support/MachineOf.h"

namespace lurkwell {
namespace {

/// The engine on a proc file system in memory.
class ScriptedMachineTest : public ConsolidatorTest {
 protected:
  std::shared_ptr<ScriptedProc> proc = std::make_shared<ScriptedProc>();
  LinuxProcessTable processTable{proc};
  Machine scripted = MachineOf(machine, processTable);
  MachineInstallation scriptedInstallation{scripted};
};

TEST_F(ScriptedMachineTest, ABeatForBirthsAloneIsNoListingWhereTheKernelTellsOfNone) {
  for (const int pid : {10, 40}) proc->Start(pid);
  proc->lastPid = 40;
  int looks = 0;
  proc->beforeAccess = [&](std::int32_t) { return ++looks, 0; };
  Start();
  Add("watchdog", 1000).Needs({"meta_name"}).WaitsForBirths();
  machine.runLoop.RunFor(3000);
  const auto after = [&](std::int64_t milliseconds) {
    told.Clear();
    proc->listings = looks = 0;
    machine.runLoop.RunFor(milliseconds);
    return told.Take();
  };
  EXPECT_EQ(after(3000), "watchdog updated\nwatchdog updated\nwatchdog updated\n");
  EXPECT_EQ(proc->listings + looks, 0);
  proc->Start(41);
  proc->lastPid = 41;
  EXPECT_EQ(after(1000), "watchdog added 41\nwatchdog updated\n");
  EXPECT_EQ(proc->listings, 1);
  after(1000);
  // No client waits for ends, until one does.
  proc->End(41);
  EXPECT_EQ(after(2000), "watchdog updated\nwatchdog updated\n");
  EXPECT_EQ(proc->listings, 0);
  Add("table", 1000).Needs({"meta_name"});
  EXPECT_NE(after(2000).find("watchdog removed 41"), std::string::npos);
  EXPECT_GE(proc->listings, 2);
}

}  // namespace
}  // namespace lurkwell
