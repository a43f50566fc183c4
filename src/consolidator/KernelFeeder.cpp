#include "consolidator/KernelFeeder.h"

#include "consolidator/HelperFigures.h"
#include "consolidator/OpenFigures.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {

void PIDExtractProcessInformation(TimeValue now) {
  const bool isOpen = TheMachine().processTable.OpenSources() != 0 &&
                      GetPrefInt("FIGURES_FROM_HELPER", nullptr, true, 0) == 0;
  if (isOpen) {
    FeedOpenFigures(now);
  } else {
    FeedHelperFigures(now);
  }
}

}  // namespace lurkwell
