#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include "helper/HelperProcess.h"

namespace lurkwell::helper::testing {
namespace {

int RunProbe(const std::string& step, pid_t foreign) {
  return InChild([&] {
    execl(LURKWELL_TEST_PROBE, "probe", step.c_str(), std::to_string(foreign).c_str(), nullptr);
    return 97;
  });
}

TEST(TakeoverTest, NoStepOutOfTheConfinementIsPossible) {
  Canary foreign(kStranger);
  const int steps = InChild([] {
    execl(LURKWELL_TEST_PROBE, "probe", nullptr);
    return 97;
  });
  ASSERT_GE(steps, 60);
  int killed = 0;
  for (int step = 0; step < steps; ++step) {
    const int end = RunProbe(std::to_string(step), foreign.Pid());
    EXPECT_TRUE(end == 0 || end == -SIGSYS) << "step " << step << " ended with " << end;
    killed += end == -SIGSYS;
  }
  // Only reading files outside /proc gets an error in place of the end.
  EXPECT_EQ(killed, steps - 7);
  EXPECT_TRUE(foreign.Becomes("S"));
  EXPECT_EQ(RunProbe("r", foreign.Pid()), 42) << "the helper could not do its work either";
}

}  // namespace
}  // namespace lurkwell::helper::testing
