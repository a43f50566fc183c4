#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ProcessFigures.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What is recorded of each process. A file names its columns, so that these may grow: a column
/// that a file lacks was not recorded, and one that is not here is passed over.

namespace recorded_columns {

constexpr std::optional<Figure> FigureNamed(std::string_view property) {
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if (kFigures[i].property == property) return static_cast<Figure>(i);
  return std::nullopt;
}

}  // namespace recorded_columns

/// Numbers: the first five stand in the kernel's list itself, the others are figures, in the units
/// of ProcessFigures. "run_state" is a RunState, "pid_p_starttime" microseconds since the epoch.
inline constexpr auto kRecordedNumbers = std::to_array<std::string_view>(
    {"pid_parent_pid",   "pid_p_priority",    "pid_p_nice",       "run_state",
     "pid_p_starttime",  "pid_user_time",     "pid_system_time",  "pid_vsz",
     "pid_rsz",          "pid_suspend_count", "pid_state",        "pid_threads",
     "pid_terminal",     "pid_policy",        "pid_scheduler",    "pid_faults",
     "pid_pageins",      "pid_disk_read",     "pid_disk_written", "pid_bytes_read",
     "pid_bytes_written"});
namespace recorded {
enum ListedNumber : std::size_t { kParent, kPriority, kNice, kRunState, kStartTime };
}  // namespace recorded
inline constexpr std::size_t kListedNumbers = recorded::kStartTime + 1;

/// Texts: the kernel's name, then figures. Of the command line the program alone, unless the
/// recorder was told to keep arguments.
inline constexpr auto kRecordedTexts = std::to_array<std::string_view>(
    {"pid_p_comm", "pid_owner", "pid_command_line", "pid_executable", "pid_cgroup", "pid_unit",
     "pid_slice", "pid_app_scope", "pid_container"});
inline constexpr std::size_t kListedTexts = 1;

inline constexpr std::size_t kNumberCount = kRecordedNumbers.size();
inline constexpr std::size_t kTextCount = kRecordedTexts.size();

/// The figures among the columns, numbers first.
inline constexpr auto kRecordedFigures = [] {
  std::array<Figure, kNumberCount - kListedNumbers + kTextCount - kListedTexts> figures{};
  std::size_t count = 0;
  for (std::size_t i = kListedNumbers; i < kNumberCount; ++i)
    figures[count++] = recorded_columns::FigureNamed(kRecordedNumbers[i]).value();
  for (std::size_t i = kListedTexts; i < kTextCount; ++i)
    figures[count++] = recorded_columns::FigureNamed(kRecordedTexts[i]).value();
  return figures;
}();

/// What is recorded of the machine with each beat: microseconds that all processors together were
/// busy and idle since the start; how many there are; tasks that the kernel has begun, and of those
/// how many the recorder has not seen, since it runs; bytes of memory; pages and swapped pages; of
/// the unseen tasks those that are processes, -1 where that is not known.
inline constexpr auto kRecordedMachine = std::to_array<std::string_view>(
    {"busy", "idle", "processors", "begun_tasks", "unseen_tasks", "memory", "available", "swap",
     "swap_free", "page_size", "free_pages", "inactive_pages", "wired_pages", "pageouts",
     "unseen_processes"});
namespace recorded {
enum MachineNumber : std::size_t {
  kBusyTime,
  kIdleTime,
  kProcessorCount,
  kBegunTasks,
  kUnseenTasks,
  kMemory,
  kAvailableMemory,
  kSwap,
  kFreeSwap,
  kPageSize,
  kFreePages,
  kInactivePages,
  kWiredPages,
  kPageouts,
  kUnseenProcesses,
};
}  // namespace recorded
inline constexpr std::size_t kMachineCount = kRecordedMachine.size();

using RecordedTexts = std::array<std::string, kTextCount>;

/// A process as it was at a beat.
struct RecordedProcess {
  ProcessIdentity process;
  std::array<std::int64_t, kNumberCount> numbers{};
  /// Unread: nothing was known at the time, or the column was not recorded.
  std::array<FigureState, kNumberCount> numberStates{};
  std::array<FigureState, kTextCount> textStates{};
  /// Never null in a beat; shared, as they seldom change.
  std::shared_ptr<const RecordedTexts> texts = nullptr;

  void Set(std::size_t number, std::int64_t value) {
    numbers[number] = value;
    numberStates[number] = FigureState::kKnown;
  }
};

/// When a beat was. Beats are ordered by their numbers, which only grow; the calendar may jump.
struct BeatHeader {
  std::uint64_t sequence = 0;
  /// Microseconds since the epoch as the machine had it.
  std::int64_t wall = 0;
  /// Microseconds of a clock that neither steps nor stops within a session.
  std::int64_t elapsed = 0;
  /// Beats directly before this one that could not be written.
  std::uint64_t lost = 0;
  std::array<std::int64_t, kMachineCount> machine{};
};

/// What happened between two beats.
struct Beat {
  BeatHeader header;
  /// New processes, and those of which anything became different. Whole.
  std::vector<RecordedProcess> changed;
  std::vector<ProcessIdentity> ended;
};

}  // namespace lurkwell
