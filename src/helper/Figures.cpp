#include "helper/Figures.h"

namespace lurkwell::helper {

namespace {

char gFile[16384];

struct Figures : Stat {
  std::uint64_t calls, switches;
};

/// Moves to the next number of the same line, and gives it; a sign is passed over. 0 where the text
/// ends.
std::uint64_t TakeField(std::string_view& text) {
  while (!text.empty() && !IsDigit(text.front())) text.remove_prefix(1);
  std::uint64_t value = 0;
  for (; !text.empty() && IsDigit(text.front()); text.remove_prefix(1))
    value = value * 10 + static_cast<std::uint64_t>(text.front() - '0');
  return value;
}

/// The number behind the last place where `text` holds `key`, 0 when it does not.
std::uint64_t NumberBehind(std::string_view text, std::string_view key) {
  const std::size_t place = text.rfind(key);
  if (place == std::string_view::npos) return 0;
  text.remove_prefix(place + key.size());
  return TakeField(text);
}

/// Empty where the file cannot be read; valid until another one is.
std::string_view ReadFile(const System& system, std::int32_t pid, std::string_view name) {
  PathWriter path("/proc/");
  if (pid > 0) path.Add(pid);
  path.Add(name);
  const std::ptrdiff_t size = system.readFile(path.Terminated(), gFile, sizeof gFile);
  return {gFile, size > 0 ? static_cast<std::size_t>(size) : 0};
}

/// The stat file is read again behind the others, so that all of them are one process's.
bool GatherProcess(const System& system, const FiguresLine& line, Figures& figures) {
  if (!ReadStat(system, line.pid, figures)) return false;
  if ((line.groups & kEventsInfo) == 0) return true;
  std::string_view text = ReadFile(system, line.pid, "/status");
  figures.switches = NumberBehind(text, "\nvoluntary_ctxt_switches:") +
                     NumberBehind(text, "\nnonvoluntary_ctxt_switches:");
  text = ReadFile(system, line.pid, "/io");
  figures.calls = NumberBehind(text, "\nsyscr:") + NumberBehind(text, "\nsyscw:");
  const std::uint64_t start = figures.fields[kStart];
  return ReadStat(system, line.pid, figures) && figures.fields[kStart] == start;
}

/// The first line reads: cpu USER NICE SYSTEM IDLE IOWAIT ...
void GatherMachine(const System& system, Figures& figures) {
  std::string_view text = ReadFile(system, 0, "stat");
  for (int passed = 0; passed < 3; ++passed) TakeField(text);
  figures.fields[14] = TakeField(text);
  figures.fields[15] = TakeField(text);
}

/// What the kernel counts for a process as a whole has no share of ended threads; messages and
/// copies on write are not counted here at all.
void AddLines(const Surroundings& surroundings, const FiguresLine& line, const Figures& figures,
              TextWriter& answer) {
  const std::uint32_t second = surroundings.ticksPerSecond;
  const auto& fields = figures.fields;
  const auto number = [&](const char* property, std::uint64_t value) {
    answer.Add(property, ' ', line.pid, ' ', value, '\n');
  };
  const auto time = [&](const char* property, std::uint64_t ticks) {
    answer.Add(property, ' ', line.pid, ' ', ticks / second, '.');
    answer.AddNumber(ticks % second * 1000000 / second, 6);
    answer.Add('\n');
  };
  if (line.groups & kThreadTime) {
    time("pid_user_time", fields[14]);
    time("pid_system_time", fields[15]);
  }
  if (line.groups & kBasicInfo) {
    number("pid_vsz", fields[23]);
    number("pid_rsz", fields[24] * surroundings.pageSize);
    number("pid_suspend_count", figures.state == 'T' || figures.state == 't');
    time("pid_terminated_user_time", 0);
    time("pid_terminated_system_time", 0);
    number("pid_policy", fields[41]);
  }
  if (line.groups & kEventsInfo) {
    number("pid_faults", fields[10] + fields[12]);
    number("pid_pageins", fields[12]);
    for (const char* uncounted :
         {"pid_cow_faults", "pid_messages_sent", "pid_messages_received", "pid_syscalls_mach"})
      number(uncounted, 0);
    number("pid_syscalls_unix", figures.calls);
    number("pid_csw", figures.switches);
  }
}

}  // namespace

bool ReadStat(const System& system, std::int32_t pid, Stat& stat) {
  std::string_view text = ReadFile(system, pid, "/stat");
  const std::size_t open = text.find('(');
  const std::size_t close = text.rfind(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open ||
      text.size() < close + 3)
    return false;
  stat.name = std::string_view(text.data() + open + 1, close - open - 1);
  stat.state = text[close + 2];
  text.remove_prefix(close + 3);
  for (int field = 4; field <= kLastField; ++field) stat.fields[field] = TakeField(text);
  return true;
}

bool AddFigures(const System& system, const Surroundings& surroundings, ReportedStarts& starts,
                const FiguresLine& line, TextWriter& answer) {
  Figures figures{};
  if (line.pid == 0) {
    GatherMachine(system, figures);
  } else if (GatherProcess(system, line, figures)) {
    starts.Remember(line.pid, figures.fields[kStart]);
  } else {
    return true;
  }
  TextWriter longer = answer;
  AddLines(surroundings, line, figures, longer);
  if (longer.Fits()) answer = longer;
  return longer.Fits();
}

}  // namespace lurkwell::helper
