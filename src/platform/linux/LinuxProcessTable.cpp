#include "platform/linux/LinuxProcessTable.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <utility>

#include "platform/Diagnostics.h"
#include "platform/ProcStat.h"
#include "platform/linux/ParentClosure.h"

namespace lurkwell {
namespace {

// The kernel's own bound, for a tree that does not tell its own.
constexpr std::int32_t kHighestPidAtAll = 4'194'304;
constexpr std::size_t kGivenBackAtOnce = 32;
constexpr int kMostFailures = 3;
constexpr std::int32_t kMostProbed = 2'000;
constexpr std::int64_t kLongestFork = 1'000;
/// The number that the folder of a process has which was never listed: that of /proc itself.
constexpr std::uint64_t kNoFolder = 1;
// A process that is restored under a chosen pid is not counted among the births.
constexpr std::int64_t kListedAgain = 60'000;
constexpr std::string_view kIdleTaskName = "swapper";
/// The start of a process that has ended.
constexpr std::uint64_t kGone = ~std::uint64_t{0};

ProcessTableEntry IdleTask(TimeValue bootTime) {
  ProcessTableEntry entry;
  entry.pid = 0;
  entry.parentPid = 0;
  entry.startTime = bootTime;
  entry.state = RunState::kRunning;
  kIdleTaskName.copy(entry.commandName, sizeof entry.commandName - 1);
  return entry;
}

}  // namespace

LinuxProcessTable::LinuxProcessTable(const std::string& root, const std::string& units)
    : LinuxProcessTable(std::make_shared<ProcFiles>(root), units) {}

LinuxProcessTable::LinuxProcessTable(std::shared_ptr<ProcFiles> files, const std::string& units)
    : mFiles(std::move(files)),
      mReader(
          mFiles, [this] { return GiveBackDescriptors(); }, units) {
  SetMaximumPid();
}

std::span<const ProcessTableEntry> LinuxProcessTable::Read() {
  return Read([](std::int32_t) { return kFromStat | kFromScheduler; });
}

std::span<const ProcessTableEntry> LinuxProcessTable::Read(const Wanted& wanted) {
  BeginPass();
  // Asked for before the listing: a process born in between counts as not listed.
  const auto last = mFiles->LastPid();
  const bool isTold = AreBirthsTold(last);
  if (isTold) {
    ListWithoutListing();
  } else if (!List()) {
    return LastPassAgain();
  }
  NoteNewest(last);
  mReader.Expect(mListed.size());
  if (!IsListedAlready()) TakeOverListed();
  if (!LookAtAll(wanted, isTold)) LeaveOutTheGone();
  FinishPass();
  return mPass.entries;
}

bool LinuxProcessTable::MayHaveBirths() {
  if (mIsUnfinished || mPass.entries.empty()) return true;
  const auto last = mFiles->LastPid();
  if (!AreBirthsTold(last) || !mBorn.empty()) return true;
  NoteNewest(last);
  return false;
}

/// Whether the births since the last pass are known without a listing, in mBorn: pids are given out
/// in order, and the clocks tell which of them processes have.
bool LinuxProcessTable::AreBirthsTold(std::optional<std::int32_t> last) {
  mBorn.clear();
  if (!last || !mSettled || mPass.entries.empty()) return false;
  if (mFiles->Milliseconds() - mListedAt >= kListedAgain) return false;
  // The numbers began anew, or a listing costs less.
  if (*last < *mSettled || *last - *mSettled > kMostProbed) return false;
  for (std::int32_t pid = *mSettled + 1; pid <= *last; ++pid)
    if (!IsInPass(pid) && mFiles->RunTime(pid)) mBorn.push_back({pid, kNoFolder});
  return true;
}

bool LinuxProcessTable::IsInPass(std::int32_t pid) const {
  return std::ranges::binary_search(mPass.entries.begin(), mPass.entries.end() - 1, pid, {},
                                    &ProcessTableEntry::pid);
}

/// A fork takes its number before there is a process that has it, so a number counts as looked at
/// only when it was looked at later, too.
void LinuxProcessTable::NoteNewest(std::optional<std::int32_t> last) {
  const auto now = mFiles->Milliseconds();
  if (!last) {
    mSettled.reset();
    mNewest.reset();
  } else if (!mNewest || now - mNewestAt >= kLongestFork) {
    mSettled = std::exchange(mNewest, last);
    mNewestAt = now;
  }
}

bool LinuxProcessTable::List() {
  mListedAt = mFiles->Milliseconds();
  if (!mFiles->List(mListed)) return false;
  mFailures = 0;
  if (!std::is_sorted(mListed.begin(), mListed.end())) std::sort(mListed.begin(), mListed.end());
  const auto isDoubled = [](const auto& a, const auto& b) { return a.pid == b.pid; };
  mListed.erase(std::unique(mListed.begin(), mListed.end(), isDoubled), mListed.end());
  return true;
}

/// What was there and what was born. What has ended is seen when it is looked at.
void LinuxProcessTable::ListWithoutListing() {
  mListed.clear();
  auto born = mBorn.begin();
  for (std::size_t i = 0; i + 1 < mPass.entries.size(); ++i) {
    const std::int32_t pid = mPass.entries[i].pid;
    for (; born != mBorn.end() && born->pid < pid; ++born) mListed.push_back(*born);
    mListed.push_back({pid, mPass.known[i].folder});
  }
  mListed.insert(mListed.end(), born, mBorn.end());
}

std::optional<std::span<const ProcessTableEntry>> LinuxProcessTable::Refresh(const Wanted& wanted,
                                                                             bool ends) {
  BeginPass();
  const bool areAllThere = LookAtAll(wanted, ends);
  FinishPass();
  mIsUntold = !areAllThere;
  if (!areAllThere) return std::nullopt;
  return mPass.entries;
}

const ProcessFigures& LinuxProcessTable::FiguresOf(const ProcessTableEntry& entry) {
  return mPass.known.at(static_cast<std::size_t>(&entry - mPass.entries.data())).figures;
}

std::optional<ProcessIdentity> LinuxProcessTable::CurrentIdentity(std::int32_t pid) {
  std::array<char, 4096> buffer;
  const FileDescriptor file = mReader.OpenStat(pid);
  const auto bytes = file.IsOpen() ? mFiles->Read(file.Get(), buffer) : 0;
  const auto stat = ParseProcStat({buffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0});
  if (!stat || stat->pid != pid) return std::nullopt;
  return ProcessIdentity{pid, stat->startStamp};
}

void LinuxProcessTable::BeginPass() {
  mReader.BeginPass();
  mAreOthers = false;
  mIsUnfinished = false;
  const bool isUntold = std::exchange(mIsUntold, false);
  for (auto& entry : mPass.entries) {
    entry.current = 0;
    if (!isUntold) entry.read = 0;
  }
}

/// A shortage of memory that passes must not look like the end of all processes.
std::span<const ProcessTableEntry> LinuxProcessTable::LastPassAgain() {
  const int error = errno;
  NoteNewest(std::nullopt);
  if (mPass.entries.empty() || ++mFailures <= kMostFailures) return mPass.entries;
  Diagnose("the processes cannot be listed: %s", std::strerror(error));
  for (auto& known : mPass.known) mReader.Forget(known);
  mPass = {};
  return {};
}

bool LinuxProcessTable::IsListedAlready() const {
  const auto& [entries, known] = mPass;
  if (entries.size() != mListed.size() + 1) return false;
  for (std::size_t i = 0; i < mListed.size(); ++i)
    if (mListed[i] != ListedProcess{entries[i].pid, known[i].folder}) return false;
  return true;
}

/// Makes the pass one of those that are listed, with all that is known of them.
void LinuxProcessTable::TakeOverListed() {
  mAreOthers = true;
  SetMaximumPid();
  std::swap(mPass, mPassBefore);
  mPass.entries.clear();
  mPass.known.clear();
  mPass.entries.reserve(mListed.size() + 1);
  mPass.known.reserve(mListed.size() + 1);
  auto& [entries, known] = mPassBefore;
  const std::size_t countBefore = entries.empty() ? 0 : entries.size() - 1;
  std::size_t before = 0;
  for (const auto& listed : mListed) {
    for (; before < countBefore && entries[before].pid < listed.pid; ++before)
      Drop(entries[before], known[before]);
    if (before < countBefore && entries[before].pid == listed.pid) {
      mPass.entries.push_back(entries[before]);
      mPass.known.push_back(std::move(known[before++]));
    } else {
      mPass.entries.emplace_back().pid = listed.pid;
      mPass.known.emplace_back();
    }
    auto& folder = mPass.known.back().folder;
    if (std::exchange(folder, listed.folder) != listed.folder) mPass.known.back().isInDoubt = true;
  }
  for (; before < countBefore; ++before) Drop(entries[before], known[before]);
  mPass.entries.push_back(countBefore == 0 ? IdleTask(mReader.BootTime()) : entries.back());
  mPass.known.push_back(countBefore == 0 ? KnownProcess() : std::move(known.back()));
  if (!mListed.empty()) mMaximumPid = std::max(mMaximumPid, mListed.back().pid);
}

/// A process that is not there any more.
void LinuxProcessTable::Drop(const ProcessTableEntry& entry, KnownProcess& known) {
  mReader.LostParents().push_back(entry.pid);
  mReader.Forget(known);
}

/// False when a process is gone, whose start is none then. With `ends`, also when one is gone of
/// which nothing is wanted.
bool LinuxProcessTable::LookAtAll(const Wanted& wanted, bool ends) {
  bool areAllThere = true;
  const std::size_t count = mPass.known.empty() ? 0 : mPass.known.size() - 1;
  for (std::size_t i = 0; i < count; ++i) {
    auto& entry = mPass.entries[i];
    auto& known = mPass.known[i];
    // Its first thread has ended; the last one gives the children away, which is seen nowhere else.
    if (entry.state == RunState::kZombie) mReader.LostParents().push_back(entry.pid);
    const auto sources = wanted(entry.pid);
    if (sources == 0 && ends && !mFiles->RunTime(entry.pid)) known.isInDoubt = true;
    if (sources == 0 && !known.isInDoubt) continue;
    const auto outcome = mReader.Look(entry, known, sources);
    const bool isUnread = entry.known == 0 && outcome == ProcessReader::Outcome::kShort;
    if (outcome != ProcessReader::Outcome::kGone && !isUnread) continue;
    entry.startStamp = kGone;
    known.isInDoubt = true;
    mIsUnfinished |= isUnread;
    areAllThere = false;
  }
  if (count > 0 && wanted(0) != 0) mReader.ReadIdleTask(mPass.entries.back(), mPass.known.back());
  return areAllThere;
}

void LinuxProcessTable::LeaveOutTheGone() {
  mAreOthers = true;
  auto& [entries, known] = mPass;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].startStamp == kGone) {
      Drop(entries[i], known[i]);
    } else if (i != kept++) {
      entries[kept - 1] = entries[i];
      known[kept - 1] = std::move(known[i]);
    }
  }
  entries.resize(kept);
  known.resize(kept);
}

void LinuxProcessTable::FinishPass() {
  ReadOrphansAgain();
  CompleteNames();
  if (!mAreOthers && !mReader.HaveParentsChanged()) return;
  for (std::size_t i = 0; i + 1 < mPass.known.size(); ++i)
    mPass.entries[i].parentPid = mPass.known[i].parentPid;
  CloseParents(mPass.entries);
}

/// A process may have been looked at before its parent ended, or not at all, and it need not run to
/// get another one.
void LinuxProcessTable::ReadOrphansAgain() {
  auto& lost = mReader.LostParents();
  if (lost.empty()) return;
  std::sort(lost.begin(), lost.end());
  for (std::size_t i = 0; i + 1 < mPass.entries.size(); ++i) {
    // One that has ended by now is left out of the next pass.
    if (std::binary_search(lost.begin(), lost.end(), mPass.known[i].parentPid))
      mReader.ReadAgain(mPass.entries[i], mPass.known[i]);
  }
}

/// Closes some kept files and keeps no more in this pass. False when none is left.
bool LinuxProcessTable::GiveBackDescriptors() {
  std::size_t left = kGivenBackAtOnce;
  for (Pass* pass : {&mPass, &mPassBefore}) {
    for (auto known = pass->known.rbegin(); known != pass->known.rend() && left > 0; ++known) {
      if (!known->stat.IsOpen()) continue;
      mReader.Forget(*known);
      --left;
    }
  }
  mReader.KeepNoMore();
  return left < kGivenBackAtOnce;
}

/// Calls `serve` with the entry and what is known of each of these that is there, once.
template <typename Serve>
void LinuxProcessTable::ForEachOf(std::vector<std::int32_t>& pids, Serve serve) {
  std::sort(pids.begin(), pids.end());
  pids.erase(std::unique(pids.begin(), pids.end()), pids.end());
  for (const std::int32_t pid : pids) {
    const auto entry = std::ranges::lower_bound(mPass.entries.begin(), mPass.entries.end() - 1, pid,
                                                {}, &ProcessTableEntry::pid);
    if (entry == mPass.entries.end() - 1 || entry->pid != pid) continue;
    serve(*entry, mPass.known[static_cast<std::size_t>(entry - mPass.entries.begin())]);
  }
}

void LinuxProcessTable::CompleteNames() {
  if (mReader.Unnamed().empty() && mReader.Unlined().empty()) return;
  mReader.Names().WaitBriefly();
  ForEachOf(mReader.Unnamed(), [this](ProcessTableEntry& entry, KnownProcess& known) {
    if (const auto following = mReader.Names().Take(
            entry.pid, entry.startStamp, {known.kernelName.data(), known.kernelName.size()})) {
      ++known.namings;
      entry.commandName[kKernelNameLength] = known.following = *following;
    } else {
      // Read in full in the next pass, which may have it.
      known.isInDoubt = mIsUnfinished = true;
    }
  });
  ForEachOf(mReader.Unlined(), [this](ProcessTableEntry& entry, KnownProcess& known) {
    // What has not come is asked for again in the next pass, which may have it.
    if (const auto text = mReader.Names().TakeCommandLine(entry.pid, entry.startStamp))
      mReader.TakeCommandLine(entry, known, *text);
  });
  mReader.Names().DropAnswers();
}

void LinuxProcessTable::SetMaximumPid() {
  std::string text = mFiles->ReadText("sys/kernel/pid_max");
  while (!text.empty() && text.back() == '\n') text.pop_back();
  mMaximumPid = ParsePid(text).value_or(kHighestPidAtAll);
}

}  // namespace lurkwell
