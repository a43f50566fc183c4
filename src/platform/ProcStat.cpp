#include "platform/ProcStat.h"

#include <algorithm>
#include <charconv>
#include <tuple>

#include "platform/ProcessFigures.h"

namespace lurkwell {
namespace {

constexpr std::size_t kLastField = [] {
  std::size_t last = 0;
  for (const auto& row : kFigures) last = std::max({last, row.origin.field, row.origin.otherField});
  return last;
}();
static_assert(kLastField < std::tuple_size_v<ProcStatFields>);

/// The fields after the name, each ended by a blank or by the end of the line.
class Fields {
 public:
  explicit Fields(std::string_view text) : mRest(text) {}

  std::string_view Next() {
    std::size_t end = 0;
    // Fields are short: this is quicker than a search.
    while (end < mRest.size() && mRest[end] != ' ' && mRest[end] != '\n') ++end;
    const auto field = mRest.substr(0, end);
    mRest.remove_prefix(std::min(end + 1, mRest.size()));
    return field;
  }

  void Skip(int count) {
    while (count-- > 0) Next();
  }

  /// The next field as a number of the target's width; false when it is none.
  template <typename Number>
  bool Read(Number& number) {
    const auto field = Next();
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
    return error == std::errc() && end == field.data() + field.size();
  }

 private:
  std::string_view mRest;
};

}  // namespace

std::optional<ProcStat> ParseProcStat(std::string_view text) {
  const auto open = text.find(" (");
  const auto close = text.rfind(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open + 2) {
    return std::nullopt;
  }
  ProcStat stat;
  const auto pid = ParsePid(text.substr(0, open));
  if (!pid) return std::nullopt;
  stat.pid = *pid;
  stat.name = text.substr(open + 2, close - open - 2);

  // Behind the bracket: a blank, the state (field 3), the parent (4), then numbers up to the
  // priority (18), the nice value (19) and the start (22).
  const auto behind = text.substr(close + 1);
  if (behind.empty() || behind.front() != ' ') return std::nullopt;
  stat.fields = behind.substr(1);
  Fields fields(stat.fields);
  const auto state = fields.Next();
  if (state.size() != 1) return std::nullopt;
  stat.state = state.front();
  if (!fields.Read(stat.parentPid) || stat.parentPid < 0) return std::nullopt;
  fields.Skip(13);
  if (!fields.Read(stat.priority) || !fields.Read(stat.nice)) return std::nullopt;
  fields.Skip(2);
  if (!fields.Read(stat.startStamp)) return std::nullopt;
  return stat;
}

std::optional<ProcStatFields> ParseProcStatFields(const ProcStat& stat) {
  ProcStatFields numbers{};
  Fields fields(stat.fields);
  fields.Skip(1);
  numbers[3] = static_cast<unsigned char>(stat.state);
  for (std::size_t place = 4; place <= std::max(kLastField, kArgumentsField); ++place) {
    const auto field = fields.Next();
    const char* const last = field.data() + field.size();
    if (std::from_chars(field.data(), last, numbers[place]).ptr == last && !field.empty()) continue;
    std::uint64_t large = 0;
    if (!field.empty() && std::from_chars(field.data(), last, large).ptr == last)
      numbers[place] = static_cast<std::int64_t>(large);
    else if (place <= kLastField)
      return std::nullopt;
  }
  return numbers;
}

NamedFields::NamedFields(std::string_view text) {
  while (!text.empty() && mCount < kMostLines) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const auto colon = line.find(':');
    if (colon == std::string_view::npos) continue;
    auto value = line.substr(colon + 1);
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    mLines[mCount++] = {line.substr(0, colon), value};
  }
}

std::string_view NamedFields::Get(std::string_view name) const {
  const auto* const last = mLines.data() + mCount;
  const auto* const line =
      std::find_if(mLines.data(), last, [name](const Line& known) { return known.name == name; });
  return line == last ? std::string_view() : line->value;
}

std::optional<std::int64_t> ParseWholeNumber(std::string_view text, int base) {
  const char* const last = text.data() + text.size();
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), last, number, base);
  if (error == std::errc() && end == last) return number;
  std::uint64_t large = 0;
  const auto [largeEnd, largeError] = std::from_chars(text.data(), last, large, base);
  if (largeError != std::errc() || largeEnd != last) return std::nullopt;
  return static_cast<std::int64_t>(large);
}

std::optional<std::int64_t> ParseNthNumber(std::string_view line, std::size_t n) {
  Fields fields(line);
  fields.Skip(static_cast<int>(n) - 1);
  std::uint64_t number = 0;
  if (!fields.Read(number)) return std::nullopt;
  return static_cast<std::int64_t>(number);
}

std::optional<IdleTicks> ParseIdleTicks(std::string_view text) {
  // Two blanks behind the name, then the times of users, nice ones, the system, and idle.
  Fields fields(text);
  if (fields.Next() != "cpu") return std::nullopt;
  fields.Skip(4);
  IdleTicks ticks;
  if (!fields.Read(ticks.idle) || !fields.Read(ticks.waiting)) return std::nullopt;
  return ticks;
}

std::optional<std::int32_t> ParsePid(std::string_view text) {
  if (text.empty() || text.front() < '1' || text.front() > '9') return std::nullopt;
  std::int32_t pid = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), pid);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return pid;
}

}  // namespace lurkwell
