#include "helper/Request.h"

#include <signal.h>

#include "helper/Protocol.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

constexpr Permit kPermits[] = {
    {"kill_normal ", SIGTERM, false},
    {"kill_harsh ", SIGKILL, false},
    {"kill_halt ", SIGSTOP, true},
    {"kill_cont ", SIGCONT, false},
    {"renice ", 0, false},
};

bool TakeNice(std::string_view& text, std::int32_t& nice) {
  const bool negative = TakePrefix(text, "-");
  std::int32_t size = 0;
  if (!TakeNumber(text, negative ? -kLowestNice : kHighestNice, size)) return false;
  nice = negative ? -size : size;
  return !negative || size != 0;
}

}  // namespace

bool ParseAction(std::string_view line, ActionRequest& request) {
  for (const Permit& permit : kPermits) {
    if (!TakePrefix(line, permit.verb)) continue;
    request.permit = &permit;
    if (!TakeNumber(line, kHighestPid, request.pid)) return false;
    if (permit.signal == 0 && !(TakePrefix(line, " ") && TakeNice(line, request.nice)))
      return false;
    return line.empty();
  }
  return false;
}

bool TakeFiguresLine(std::string_view& text, FiguresLine& line) {
  if (!TakePrefix(text, "pid_internal")) return false;
  line.groups = 0;
  if (TakePrefix(text, "_thread_time")) line.groups |= kThreadTime;
  if (TakePrefix(text, "_basic_info")) line.groups |= kBasicInfo;
  if (TakePrefix(text, "_events_info")) line.groups |= kEventsInfo;
  return TakePrefix(text, " ") && TakeNumber(text, kHighestPid, line.pid) && TakePrefix(text, "\n");
}

bool AreFiguresLines(std::string_view text) {
  for (FiguresLine line; TakeFiguresLine(text, line);)
    if (text.empty()) return true;
  return false;
}

}  // namespace lurkwell::helper
