#pragma once

#include <string_view>

namespace lurkwell {

/// The largest property list that is read or written, in bytes.
inline constexpr std::size_t kMaximumPropertyListSize = 4 * 1024 * 1024;
/// How many elements may be open inside each other.
inline constexpr std::size_t kMaximumPropertyListDepth = 32;

/// Checks the outline of an XML property list before a parser sees it: size, depth, elements that
/// are all closed, one root, nothing behind it, no definitions of its own and so no entities. Null
/// when all is well, else why not, in words. Does not check the values. Any thread; no allocation.
const char* WhyNotAPropertyList(std::string_view text);

}  // namespace lurkwell
