#pragma once

#include <string>

namespace lurkwell {

/// The helper's place below the bundle's path and below the folder for application data.
inline constexpr char kHelperInBundle[] = "/Contents/Resources/Lurkwell_helper";
inline constexpr char kHelperInApplicationSupport[] = "/Lurkwell/Lurkwell_helper";

/// Paths, without their terminator, are at most this long.
inline constexpr std::size_t kLongestPath = 1023;

/// The bundle's path as the installation takes it: at most kLongestPath characters, with its double
/// quotes escaped. A bundle with a double quote in its path therefore has no helper to install.
std::string EscapedBundlePath();

/// Puts a backslash before every double quote, in place: the buffer has a byte more for each.
void EscapePathQuotes(char* path);

/// Copies the helper from the bundle into the folder, unless there is one. "" or why it failed.
std::string InstallHelper(const std::string& bundlePath, const std::string& supportFolder);

/// Behind the name of a copy that was put aside.
inline constexpr char kHelperPutAside[] = ".unknown";

/// Gives whatever has the name of the copy at `path` another one, in place of what was put aside
/// before. "" or why it failed.
std::string PutHelperAside(const std::string& path);

}  // namespace lurkwell
