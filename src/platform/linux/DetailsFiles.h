#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lurkwell {

/// Files in a folder that is open. Any thread; on failure errno says why.

/// The whole file, at most so many bytes of it; nothing when it cannot be opened or read.
std::optional<std::string> ReadWhole(int folder, const char* name, std::size_t most);

/// Calls `take` with each line, without its end, until that gives false; of a line that is longer
/// than 64 KiB with its beginning. False when the file cannot be opened or read.
bool ReadLines(int folder, const char* name, const std::function<bool(std::string_view)>& take);

/// The first word of a line, which is taken from it together with the blanks around it.
std::string_view TakeWord(std::string_view& line);

}  // namespace lurkwell
