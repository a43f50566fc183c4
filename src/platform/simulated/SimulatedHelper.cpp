#include "platform/simulated/SimulatedHelper.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <sstream>

namespace lurkwell {
namespace {

constexpr std::string_view kActionHeader = "Lkw Action Request:\n";
constexpr std::string_view kFiguresHeader = "Lkw Info Extraction:\n";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\n') {
      escaped += "\\n";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

/// Lines of property, pid and value for one process.
std::string FiguresOf(const SimulatedProcess& process, std::string_view groups) {
  std::string lines;
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto& row = kFigures[i];
    const auto* word = std::ranges::find(kFigureGroupWords, row.group, &FigureGroupWord::group);
    if (word == std::end(kFigureGroupWords) || groups.find(word->word) == std::string_view::npos)
      continue;
    const std::int64_t value = process.Tell(static_cast<Figure>(i));
    lines += std::string(row.property) + ' ' + std::to_string(process.entry.pid) + ' ';
    if (row.kind == FigureKind::kMicroseconds) {
      const auto time = TimeOfMicroseconds(value);
      lines += std::to_string(time.seconds) + '.' + std::to_string(time.microseconds) + '\n';
    } else {
      lines += std::to_string(value) + '\n';
    }
  }
  return lines;
}

}  // namespace

std::string SimulatedHelper::Answer(std::string_view request) {
  const bool figures = request.starts_with(kFiguresHeader);
  if (!figures || mRecordsFigures) mLog.Add("Helper " + Escaped(request));
  if (request == "geteuid") return std::to_string(mEffectiveUid);
  if (figures) return AnswerFigures(request.substr(kFiguresHeader.size()));
  if (request.starts_with(kActionHeader)) return CarryOut(request.substr(kActionHeader.size()));
  return "!Error unknown request";
}

/// What stops, resumes or renices a process does so; nothing ends one.
std::string SimulatedHelper::CarryOut(std::string_view line) {
  std::istringstream words{std::string(line)};
  std::string verb;
  std::int32_t pid = kInvalidPID;
  std::int32_t nice = 0;
  words >> verb >> pid >> nice;
  auto* process = mTable.Find(pid);
  if (process == nullptr) return "done";
  if (verb == "kill_halt") process->entry.state = RunState::kStopped;
  if (verb == "kill_cont") process->entry.state = RunState::kSleeping;
  if (verb == "renice") process->entry.nice = std::min(nice, 19);
  return "done";
}

std::string SimulatedHelper::AnswerFigures(std::string_view lines) {
  std::string answer;
  while (!lines.empty()) {
    const auto line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(std::min(line.size() + 1, lines.size()));
    const auto blank = line.find(' ');
    if (blank == std::string_view::npos) continue;
    std::int32_t pid = kInvalidPID;
    std::from_chars(line.data() + blank + 1, line.data() + line.size(), pid);
    if (const auto* process = mTable.Find(pid))
      answer += FiguresOf(*process, line.substr(0, blank));
  }
  return answer;
}

}  // namespace lurkwell
