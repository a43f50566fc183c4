#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include "helper/Digest.h"

namespace lurkwell::helper {

/// The program's own file: who may run it with privilege, and which versions of it are known.

/// Opens a file in two steps, so that nothing but what was checked is ever opened: first a handle
/// without access, over no link, then through that handle the file it stands for. -1 when `accepts`
/// says no or the file cannot be opened.
int OpenChecked(int folder, const char* name, int flags, uid_t user,
                bool (*accepts)(const struct stat&, uid_t user));

/// Whether nobody but the owner may write.
bool IsOwnersAlone(const struct stat& info);

bool IsSameFile(const struct stat& one, const struct stat& other);

/// Whether the running file, started set-user-id by `user`, may use the rights this gave it: owned
/// by root, one link, in a folder of that user, and in a package still on the list of versions.
bool MayServe(uid_t user);

/// What the lists of a package say of a version, its own and the one of the helpers that it has
/// replaced: nothing, that it may serve, or that it is withdrawn and may only be replaced, which
/// outweighs the others. A build tree has no list and knows none.
enum class Version { kUnknown, kServing, kWithdrawn };
Version FindVersion(const Digest::Value& digest);

}  // namespace lurkwell::helper
