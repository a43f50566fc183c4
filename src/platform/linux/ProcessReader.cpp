#include "platform/linux/ProcessReader.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "platform/linux/ProcFiles.h"

namespace lurkwell {
namespace {

// An open stat file costs about 5 KiB of kernel memory, a small part of what its process costs.
constexpr std::size_t kMostKeptAtAll = 32'768;
// A name is looked up in two readings, as the first may fall into the middle of an exec.
constexpr std::uint8_t kNamings = 2;
constexpr std::int64_t kFarFuture = 1'000'000'000'000;
constexpr Figure kResident = FigureCalled("pid_rsz");
/// What needs no file.
constexpr FigureSources kWithoutFiles =
    kFromUnit | kFromScheduler | kFromAssignment | kFromClock | kFromCommandLine;
/// What is looked at in every pass.
constexpr FigureSources kAlwaysFresh = kFromUnit | kFromScheduler | kFromClock;

RunState StateOf(char state) {
  switch (state) {
    case 'R':
      return RunState::kRunning;
    case 'T':
      return RunState::kStopped;
    case 'Z':
    case 'X':
      return RunState::kZombie;
    case 'I':
      return RunState::kIdle;
    // A traced process ('t') waits for its debugger: it was not halted, and nobody else can
    // continue it.
    default:
      return RunState::kSleeping;
  }
}

void SetName(ProcessTableEntry& entry, std::string_view name) {
  name = name.substr(0, std::min(name.find('\0'), kCommandNameLength));
  std::memset(entry.commandName, 0, sizeof entry.commandName);
  std::memcpy(entry.commandName, name.data(), name.size());
}

/// By its name and where its arguments lie, which the kernel chooses anew each time. Never 0.
std::uint64_t MarkOfProgram(std::string_view name, std::int64_t arguments) {
  const std::uint64_t mark = std::hash<std::string_view>{}(name);
  return (mark ^ static_cast<std::uint64_t>(arguments)) * 1099511628211U | 1;
}

/// Somewhere in the longest time, so that not all are read anew at once.
std::int64_t FirstTurn(std::int32_t pid) {
  const std::uint32_t spread = static_cast<std::uint32_t>(pid) * 0x9E3779B1u;
  return static_cast<std::int64_t>(std::uint64_t{spread} * ProcessReader::kLongestKept >> 32);
}

}  // namespace

bool IsShortage(int error) {
  return error == EMFILE || error == ENFILE || error == ENOMEM;
}

ProcessReader::ProcessReader(std::shared_ptr<ProcFiles> files, std::function<bool()> giveBack,
                             const std::string& units)
    : mFiles(std::move(files)),
      mGiveBack(std::move(giveBack)),
      mNames(mFiles),
      mFigureFiles(mFiles, units),
      mTicksPerSecond(std::max(1L, ::sysconf(_SC_CLK_TCK))) {
  SetBootTime();
}

void ProcessReader::BeginPass() {
  mNow = mFiles->Milliseconds();
  mMostKept = mFiles->FollowsProcesses() ? std::min(DescriptorLimit() / 2, kMostKeptAtAll) : 0;
  mHaveParentsChanged = false;
  mLostParents.clear();
  mUnnamed.clear();
  mUnlined.clear();
  mMillisecondsSinceBoot = mFiles->MillisecondsSinceBoot();
  mFigureFiles.BeginPass();
}

void ProcessReader::Expect(std::size_t processes) {
  const auto kept = std::min(processes, mMostKept);
  if (kept <= mExpected) return;
  mExpected = kept;
  mFiles->MakeRoomForDescriptors(kept);
}

ProcessReader::Outcome ProcessReader::Look(ProcessTableEntry& entry, KnownProcess& known,
                                           FigureSources sources) {
  // The line in the table tells when it has become another program, or its memory another.
  if ((sources & (kSeldomChanging | kFromStatus)) != 0) sources |= kFromStat;
  if ((sources & kFromUnit) != 0) sources |= kFromGroup;
  // Taken before the files are read: what runs in between counts as having run since.
  const auto runTime = mFiles->RunTime(entry.pid);
  FigureSources stale = StaleOf(known, sources, runTime);
  if ((sources & kFromScheduler) != 0) {
    const auto scheduling = mFiles->SchedulingOf(entry.pid);
    if (!scheduling || scheduling != known.scheduling) stale |= kFromStat;
    known.scheduling = scheduling;
  }
  // An unknown parent may end unseen, so its children are not kept.
  const bool hasUnknownParent = (sources & kFromStat) != 0 && entry.parentPid == kInvalidPID;
  if (!runTime || known.isInDoubt || hasUnknownParent) stale |= kFromStat;
  if ((stale & ~kFromAssignment) != 0) {
    const auto outcome = Read(entry, known, stale, sources, runTime);
    if (outcome != Outcome::kCurrent) return outcome;
  }
  constexpr FigureSources kBesideFiles = kFromUnit | kFromIdentity | kFromClock | kFromCommandLine;
  if ((stale & kFromAssignment) != 0) ReadAssignmentOf(entry, known, runTime);
  if ((sources & kBesideFiles) != 0) sources = LookWithoutFiles(entry, known, sources);
  entry.current |= sources;
  return Outcome::kCurrent;
}

/// Those that may be others than when they were read.
FigureSources ProcessReader::StaleOf(KnownProcess& known, FigureSources sources,
                                     std::optional<std::uint64_t> runTime) const {
  auto& rest = known.rest;
  if (runTime == rest.runTime && (sources & ~rest.sources) == 0 && mNow < rest.until) return 0;
  FigureSources stale = 0;
  std::int64_t until = std::numeric_limits<std::int64_t>::max();
  ForEachSource(sources & ~kAlwaysFresh, [&](FigureSource source) {
    constexpr FigureSources kKeptAsleep = kSeldomChanging | kByRunningAlone;
    const auto& reading = std::as_const(known).readings[source];
    const bool hasNotRun = runTime && reading.runTime == runTime;
    const bool isKeptLonger = hasNotRun && (source & kKeptAsleep) != 0;
    const auto longer = (source & kKeptForLong) != 0 ? kLongestKeptAsleepAtAll : kLongestKeptAsleep;
    const auto due = reading.due + (isKeptLonger ? longer : 0);
    const bool isKept = mNow < due && (hasNotRun || (source & kSeldomChanging) != 0);
    if (!isKept) stale |= source;
    until = std::min(until, due);
  });
  if (stale == 0 && runTime) rest = {sources, *runTime, until};
  return stale;
}

/// What needs no file of the process. Gives the sources that are as they are now.
FigureSources ProcessReader::LookWithoutFiles(ProcessTableEntry& entry, KnownProcess& known,
                                              FigureSources sources) {
  if ((sources & kFromUnit) != 0 && mFigureFiles.TakeUnitFigures(known)) {
    entry.read |= kFromUnit;
    entry.known |= kFromUnit;
  }
  if ((sources & kFromIdentity) != 0 && mFigureFiles.TakeUserNames(known))
    entry.read |= kFromIdentity;
  if ((sources & kFromClock) != 0) {
    const auto start = TimeOf(entry.startStamp);
    const auto age = mMillisecondsSinceBoot - (start.seconds * 1000 + start.microseconds / 1000);
    known.figures.Set(FigureCalled("pid_running_time"),
                      std::max<std::int64_t>(age, 0) / 1000 * 1'000'000);
    entry.read |= kFromClock;
    entry.known |= kFromClock;
  }
  // It comes at the end of the pass, or of one of the next.
  return sources & ~kFromCommandLine;
}

void ProcessReader::ReadAssignmentOf(ProcessTableEntry& entry, KnownProcess& known,
                                     std::optional<std::uint64_t> runTime) {
  FigureFiles::TakeAssignment(mFiles->AssignmentOf(entry.pid), known);
  Note(entry, known, kFromAssignment, runTime);
}

ProcessReader::Outcome ProcessReader::ReadAgain(ProcessTableEntry& entry, KnownProcess& known) {
  return Read(entry, known, kFromStat, kFromStat, mFiles->RunTime(entry.pid));
}

ProcessReader::Outcome ProcessReader::Read(ProcessTableEntry& entry, KnownProcess& known,
                                           FigureSources sources, FigureSources wanted,
                                           std::optional<std::uint64_t> runTime) {
  const bool isStatAlone = (sources & ~(kWithoutFiles | kFromStat)) == 0;
  FileDescriptor folder;
  const auto bytes = ReadStat(entry.pid, known, isStatAlone ? nullptr : &folder);
  if (bytes < 0 && IsShortage(errno)) return Outcome::kShort;
  const auto stat = ParseProcStat(BufferText(bytes));
  const auto fields = stat ? ParseProcStatFields(*stat) : std::nullopt;
  if (!fields || stat->pid != entry.pid) {
    Forget(known);
    return Outcome::kGone;
  }
  Take(*stat, entry, known);
  mFigureFiles.TakeStat(*fields, known);
  Note(entry, known, kFromStat, runTime);
  const FigureSources more = ToldToBeOthers(*stat, *fields, known, wanted);
  if ((more & ~sources) != 0) return Read(entry, known, sources | more, wanted, runTime);
  ReadFiles(folder, entry, known, sources, runTime);
  return Outcome::kCurrent;
}

/// Those of what is wanted that the line in the table says to be others than when they were read.
FigureSources ProcessReader::ToldToBeOthers(const ProcStat& stat, const ProcStatFields& fields,
                                            KnownProcess& known, FigureSources wanted) {
  FigureSources others = 0;
  const FigureSources seldom = wanted & kSeldomChanging;
  const auto program = MarkOfProgram(stat.name, fields[kArgumentsField]);
  if (seldom != 0 && std::exchange(known.program, program) != program) others |= seldom;
  if (known.figures.Get(kResident) != known.describedMemory) others |= wanted & kFromStatus;
  return others;
}

void ProcessReader::ReadFiles(const FileDescriptor& folder, ProcessTableEntry& entry,
                              KnownProcess& known, FigureSources sources,
                              std::optional<std::uint64_t> runTime) {
  FigureSources done = kFromStat;
  ForEachSource(sources & ~(kWithoutFiles | kFromStat), [&](FigureSource source) {
    if ((done & source) != 0) return;
    const FigureSources read = mFigureFiles.Read(source, folder, known);
    done |= read;
    if ((read & kFromStatus) != 0) known.describedMemory = known.figures.Get(kResident);
    ForEachSource(read, [&](FigureSource each) { Note(entry, known, each, runTime); });
  });
  if ((sources & kFromCommandLine) != 0 && mNames.AskForCommandLine(entry.pid, entry.startStamp)) {
    mUnlined.push_back(entry.pid);
    known.readings[kFromCommandLine].runTime = runTime;
  }
}

void ProcessReader::TakeCommandLine(ProcessTableEntry& entry, KnownProcess& known,
                                    std::string_view text) {
  known.figures.SetText(FigureCalled("pid_command_line"), text);
  Note(entry, known, kFromCommandLine, known.readings[kFromCommandLine].runTime);
  entry.current |= kFromCommandLine;
}

/// True, too, where none is wanted; false, and errno, where it cannot be opened.
bool ProcessReader::OpenFolder(std::int32_t pid, FileDescriptor* folder) {
  if (folder == nullptr) return true;
  do {
    *folder = mFiles->OpenFolder(pid);
  } while (!folder->IsOpen() && IsShortage(errno) && mGiveBack());
  return folder->IsOpen();
}

void ProcessReader::Note(ProcessTableEntry& entry, KnownProcess& known, FigureSource source,
                         std::optional<std::uint64_t> runTime) {
  auto& reading = known.readings[source];
  known.rest = {};
  const bool isFirst = (entry.known & source) == 0;
  // What is on a processor now is not counted up to now.
  reading.runTime = entry.state == RunState::kRunning ? std::nullopt : runTime;
  reading.due = mNow + (isFirst ? FirstTurn(entry.pid) : kLongestKept);
  entry.known |= source;
  entry.read |= source;
}

void ProcessReader::Take(const ProcStat& stat, ProcessTableEntry& entry, KnownProcess& known) {
  const bool isSame = entry.startStamp == stat.startStamp && entry.known != 0;
  const auto state = StateOf(stat.state);
  if (!isSame) {
    if (entry.known != 0) mLostParents.push_back(entry.pid);
    entry.known = 0;
    known.figures = {};
    known.readings = {};
    known.rest = {};
    known.unitStamp = 0;
    known.program = 0;
    known.users.reset();
    known.isInside = false;
  }
  // One that has ended but is not collected has given its children away.
  const bool hasEnded = state == RunState::kZombie && (!isSame || entry.state != state);
  if (hasEnded) mLostParents.push_back(entry.pid);
  if (!isSame || known.parentPid != stat.parentPid) mHaveParentsChanged = true;
  known.parentPid = stat.parentPid;
  known.isInDoubt = false;
  entry.startStamp = stat.startStamp;
  if (!isSame) entry.startTime = mBootTime + TimeOf(stat.startStamp);
  entry.priority = stat.priority;
  entry.nice = stat.nice;
  entry.state = state;
  Name(stat, known, isSame, entry);
}

void ProcessReader::ReadIdleTask(ProcessTableEntry& entry, KnownProcess& known) {
  const auto ticks = ParseIdleTicks(mFiles->ReadText("stat"));
  if (!ticks) return;
  const auto microseconds = [&](std::uint64_t count) {
    const TimeValue time = TimeOf(count);
    return time.seconds * 1'000'000 + time.microseconds;
  };
  known.figures.Set(FigureCalled("pid_user_time"), microseconds(ticks->idle));
  known.figures.Set(FigureCalled("pid_system_time"), microseconds(ticks->waiting));
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto figure = static_cast<Figure>(i);
    if (known.figures.StateOf(figure) == FigureState::kUnread && !IsRate(kFigures[i]))
      known.figures.SetMissing(figure, FigureState::kUncounted);
  }
  entry.known = entry.read = entry.current = kAllFigureSources;
}

/// What was read, empty after a failure.
std::string_view ProcessReader::BufferText(std::ptrdiff_t bytes) const {
  return {mBuffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

/// Reads the kept file, else a newly opened one, which is then kept if there is room. Negative with
/// errno on failure. The folder, where one is wanted, is opened between the file's opening and its
/// reading, over which time no other process can have the pid.
std::ptrdiff_t ProcessReader::ReadStat(std::int32_t pid, KnownProcess& known,
                                       FileDescriptor* folder) {
  if (known.stat.IsOpen()) {
    const bool isReady = OpenFolder(pid, folder);
    if (!isReady && IsShortage(errno)) return -1;
    const auto bytes = isReady ? mFiles->Read(known.stat.Get(), mBuffer) : -1;
    if (bytes > 0) return bytes;
    // That process has ended; its pid is listed all the same, so another may have it.
    Forget(known);
  }
  FileDescriptor file = OpenStat(pid);
  if (!file.IsOpen() || !OpenFolder(pid, folder)) return -1;
  const auto bytes = mFiles->Read(file.Get(), mBuffer);
  if (bytes > 0 && mKept < mMostKept) {
    known.stat = std::move(file);
    ++mKept;
  }
  return bytes;
}

FileDescriptor ProcessReader::OpenStat(std::int32_t pid) {
  FileDescriptor file = mFiles->OpenStat(pid);
  while (!file.IsOpen() && IsShortage(errno) && mGiveBack()) file = mFiles->OpenStat(pid);
  return file;
}

void ProcessReader::Forget(KnownProcess& known) {
  if (!known.stat.IsOpen()) return;
  known.stat.Close();
  --mKept;
}

void ProcessReader::Name(const ProcStat& stat, KnownProcess& known, bool isSame,
                         ProcessTableEntry& entry) {
  SetName(entry, stat.name);
  // Kernel threads have longer names, which need no completing.
  if (stat.name.size() != kKernelNameLength) {
    known.namings = 0;
    return;
  }
  if (!isSame || known.namings == 0 ||
      !std::equal(stat.name.begin(), stat.name.end(), known.kernelName.begin())) {
    std::copy(stat.name.begin(), stat.name.end(), known.kernelName.begin());
    known.following = '\0';
    known.namings = 0;
  }
  if (known.following == '\0' && known.namings < kNamings &&
      mNames.Ask(stat.pid, stat.startStamp, {known.kernelName.data(), known.kernelName.size()}))
    mUnnamed.push_back(stat.pid);
  entry.commandName[kKernelNameLength] = known.following;
}

TimeValue ProcessReader::TimeOf(std::uint64_t ticks) const {
  const auto perSecond = static_cast<std::uint64_t>(mTicksPerSecond);
  return {static_cast<std::int64_t>(ticks / perSecond),
          static_cast<std::int32_t>(ticks % perSecond * 1'000'000 / perSecond)};
}

/// Once for good: the kernel's figure moves with every step of the calendar.
void ProcessReader::SetBootTime() {
  constexpr std::string_view kKey = "\nbtime ";
  const std::string text = "\n" + mFiles->ReadText("stat");
  const auto at = text.find(kKey);
  std::int64_t seconds = 0;
  if (at != std::string::npos &&
      std::from_chars(text.data() + at + kKey.size(), text.data() + text.size(), seconds).ec ==
          std::errc() &&
      seconds >= 0 && seconds < kFarFuture) {
    mBootTime.seconds = seconds;
    return;
  }
  timespec calendar{};
  timespec sinceBoot{};
  ::clock_gettime(CLOCK_REALTIME, &calendar);
  ::clock_gettime(CLOCK_BOOTTIME, &sinceBoot);
  mBootTime.seconds = calendar.tv_sec - sinceBoot.tv_sec;
}

}  // namespace lurkwell
