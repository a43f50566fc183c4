#pragma once

#include <QString>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "consolidator/TypedValue.h"

namespace lurkwell {

/// What is known of a machine, or of a group of processes. The numbers are places in FleetRow.
enum class FleetFigure : std::uint8_t {
  kCpu,        ///< of a machine: of all its processors; of a group: of one, so that it may exceed 1
  kMemory,     ///< bytes; of a machine: what is not available, of a group: resident
  kMemoryAll,  ///< bytes
  kSwap,       ///< bytes
  kLoad,       ///< over one minute
  kDisk,       ///< bytes per second, read and written
  kNetwork,    ///< bytes per second, received and sent
  kWaitsCpu,   ///< share of time in which some wait
  kWaitsMemory,
  kWaitsDisk,
  kProcesses,
  kThreads,
  kMachines,  ///< on which processes of the group run
  kOldest,    ///< when its oldest process started; of a machine: when it started. Epoch seconds
  kSeen,      ///< when the server has heard of it last, epoch seconds
  kUp,        ///< 0: the server does not reach the machine
  // Parts of others, for histories.
  kDiskRead,
  kDiskWritten,
  kReceived,
  kSent,
};
inline constexpr std::size_t kFleetFigures = 20;
inline constexpr double kNoFigure = std::numeric_limits<double>::quiet_NaN();

/// How a figure is shown.
enum class FleetUnit : std::uint8_t { kShare, kBytes, kBytesPerSecond, kNumber, kCount, kMoment };

/// What a table is of.
enum class FleetLevel : std::uint8_t {
  kMachines,         ///< all machines
  kGroups,           ///< the groups of a kind, each over all machines
  kGroupsOfMachine,  ///< those of one machine
  kMachinesOfGroup,  ///< one group, on each machine
};
inline bool RowsAreMachines(FleetLevel level) {
  return level == FleetLevel::kMachines || level == FleetLevel::kMachinesOfGroup;
}

/// The kinds that groups are of, as exporters name them.
inline constexpr std::array<const char*, 4> kFleetKinds = {"program", "unit", "container", "user"};

struct FleetFigureRow {
  FleetFigure figure;
  /// Its name in answers and, where conditions may be about it, in filters.
  const char* key;
  /// Of its title; the tip has "_tip" behind it.
  const char* title;
  FleetUnit unit;
  PropertyType type;
  /// Its expression for machines and for groups; null where there is none. "@m" stands for further
  /// matchers, "@by" for the label whose values the rows are, "@rate" and "@window" for how a
  /// counter's growth is taken.
  const char* ofMachine;
  const char* ofGroup;
};

/// In the order of FleetFigure.
std::span<const FleetFigureRow> FleetFigures();
const FleetFigureRow& RowOf(FleetFigure figure);
std::optional<FleetFigure> FleetFigureNamed(std::string_view key);

/// The columns of a level in their order, without the name.
std::span<const FleetFigure> ColumnsOf(FleetLevel level);

/// What a cell shows of a figure: `now` is the server's time, for moments, which are told as how
/// long ago they were. A missing one is a dash. Main thread.
QString FleetFigureText(FleetFigure figure, double value, double now);

}  // namespace lurkwell
