#include "preferences/PreferenceBatch.h"

#include <utility>

#include "platform/Machine.h"
#include "platform/PreferenceDomain.h"

namespace lurkwell {

int PreferenceBatch::smDepth = 0;
bool PreferenceBatch::smHasChanges = false;

PreferenceBatch::~PreferenceBatch() {
  if (--smDepth == 0 && std::exchange(smHasChanges, false))
    TheMachine().preferenceDomain.Synchronize();
}

void PreferenceBatch::Synchronize() {
  if (smDepth > 0)
    smHasChanges = true;
  else
    TheMachine().preferenceDomain.Synchronize();
}

}  // namespace lurkwell
