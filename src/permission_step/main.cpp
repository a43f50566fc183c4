// Lurkwell_permissions: what an administrator's consent runs as root, for a moment, so that a
// user's copy of the helper has its rights from then on.

#include <cstring>

#include "helper/Launch.h"
#include "permission_step/PermissionStep.h"

#if __USE_FORTIFY_LEVEL < 2 || !defined(__SSP_STRONG__) || !defined(__PIE__)
#error "The permission step is built with the helper's flags, see CMakeLists.txt."
#endif

int main(int argc, char** argv) {
  using namespace lurkwell::helper;
  constexpr int kExitUsage = 64, kExitSystem = 71;
  if (argc != 2 || std::strcmp(argv[1], "--set_permissions_appropriately") != 0) return kExitUsage;
  const uid_t user = TakeAskingUser();
  return ResetProcess(Output::kCallers) ? SetPermissions(user) : kExitSystem;
}
