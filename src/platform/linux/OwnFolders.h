#pragma once

#include <string>

namespace lurkwell {

/// Whether nobody but root can exchange what lies at the path, or a folder on the way to it; false
/// where nothing lies there. Any thread.
bool BelongsToRoot(const std::string& path);

/// Root that was started in another user's name (sudo -E, su -p) has that user's home folder, where
/// links lead wherever he likes. HOME and the XDG folders in the environment that are not root's
/// along their whole path then give way to root's own, for this program and all that it starts;
/// the file with the display's keys stays the one that it was. What is to be said about it; empty
/// when there was nothing to change. Before the first thread.
std::string KeepToOwnFolders();

}  // namespace lurkwell
