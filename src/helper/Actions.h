#pragma once

#include <string_view>

#include "helper/ReportedStarts.h"
#include "helper/Request.h"
#include "helper/System.h"

namespace lurkwell::helper {

/// The answer where a process does not exist.
inline constexpr std::string_view kNoSuchProcess = "!Error no such process\n";

/// Carries out a well-formed action and writes one line about it to the system log; the answer,
/// which begins with "!Error" when nothing was done. Refused before any call to the machine: pids
/// below 2, the helper itself, a halt of the application at the other end. A process
/// other than the one whose figures were last reported under that pid is left alone.
std::string_view CarryOut(const System& system, const Surroundings& surroundings,
                          const ReportedStarts& starts, const ActionRequest& request);

}  // namespace lurkwell::helper
