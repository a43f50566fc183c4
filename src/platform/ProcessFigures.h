#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/FigureSources.h"
#include "platform/FigureWords.h"

namespace lurkwell {

/// What a figure counts; its property is shown and sorted as such.
enum class FigureKind : std::uint8_t {
  kNumber,
  kBytes,
  kMicroseconds,
  kElapsed,         ///< microseconds, whole seconds of them
  kShare,           ///< thousandths of a per cent
  kCPUShare,        ///< the same of one processor
  kBytesPerSecond,  ///< of a counter's last two readings
  kWords,           ///< a number that has a word, see FigureRow::words
  kText,            ///< the process's own bytes, or made of them
};

/// What the number at the source counts.
enum class SourceUnit : std::uint8_t {
  kOnes,
  kTicks,
  kPages,
  kNanoseconds,
  kStateLetter,
  kKibibytes,
  kHexadecimal,
  kPagesOfAll,  ///< pages as a share of all there are
};

/// How a figure is taken from its source: the number of one field, or the sum of two. The fields of
/// kFromStat have numbers, from 1 as proc(5) counts them, and so have those of kFromThreads, which
/// are added up; those of kFromStatus, kFromIdentity, kFromIO and kFromUnit have names. What stands
/// anywhere else has a reader of its own.
struct FigureOrigin {
  /// None: this machine does not count it, or it is made of counters.
  FigureSources source = 0;
  SourceUnit unit = SourceUnit::kOnes;
  std::size_t field = 0;
  std::size_t otherField = 0;
  std::string_view name = {};
  std::string_view otherName = {};
  /// What has to be of now beside the source, since others change the figure.
  FigureSources with = 0;
  /// The counter, or the two that are added, of which this is the growth in a second.
  std::string_view counter = {};
  std::string_view otherCounter = {};
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
/// texts, and the only place where it stands.
struct FigureRow {
  /// The property's name.
  std::string_view property;
  FigureKind kind;
  FigureGroup group;
  FigureOrigin origin;
  /// The smallest buffer that its text is written to, in bytes; by default for a 32-bit number.
  std::size_t minimumLength = 11;
  /// Of kWords: what a number means; empty where there is nothing of the kind.
  std::string (*words)(std::int64_t number) = nullptr;
  /// While the process lives.
  bool changes = true;
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
constexpr FigureOrigin AlsoFrom(FigureSource with, FigureOrigin origin) {
  origin.with = with;
  return origin;
}
/// What has a reader of its own.
constexpr FigureOrigin Single(FigureSource source, FigureSources with = 0) {
  return {.source = source, .with = with};
}
constexpr FigureOrigin InUnit(SourceUnit unit, FigureOrigin origin) {
  origin.unit = unit;
  return origin;
}
constexpr FigureOrigin PerSecond(std::string_view counter, std::string_view other = {}) {
  return {.counter = counter, .otherCounter = other};
}
constexpr FigureRow Words(std::string_view property, FigureOrigin origin,
                          std::string (*words)(std::int64_t)) {
  return {.property = property,
          .kind = FigureKind::kWords,
          .group = kNoGroup,
          .origin = origin,
          .minimumLength = 1,
          .words = words};
}
constexpr FigureRow Text(std::string_view property, FigureOrigin origin) {
  return {.property = property,
          .kind = FigureKind::kText,
          .group = kNoGroup,
          .origin = origin,
          .minimumLength = 1};
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
    {"pid_descriptors", kNumber, kNoGroup, Single(kFromDescriptorCount)},

    Text("pid_owner", Named(kFromIdentity, "Uid")),
    Words("pid_state", Stat(3), StateInWords),
    {"pid_threads", kNumber, kNoGroup, Stat(20)},
    Words("pid_terminal", Stat(7), TerminalInWords),
    Text("pid_command_line", Single(kFromCommandLine)),
    Text("pid_executable", Single(kFromExecutable)),
    {"pid_running_time", kElapsed, kNoGroup, Single(kFromClock), 14},

    {"pid_cpu_share", kCPUShare, kNoGroup, PerSecond("pid_user_time", "pid_system_time")},
    {"pid_user_share", kCPUShare, kNoGroup, PerSecond("pid_user_time")},
    {"pid_system_share", kCPUShare, kNoGroup, PerSecond("pid_system_time")},
    Text("pid_affinity", Single(kFromAssignment)),
    Words("pid_scheduler", AlsoFrom(kFromScheduler, Stat(41)), SchedulerInWords),
    Words("pid_io_priority", Single(kFromAssignment), IOPriorityInWords),

    {"pid_shared_memory", kBytes, kNoGroup,
     InUnit(kKibibytes, Named(kFromStatus, "RssFile", "RssShmem"))},
    {"pid_swap", kBytes, kNoGroup, InUnit(kKibibytes, Named(kFromStatus, "VmSwap"))},
    {"pid_highest_rsz", kBytes, kNoGroup, InUnit(kKibibytes, Named(kFromStatus, "VmHWM"))},
    {"pid_memory_share", kShare, kNoGroup, Stat(24, kPagesOfAll)},
    {"pid_oom_score", kNumber, kNoGroup, Single(kFromOOM)},

    {"pid_disk_read_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_disk_read")},
    {"pid_disk_write_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_disk_written")},
    {"pid_read_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_bytes_read")},
    {"pid_write_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_bytes_written")},
    {"pid_unit_read_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_unit_disk_read")},
    {"pid_unit_write_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_unit_disk_written")},

    {"pid_net_received", kBytes, kNoGroup, Single(kFromSockets)},
    {"pid_net_sent", kBytes, kNoGroup, Single(kFromSockets)},
    {"pid_net_receive_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_net_received")},
    {"pid_net_send_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_net_sent")},
    {"pid_connections", kNumber, kNoGroup, Single(kFromSockets)},
    Text("pid_listening_ports", Single(kFromSockets)),
    {"pid_unit_net_received", kBytes, kNoGroup, Single(kFromUnitSockets)},
    {"pid_unit_net_sent", kBytes, kNoGroup, Single(kFromUnitSockets)},
    {"pid_unit_net_receive_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_unit_net_received")},
    {"pid_unit_net_send_rate", kBytesPerSecond, kNoGroup, PerSecond("pid_unit_net_sent")},

    {"pid_gpu_share", kShare, kNoGroup, Single(kFromGraphics)},
    {"pid_gpu_memory", kBytes, kNoGroup, Single(kFromGraphics)},
    Text("pid_gpu_engine", Single(kFromGraphics)),

    Text("pid_ports", Single(kFromPorts)),
    Text("pid_open_files", Single(kFromOpenFiles)),

    Text("pid_cgroup", Single(kFromGroup)),
    Text("pid_unit", Single(kFromGroup)),
    Text("pid_slice", Single(kFromGroup)),
    Text("pid_app_scope", Single(kFromGroup)),
    Text("pid_container", Single(kFromGroup, kFromIdentity)),
    Text("pid_inner_pid", Named(kFromIdentity, "NSpid")),
    {"pid_namespace", kNumber, kNoGroup, Single(kFromNamespaces)},

    Words("pid_capabilities", InUnit(kHexadecimal, Named(kFromIdentity, "CapEff")),
          CapabilitiesInWords),
    Words("pid_seccomp", Named(kFromIdentity, "Seccomp"), SeccompInWords),
    Words("pid_no_new_privileges", Named(kFromIdentity, "NoNewPrivs"), YesOrNo),
    Text("pid_label", Single(kFromLabel)),
    Words("pid_elevated", Single(kFromIdentity), ElevationInWords),
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
  FigureSources sources = row.origin.source | row.origin.with;
  for (const auto& counter : kFigures)
    if (counter.property == row.origin.counter || counter.property == row.origin.otherCounter)
      sources |= counter.origin.source;
  return sources;
}

constexpr bool IsRate(const FigureRow& row) {
  return !row.origin.counter.empty();
}

namespace figure_lists {

template <typename Chosen>
consteval std::size_t Count(Chosen isChosen) {
  return static_cast<std::size_t>(std::count_if(kFigures.begin(), kFigures.end(), isChosen));
}
template <std::size_t kCount, typename Chosen>
consteval std::array<Figure, kCount> List(Chosen isChosen) {
  std::array<Figure, kCount> figures{};
  std::size_t count = 0;
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if (isChosen(kFigures[i])) figures[count++] = static_cast<Figure>(i);
  return figures;
}

template <FigureSources kSource>
inline constexpr auto kStandsThere =
    [](const FigureRow& row) { return row.origin.source == kSource; };
inline constexpr auto kIsText = [](const FigureRow& row) { return row.kind == FigureKind::kText; };

}  // namespace figure_lists

/// The figures that stand at one source.
template <FigureSources kSource>
inline constexpr auto kFiguresFrom =
    figure_lists::List<figure_lists::Count(figure_lists::kStandsThere<kSource>)>(
        figure_lists::kStandsThere<kSource>);

/// The same for a source that is known later.
constexpr std::span<const Figure> FiguresFrom(FigureSource source) {
  constexpr auto kLists = []<std::size_t... kBits>(std::index_sequence<kBits...>) {
    return std::array{std::span<const Figure>(kFiguresFrom<1U << kBits>)...};
  }
  (std::make_index_sequence<std::bit_width(kAllFigureSources | kCostlyFigureSources)>());
  return kLists[static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(source)))];
}

/// Calls `serve` with each of the sources alone.
template <typename Serve>
constexpr void ForEachSource(FigureSources sources, Serve serve) {
  for (; sources != 0; sources &= sources - 1)
    serve(static_cast<FigureSource>(sources & (~sources + 1)));
}

/// Those that are made of counters.
inline constexpr auto kRates = figure_lists::List<figure_lists::Count(IsRate)>(IsRate);

/// Those that are texts.
inline constexpr auto kTextFigures =
    figure_lists::List<figure_lists::Count(figure_lists::kIsText)>(figure_lists::kIsText);

/// The texts among the figures of a process; they take no room until there is one.
class FigureTexts {
 public:
  const std::string& Get(Figure figure) const {
    static const std::string kNothing;
    return mTexts.empty() ? kNothing : mTexts[Place(figure)];
  }
  /// True when it was another one.
  bool Set(Figure figure, std::string_view text) {
    if (Get(figure) == text) return false;
    if (mTexts.empty()) mTexts.resize(kTextFigures.size());
    mTexts[Place(figure)] = text;
    return true;
  }

 private:
  static std::size_t Place(Figure figure) {
    static constexpr auto kPlaces = [] {
      std::array<std::uint8_t, kFigureCount> places{};
      for (std::size_t i = 0; i < kTextFigures.size(); ++i)
        places[static_cast<std::size_t>(kTextFigures[i])] = static_cast<std::uint8_t>(i);
      return places;
    }();
    return kPlaces[static_cast<std::size_t>(figure)];
  }

  std::vector<std::string> mTexts;
};

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
namespace figure_numbers {

constexpr bool IsUsual(const FigureRow& row) {
  return row.origin.source == kFromStat;
}
inline constexpr auto kUsualCount =
    static_cast<std::size_t>(std::ranges::count_if(kFigures, IsUsual));
/// The usual ones first.
inline constexpr auto kPlaces = [] {
  std::array<std::size_t, kFigureCount> places{};
  std::size_t usual = 0;
  std::size_t others = kUsualCount;
  for (std::size_t i = 0; i < kFigureCount; ++i)
    places[i] = IsUsual(kFigures[i]) ? usual++ : others++;
  return places;
}();

}  // namespace figure_numbers

/// Numbers by figures, 0 at first. Those of stat lie here; room for the others is made when the
/// first of them is anything else, since most processes are never asked for them.
class FigureNumbers {
  static constexpr auto kUsualCount = figure_numbers::kUsualCount;

 public:
  std::int64_t operator[](Figure figure) const {
    const auto place = Placed(figure);
    if (place < kUsualCount) return mUsual[place];
    return mOthers.empty() ? 0 : mOthers[place - kUsualCount];
  }
  void Set(Figure figure, std::int64_t number) {
    const auto place = Placed(figure);
    if (place < kUsualCount) {
      mUsual[place] = number;
    } else if (!mOthers.empty() || number != 0) {
      mOthers.resize(kFigureCount - kUsualCount);
      mOthers[place - kUsualCount] = number;
    }
  }

 private:
  static constexpr std::size_t Placed(Figure figure) {
    return figure_numbers::kPlaces[static_cast<std::size_t>(figure)];
  }
  std::array<std::int64_t, kUsualCount> mUsual{};
  std::vector<std::int64_t> mOthers;
};

class ProcessFigures {
 public:
  FigureState StateOf(Figure figure) const { return mStates[Place(figure)]; }
  /// 0 unless it is known, and for a text.
  std::int64_t Get(Figure figure) const { return mValues[figure]; }
  const std::string& GetText(Figure figure) const { return mTexts.Get(figure); }

  void Set(Figure figure, std::int64_t value) {
    mValues.Set(figure, value);
    mStates[Place(figure)] = FigureState::kKnown;
  }
  void SetText(Figure figure, std::string_view text) {
    mTexts.Set(figure, text);
    mStates[Place(figure)] = FigureState::kKnown;
  }
  void SetMissing(Figure figure, FigureState why) {
    mValues.Set(figure, 0);
    if (RowOf(figure).kind == FigureKind::kText) mTexts.Set(figure, {});
    mStates[Place(figure)] = why;
  }

 private:
  static constexpr std::size_t Place(Figure figure) { return static_cast<std::size_t>(figure); }

  FigureNumbers mValues;
  std::array<FigureState, kFigureCount> mStates{};
  FigureTexts mTexts;
};

}  // namespace lurkwell
