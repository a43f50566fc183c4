#pragma once

#include <sys/types.h>

namespace lurkwell::helper {

/// Puts a fresh file with the bytes of the helper that lies beside this program, owned by root and
/// set-user-id, in the place of the copy "Lurkwell_helper" in the current folder, which belongs to
/// `user`. To be run from a folder that the user cannot write. 0 when done; else a line on
/// standard error, the exit status, and nothing changed: 65 when the copy is no plain file or no
/// known version of the helper, 72 without a helper of root's to copy, 73 when the folder cannot be
/// written, 78 when the folder is not as it should be. Without root's rights it ends with 77 where
/// none of the first four stands in the way, so that nobody is asked for them in vain.
int SetPermissions(uid_t user);

}  // namespace lurkwell::helper
