#include "platform/simulated/SimulatedHelper.h"

#include <algorithm>
#include <charconv>
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
class FigureLines {
 public:
  explicit FigureLines(std::int32_t pid) : mPid(std::to_string(pid)) {}

  void Add(const char* property, std::int64_t value) { AddText(property, std::to_string(value)); }
  void Add(const char* property, TimeValue time) {
    AddText(property, std::to_string(time.seconds) + "." + std::to_string(time.microseconds));
  }
  const std::string& Text() const { return mText; }

 private:
  void AddText(const char* property, const std::string& value) {
    mText += property;
    mText += ' ' + mPid + ' ' + value + '\n';
  }

  std::string mPid;
  std::string mText;
};

std::string FiguresOf(const SimulatedProcess& process, std::string_view groups) {
  FigureLines lines(process.entry.pid);
  if (groups.find("_thread_time") != std::string_view::npos) {
    lines.Add("pid_user_time", process.userTime);
    lines.Add("pid_system_time", process.systemTime);
  }
  if (groups.find("_basic_info") != std::string_view::npos) {
    lines.Add("pid_vsz", process.virtualSize);
    lines.Add("pid_rsz", process.residentSize);
    lines.Add("pid_suspend_count", process.entry.state == RunState::kStopped ? 1 : 0);
    lines.Add("pid_terminated_user_time", process.terminatedUserTime);
    lines.Add("pid_terminated_system_time", process.terminatedSystemTime);
    lines.Add("pid_policy", process.policy);
  }
  if (groups.find("_events_info") != std::string_view::npos) {
    constexpr const char* kEvents[] = {"pid_faults",
                                       "pid_pageins",
                                       "pid_cow_faults",
                                       "pid_messages_sent",
                                       "pid_messages_received",
                                       "pid_syscalls_mach",
                                       "pid_syscalls_unix",
                                       "pid_csw"};
    for (std::size_t i = 0; i < std::size(kEvents); ++i) lines.Add(kEvents[i], process.events[i]);
  }
  return lines.Text();
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
