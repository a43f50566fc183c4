#include "helper/Figures.h"

namespace lurkwell::helper {

namespace {

// How many times in a row the figures of a process that has not run are given without a look.
constexpr std::int32_t kUses = 7;
constexpr std::size_t kFileCapacity = 16384;
char gFile[kFileCapacity];

using Figures = ProcessFiles::Memory;

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

/// The text of an open file, empty where it cannot be read; valid until the next call.
std::string_view Read(const System& system, int descriptor) {
  if (descriptor < 0) return {};
  const std::ptrdiff_t size = system.readFile(descriptor, gFile, sizeof gFile);
  return {gFile, size > 0 ? static_cast<std::size_t>(size) : 0};
}

/// The files beside stat are opened before stat is read: whoever answers that read has had the pid
/// since stat was opened, so all of them are his.
bool Gather(const System& system, ProcessFiles& files, ProcessFiles::Place& place, unsigned groups,
            Figures& figures) {
  const int stat = files.Open(place, kStatFile);
  if (stat < 0) return false;
  const bool events = (groups & kEventsInfo) != 0;
  const int status = events ? files.Open(place, kStatusFile) : -1;
  const int io = events ? files.Open(place, kIoFile) : -1;
  Stat read;
  const bool exists = ParseStat(Read(system, stat), read);
  if (exists) {
    static_cast<StatFigures&>(figures) = read;
    place.start = read.start;
  }
  std::string_view text = Read(system, exists ? status : -1);
  figures.switches = NumberBehind(text, "\nvoluntary_ctxt_switches:") +
                     NumberBehind(text, "\nnonvoluntary_ctxt_switches:");
  files.Release(place, kStatusFile, status, !text.empty());
  text = Read(system, exists ? io : -1);
  figures.calls = NumberBehind(text, "\nsyscr:") + NumberBehind(text, "\nsyscw:");
  files.Release(place, kIoFile, io, !text.empty());
  files.Release(place, kStatFile, stat, exists);
  return exists;
}

/// Whoever has not run has the figures that he had; what can change all the same is seen when the
/// uses are over.
bool GatherProcess(const System& system, ProcessFiles& files, const FiguresLine& line,
                   Figures& figures) {
  ProcessFiles::Place& place = files.PlaceOf(line.pid);
  // Taken before the files are read: whoever runs in between counts as having run since.
  const std::uint64_t runTime = system.runTime(line.pid);
  const bool known = figures.pid == line.pid && place.start != 0;
  if (known && figures.runTime == runTime && figures.groups == line.groups && figures.uses > 0)
    return figures.uses-- > 0;
  const bool kept = place.files[kStatFile] != 0;
  bool exists = Gather(system, files, place, line.groups, figures);
  if (!exists) {
    // A descriptor kept from before says that its process is gone, not that nobody has the pid. The
    // start stays: who sees the old process yet does not mean the pid's next holder.
    files.CloseAll(place);
    exists = kept && Gather(system, files, place, line.groups, figures);
  }
  // What is on a processor now is not counted up to now. The first uses differ, so that not all are
  // over at once.
  figures.pid = exists && runTime != 0 && figures.state != 'R' ? line.pid : 0;
  figures.groups = static_cast<std::uint8_t>(line.groups);
  figures.uses = static_cast<std::uint8_t>(known ? kUses : line.pid % kUses);
  figures.runTime = runTime;
  return exists;
}

/// The first line reads: cpu USER NICE SYSTEM IDLE IOWAIT ...
bool GatherMachine(const System& system, unsigned groups, Figures& figures) {
  figures = {};
  if ((groups & kThreadTime) == 0) return true;
  const int file = system.openFile("/proc/stat");
  std::string_view text = Read(system, file);
  if (file >= 0) system.close(file);
  for (int passed = 0; passed < 3; ++passed) TakeField(text);
  figures.userTicks = TakeField(text);
  figures.systemTicks = TakeField(text);
  return true;
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
  stat.processor = static_cast<std::uint32_t>(fields[39]);
  stat.policy = static_cast<std::uint32_t>(fields[41]);
  return true;
}

bool ReadStat(const System& system, std::int32_t pid, Stat& stat) {
  const int file = OpenProcessFile(system, pid, kStatFile);
  if (file < 0) return false;
  const bool isRead = ParseStat(Read(system, file), stat);
  system.close(file);
  return isRead;
}

bool AddFigures(const System& system, const Surroundings& surroundings, ProcessFiles& files,
                const FiguresLine& line, TextWriter& answer) {
  Figures& figures = files.MemoryOf(line.pid);
  if (!(line.pid == 0 ? GatherMachine(system, line.groups, figures)
                      : GatherProcess(system, files, line, figures)))
    return true;
  const std::size_t before = answer.Size();
  LineWriter writer(answer, line.pid, surroundings.ticksPerSecond);
  AddLines(figures, line.groups, surroundings.pageSize, writer);
  if (answer.Fits()) return true;
  answer.CutTo(before);
  return false;
}

}  // namespace lurkwell::helper
