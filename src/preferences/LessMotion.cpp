#include "preferences/LessMotion.h"

#include "platform/Machine.h"
#include "platform/Screen.h"
#include "preferences/Settings.h"

namespace lurkwell {

bool WantsLessMotion() {
  return ReadSwitch("REDUCE_MOTION") || TheMachine().screen.WantsLessMotion();
}

}  // namespace lurkwell
