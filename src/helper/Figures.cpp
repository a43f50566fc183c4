#include "helper/Figures.h"

namespace lurkwell::helper {

namespace {

constexpr std::size_t kFileCapacity = 16384;
char gFile[kFileCapacity];

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

/// A file of a process that is open while this exists.
class ProcessFile {
 public:
  ProcessFile(const System& system, std::int32_t pid, std::string_view name) : mSystem(system) {
    PathWriter path;
    path.Add("/proc/");
    if (pid > 0) path.AddNumber(static_cast<std::uint64_t>(pid));
    path.Add(name);
    mDescriptor = system.openFile(path.Terminated());
  }
  ~ProcessFile() {
    if (mDescriptor >= 0) mSystem.close(mDescriptor);
  }
  ProcessFile(const ProcessFile&) = delete;
  ProcessFile& operator=(const ProcessFile&) = delete;

  /// Empty where it cannot be read; valid until another file is read.
  std::string_view Read() const {
    if (mDescriptor < 0) return {};
    const std::ptrdiff_t size = mSystem.readFile(mDescriptor, gFile, sizeof gFile);
    return {gFile, size > 0 ? static_cast<std::size_t>(size) : 0};
  }

 private:
  const System& mSystem;
  int mDescriptor;
};

/// The files beside stat are opened before stat is read: whoever answers that read has had the pid
/// since stat was opened, so all of them are his.
bool GatherProcess(const System& system, const FiguresLine& line, Figures& figures) {
  const ProcessFile stat(system, line.pid, "/stat");
  if ((line.groups & kEventsInfo) == 0) return ParseStat(stat.Read(), figures);
  const ProcessFile status(system, line.pid, "/status");
  const ProcessFile io(system, line.pid, "/io");
  if (!ParseStat(stat.Read(), figures)) return false;
  std::string_view text = status.Read();
  figures.switches = NumberBehind(text, "\nvoluntary_ctxt_switches:") +
                     NumberBehind(text, "\nnonvoluntary_ctxt_switches:");
  text = io.Read();
  figures.calls = NumberBehind(text, "\nsyscr:") + NumberBehind(text, "\nsyscw:");
  return true;
}

/// The first line reads: cpu USER NICE SYSTEM IDLE IOWAIT ...
void GatherMachine(const System& system, Figures& figures) {
  const ProcessFile file(system, 0, "stat");
  std::string_view text = file.Read();
  for (int passed = 0; passed < 3; ++passed) TakeField(text);
  figures.userTicks = TakeField(text);
  figures.systemTicks = TakeField(text);
}

class LineWriter {
 public:
  LineWriter(TextWriter& answer, std::int32_t pid, std::uint32_t ticksPerSecond)
      : mAnswer(answer), mTicksPerSecond(ticksPerSecond), mPid(mPidText, sizeof mPidText) {
    mPid.Add(' ');
    mPid.AddNumber(static_cast<std::uint64_t>(pid));
    mPid.Add(' ');
  }

  void Number(std::string_view property, std::uint64_t value) {
    Begin(property, value);
    mAnswer.Add('\n');
  }

  void Time(std::string_view property, std::uint64_t ticks) {
    Begin(property, ticks / mTicksPerSecond);
    mAnswer.Add('.');
    mAnswer.AddNumber(ticks % mTicksPerSecond * 1000000 / mTicksPerSecond, 6);
    mAnswer.Add('\n');
  }

 private:
  void Begin(std::string_view property, std::uint64_t value) {
    mAnswer.Add(property);
    mAnswer.Add(mPid.Text());
    mAnswer.AddNumber(value);
  }

  TextWriter& mAnswer;
  std::uint32_t mTicksPerSecond;
  char mPidText[16];
  TextWriter mPid;
};

/// What the kernel counts for a process as a whole has no share of ended threads; messages and
/// copies on write are not counted here at all.
void AddLines(const Figures& figures, unsigned groups, std::uint32_t pageSize, LineWriter& writer) {
  if (groups & kThreadTime) {
    writer.Time("pid_user_time", figures.userTicks);
    writer.Time("pid_system_time", figures.systemTicks);
  }
  if (groups & kBasicInfo) {
    writer.Number("pid_vsz", figures.virtualSize);
    writer.Number("pid_rsz", figures.residentPages * pageSize);
    writer.Number("pid_suspend_count", figures.state == 'T' || figures.state == 't');
    writer.Time("pid_terminated_user_time", 0);
    writer.Time("pid_terminated_system_time", 0);
    writer.Number("pid_policy", figures.policy);
  }
  if (groups & kEventsInfo) {
    writer.Number("pid_faults", figures.minorFaults + figures.majorFaults);
    writer.Number("pid_pageins", figures.majorFaults);
    for (const char* uncounted :
         {"pid_cow_faults", "pid_messages_sent", "pid_messages_received", "pid_syscalls_mach"})
      writer.Number(uncounted, 0);
    writer.Number("pid_syscalls_unix", figures.calls);
    writer.Number("pid_csw", figures.switches);
  }
}

}  // namespace

bool ParseStat(std::string_view text, Stat& stat) {
  const std::size_t open = text.find('(');
  const std::size_t close = text.rfind(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open ||
      text.size() < close + 3)
    return false;
  stat.name = std::string_view(text.data() + open + 1, close - open - 1);
  stat.state = text[close + 2];
  text.remove_prefix(close + 3);
  std::uint64_t fields[42] = {};
  for (unsigned field = 4; field <= 41; ++field) fields[field] = TakeField(text);
  stat.minorFaults = fields[10];
  stat.majorFaults = fields[12];
  stat.userTicks = fields[14];
  stat.systemTicks = fields[15];
  stat.start = fields[22];
  stat.virtualSize = fields[23];
  stat.residentPages = fields[24];
  stat.policy = static_cast<std::uint32_t>(fields[41]);
  return true;
}

bool ReadStat(const System& system, std::int32_t pid, Stat& stat) {
  return ParseStat(ProcessFile(system, pid, "/stat").Read(), stat);
}

bool AddFigures(const System& system, const Surroundings& surroundings, ReportedStarts& starts,
                const FiguresLine& line, TextWriter& answer) {
  Figures figures{};
  if (line.pid == 0) {
    GatherMachine(system, figures);
  } else if (GatherProcess(system, line, figures)) {
    starts.Remember(line.pid, figures.start);
  } else {
    return true;
  }
  const std::size_t before = answer.Size();
  LineWriter writer(answer, line.pid, surroundings.ticksPerSecond);
  AddLines(figures, line.groups, surroundings.pageSize, writer);
  if (answer.Fits()) return true;
  answer.CutTo(before);
  return false;
}

}  // namespace lurkwell::helper
