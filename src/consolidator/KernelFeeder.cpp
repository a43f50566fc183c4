#include "consolidator/KernelFeeder.h"

#include "consolidator/HelperFigures.h"
#include "consolidator/OpenFigures.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {

bool IsHelperAskedForFigures() {
  return TheMachine().processTable.OpenSources() == 0 ||
         GetPrefInt("FIGURES_FROM_HELPER", nullptr, true, 0) != 0;
}

void PIDExtractProcessInformation(TimeValue now) {
  if (IsHelperAskedForFigures()) {
    FeedHelperFigures(now);
  } else {
    FeedOpenFigures(now);
  }
}

}  // namespace lurkwell
