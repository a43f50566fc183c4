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
  const auto after = [&](int seconds) {
    told.Clear();
    proc->listings = looks = 0;
    for (; seconds > 0; --seconds) {
      proc->milliseconds += 1000;
      machine.runLoop.RunFor(1000);
    }
    return told.Take();
  };
  after(3);
  EXPECT_EQ(after(3), "watchdog updated\nwatchdog updated\nwatchdog updated\n");
  EXPECT_EQ(proc->listings + looks, 0);
  proc->Start(41);
  proc->lastPid = 41;
  EXPECT_EQ(after(1), "watchdog added 41\nwatchdog updated\n");
  after(1);
  // No client waits for ends, until one does.
  proc->End(41);
  EXPECT_EQ(after(2), "watchdog updated\nwatchdog updated\n");
  Add("table", 1000).Needs({"meta_name"});
  EXPECT_NE(after(2).find("watchdog removed 41"), std::string::npos);
  after(40);
  EXPECT_EQ(proc->listings, 0);
  after(10);
  EXPECT_EQ(proc->listings, 1);
}

}  // namespace
}  // namespace lurkwell
