#include "helper/Actions.h"

#include <errno.h>
#include <stdlib.h>

#include "helper/Figures.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

constexpr std::string_view kDone = "ok";
constexpr std::string_view kNotPermitted = "!Error not permitted\n";
constexpr std::string_view kOtherProcess = "!Error another process has this pid\n";
constexpr std::string_view kRefused = "!Error refused by the system\n";
constexpr std::string_view kDenied = "!Error this takes an administrator's rights\n";

/// The process as it was when the action looked at it.
struct Target {
  std::uint64_t start = 0;
  std::size_t nameSize = 0;
  char name[64];
};

bool LookAt(const System& system, std::int32_t pid, Target& target) {
  Stat stat;
  if (!ReadStat(system, pid, stat)) return false;
  target.start = stat.fields[kStart];
  target.nameSize = stat.name.copy(target.name, sizeof target.name);
  return true;
}

bool IsRefused(const Surroundings& surroundings, const ActionRequest& request) {
  return request.pid < 2 || request.pid == surroundings.ownPid ||
         (request.permit->sparesPeer && request.pid == surroundings.peerPid);
}

/// The answer after a call that gave `result`.
std::string_view AnswerTo(int result) {
  if (result >= 0) return kDone;
  if (result == -ESRCH) return kNoSuchProcess;
  if (result == -ESTALE) return kOtherProcess;
  return result == -EPERM || result == -EACCES ? kDenied : kRefused;
}

/// A nice value cannot be set through a process descriptor, so the process is compared once more
/// behind the call.
std::string_view Renice(const System& system, const ActionRequest& request, const Target& target) {
  if (const int result = system.setNice(request.pid, request.nice); result < 0)
    return AnswerTo(result);
  Target now;
  return LookAt(system, request.pid, now) && now.start == target.start ? kDone : kOtherProcess;
}

std::string_view Act(const System& system, const ReportedStarts& starts,
                     const ActionRequest& request, Target& target) {
  const int process = system.openProcess(request.pid);
  if (process < 0) return AnswerTo(process);
  std::string_view answer = kNoSuchProcess;
  if (LookAt(system, request.pid, target)) {
    const std::uint64_t reported = starts.Of(request.pid);
    if (reported != 0 && reported != target.start)
      answer = kOtherProcess;
    else if (request.permit->signal == 0)
      answer = Renice(system, request, target);
    else
      answer = AnswerTo(system.signalProcess(process, request.permit->signal));
  }
  system.close(process);
  return answer;
}

/// Names are the choice of others: whatever could be taken for a part of the log is written as its
/// code.
void AddEscaped(TextWriter& writer, std::string_view text) {
  for (const char character : text) {
    const auto code = static_cast<unsigned char>(character);
    if (code > 0x1f && code < 0x7f && character != '"' && character != '\\') {
      writer.Add(character);
    } else {
      writer.Add("\\x", kHexDigits[code >> 4], kHexDigits[code & 15]);
    }
  }
}

void Log(const System& system, const Surroundings& surroundings, const ActionRequest& request,
         const Target& target, std::string_view answer) {
  char buffer[512];
  TextWriter line(buffer, sizeof buffer);
  // Authorisation messages, informational.
  line.Add("<86>Lurkwell_helper[", surroundings.ownPid, "]: uid=", surroundings.user,
           " verb=", request.permit->verb, "pid=", request.pid);
  if (request.permit->signal == 0)
    line.Add(request.nice < 0 ? " nice=-" : " nice=", abs(request.nice));
  line.Add(" start=", target.start, " name=\"");
  AddEscaped(line, {target.name, target.nameSize});
  if (TakePrefix(answer, "!Error ")) answer.remove_suffix(1);
  line.Add("\" result=", answer);
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
