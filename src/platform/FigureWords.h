#pragma once

#include <cstdint>
#include <string>

namespace lurkwell {

/// What the kernel's numbers of a process mean, in words. Pure; any thread. A number that is
/// not known here is given as a number.

/// Of the letter in a stat file.
std::string StateInWords(std::int64_t letter);

/// The name below /dev of a terminal's device number; empty without one.
std::string TerminalInWords(std::int64_t device);

/// Of a scheduling policy.
std::string SchedulerInWords(std::int64_t policy);

/// Of a class and a level, as the kernel packs them.
std::string IOPriorityInWords(std::int64_t priority);

/// The capabilities of a set, without "cap_"; "none" and "all" are words, and a set from which few
/// are missing names those: "all but sys_admin".
std::string CapabilitiesInWords(std::int64_t set);

/// Of a mode of filtering system calls.
std::string SeccompInWords(std::int64_t mode);

std::string YesOrNo(std::int64_t is);

/// What a process may do that its user's others may not.
enum Elevation : std::int64_t { kNotElevated, kHasCapabilities, kIsRoot };
std::string ElevationInWords(std::int64_t elevation);

}  // namespace lurkwell
