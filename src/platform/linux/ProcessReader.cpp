#include "platform/linux/ProcessReader.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <string>
#include <utility>

#include "platform/linux/DescriptorLimit.h"

namespace lurkwell {
namespace {

// An open stat file costs about 5 KiB of kernel memory.
constexpr std::size_t kMostKeptAtAll = 16'384;
// A name is looked up in two readings, as the first may fall into the middle of an exec.
constexpr std::uint8_t kNamings = 2;
constexpr std::int64_t kFarFuture = 1'000'000'000'000;
constexpr FigureSource kFiles[] = {kFromStat, kFromStatus, kFromIO, kFromThreads, kFromUnit};
constexpr std::size_t kThreadCountField = 20;

KnownProcess::Reading& ReadingOf(KnownProcess& known, FigureSource source) {
  return known.readings[static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(source)))];
}

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

/// Where the kernel's numbers fill 64 bits they begin anew.
std::int64_t Sum(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
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
      mUnits(units),
      mTicksPerSecond(std::max(1L, ::sysconf(_SC_CLK_TCK))),
      mPageSize(std::max(1L, ::sysconf(_SC_PAGESIZE))) {
  SetBootTime();
}

void ProcessReader::BeginPass() {
  mNow = mFiles->Milliseconds();
  mMostKept = mFiles->FollowsProcesses() ? std::min(DescriptorLimit() / 2, kMostKeptAtAll) : 0;
  mHaveParentsChanged = false;
  mLostParents.clear();
  mUnnamed.clear();
  mUnits.BeginPass();
}

ProcessReader::Outcome ProcessReader::Look(ProcessTableEntry& entry, KnownProcess& known,
                                           FigureSources sources) {
  // Taken before the files are read: what runs in between counts as having run since.
  const auto runTime = mFiles->RunTime(entry.pid);
  FigureSources stale = 0;
  for (const FigureSource source : kFiles) {
    const auto& reading = ReadingOf(known, source);
    const bool isKept = runTime && reading.runTime == runTime && mNow < reading.due;
    if ((sources & source) != 0 && !isKept) stale |= source;
  }
  if ((sources & kFromScheduler) != 0) {
    const auto scheduling = mFiles->SchedulingOf(entry.pid);
    if (!scheduling || scheduling != known.scheduling) stale |= kFromStat;
    known.scheduling = scheduling;
  }
  // An unknown parent may end unseen, so its children are not kept.
  const bool hasUnknownParent = (sources & kFromStat) != 0 && entry.parentPid == kInvalidPID;
  if (known.isInDoubt || hasUnknownParent) stale |= kFromStat;
  if (stale != 0) {
    const auto outcome = Read(entry, known, stale, runTime);
    if (outcome != Outcome::kCurrent) return outcome;
  }
  if ((sources & kFromUnit) != 0) TakeUnitFigures(entry, known);
  entry.current |= sources;
  return Outcome::kCurrent;
}

ProcessReader::Outcome ProcessReader::ReadAgain(ProcessTableEntry& entry, KnownProcess& known) {
  return Read(entry, known, kFromStat, mFiles->RunTime(entry.pid));
}

ProcessReader::Outcome ProcessReader::Read(ProcessTableEntry& entry, KnownProcess& known,
                                           FigureSources sources,
                                           std::optional<std::uint64_t> runTime) {
  // The folder is that of one process: all that is read in it is that one's.
  const auto folder = OpenFolderFor(entry.pid, sources);
  if (!folder) return IsShortage(errno) ? Outcome::kShort : Outcome::kGone;
  const auto bytes = folder->IsOpen() ? mFiles->ReadIn(folder->Get(), "stat", mBuffer)
                                      : ReadStat(entry.pid, known);
  if (bytes < 0 && IsShortage(errno)) return Outcome::kShort;
  const auto stat = ParseProcStat(BufferText(bytes));
  const auto fields = stat ? ParseProcStatFields(*stat) : std::nullopt;
  if (!fields || stat->pid != entry.pid) {
    Forget(known);
    return Outcome::kGone;
  }
  Take(*stat, entry, known);
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto& origin = kFigures[i].origin;
    if (origin.source != kFromStat) continue;
    known.figures.Set(static_cast<Figure>(i),
                      FigureOf(origin, Sum((*fields)[origin.field], (*fields)[origin.otherField])));
  }
  Note(entry, known, kFromStat, runTime);
  if ((sources & kFromStatus) != 0) {
    ReadNamed(*folder, kFromStatus, "status", known);
    Note(entry, known, kFromStatus, runTime);
  }
  if ((sources & kFromIO) != 0) {
    ReadNamed(*folder, kFromIO, "io", known);
    Note(entry, known, kFromIO, runTime);
  }
  if ((sources & kFromThreads) != 0) {
    ReadThreads(*folder, (*fields)[kThreadCountField], known);
    Note(entry, known, kFromThreads, runTime);
  }
  if ((sources & kFromUnit) != 0) {
    ReadUnit(*folder, known);
    Note(entry, known, kFromUnit, runTime);
  }
  return Outcome::kCurrent;
}

/// Not open where the stat file alone is read; nothing, and errno, where it cannot be opened.
std::optional<FileDescriptor> ProcessReader::OpenFolderFor(std::int32_t pid,
                                                           FigureSources sources) {
  if ((sources & ~FigureSources{kFromStat}) == 0) return FileDescriptor();
  FileDescriptor folder = mFiles->OpenFolder(pid);
  while (!folder.IsOpen() && IsShortage(errno) && mGiveBack()) folder = mFiles->OpenFolder(pid);
  if (!folder.IsOpen()) return std::nullopt;
  return folder;
}

void ProcessReader::ReadNamed(const FileDescriptor& folder, FigureSource source, const char* file,
                              KnownProcess& known) {
  const auto bytes = mFiles->ReadIn(folder.Get(), file, mBuffer);
  const bool isRefused = bytes < 0 && (errno == EACCES || errno == EPERM);
  // Out of descriptors, say: no word on the figures.
  if (bytes < 0 && !isRefused && errno != ENOENT) return;
  const auto why = isRefused ? FigureState::kRefused : FigureState::kUncounted;
  const auto text = BufferText(bytes);
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto figure = static_cast<Figure>(i);
    const auto& origin = kFigures[i].origin;
    if (origin.source != source) continue;
    known.figures.SetMissing(figure, why);
    const auto number = ParseNamedField(text, origin.name);
    const auto other = origin.otherName.empty() ? 0 : ParseNamedField(text, origin.otherName);
    if (number && other) known.figures.Set(figure, FigureOf(origin, Sum(*number, *other)));
  }
}

/// A process of one thread has its figures in a file of its own.
void ProcessReader::ReadThreads(const FileDescriptor& folder, std::int64_t count,
                                KnownProcess& known) {
  constexpr const char* kFile = "schedstat";
  mThreadSums = {};
  const auto bytes = mFiles->ReadIn(folder.Get(), kFile, mBuffer);
  const bool isCounted = bytes > 0;
  if (count <= 1 && isCounted) AddThread(BufferText(bytes));
  if (count > 1 && isCounted && mFiles->ListThreads(folder.Get(), mThreads)) {
    for (const std::int32_t thread : mThreads) {
      const auto path = "task/" + std::to_string(thread) + '/' + kFile;
      AddThread(BufferText(mFiles->ReadIn(folder.Get(), path.c_str(), mBuffer)));
    }
  }
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto& origin = kFigures[i].origin;
    if (origin.source != kFromThreads) continue;
    const auto figure = static_cast<Figure>(i);
    if (isCounted) {
      known.figures.Set(figure, FigureOf(origin, mThreadSums[i]));
    } else {
      known.figures.SetMissing(figure, FigureState::kUncounted);
    }
  }
}

void ProcessReader::AddThread(std::string_view text) {
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto& origin = kFigures[i].origin;
    if (origin.source != kFromThreads) continue;
    const auto line = text.substr(0, text.find('\n'));
    mThreadSums[i] = Sum(mThreadSums[i], ParseNthNumber(line, origin.field).value_or(0));
  }
}

void ProcessReader::ReadUnit(const FileDescriptor& folder, KnownProcess& known) {
  known.unit = mUnits.Find(BufferText(mFiles->ReadIn(folder.Get(), "cgroup", mBuffer)));
}

/// Others of the unit may have run.
void ProcessReader::TakeUnitFigures(ProcessTableEntry& entry, KnownProcess& known) {
  const auto* figures = known.unit != nullptr ? &mUnits.FiguresOf(*known.unit) : nullptr;
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    if (kFigures[i].origin.source != kFromUnit) continue;
    const auto figure = static_cast<Figure>(i);
    const auto state = figures != nullptr ? figures->StateOf(figure) : FigureState::kUncounted;
    if (state == FigureState::kKnown) {
      known.figures.Set(figure, figures->Get(figure));
    } else {
      known.figures.SetMissing(figure, state);
    }
  }
  entry.read |= kFromUnit;
}

std::int64_t ProcessReader::FigureOf(const FigureOrigin& origin, std::int64_t number) const {
  switch (origin.unit) {
    case SourceUnit::kTicks:
      return number / mTicksPerSecond * 1'000'000 +
             number % mTicksPerSecond * 1'000'000 / mTicksPerSecond;
    case SourceUnit::kNanoseconds:
      return number / 1000;
    case SourceUnit::kPages:
      return number * mPageSize;
    case SourceUnit::kStateLetter:
      return number == 'T' || number == 't';
    default:
      return number;
  }
}

void ProcessReader::Note(ProcessTableEntry& entry, KnownProcess& known, FigureSource source,
                         std::optional<std::uint64_t> runTime) {
  auto& reading = ReadingOf(known, source);
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
    if (known.figures.StateOf(figure) == FigureState::kUnread)
      known.figures.SetMissing(figure, FigureState::kUncounted);
  }
  entry.known = entry.read = entry.current = kAllFigureSources;
}

/// What was read, empty after a failure.
std::string_view ProcessReader::BufferText(std::ptrdiff_t bytes) const {
  return {mBuffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

/// Reads the kept file, else a newly opened one, which is then kept if there is room. Negative with
/// errno on failure.
std::ptrdiff_t ProcessReader::ReadStat(std::int32_t pid, KnownProcess& known) {
  if (known.stat.IsOpen()) {
    const auto bytes = mFiles->Read(known.stat.Get(), mBuffer);
    if (bytes > 0) return bytes;
    // That process has ended; its pid is listed all the same, so another may have it.
    Forget(known);
  }
  FileDescriptor file = OpenStat(pid);
  if (!file.IsOpen()) return -1;
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
