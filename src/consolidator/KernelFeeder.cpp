#include "consolidator/KernelFeeder.h"

#include "consolidator/HelperFigures.h"
#include "consolidator/OpenFigures.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "preferences/Settings.h"

namespace lurkwell {

bool IsHelperAskedForFigures() {
  return TheMachine().processTable.OpenSources() == 0 || ReadSwitch("FIGURES_FROM_HELPER");
}

void PIDExtractProcessInformation(TimeValue now) {
  if (IsHelperAskedForFigures()) {
    FeedHelperFigures(now);
  } else {
    FeedOpenFigures(now);
  }
}

}  // namespace lurkwell
