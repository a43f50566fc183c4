#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lurkwell {

class ProcFiles;

/// How much of a name the kernel keeps, and how much the process table shows.
inline constexpr std::size_t kKernelNameLength = 15;
inline constexpr std::size_t kCommandNameLength = 16;

/// The character that follows a kernel name of full length in the name a process was started by
/// (`commandLine`, the whole argument text) or in its executable (`executable`, a path): that of
/// the first of the two whose last component begins with the name and goes on; NUL when neither
/// does. Pure.
char FollowingCharacter(std::string_view name, std::string_view commandLine,
                        std::string_view executable);

/// The same for a process; NUL also when the process with that start is gone or may not be looked
/// at. Never takes anything from another process that has got the pid meanwhile.
char ReadFollowingCharacter(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp,
                            std::string_view name);

/// The arguments of that process with blanks between them, any bytes, at most some 4,000 of them;
/// empty for a part of the kernel, too.
std::string ReadCommandLine(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp);

}  // namespace lurkwell
