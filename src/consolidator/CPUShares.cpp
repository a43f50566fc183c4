#include "consolidator/CPUShares.h"

#include <algorithm>

#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

/// As of the last pass that wanted a share.
int gProcessorsForShares = 0;

}  // namespace

int CPUShareDivisor() {
  if (!ReadSwitch("CPU_SHARE_OF_MACHINE")) return 1;
  if (gProcessorsForShares == 0) CountProcessorsForShares();
  return std::max(gProcessorsForShares, 1);
}

void CountProcessorsForShares() {
  gProcessorsForShares = TheMachine().hostStatistics.Processors();
}

}  // namespace lurkwell
