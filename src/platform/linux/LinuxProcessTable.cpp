#include "platform/linux/LinuxProcessTable.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <utility>

#include "platform/linux/DescriptorLimit.h"
#include "platform/linux/ParentClosure.h"
#include "platform/linux/ProcStat.h"

namespace lurkwell {
namespace {

// The kernel's own bound, for a tree that does not tell its own.
constexpr std::int32_t kHighestPidAtAll = 4'194'304;
// An open stat file costs about 5 KiB of kernel memory.
constexpr std::size_t kMostKeptAtAll = 16'384;
constexpr std::size_t kGivenBackAtOnce = 32;
// A name is looked up in two passes, as the first may fall into the middle of an exec.
constexpr std::uint8_t kNamings = 2;
constexpr int kMostFailures = 3;
constexpr std::int64_t kFarFuture = 1'000'000'000'000;
constexpr std::string_view kIdleTaskName = "swapper";

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
  std::memcpy(entry.commandName, name.data(), name.size());
}

ProcessTableEntry IdleTask(TimeValue bootTime) {
  ProcessTableEntry entry;
  entry.pid = 0;
  entry.parentPid = 0;
  entry.startTime = bootTime;
  entry.state = RunState::kRunning;
  SetName(entry, kIdleTaskName);
  return entry;
}

bool IsShortage(int error) {
  return error == EMFILE || error == ENFILE || error == ENOMEM;
}

}  // namespace

LinuxProcessTable::LinuxProcessTable(const std::string& root)
    : LinuxProcessTable(std::make_shared<ProcFiles>(root)) {}

LinuxProcessTable::LinuxProcessTable(std::shared_ptr<ProcFiles> files)
    : mFiles(std::move(files)),
      mNames(mFiles),
      mTicksPerSecond(static_cast<std::uint64_t>(std::max(1L, ::sysconf(_SC_CLK_TCK)))),
      mPageSize(static_cast<std::uint64_t>(std::max(1L, ::sysconf(_SC_PAGESIZE)))) {
  SetBootTime();
  SetMaximumPid();
}

std::span<const ProcessTableEntry> LinuxProcessTable::Read() {
  if (!mFiles->List(mPids)) return LastPassAgain();
  mFailures = 0;
  std::swap(mPass, mPassBefore);
  mPass.entries.clear();
  mPass.known.clear();
  mLostParents.clear();
  mUnnamed.clear();
  SetMaximumPid();
  mMostKept = mFiles->FollowsProcesses() ? std::min(DescriptorLimit() / 2, kMostKeptAtAll) : 0;
  if (!std::is_sorted(mPids.begin(), mPids.end())) std::sort(mPids.begin(), mPids.end());
  mPids.erase(std::unique(mPids.begin(), mPids.end()), mPids.end());

  mPass.entries.reserve(mPids.size() + 1);
  mPass.known.reserve(mPids.size());
  std::size_t before = 0;
  const std::size_t countBefore = mPassBefore.known.size();
  for (const std::int32_t pid : mPids) {
    for (; before < countBefore && mPassBefore.entries[before].pid < pid; ++before) Drop(before);
    const bool known = before < countBefore && mPassBefore.entries[before].pid == pid;
    ReadProcess(pid, known ? &mPassBefore.known[before] : nullptr,
                known ? &mPassBefore.entries[before] : nullptr);
    if (known) ++before;
  }
  for (; before < countBefore; ++before) Drop(before);
  ReadOrphansAgain();
  CompleteNames();
  if (!mPids.empty()) mMaximumPid = std::max(mMaximumPid, mPids.back());
  mPass.entries.push_back(IdleTask(mBootTime));
  CloseParents(mPass.entries);
  return mPass.entries;
}

/// A shortage of memory that passes must not look like the end of all processes.
std::span<const ProcessTableEntry> LinuxProcessTable::LastPassAgain() {
  const int error = errno;
  if (mPass.entries.empty() || ++mFailures <= kMostFailures) return mPass.entries;
  std::fprintf(stderr, "lurkwell: the processes cannot be listed: %s\n", std::strerror(error));
  for (auto& known : mPass.known) Forget(known);
  mPass = {};
  return {};
}

std::optional<ProcessIdentity> LinuxProcessTable::CurrentIdentity(std::int32_t pid) {
  const FileDescriptor file = OpenStat(pid);
  const auto bytes = file.IsOpen() ? mFiles->Read(file.Get(), mBuffer) : 0;
  const auto stat = ParseProcStat(BufferText(bytes));
  if (!stat || stat->pid != pid) return std::nullopt;
  return ProcessIdentity{pid, stat->startStamp};
}

std::optional<ProcessFigures> LinuxProcessTable::FiguresOf(const ProcessTableEntry& entry) {
  ProcessFigures figures;
  if (entry.pid == 0) {
    const auto ticks = ParseIdleTicks(mFiles->ReadText("stat"));
    if (!ticks) return std::nullopt;
    figures.userTime = TimeOf(ticks->idle);
    figures.systemTime = TimeOf(ticks->waiting);
    return figures;
  }
  const auto place = static_cast<std::size_t>(&entry - mPass.entries.data());
  const auto bytes = ReadStat(entry.pid, mPass.known.at(place));
  const auto stat = ParseProcStat(BufferText(bytes));
  if (!stat || stat->startStamp != entry.startStamp) return std::nullopt;
  const auto usage = ParseProcUsage(*stat);
  if (!usage) return std::nullopt;
  figures.userTime = TimeOf(usage->userTicks);
  figures.systemTime = TimeOf(usage->systemTicks);
  figures.virtualSize = static_cast<std::int64_t>(usage->virtualSize);
  figures.residentSize = static_cast<std::int64_t>(usage->residentPages * mPageSize);
  figures.suspendCount = stat->state == 'T' || stat->state == 't';
  figures.policy = static_cast<std::int32_t>(usage->policy);
  figures.faults = static_cast<std::int64_t>(usage->minorFaults + usage->majorFaults);
  figures.pageins = static_cast<std::int64_t>(usage->majorFaults);
  return figures;
}

/// A process of the last pass that is not listed any more.
void LinuxProcessTable::Drop(std::size_t before) {
  mLostParents.push_back(mPassBefore.entries[before].pid);
  Forget(mPassBefore.known[before]);
}

void LinuxProcessTable::ReadProcess(std::int32_t pid, Known* before,
                                    const ProcessTableEntry* entryBefore) {
  Known known;
  if (before != nullptr) known = std::move(*before);
  // Taken before the file is read: whoever runs in between counts as having run since.
  const auto mark = mFiles->Mark(pid);
  const bool isUnchanged = entryBefore != nullptr && IsUnchanged(known, mark, *entryBefore);
  const auto entry =
      isUnchanged ? std::optional(*entryBefore) : ReadEntry(pid, mark, known, entryBefore);
  const bool isOther =
      entryBefore != nullptr && (!entry || entry->startStamp != entryBefore->startStamp);
  // One that has ended but is not collected has given its children away.
  if (isOther || (entry && entry->state == RunState::kZombie)) mLostParents.push_back(pid);
  if (!entry) return;
  mPass.entries.push_back(*entry);
  mPass.known.push_back(std::move(known));
}

/// An unknown parent may go unseen, so its children are not kept.
bool LinuxProcessTable::IsUnchanged(Known& known, const std::optional<RunMark>& mark,
                                    const ProcessTableEntry& before) {
  if (!mark || mark != known.mark) return false;
  if (known.keepable == 0 || before.parentPid == kInvalidPID) return false;
  --known.keepable;
  return true;
}

/// Nothing, and nothing kept, when the process is gone.
std::optional<ProcessTableEntry> LinuxProcessTable::ReadEntry(std::int32_t pid,
                                                              const std::optional<RunMark>& mark,
                                                              Known& known,
                                                              const ProcessTableEntry* before) {
  const bool wasMarked = known.mark.has_value();
  known.mark.reset();
  const std::ptrdiff_t bytes = ReadStat(pid, known);
  if (bytes < 0 && before != nullptr && IsShortage(errno)) return *before;
  const auto stat = ParseProcStat(BufferText(bytes));
  if (!stat || stat->pid != pid) {
    Forget(known);
    return std::nullopt;
  }
  const auto entry = MakeEntry(*stat, known, before);
  // What is on a processor now is not counted up to now.
  if (entry.state != RunState::kRunning) known.mark = mark;
  // The first turns are spread, so that no pass has to read all at once.
  known.keepable = static_cast<std::uint8_t>(wasMarked ? kReadEvery - 1 : pid % kReadEvery);
  return entry;
}

/// A process may have been looked at before its parent ended, and its own mark does not show that.
void LinuxProcessTable::ReadOrphansAgain() {
  if (mLostParents.empty()) return;
  std::sort(mLostParents.begin(), mLostParents.end());
  for (std::size_t i = 0; i < mPass.entries.size(); ++i) {
    ProcessTableEntry& entry = mPass.entries[i];
    if (!std::binary_search(mLostParents.begin(), mLostParents.end(), entry.parentPid)) continue;
    // One that has ended by now is left out of the next pass.
    const auto mark = mFiles->Mark(entry.pid);
    if (const auto again = ReadEntry(entry.pid, mark, mPass.known[i], &entry)) entry = *again;
  }
}

/// What was read, empty after a failure.
std::string_view LinuxProcessTable::BufferText(std::ptrdiff_t bytes) const {
  return {mBuffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

/// Reads the kept file, else a newly opened one, which is then kept if there is room. Negative with
/// errno on failure.
std::ptrdiff_t LinuxProcessTable::ReadStat(std::int32_t pid, Known& known) {
  if (known.stat.IsOpen()) {
    const auto bytes = mFiles->Read(known.stat.Get(), mBuffer);
    if (bytes > 0) return bytes;
    // That process has ended; its pid is listed all the same, so another may have it.
    Forget(known);
  }
  FileDescriptor file = OpenStat(pid);
  if (!file.IsOpen()) return -1;
  const auto bytes = mFiles->Read(file.Get(), mBuffer);
  if (bytes > 0 && mKept < mMostKept) Keep(std::move(file), known);
  return bytes;
}

FileDescriptor LinuxProcessTable::OpenStat(std::int32_t pid) {
  FileDescriptor file = mFiles->OpenStat(pid);
  while (!file.IsOpen() && IsShortage(errno) && GiveBackDescriptors()) {
    file = mFiles->OpenStat(pid);
  }
  return file;
}

/// Closes some kept files and keeps no more in this pass. False when none is left.
bool LinuxProcessTable::GiveBackDescriptors() {
  std::size_t left = kGivenBackAtOnce;
  for (Pass* pass : {&mPass, &mPassBefore}) {
    for (auto known = pass->known.rbegin(); known != pass->known.rend() && left > 0; ++known) {
      if (!known->stat.IsOpen()) continue;
      Forget(*known);
      --left;
    }
  }
  mMostKept = 0;
  return left < kGivenBackAtOnce;
}

void LinuxProcessTable::Keep(FileDescriptor file, Known& known) {
  known.stat = std::move(file);
  ++mKept;
}

void LinuxProcessTable::Forget(Known& known) {
  if (!known.stat.IsOpen()) return;
  known.stat.Close();
  --mKept;
}

ProcessTableEntry LinuxProcessTable::MakeEntry(const ProcStat& stat, Known& known,
                                               const ProcessTableEntry* before) {
  ProcessTableEntry entry;
  entry.pid = stat.pid;
  entry.parentPid = stat.parentPid;
  entry.startStamp = stat.startStamp;
  entry.startTime = mBootTime + TimeOf(stat.startStamp);
  entry.priority = stat.priority;
  entry.nice = stat.nice;
  entry.state = StateOf(stat.state);
  Name(stat, known, before, entry);
  return entry;
}

void LinuxProcessTable::Name(const ProcStat& stat, Known& known, const ProcessTableEntry* before,
                             ProcessTableEntry& entry) {
  SetName(entry, stat.name);
  // Kernel threads have longer names, which need no completing.
  if (stat.name.size() != kKernelNameLength) {
    known.namings = 0;
    return;
  }
  const bool isSame = before != nullptr && before->startStamp == stat.startStamp &&
                      known.namings > 0 &&
                      std::equal(stat.name.begin(), stat.name.end(), known.kernelName.begin());
  if (!isSame) {
    std::copy(stat.name.begin(), stat.name.end(), known.kernelName.begin());
    known.following = '\0';
    known.namings = 0;
  }
  if (known.following == '\0' && known.namings < kNamings &&
      mNames.Ask(stat.pid, stat.startStamp, {known.kernelName.data(), known.kernelName.size()}))
    mUnnamed.push_back(stat.pid);
  entry.commandName[kKernelNameLength] = known.following;
}

void LinuxProcessTable::CompleteNames() {
  if (mUnnamed.empty()) return;
  std::sort(mUnnamed.begin(), mUnnamed.end());
  mUnnamed.erase(std::unique(mUnnamed.begin(), mUnnamed.end()), mUnnamed.end());
  mNames.WaitBriefly();
  for (const std::int32_t pid : mUnnamed) {
    const auto entry = std::ranges::lower_bound(mPass.entries, pid, {}, &ProcessTableEntry::pid);
    if (entry == mPass.entries.end() || entry->pid != pid) continue;
    Known& known = mPass.known[static_cast<std::size_t>(entry - mPass.entries.begin())];
    if (const auto following = mNames.Take(pid, entry->startStamp)) {
      ++known.namings;
      entry->commandName[kKernelNameLength] = known.following = *following;
    } else {
      // Read in full in the next pass, which may have it.
      known.mark.reset();
    }
  }
  mNames.DropAnswers();
}

TimeValue LinuxProcessTable::TimeOf(std::uint64_t ticks) const {
  const auto rest = ticks % mTicksPerSecond;
  return {static_cast<std::int64_t>(ticks / mTicksPerSecond),
          static_cast<std::int32_t>(rest * 1'000'000 / mTicksPerSecond)};
}

void LinuxProcessTable::SetMaximumPid() {
  std::string text = mFiles->ReadText("sys/kernel/pid_max");
  while (!text.empty() && text.back() == '\n') text.pop_back();
  mMaximumPid = ParsePid(text).value_or(kHighestPidAtAll);
}

/// Once for good: the kernel's figure moves with every step of the calendar.
void LinuxProcessTable::SetBootTime() {
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
