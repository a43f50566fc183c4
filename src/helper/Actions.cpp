#include "helper/Actions.h"

#include <errno.h>

#include "helper/Figures.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

constexpr std::string_view kDone = "ok";
constexpr std::string_view kNotPermitted = "!Error not permitted\n";
constexpr std::string_view kNoSuchProcess = "!Error no such process\n";
constexpr std::string_view kOtherProcess = "!Error another process has this pid\n";
constexpr std::string_view kRefused = "!Error refused by the system\n";

/// The process as it was when the action looked at it.
struct Target {
  std::uint64_t start = 0;
  TextWriter name{nameText, sizeof nameText};
  char nameText[64];
};

bool LookAt(const System& system, std::int32_t pid, Target& target) {
  Stat stat;
  if (!ReadStat(system, pid, stat)) return false;
  target.start = stat.start;
  target.name.Add(stat.name.substr(0, sizeof target.nameText));
  return true;
}

bool IsRefused(const Surroundings& surroundings, const ActionRequest& request) {
  return request.pid < 2 || request.pid == surroundings.ownPid ||
         (request.permit->sparesPeer && request.pid == surroundings.peerPid);
}

/// A nice value cannot be set through a process descriptor, so the process is compared once more
/// behind the call.
std::string_view Renice(const System& system, const ActionRequest& request, const Target& target) {
  if (system.setNice(request.pid, request.nice) < 0) return kRefused;
  Target now;
  return LookAt(system, request.pid, now) && now.start == target.start ? kDone : kOtherProcess;
}

std::string_view Act(const System& system, const ReportedStarts& starts,
                     const ActionRequest& request, Target& target) {
  const int process = system.openProcess(request.pid);
  if (process < 0) return process == -ESRCH ? kNoSuchProcess : kRefused;
  std::string_view answer = kNoSuchProcess;
  if (LookAt(system, request.pid, target)) {
    const std::uint64_t reported = starts.Of(request.pid);
    if (reported != 0 && reported != target.start)
      answer = kOtherProcess;
    else if (request.permit->signal == 0)
      answer = Renice(system, request, target);
    else
      answer = system.signalProcess(process, request.permit->signal) < 0 ? kRefused : kDone;
  }
  system.close(process);
  return answer;
}

/// Names are the choice of others: whatever could be taken for a part of the log is written as its
/// code.
void AddEscaped(TextWriter& writer, std::string_view text) {
  static constexpr char kHex[] = "0123456789abcdef";
  for (const char character : text) {
    const auto code = static_cast<unsigned char>(character);
    if (code > 0x1f && code < 0x7f && character != '"' && character != '\\') {
      writer.Add(character);
    } else {
      writer.Add("\\x");
      writer.Add(kHex[code >> 4]);
      writer.Add(kHex[code & 15]);
    }
  }
}

void Log(const System& system, const Surroundings& surroundings, const ActionRequest& request,
         const Target& target, std::string_view answer) {
  char buffer[512];
  TextWriter line(buffer, sizeof buffer);
  line.Add("<86>Lurkwell_helper[");  // authorisation messages, informational
  line.AddNumber(static_cast<std::uint64_t>(surroundings.ownPid));
  line.Add("]: uid=");
  line.AddNumber(surroundings.user);
  line.Add(" verb=");
  line.Add(request.permit->verb);
  line.Add("pid=");
  line.AddNumber(static_cast<std::uint64_t>(request.pid));
  if (request.permit->signal == 0) {
    line.Add(request.nice < 0 ? " nice=-" : " nice=");
    line.AddNumber(static_cast<std::uint64_t>(request.nice < 0 ? -request.nice : request.nice));
  }
  line.Add(" start=");
  line.AddNumber(target.start);
  line.Add(" name=\"");
  AddEscaped(line, target.name.Text());
  line.Add("\" result=");
  if (TakePrefix(answer, "!Error ")) answer.remove_suffix(1);
  line.Add(answer);
  system.log(line.Text());
}

}  // namespace

std::string_view CarryOut(const System& system, const Surroundings& surroundings,
                          const ReportedStarts& starts, const ActionRequest& request) {
  Target target;
  const std::string_view answer =
      IsRefused(surroundings, request) ? kNotPermitted : Act(system, starts, request, target);
  Log(system, surroundings, request, target, answer);
  return answer;
}

}  // namespace lurkwell::helper
