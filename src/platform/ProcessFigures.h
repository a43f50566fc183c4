#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lurkwell {

/// What a machine counts for a process. Sizes are bytes, times microseconds.
enum class Figure : std::uint8_t {
  kUserTime,
  kSystemTime,
  kVirtualSize,
  kResidentSize,
  kSuspendCount,
  kPolicy,
  kFaults,   ///< page faults of both kinds
  kPageins,  ///< those of them that waited for the disk
  kSwitches,
  kCalls,  ///< system calls that read or write
};
inline constexpr std::size_t kFigureCount = 10;

/// Where figures stand. One reading of a source brings all that stands there; the figures change
/// only while the process runs, but for those of the last one, which others change, too.
enum FigureSource : unsigned {
  kFromStat = 1,    ///< the process's line in the kernel's table, name and parent included
  kFromStatus = 2,  ///< the kernel's longer description
  kFromIO = 4,      ///< reading and writing; the owner's and root's alone
  kFromScheduler = 8,
};
/// Any of them together.
using FigureSources = unsigned;
inline constexpr FigureSources kAllFigureSources = 15;

/// What the kernel's number counts.
enum class FigureUnit : std::uint8_t { kOnes, kTicks, kPages, kStateLetter };

/// How a figure is taken from its source: the number of one field, or the sum of two. The fields of
/// kFromStat have numbers, from 1 as proc(5) counts them, those of the others names.
struct FigureOrigin {
  Figure figure;
  FigureSource source;
  FigureUnit unit;
  std::size_t field = 0;
  std::size_t otherField = 0;
  std::string_view name = {};
  std::string_view otherName = {};
};

inline constexpr std::array<FigureOrigin, kFigureCount> kFigureOrigins = {{
    {Figure::kUserTime, kFromStat, FigureUnit::kTicks, 14},
    {Figure::kSystemTime, kFromStat, FigureUnit::kTicks, 15},
    {Figure::kVirtualSize, kFromStat, FigureUnit::kOnes, 23},
    {Figure::kResidentSize, kFromStat, FigureUnit::kPages, 24},
    {Figure::kSuspendCount, kFromStat, FigureUnit::kStateLetter, 3},
    {Figure::kPolicy, kFromStat, FigureUnit::kOnes, 41},
    {Figure::kFaults, kFromStat, FigureUnit::kOnes, 10, 12},
    {Figure::kPageins, kFromStat, FigureUnit::kOnes, 12},
    {Figure::kSwitches, kFromStatus, FigureUnit::kOnes, 0, 0, "voluntary_ctxt_switches",
     "nonvoluntary_ctxt_switches"},
    {Figure::kCalls, kFromIO, FigureUnit::kOnes, 0, 0, "syscr", "syscw"},
}};

/// The sources of a figure: where it stands, and the scheduler for what others change there.
constexpr FigureSources SourcesOf(Figure figure) {
  for (const auto& origin : kFigureOrigins)
    if (origin.figure == figure)
      return origin.source | (figure == Figure::kPolicy ? FigureSources{kFromScheduler} : 0);
  return 0;
}

/// The figures of one process as they were last read: each known, refused or not read yet.
class ProcessFigures {
 public:
  bool IsKnown(Figure figure) const { return (mKnown & Bit(figure)) != 0; }
  /// Whether the machine would tell, but not us.
  bool IsRefused(Figure figure) const { return (mRefused & Bit(figure)) != 0; }
  /// 0 unless it is known.
  std::int64_t Get(Figure figure) const { return mValues[static_cast<std::size_t>(figure)]; }

  void Set(Figure figure, std::int64_t value) {
    mValues[static_cast<std::size_t>(figure)] = value;
    mKnown |= Bit(figure);
    mRefused &= ~Bit(figure);
  }
  void Refuse(Figure figure) {
    mValues[static_cast<std::size_t>(figure)] = 0;
    mKnown &= ~Bit(figure);
    mRefused |= Bit(figure);
  }

 private:
  static constexpr std::uint32_t Bit(Figure figure) {
    return std::uint32_t{1} << static_cast<unsigned>(figure);
  }

  std::array<std::int64_t, kFigureCount> mValues{};
  std::uint32_t mKnown = 0;
  std::uint32_t mRefused = 0;
};

}  // namespace lurkwell
