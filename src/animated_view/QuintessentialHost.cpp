#include "animated_view/QuintessentialHost.h"

#include "animated_view/QuintessentialGlobals.h"
#include "platform/Assertion.h"

namespace lurkwell {

QuintessentialHost& HostOfCurrentView() {
  const CriticalRegion::Guard guard(gQuintessentialMutex);
  Require(gQuintessentialHost != nullptr && gQuintessentialHost->HasCurrentView(),
          kQuintessentialUnit, "theCurrentQuintessentialView");
  return *gQuintessentialHost;
}

}  // namespace lurkwell
