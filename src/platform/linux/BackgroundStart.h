#pragma once

#include <string>
#include <vector>

namespace lurkwell {

/// Starts a program that is nobody's child of ours: a session of its own, the fixed environment,
/// fresh signals, the standard three descriptors and no other. `arguments` starts with the
/// program's absolute path. False when it could not be started; a start that takes longer than two
/// seconds counts as one. Any thread.
bool StartDetached(const std::vector<std::string>& arguments);

}  // namespace lurkwell
