#pragma once

#include <cstddef>

namespace lurkwell {

/// How many descriptors this process may have open (the soft limit of RLIMIT_NOFILE). Any thread.
std::size_t DescriptorLimit();

/// Raises the soft limit to the hard one, so that the process table can keep more files open. The
/// program calls it once, at its start; programs it starts inherit the raised limit. False when the
/// kernel refused.
bool RaiseDescriptorLimit();

}  // namespace lurkwell
