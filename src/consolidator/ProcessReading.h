#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "platform/Clock.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessTable.h"

namespace lurkwell {

/// A figure as the machine told it, neither rendered nor divided.
struct FigureReading {
  FigureState state = FigureState::kUnread;
  std::int64_t number = 0;
  /// The consolidator's, until the next heartbeat.
  std::string_view text;
};

/// What stands in the kernel's table of a process, as of the latest heartbeat.
struct ProcessReading {
  ProcessIdentity process;
  /// Another number than before when any value of the process is another one than before.
  std::uint64_t changeStamp = 0;
  std::int32_t parentPid = kInvalidPID;
  std::int32_t priority = 0;
  std::int32_t nice = 0;
  RunState runState = RunState::kSleeping;
  TimeValue startTime;
  /// The consolidator's, until the next heartbeat.
  std::string_view commandName;
};

/// Reads the figures `wanted` of a process into `figures`, which has as many places, for who keeps
/// them to show them again as they were. Nothing for a process that clients do not see, or of which
/// the kernel says nothing. A process whose change stamp still is `knownStamp` leaves `figures`
/// alone. Main thread.
std::optional<ProcessReading> ReadProcess(std::int32_t pid, std::uint64_t knownStamp,
                                          std::span<const Figure> wanted,
                                          std::span<FigureReading> figures);

}  // namespace lurkwell
