#include "platform/linux/ProcStat.h"

#include <charconv>

namespace lurkwell {
namespace {

/// The fields after the name, each ended by a blank or by the end of the line.
class Fields {
 public:
  explicit Fields(std::string_view text) : mRest(text) {}

  std::string_view Next() {
    const auto end = mRest.find_first_of(" \n");
    const auto field = mRest.substr(0, end);
    mRest.remove_prefix(end == std::string_view::npos ? mRest.size() : end + 1);
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
  Fields fields(behind.substr(1));
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

std::optional<std::int32_t> ParsePid(std::string_view text) {
  if (text.empty() || text.front() < '1' || text.front() > '9') return std::nullopt;
  std::int32_t pid = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), pid);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return pid;
}

}  // namespace lurkwell
