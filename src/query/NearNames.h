#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// The names of all properties, built-in ones first, then the ps columns. Main thread.
std::vector<std::string> AllPropertyNames();

/// The five of `names` at most that a mistyped `word` may have meant, nearest first and separated
/// by commas; empty when none comes near. Case counts for nothing.
std::string NearNames(std::string_view word, std::span<const std::string> names);

}  // namespace lurkwell
