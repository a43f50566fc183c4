#pragma once

#include <sys/types.h>

namespace lurkwell::helper {

/// Puts a fresh file with the bytes of the helper that lies beside this program, owned by root and
/// set-user-id, in the place of the copy "Lurkwell_helper" in the current folder, which belongs to
/// `user`. To be run as root, from a folder that the user cannot write. 0 when done; else a line on
/// standard error, the exit status, and nothing changed: when the folder or the copy is not as it
/// should be, or the copy is no known version of the helper.
int SetPermissions(uid_t user);

}  // namespace lurkwell::helper
