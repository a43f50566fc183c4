#pragma once

#include <cstdint>

#include "helper/ReportedStarts.h"
#include "helper/Request.h"
#include "helper/System.h"
#include "helper/Text.h"

namespace lurkwell::helper {

/// Of the fields of a stat file, which are known by their numbers: the start in ticks since boot,
/// and the last one that is of use.
inline constexpr int kStart = 22, kLastField = 41;

/// What a stat file says of a process. The name may hold any byte and points into the text.
struct Stat {
  std::string_view name;
  char state;
  std::uint64_t fields[kLastField + 1];
};

/// Reads the stat file of a process; false, and nothing written, when it cannot. The name is valid
/// until other files are read.
bool ReadStat(const System& system, std::int32_t pid, Stat& stat);

/// Adds one line a figure of the groups that `line` asks for, in a fixed order: property, pid and
/// value, with a blank between; the process counts as reported then. Figures that may not be read
/// are 0; a process that does not exist adds no lines. Pid 0 is the machine itself, whose user time
/// is its idle time and whose system time the time it waits for input and output. False, and
/// nothing added, when the lines do not fit.
bool AddFigures(const System& system, const Surroundings& surroundings, ReportedStarts& starts,
                const FiguresLine& line, TextWriter& answer);

}  // namespace lurkwell::helper
