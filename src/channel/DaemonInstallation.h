#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lurkwell {

/// The helper's place below the bundle's path and below the folder for application data.
inline constexpr char kHelperInBundle[] = "/Contents/Resources/Lurkwell_helper";
inline constexpr char kHelperInApplicationSupport[] = "/Lurkwell/Lurkwell_helper";

/// The bundle's path and the folder's, without their terminator, are at most this long.
inline constexpr std::size_t kLongestPath = 1023;
inline constexpr std::size_t kHelperPathCapacity =
    kLongestPath + sizeof kHelperInApplicationSupport;

/// The bundle's path as the installation takes it: at most kLongestPath characters, with its double
/// quotes escaped. A bundle with a double quote in its path therefore has no helper to install.
std::string EscapedBundlePath();

/// Puts a backslash before every double quote, in place: the buffer has a byte more for each.
void EscapePathQuotes(char* path);

/// The installed helper's path into `out` (`capacity` bytes, terminator included; too few are a
/// fatal assertion). Copies it from the bundle when it is not there; an existing one is never
/// replaced. False when there is no folder for application data or the copy cannot be made;
/// `obstacle` then says why.
bool EnsureThatDaemonIsInApplicationSupport(const char* bundlePath, char* out,
                                            std::int32_t capacity, std::string& obstacle);

/// Behind the name of a copy that was put aside.
inline constexpr char kHelperPutAside[] = ".unknown";

/// Gives whatever has the name of the copy at `path` another one, in place of what was put aside
/// before. "" or why it failed.
std::string PutHelperAside(const std::string& path);

}  // namespace lurkwell
