#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lurkwell {

/// What one /proc/PID/stat says, as far as the process table asks.
struct ProcStat {
  std::int32_t pid = 0;
  /// The name as the kernel has it, any bytes; points into the parsed text.
  std::string_view name;
  char state = 0;
  std::int32_t parentPid = 0;
  std::int32_t priority = 0;
  std::int32_t nice = 0;
  /// The start in clock ticks since boot.
  std::uint64_t startStamp = 0;
  /// Everything behind the name, in the parsed text, for ParseProcStatFields.
  std::string_view fields;
};

/// How long all processors together had nothing to do, and how much of the rest they waited for
/// input and output; in clock ticks.
struct IdleTicks {
  std::uint64_t idle = 0;
  std::uint64_t waiting = 0;
};

/// Reads the text of a stat file. The name may hold blanks, brackets and newlines, so everything
/// after it is counted from the last closing bracket. Nothing when a field that is asked for is
/// missing or is no number of its width. Pure; any thread; looks at nothing beyond `text`.
std::optional<ProcStat> ParseProcStat(std::string_view text);

/// The numbers of a stat file at the places that the kernel gives them, from 1; the state, at 3, is
/// its letter. Those that fill 64 bits are negative.
using ProcStatFields = std::array<std::int64_t, 53>;

/// The field in which the program's arguments lie; 0 for others' processes.
inline constexpr std::size_t kArgumentsField = 48;

/// Those that figures are taken from, each of which has to be a number, and on to the arguments'.
/// As long as the text that `stat` was read from is there.
std::optional<ProcStatFields> ParseProcStatFields(const ProcStat& stat);

/// The lines "name:\tVALUE" of a status or io file, taken apart once. As long as the text is there.
class NamedFields {
 public:
  explicit NamedFields(std::string_view text);

  /// The value without blanks around it; empty when there is no such line.
  std::string_view Get(std::string_view name) const;

 private:
  struct Line {
    std::string_view name, value;
  };
  // A status file has some sixty.
  static constexpr std::size_t kMostLines = 128;

  std::array<Line, kMostLines> mLines;
  std::size_t mCount = 0;
};

/// A whole text as a number: decimal, or hexadecimal without "0x"; what fills 64 bits is negative.
/// Nothing when it is none.
std::optional<std::int64_t> ParseWholeNumber(std::string_view text, int base = 10);

/// The n-th number of a line, from 1; nothing when there are fewer.
std::optional<std::int64_t> ParseNthNumber(std::string_view line, std::size_t n);

/// Reads the first line of the machine's own stat file.
std::optional<IdleTicks> ParseIdleTicks(std::string_view text);

/// A whole text as a decimal number without sign, blanks or leading zeros; nothing when it is none
/// or does not fit. This is how the kernel writes the folder names of processes.
std::optional<std::int32_t> ParsePid(std::string_view text);

}  // namespace lurkwell
