#pragma once

#include <cstdint>

#include "helper/ProcessFiles.h"
#include "helper/Request.h"
#include "helper/System.h"
#include "helper/Text.h"

namespace lurkwell::helper {

/// A stat file's figures and what else it says: the start in ticks since boot, the processor that
/// the first thread was on last, and the name, which may hold any byte and points into the text.
struct Stat : StatFigures {
  std::uint64_t start;
  std::uint32_t processor;
  std::string_view name;
};

/// Reads one line of a stat file; false, and nothing written, when it is not one.
bool ParseStat(std::string_view text, Stat& stat);

/// Opens, reads and closes the stat file of a process; false, and nothing written, when it cannot.
/// The name is valid until other files are read.
bool ReadStat(const System& system, std::int32_t pid, Stat& stat);

/// Adds one line a figure of the groups that `line` asks for, in a fixed order: property, pid and
/// value, with a blank between. Figures that may not be read are 0; a process that does not exist
/// adds no lines. Of one that has not run since it was last read, which its time on processors
/// tells, the figures from then are given, at most seven times in a row. Pid 0 is the
/// machine itself, whose user time is its idle time and whose system time the time it waits for
/// input and output. False, and nothing added, when the lines do not fit.
bool AddFigures(const System& system, const Surroundings& surroundings, ProcessFiles& files,
                const FiguresLine& line, TextWriter& answer);

}  // namespace lurkwell::helper
