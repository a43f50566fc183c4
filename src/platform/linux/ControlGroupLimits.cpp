#include "platform/linux/ControlGroupLimits.h"

#include <algorithm>
#include <optional>

#include "platform/ProcStat.h"
#include "platform/linux/DetailsFiles.h"

namespace lurkwell {
namespace {

using Unit = ControlGroupDetails::Unit;

constexpr std::size_t kLongestGroupFile = 65'536;
/// No deeper than paths go.
constexpr int kMostGroups = 64;

/// A figure, by the names of its files; a null one has no such file.
struct GroupFigure {
  const char* figure;
  Unit unit;
  const char* inUse;
  const char* limit;
};
constexpr GroupFigure kGroupFigures[] = {
    {"memory", Unit::kBytes, "memory.current", "memory.max"},
    {"memory.high", Unit::kBytes, "memory.current", "memory.high"},
    {"memory.peak", Unit::kBytes, "memory.peak", nullptr},
    {"memory.swap", Unit::kBytes, "memory.swap.current", "memory.swap.max"},
    {"pids", Unit::kNumber, "pids.current", "pids.max"},
    {"cpu.max", Unit::kShareOfProcessor, nullptr, "cpu.max"},
    {"cpu.weight", Unit::kNumber, "cpu.weight", nullptr},
};

/// A number on a line of a file with names.
struct GroupCounter {
  const char* figure;
  Unit unit;
  const char* file;
  std::string_view name;
};
constexpr GroupCounter kGroupCounters[] = {
    {"cpu.usage", Unit::kMicroseconds, "cpu.stat", "usage_usec"},
    {"cpu.throttled", Unit::kMicroseconds, "cpu.stat", "throttled_usec"},
    {"memory.high_events", Unit::kNumber, "memory.events", "high"},
    {"memory.oom_kills", Unit::kNumber, "memory.events", "oom_kill"},
};

class GroupFolder {
 public:
  GroupFolder(int hierarchy, std::string_view path) : mHierarchy(hierarchy), mPath(path) {}

  std::optional<std::string> Text(const char* file) const {
    return ReadWhole(mHierarchy, ("." + mPath + "/" + file).c_str(), kLongestGroupFile);
  }
  std::optional<std::int64_t> Number(const char* file, Unit unit) const {
    if (file == nullptr) return std::nullopt;
    const auto text = Text(file);
    if (!text) return std::nullopt;
    if (unit == Unit::kShareOfProcessor) return ShareOfQuota(*text);
    return ParseWholeNumber(std::string_view(*text).substr(0, text->find('\n')));
  }
  std::optional<std::int64_t> Counter(const GroupCounter& counter) const {
    const auto text = Text(counter.file);
    if (!text) return std::nullopt;
    std::string_view rest(*text);
    while (!rest.empty()) {
      auto line = rest.substr(0, rest.find('\n'));
      rest.remove_prefix(std::min(line.size() + 1, rest.size()));
      if (TakeWord(line) == counter.name) return ParseWholeNumber(TakeWord(line));
    }
    return std::nullopt;
  }

 private:
  int mHierarchy;
  std::string mPath;
};

void AddGroup(int hierarchy, std::string_view path, bool isAbove,
              std::vector<ControlGroupDetails>& details) {
  const GroupFolder folder(hierarchy, path == "/" ? std::string_view() : path);
  for (const auto& row : kGroupFigures) {
    const auto limit = folder.Number(row.limit, row.unit);
    if (isAbove && !limit) continue;
    const auto inUse = folder.Number(row.inUse, row.unit);
    // Without a limit, the same use would be told twice.
    const bool isSecond = std::string_view(row.figure) == "memory.high";
    if ((isSecond && !limit) || (!inUse && !limit)) continue;
    details.push_back({std::string(path), row.figure, row.unit, inUse, limit});
  }
  if (isAbove) return;
  for (const auto& counter : kGroupCounters)
    if (const auto number = folder.Counter(counter))
      details.push_back({std::string(path), counter.figure, counter.unit, number, std::nullopt});
}

}  // namespace

std::optional<std::int64_t> ShareOfQuota(std::string_view text) {
  text = text.substr(0, text.find('\n'));
  const auto quota = ParseWholeNumber(TakeWord(text));
  const auto period = ParseWholeNumber(TakeWord(text));
  constexpr std::int64_t kMost = INT64_MAX / 1000;
  if (!quota || !period || *quota < 0 || *quota > kMost || *period <= 0) return std::nullopt;
  return *quota * 1000 / *period;
}

std::vector<ControlGroupDetails> ReadControlGroupLimits(int hierarchy, std::string_view path) {
  std::vector<ControlGroupDetails> details;
  AddGroup(hierarchy, path, false, details);
  for (int group = 0; group < kMostGroups && path.size() > 1; ++group) {
    path = path.substr(0, std::max<std::size_t>(path.rfind('/'), 1));
    AddGroup(hierarchy, path, true, details);
  }
  return details;
}

}  // namespace lurkwell
