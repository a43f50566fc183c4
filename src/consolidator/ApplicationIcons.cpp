#include "consolidator/ApplicationIcons.h"

#include "consolidator/SyntheticPids.h"
#include "platform/Machine.h"

namespace lurkwell {

std::shared_ptr<const Picture> GetApplicationIconRef(ProcessSerialNumber psn, int size) {
  return TheMachine().iconServices.ApplicationIcon(psn, size);
}

std::shared_ptr<const Picture> GetProcessIcon(std::int32_t pid, int size) {
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  return psn.IsNone() ? nullptr : GetApplicationIconRef(psn, size);
}

std::shared_ptr<const Picture> ProcessIconImage(std::int32_t pid, int size) {
  return GetProcessIcon(pid, size);
}

}  // namespace lurkwell
