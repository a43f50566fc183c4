#pragma once

#include <cstdint>

#include "helper/ProcessFiles.h"
#include "helper/Request.h"
#include "helper/System.h"
#include "helper/Text.h"

namespace lurkwell::helper {

/// What /proc/PID/stat says of a process, as far as anybody here asks.
struct StatFigures {
  std::string_view name;
  char state = 0;
  std::uint64_t minorFaults = 0, majorFaults = 0;
  std::uint64_t userTicks = 0, systemTicks = 0;
  /// In ticks since boot.
  std::uint64_t start = 0;
  /// In bytes, and in pages.
  std::uint64_t virtualSize = 0, residentPages = 0;
  std::uint64_t policy = 0;
};

/// Reads one line of a stat file; false when it is not one. The name may hold any byte; it points
/// into `text`.
bool ParseStat(std::string_view text, StatFigures& figures);

/// Adds one line a figure of the groups that `line` asks for, in a fixed order: property, pid and
/// value, with a blank between. Figures that may not be read are 0; a process that does not exist
/// adds no lines. Pid 0 is the machine itself, whose user time is its idle time and whose system
/// time the time it waits for input and output. False, and nothing added, when the lines do not
/// fit.
bool AddFigures(const System& system, const Surroundings& surroundings, ProcessFiles& files,
                const FiguresLine& line, TextWriter& answer);

}  // namespace lurkwell::helper
