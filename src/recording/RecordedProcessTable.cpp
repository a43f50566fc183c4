#include "recording/RecordedProcessTable.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace lurkwell {

using namespace recorded;

namespace {

constexpr std::int32_t kKernelThreadsParent = 2;

constexpr std::size_t TextNamed(std::string_view name) {
  return static_cast<std::size_t>(std::ranges::find(kRecordedTexts, name) - kRecordedTexts.begin());
}

constexpr auto kOwner = TextNamed("pid_owner");
constexpr auto kCommandLine = TextNamed("pid_command_line");
constexpr auto kExecutable = TextNamed("pid_executable");

std::int32_t Small(std::int64_t number) {
  return std::in_range<std::int32_t>(number) ? static_cast<std::int32_t>(number) : 0;
}

ProcessTableEntry EntryOf(const RecordedProcess& process) {
  ProcessTableEntry entry;
  entry.pid = process.process.pid;
  entry.startStamp = process.process.startStamp;
  const auto parent = process.numbers[kParent];
  const bool hasParent = process.numberStates[kParent] == FigureState::kKnown && parent >= 0 &&
                         std::in_range<std::int32_t>(parent);
  entry.parentPid = hasParent ? static_cast<std::int32_t>(parent) : kInvalidPID;
  entry.priority = Small(process.numbers[kPriority]);
  entry.nice = Small(process.numbers[kNice]);
  const auto state = process.numbers[kRunState];
  if (state >= 1 && state <= 5) entry.state = static_cast<RunState>(state);
  entry.startTime = TimeOfMicroseconds(process.numbers[kStartTime]);
  const std::string_view name = process.texts->front();
  const auto length = std::min({name.size(), name.find('\0'), sizeof entry.commandName - 1});
  std::memcpy(entry.commandName, name.data(), length);
  return entry;
}

}  // namespace

std::span<const ProcessTableEntry> RecordedProcessTable::Read(const Wanted& wanted) {
  mEntries.clear();
  mPlaces.clear();
  for (const auto& process : mPlayer.Processes()) {
    if (process.process.pid == 0) continue;
    mPlaces[process.process.pid] = mEntries.size();
    mEntries.push_back(EntryOf(process));
  }
  const auto* idle = mPlayer.Find(0);
  mPlaces[0] = mEntries.size();
  auto& last = mEntries.emplace_back();
  if (idle != nullptr) last = EntryOf(*idle);
  last.pid = last.parentPid = 0;
  CloseParents();
  for (auto& entry : mEntries)
    entry.current = entry.read = entry.known = wanted(entry.pid) | kFromStat;
  return mEntries;
}

/// A recording may say anything: a parent that is not there is unknown, and so is one that is
/// reached by its own children.
void RecordedProcessTable::CloseParents() {
  enum class Mark : std::uint8_t { kNew, kOpen, kDone };
  std::vector<Mark> marks(mEntries.size(), Mark::kNew);
  std::vector<std::size_t> way;
  for (std::size_t begin = 0; begin < mEntries.size(); ++begin) {
    std::size_t at = begin;
    while (marks[at] == Mark::kNew) {
      marks[at] = Mark::kOpen;
      way.push_back(at);
      auto& entry = mEntries[at];
      if (entry.pid == 0) break;
      const auto parent = mPlaces.find(entry.parentPid);
      if (parent == mPlaces.end()) {
        entry.parentPid = kInvalidPID;
        break;
      }
      at = parent->second;
      if (marks[at] == Mark::kOpen) entry.parentPid = kInvalidPID;
    }
    for (const auto place : std::exchange(way, {})) marks[place] = Mark::kDone;
  }
}

const ProcessFigures& RecordedProcessTable::FiguresOf(const ProcessTableEntry& entry) {
  mFigures = {};
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if (!IsRate(kFigures[i])) mFigures.SetMissing(static_cast<Figure>(i), FigureState::kUncounted);
  const auto* process = mPlayer.Find(entry.pid);
  if (process == nullptr) return mFigures;
  const auto put = [this](Figure figure, FigureState state, auto set) {
    if (state == FigureState::kKnown) {
      set();
    } else {
      mFigures.SetMissing(figure, state);
    }
  };
  auto figure = kRecordedFigures.begin();
  for (std::size_t i = kListedNumbers; i < kNumberCount; ++i, ++figure)
    put(*figure, process->numberStates[i], [&] { mFigures.Set(*figure, process->numbers[i]); });
  for (std::size_t i = kListedTexts; i < kTextCount; ++i, ++figure)
    put(*figure, process->textStates[i], [&] { mFigures.SetText(*figure, (*process->texts)[i]); });
  Derive(*process);
  return mFigures;
}

/// What follows from the rest, as the machine would have told it.
void RecordedProcessTable::Derive(const RecordedProcess& process) {
  if (process.process.pid == 0) return;
  constexpr std::int64_t kSecond = 1'000'000;
  const auto age = mPlayer.Header().wall - process.numbers[kStartTime];
  mFigures.Set(FigureCalled("pid_running_time"),
               std::max<std::int64_t>(age, 0) / kSecond * kSecond);
  const auto memory = mPlayer.Header().machine[kMemory];
  constexpr auto kResident = FigureCalled("pid_rsz");
  if (memory > 0 && mFigures.StateOf(kResident) == FigureState::kKnown)
    mFigures.Set(FigureCalled("pid_memory_share"),
                 static_cast<std::int64_t>(static_cast<double>(mFigures.Get(kResident)) * 100'000 /
                                           static_cast<double>(memory)));
}

std::optional<ProcessIdentity> RecordedProcessTable::CurrentIdentity(std::int32_t pid) {
  const auto* process = mPlayer.Find(pid);
  if (process == nullptr) return std::nullopt;
  return process->process;
}

std::vector<ProcessDescription> RecordedProcessTable::Describe(std::span<const std::int32_t> pids) {
  std::vector<ProcessDescription> descriptions;
  for (const auto pid : pids) {
    const auto* process = mPlayer.Find(pid);
    if (process == nullptr) continue;
    const auto& texts = *process->texts;
    const auto parent = process->numbers[kParent];
    const auto runState = static_cast<std::int64_t>(RunState::kStopped);
    descriptions.push_back(
        {.process = process->process,
         .owner = texts[kOwner],
         .isOwn = false,
         .isKernelThread = parent == kKernelThreadsParent || pid == kKernelThreadsParent,
         .isStopped = process->numbers[kRunState] == runState,
         .nice = Small(process->numbers[kNice]),
         .commandLine = texts[kCommandLine],
         .executable = texts[kExecutable]});
  }
  return descriptions;
}

}  // namespace lurkwell
