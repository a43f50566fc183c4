#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "platform/FigureSources.h"
#include "platform/TimeValue.h"

namespace lurkwell {

/// What a figure counts; its property is shown and sorted as such.
enum class FigureKind : std::uint8_t { kNumber, kBytes, kMicroseconds };

/// What the number at the source counts.
enum class SourceUnit : std::uint8_t { kOnes, kTicks, kPages, kNanoseconds, kStateLetter };

/// How a figure is taken from its source: the number of one field, or the sum of two. The fields of
/// kFromStat have numbers, from 1 as proc(5) counts them, and so have those of kFromThreads, which
/// are added up; those of the others have names.
struct FigureOrigin {
  /// None: this machine does not count it.
  FigureSources source = 0;
  SourceUnit unit = SourceUnit::kOnes;
  std::size_t field = 0;
  std::size_t otherField = 0;
  std::string_view name = {};
  std::string_view otherName = {};
  /// What has to be of now beside the source, since others change the figure.
  FigureSources with = 0;
};

/// What the helper can tell of a process, in groups that are asked for as a whole.
enum FigureGroup : unsigned {
  kNoGroup = 0,     ///< it does not tell
  kThreadTime = 1,  ///< CPU time of live threads
  kBasicInfo = 2,   ///< sizes, suspend count, CPU time of ended threads, scheduling policy
  kEventsInfo = 4,  ///< counters of faults, messages, system calls, context switches
};

/// The words by which groups are asked for, in this order.
struct FigureGroupWord {
  FigureGroup group;
  std::string_view word;
};
inline constexpr FigureGroupWord kFigureGroupWords[] = {
    {kThreadTime, "_thread_time"}, {kBasicInfo, "_basic_info"}, {kEventsInfo, "_events_info"}};

/// One figure that a machine may count for a process: all that the program knows of it but its
/// texts, and the only place where it stands. It may change for as long as the process lives.
struct FigureRow {
  /// The property's name.
  std::string_view property;
  FigureKind kind;
  FigureGroup group;
  FigureOrigin origin;
  /// The smallest buffer that its text is written to, in bytes; by default for a 32-bit number.
  std::size_t minimumLength = 11;
};

namespace figure_origins {

constexpr FigureOrigin Stat(std::size_t field, SourceUnit unit = SourceUnit::kOnes) {
  return {.source = kFromStat, .unit = unit, .field = field};
}
constexpr FigureOrigin StatSum(std::size_t field, std::size_t other) {
  return {.source = kFromStat, .field = field, .otherField = other};
}
constexpr FigureOrigin Named(FigureSource source, std::string_view name,
                             std::string_view other = {}) {
  return {.source = source, .name = name, .otherName = other};
}
constexpr FigureOrigin OfThreads(std::size_t field, SourceUnit unit) {
  return {.source = kFromThreads, .unit = unit, .field = field};
}
/// How it is taken stands in the reader of the source.
constexpr FigureOrigin InBackground(FigureSource source) {
  return {.source = source};
}
constexpr FigureOrigin AlsoFrom(FigureSource with, FigureOrigin origin) {
  origin.with = with;
  return origin;
}
inline constexpr FigureOrigin kUncounted{};

using enum FigureKind;
using enum SourceUnit;

/// In the order in which properties are listed and helpers answer.
inline constexpr FigureRow kRows[] = {
    {"pid_user_time", kMicroseconds, kThreadTime, Stat(14, kTicks), 14},
    {"pid_system_time", kMicroseconds, kThreadTime, Stat(15, kTicks)},
    {"pid_vsz", kBytes, kBasicInfo, Stat(23)},
    {"pid_rsz", kBytes, kBasicInfo, Stat(24, kPages)},
    {"pid_suspend_count", kNumber, kBasicInfo, Stat(3, kStateLetter)},
    {"pid_terminated_user_time", kMicroseconds, kBasicInfo, kUncounted, 14},
    {"pid_terminated_system_time", kMicroseconds, kBasicInfo, kUncounted, 14},
    {"pid_policy", kNumber, kBasicInfo, AlsoFrom(kFromScheduler, Stat(41))},
    {"pid_faults", kNumber, kEventsInfo, StatSum(10, 12)},
    {"pid_pageins", kNumber, kEventsInfo, Stat(12)},
    {"pid_cow_faults", kNumber, kEventsInfo, kUncounted},
    {"pid_messages_sent", kNumber, kEventsInfo, kUncounted},
    {"pid_messages_received", kNumber, kEventsInfo, kUncounted},
    {"pid_syscalls_mach", kNumber, kEventsInfo, kUncounted},
    {"pid_syscalls_unix", kNumber, kEventsInfo, Named(kFromIO, "syscr", "syscw")},
    {"pid_csw", kNumber, kEventsInfo,
     Named(kFromStatus, "voluntary_ctxt_switches", "nonvoluntary_ctxt_switches")},
    {"pid_processor", kNumber, kNoGroup, Stat(39)},
    {"pid_cpu_wait", kMicroseconds, kNoGroup, OfThreads(2, kNanoseconds)},
    {"pid_disk_read", kBytes, kNoGroup, Named(kFromIO, "read_bytes")},
    {"pid_disk_written", kBytes, kNoGroup, Named(kFromIO, "write_bytes")},
    {"pid_bytes_read", kBytes, kNoGroup, Named(kFromIO, "rchar")},
    {"pid_bytes_written", kBytes, kNoGroup, Named(kFromIO, "wchar")},
    {"pid_unit_disk_read", kBytes, kNoGroup, Named(kFromUnit, "rbytes")},
    {"pid_unit_disk_written", kBytes, kNoGroup, Named(kFromUnit, "wbytes")},
    {"pid_pss", kBytes, kNoGroup, Named(kFromMemoryMap, "Pss")},
    {"pid_uss", kBytes, kNoGroup, Named(kFromMemoryMap, "Private_Clean", "Private_Dirty")},
    {"pid_descriptors", kNumber, kNoGroup, InBackground(kFromDescriptorCount)},
};

}  // namespace figure_origins

inline constexpr std::size_t kFigureCount = std::size(figure_origins::kRows);
inline constexpr auto kFigures = std::to_array(figure_origins::kRows);

/// A figure by its place among kFigures.
enum class Figure : std::uint8_t {};

constexpr const FigureRow& RowOf(Figure figure) {
  return kFigures[static_cast<std::size_t>(figure)];
}

/// The figure of a property; what is none does not compile.
consteval Figure FigureCalled(std::string_view property) {
  std::size_t place = 0;
  while (kFigures[place].property != property) ++place;
  return static_cast<Figure>(place);
}

/// What has to be read for the figure to be that of now; 0 where it is not counted.
constexpr FigureSources SourcesOf(const FigureRow& row) {
  return row.origin.source | row.origin.with;
}

// Times of more than 280,000 years are cut.
constexpr std::int64_t MicrosecondsOf(TimeValue time) {
  constexpr std::int64_t kLongest = 9'000'000'000'000;
  return std::clamp(time.seconds, -kLongest, kLongest) * 1'000'000 + time.microseconds;
}
constexpr TimeValue TimeOfMicroseconds(std::int64_t count) {
  const std::int64_t rest = (count % 1'000'000 + 1'000'000) % 1'000'000;
  return {(count - rest) / 1'000'000, static_cast<std::int32_t>(rest)};
}

/// What is known of a figure.
enum class FigureState : std::uint8_t {
  kUnread,
  kKnown,
  kRefused,    ///< the machine would tell, but not us
  kUncounted,  ///< the machine does not count it
};

/// The figures of one process as they were last read.
class ProcessFigures {
 public:
  FigureState StateOf(Figure figure) const { return mStates[Place(figure)]; }
  /// 0 unless it is known.
  std::int64_t Get(Figure figure) const { return mValues[Place(figure)]; }

  void Set(Figure figure, std::int64_t value) {
    mValues[Place(figure)] = value;
    mStates[Place(figure)] = FigureState::kKnown;
  }
  void SetMissing(Figure figure, FigureState why) {
    mValues[Place(figure)] = 0;
    mStates[Place(figure)] = why;
  }

 private:
  static constexpr std::size_t Place(Figure figure) { return static_cast<std::size_t>(figure); }

  std::array<std::int64_t, kFigureCount> mValues{};
  std::array<FigureState, kFigureCount> mStates{};
};

}  // namespace lurkwell
