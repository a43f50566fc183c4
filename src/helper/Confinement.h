#pragma once

#include <sys/types.h>

namespace lurkwell::helper {

/// Who the helper is once it serves.
struct Identity {
  uid_t user = 0;
  gid_t group = 0;
  /// Whether it keeps the rights to signal and to renice the processes of others.
  bool privileged = false;
};

/// Whether the process may have the right to signal and the right to renice, which containers may
/// keep even from root.
bool HasBothRights();

/// Becomes `identity` for good, with no other capability than those two. False when the kernel does
/// not allow it; the process is of no use then and has to end.
bool Become(const Identity& identity);

/// Gives up for good what serving does not need: new rights, files outside /proc, and all system
/// calls but a dozen; another call ends the process. To be called last. Files stay open to it only
/// where the kernel cannot restrict them or /proc hides the processes of others; false when
/// anything else is in the way, and the process has to end.
bool Confine();

}  // namespace lurkwell::helper
