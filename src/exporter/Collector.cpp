#include "exporter/Collector.h"

#include <algorithm>
#include <string_view>
#include <thread>
#include <utility>

#include "consolidator/WholeNames.h"
#include "exporter/MetricWriter.h"

namespace lurkwell {
namespace {

constexpr Figure kUserTime = FigureCalled("pid_user_time");
constexpr Figure kSystemTime = FigureCalled("pid_system_time");
constexpr Figure kVirtualSize = FigureCalled("pid_vsz");
constexpr Figure kResident = FigureCalled("pid_rsz");
constexpr Figure kSwap = FigureCalled("pid_swap");
constexpr Figure kThreads = FigureCalled("pid_threads");
constexpr Figure kState = FigureCalled("pid_state");
constexpr Figure kDiskRead = FigureCalled("pid_disk_read");
constexpr Figure kDiskWritten = FigureCalled("pid_disk_written");
constexpr Figure kUnitDiskRead = FigureCalled("pid_unit_disk_read");
constexpr Figure kUnitDiskWritten = FigureCalled("pid_unit_disk_written");
constexpr Figure kUnitReceived = FigureCalled("pid_unit_net_received");
constexpr Figure kUnitSent = FigureCalled("pid_unit_net_sent");
constexpr Figure kReceived = FigureCalled("pid_net_received");
constexpr Figure kSent = FigureCalled("pid_net_sent");
constexpr Figure kProportional = FigureCalled("pid_pss");
constexpr Figure kOpenFiles = FigureCalled("pid_descriptors");
constexpr Figure kOwner = FigureCalled("pid_owner");
constexpr Figure kCommandLine = FigureCalled("pid_command_line");
constexpr Figure kControlGroup = FigureCalled("pid_cgroup");
constexpr Figure kUnit = FigureCalled("pid_unit");
constexpr Figure kContainer = FigureCalled("pid_container");

constexpr GroupKind kAllKinds[] = {GroupKind::kProgram, GroupKind::kUnit, GroupKind::kContainer,
                                   GroupKind::kUser};
/// Whose disk and network figures are their processes'; those of the others are their control
/// groups'.
constexpr GroupKind kKindsOfProcesses[] = {GroupKind::kProgram, GroupKind::kUser};
constexpr GroupKind kKindsOfControlGroups[] = {GroupKind::kUnit, GroupKind::kContainer};

constexpr std::string_view kKernelGroup = "[kernel]";
constexpr std::int32_t kKernelThreadsParent = 2;
constexpr std::size_t kShortenedName = 15;
/// A control group is seldom changed, so only some processes are asked in each pass.
constexpr std::int64_t kGroupTurns = 5;
/// Who has refused mostly goes on to.
constexpr std::int64_t kPassesAfterRefusal = 40;

/// The place among kProcessStateNames.
std::size_t StateOf(const ProcessTableEntry& entry, const ProcessFigures& figures) {
  switch (entry.state) {
    case RunState::kRunning:
      return 0;
    case RunState::kStopped:
      return 3;
    case RunState::kZombie:
      return 4;
    case RunState::kIdle:
      return 5;
    case RunState::kSleeping:
      break;
  }
  return figures.Get(kState) == 'D' ? 2 : 1;
}

/// The real user of "USER as OTHER".
std::string_view RealUser(std::string_view owner) {
  return owner.substr(0, owner.find(" as "));
}

/// One that is told by the figures of a control group, as others may be.
bool IsOfControlGroup(std::string_view container) {
  return !container.empty() && container != "own pid namespace";
}

void AddGrowth(CounterSum& sum, FigureState state, std::int64_t growth) {
  if (state == FigureState::kKnown) {
    sum.Add(growth);
  } else if (state != FigureState::kUncounted) {
    sum.Miss();
  }
}

}  // namespace

Collector::Collector(Sources sources, GroupRules rules)
    : mSources(sources), mRules(std::move(rules)) {
  for (const auto kind : kAllKinds)
    mBooks[static_cast<std::size_t>(kind)] =
        std::make_unique<GroupBook>(mRules[kind], mRules.limit);
}

std::optional<Snapshot> Collector::Read() {
  const auto begun = std::chrono::steady_clock::now();
  ++mPass;
  for (auto& book : mBooks) book->BeginPass();
  auto entries = mSources.processes.Read([this](std::int32_t pid) { return WantedOf(pid); });
  if (entries.empty()) return std::nullopt;
  Track(entries);
  FindReaders(entries);
  if (const auto more = StillWanted(entries); !more.empty()) {
    entries = mSources.processes.Read([&more](std::int32_t pid) -> FigureSources {
      const auto wanted = more.find(pid);
      return wanted != more.end() ? wanted->second : 0;
    });
    if (entries.empty()) return std::nullopt;
    Track(entries);
  }
  for (const auto& entry : entries)
    if (entry.pid != 0) FindGroups(entry, mSources.processes.FiguresOf(entry), mTracked[entry.pid]);
  const auto now = mSources.clock.Now();
  for (auto& book : mBooks) book->GivePlaces(now.seconds * 1000 + now.microseconds / 1000);
  ForgetTheGone();
  TakeCostly();
  AskForCostly(entries);
  for (const auto& entry : entries)
    if (entry.pid != 0) Count(entry, mSources.processes.FiguresOf(entry), mTracked[entry.pid]);
  auto snapshot = Summary(entries);
  snapshot.seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
  return snapshot;
}

FigureSources Collector::WantedOf(std::int32_t pid) const {
  if (pid == 0) return 0;
  FigureSources wanted = kFromStat;
  const bool areProcessesRead =
      mRules[GroupKind::kProgram].isWanted || mRules[GroupKind::kUser].isWanted;
  if (areProcessesRead) wanted |= kFromIO;
  if (mRules[GroupKind::kUser].isWanted) wanted |= kFromIdentity;
  if (mHasSwap) wanted |= kFromStatus;
  const bool hasControlGroups =
      mRules[GroupKind::kUnit].isWanted || mRules[GroupKind::kContainer].isWanted;
  const auto known = mTracked.find(pid);
  const bool isNew = known == mTracked.end();
  if (!isNew && known->second.isLineWanted) wanted |= kFromCommandLine;
  if (!hasControlGroups) return wanted;
  // A new process is put where it belongs when it has begun.
  const bool isItsTurn =
      isNew || mPass - known->second.firstPass < 2 || (pid + mPass) % kGroupTurns == 0;
  if (isItsTurn) wanted |= kFromGroup;
  if (isNew || known->second.isReader) wanted |= kFromUnit;
  return wanted;
}

void Collector::Track(Entries entries) {
  for (auto& [path, group] : mControlGroups) group.hasReaderNow = false;
  for (const auto& entry : entries) {
    if (entry.pid == 0) continue;
    auto& tracked = mTracked[entry.pid];
    if (tracked.firstPass == 0 || tracked.startStamp != entry.startStamp) {
      tracked = {};
      tracked.startStamp = entry.startStamp;
      tracked.firstPass = mPass;
    }
    tracked.pass = mPass;
    tracked.parentPid = entry.parentPid;
    SortIn(entry, mSources.processes.FiguresOf(entry), tracked);
  }
}

void Collector::SortIn(const ProcessTableEntry& entry, const ProcessFigures& figures,
                       Tracked& tracked) {
  const bool isZombie = entry.state == RunState::kZombie;
  tracked.hasMemory = figures.Get(kVirtualSize) != 0;
  tracked.isKernelThread |=
      !tracked.hasMemory && !isZombie &&
      (entry.pid == kKernelThreadsParent || entry.parentPid == kKernelThreadsParent);
  tracked.isLineWanted = !tracked.isKernelThread && tracked.hasMemory &&
                         std::string_view(entry.commandName).size() >= kShortenedName;
  // These are read anew when the process has run, and now and then when it has not; what takes long
  // goes by them.
  constexpr FigureSources kTellRunning = kFromStatus | kFromIO;
  if ((entry.read & kTellRunning) != 0 || (WantedOf(entry.pid) & kTellRunning) == 0)
    tracked.proportional.isDue = tracked.openFiles.isDue = true;
  EnterControlGroup(entry, figures, tracked);
}

void Collector::EnterControlGroup(const ProcessTableEntry& entry, const ProcessFigures& figures,
                                  Tracked& tracked) {
  const bool isInAny =
      !figures.GetText(kUnit).empty() || IsOfControlGroup(figures.GetText(kContainer));
  if (!isInAny) {
    tracked.controlGroup = nullptr;
    tracked.isReader = false;
    return;
  }
  const auto& path = figures.GetText(kControlGroup);
  auto*& group = tracked.controlGroup;
  if (group == nullptr || group->path != path) {
    group = &mControlGroups[path];
    group->path = path;
  }
  group->pass = mPass;
  tracked.isReader = group->reader == ProcessIdentity{entry.pid, entry.startStamp};
  group->hasReaderNow |= tracked.isReader;
}

/// For control groups whose reader has ended, or which never had one.
void Collector::FindReaders(Entries entries) {
  for (const auto& entry : entries) {
    if (entry.pid == 0) continue;
    auto& tracked = mTracked[entry.pid];
    auto* group = tracked.controlGroup;
    if (group == nullptr || group->hasReaderNow || entry.state == RunState::kZombie) continue;
    // One of the same name may have taken its place; connections are counted anew by another
    // reader.
    group->read.ExpectAnother();
    group->written.ExpectAnother();
    if (group->reader.pid != kInvalidPID) {
      group->received.SkipNext();
      group->sent.SkipNext();
    }
    group->reader = {entry.pid, entry.startStamp};
    group->hasReaderNow = true;
    tracked.isReader = true;
  }
}

/// What the pass has not brought of processes of which it was not known that it would be wanted.
std::unordered_map<std::int32_t, FigureSources> Collector::StillWanted(Entries entries) const {
  std::unordered_map<std::int32_t, FigureSources> more;
  const bool hasControlGroups =
      mRules[GroupKind::kUnit].isWanted || mRules[GroupKind::kContainer].isWanted;
  for (const auto& entry : entries) {
    if (entry.pid == 0) continue;
    const auto& tracked = mTracked.at(entry.pid);
    const auto& figures = mSources.processes.FiguresOf(entry);
    const auto isUnread = [&](Figure figure) {
      return figures.StateOf(figure) == FigureState::kUnread;
    };
    FigureSources wanted = 0;
    if (tracked.isLineWanted && isUnread(kCommandLine)) wanted |= kFromCommandLine;
    if (hasControlGroups && isUnread(kControlGroup)) wanted |= kFromGroup;
    if (mRules[GroupKind::kUser].isWanted && isUnread(kOwner)) wanted |= kFromIdentity;
    if (tracked.isReader && (entry.current & kFromUnit) == 0) wanted |= kFromUnit;
    if (wanted != 0) more.emplace(entry.pid, wanted);
  }
  return more;
}

void Collector::FindGroups(const ProcessTableEntry& entry, const ProcessFigures& figures,
                           Tracked& tracked) {
  std::string_view program = entry.commandName;
  if (tracked.isKernelThread) {
    program = kKernelGroup;
  } else if (tracked.isLineWanted) {
    program = CompletedName(program, figures.GetText(kCommandLine));
  }
  EnterGroup(tracked, GroupKind::kProgram, program);
  EnterGroup(tracked, GroupKind::kUnit, figures.GetText(kUnit));
  const std::string_view container = figures.GetText(kContainer);
  EnterGroup(tracked, GroupKind::kContainer,
             IsOfControlGroup(container) ? container : std::string_view());
  EnterGroup(tracked, GroupKind::kUser, RealUser(figures.GetText(kOwner)));
  for (auto* group : tracked.groups) {
    if (group == nullptr) continue;
    ++group->members;
    group->weight += figures.Get(kUserTime) + figures.Get(kSystemTime);
  }
}

void Collector::EnterGroup(Tracked& tracked, GroupKind kind, std::string_view name) {
  auto*& group = tracked.groups[static_cast<std::size_t>(kind)];
  if (!mRules[kind].isWanted || name.empty()) {
    group = nullptr;
  } else if (group == nullptr || group->name != name) {
    // Names that look alike are one group, as two would have the same labels.
    group = &Book(kind).Find(LabelText(name));
  }
}

/// The kernel adds what a process has read and written to the figures of the one that waited for
/// its end, where it would be counted twice.
void Collector::ForgetTheGone() {
  for (const auto& [pid, gone] : mTracked) {
    if (gone.pass == mPass) continue;
    const auto parent = mTracked.find(gone.parentPid);
    if (parent == mTracked.end() || parent->second.pass != mPass) continue;
    parent->second.diskRead.Discount(gone.diskRead.Last());
    parent->second.diskWritten.Discount(gone.diskWritten.Last());
  }
  std::erase_if(mTracked, [this](const auto& entry) { return entry.second.pass != mPass; });
  std::erase_if(mControlGroups, [this](const auto& entry) { return entry.second.pass != mPass; });
}

void Collector::Costly::Take(const ProcessFigures& figures, Figure figure, std::int64_t pass) {
  state = figures.StateOf(figure);
  value = figures.Get(figure);
  isDue = false;
  nextPass = state == FigureState::kRefused ? pass + kPassesAfterRefusal : pass;
}

void Collector::TakeCostly() {
  for (const auto& reading : mSources.costly.Collect()) {
    const auto known = mTracked.find(reading.process.pid);
    if (known == mTracked.end() || known->second.startStamp != reading.process.startStamp) continue;
    auto& tracked = known->second;
    if ((reading.sources & kFromMemoryMap) != 0)
      tracked.proportional.Take(reading.figures, kProportional, mPass);
    if ((reading.sources & kFromDescriptorCount) != 0)
      tracked.openFiles.Take(reading.figures, kOpenFiles, mPass);
    TakeNetwork(reading, tracked);
  }
}

void Collector::TakeNetwork(const CostlyReading& reading, Tracked& tracked) {
  const auto& figures = reading.figures;
  if ((reading.sources & kFromSockets) != 0) {
    tracked.networkState = figures.StateOf(kReceived);
    if (tracked.networkState == FigureState::kKnown)
      ForEachSum(tracked, kKindsOfProcesses,
                 [received = tracked.received.Of(figures.Get(kReceived)),
                  sent = tracked.sent.Of(figures.Get(kSent))](GroupSums& sums) {
                   sums.received.Add(received);
                   sums.sent.Add(sent);
                 });
  }
  auto* group = tracked.controlGroup;
  const bool isOfItsReader = group != nullptr && group->reader == reading.process;
  if ((reading.sources & kFromUnitSockets) == 0 || !isOfItsReader) return;
  if (figures.StateOf(kUnitReceived) != FigureState::kKnown) return;
  ForEachSum(tracked, kKindsOfControlGroups,
             [received = group->received.Of(figures.Get(kUnitReceived)),
              sent = group->sent.Of(figures.Get(kUnitSent))](GroupSums& sums) {
               sums.received.Add(received);
               sums.sent.Add(sent);
             });
}

/// Has read what takes long, for the next time, and waits a moment for processes that have nothing
/// of it yet, as their groups would be without.
void Collector::AskForCostly(Entries entries) {
  std::vector<CostlyWish> wishes;
  for (const auto& entry : entries)
    if (entry.pid != 0)
      if (const auto wish = WishFor(entry, mTracked[entry.pid]); wish.sources != 0)
        wishes.push_back(wish);
  mSources.costly.Ask(wishes);
  std::erase_if(wishes, [](const CostlyWish& wish) { return !wish.isInSight; });
  const auto isUnread = [this](const CostlyWish& wish) {
    const auto& tracked = mTracked[wish.process.pid];
    const bool needsCount = (wish.sources & kFromDescriptorCount) != 0 &&
                            tracked.openFiles.state == FigureState::kUnread;
    const bool needsMap =
        (wish.sources & kFromMemoryMap) != 0 && tracked.proportional.state == FigureState::kUnread;
    return needsCount || needsMap;
  };
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!wishes.empty()) {
    TakeCostly();
    if (std::ranges::none_of(wishes, isUnread) || std::chrono::steady_clock::now() >= end) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
}

CostlyWish Collector::WishFor(const ProcessTableEntry& entry, const Tracked& tracked) const {
  // What is new is read first.
  CostlyWish wish{{entry.pid, entry.startStamp}, 0, tracked.firstPass == mPass};
  const bool isLikeOthers = tracked.hasMemory && entry.state != RunState::kZombie;
  const auto isDue = [&](const Costly& costly) {
    return isLikeOthers && costly.isDue && mPass >= costly.nextPass;
  };
  if (mRules.countsOpenFiles && isDue(tracked.openFiles)) wish.sources |= kFromDescriptorCount;
  if (mRules.readsProportionalMemory && isDue(tracked.proportional)) wish.sources |= kFromMemoryMap;
  if (mRules.network != GroupRules::Network::kNone && tracked.isReader)
    wish.sources |= kFromUnitSockets;
  if (mRules.network == GroupRules::Network::kProcesses && isLikeOthers)
    wish.sources |= kFromSockets;
  return wish;
}

template <typename Serve>
void Collector::ForEachSum(const Tracked& tracked, std::span<const GroupKind> kinds, Serve serve) {
  for (const auto kind : kinds)
    if (auto* group = tracked.groups[static_cast<std::size_t>(kind)])
      serve(Book(kind).SumsFor(*group));
}

void Collector::Count(const ProcessTableEntry& entry, const ProcessFigures& figures,
                      Tracked& tracked) {
  const auto user = tracked.userTime.Of(figures.Get(kUserTime));
  const auto system = tracked.systemTime.Of(figures.Get(kSystemTime));
  const bool isLikeOthers = tracked.hasMemory && entry.state != RunState::kZombie;
  const auto stateOf = [&](const Costly& costly) {
    return isLikeOthers ? costly.state : FigureState::kUncounted;
  };
  ForEachSum(tracked, kAllKinds, [&](GroupSums& sums) {
    sums.userTime.Add(user);
    sums.systemTime.Add(system);
    auto& gauges = sums.gauges;
    ++gauges.processes;
    gauges.threads += figures.Get(kThreads);
    ++gauges.states[StateOf(entry, figures)];
    if (!gauges.oldestStart || entry.startTime < *gauges.oldestStart)
      gauges.oldestStart = entry.startTime;
    gauges.resident.Add(figures.StateOf(kResident), figures.Get(kResident));
    gauges.swap.Add(mHasSwap ? figures.StateOf(kSwap) : FigureState::kKnown,
                    figures.Get(kSwap) * mHasSwap);
    gauges.proportional.Add(stateOf(tracked.proportional), tracked.proportional.value);
    gauges.openFiles.Add(stateOf(tracked.openFiles), tracked.openFiles.value);
  });
  const auto read = figures.StateOf(kDiskRead);
  const auto written = figures.StateOf(kDiskWritten);
  const auto known = FigureState::kKnown;
  const auto readGrowth = read == known ? tracked.diskRead.Of(figures.Get(kDiskRead)) : 0;
  const auto writtenGrowth =
      written == known ? tracked.diskWritten.Of(figures.Get(kDiskWritten)) : 0;
  const bool isNetworkCounted = mRules.network == GroupRules::Network::kProcesses && isLikeOthers;
  ForEachSum(tracked, kKindsOfProcesses, [&](GroupSums& sums) {
    AddGrowth(sums.diskRead, read, readGrowth);
    AddGrowth(sums.diskWritten, written, writtenGrowth);
    if (!isNetworkCounted) return;
    AddGrowth(sums.received, tracked.networkState, 0);
    AddGrowth(sums.sent, tracked.networkState, 0);
  });
  if (tracked.isReader) CountControlGroup(figures, tracked);
}

void Collector::CountControlGroup(const ProcessFigures& figures, Tracked& tracked) {
  auto& group = *tracked.controlGroup;
  const auto read = figures.StateOf(kUnitDiskRead);
  const auto written = figures.StateOf(kUnitDiskWritten);
  const auto known = FigureState::kKnown;
  const auto readGrowth = read == known ? group.read.Of(figures.Get(kUnitDiskRead)) : 0;
  const auto writtenGrowth = written == known ? group.written.Of(figures.Get(kUnitDiskWritten)) : 0;
  ForEachSum(tracked, kKindsOfControlGroups, [&](GroupSums& sums) {
    AddGrowth(sums.diskRead, read, readGrowth);
    AddGrowth(sums.diskWritten, written, writtenGrowth);
  });
}

Snapshot Collector::Summary(Entries entries) {
  Snapshot snapshot;
  for (std::size_t i = 0; i < kGroupKinds; ++i) {
    snapshot.kinds[i] = mBooks[i]->Figures();
    snapshot.kinds[i].isWanted = mRules.kinds[i].isWanted;
  }
  snapshot.machine = mSources.machine.Read(kProcessorTimes | kMachineMemory | kDisks |
                                           kNetworkInterfaces | kPressure | kLoad);
  const auto& memory = snapshot.machine.memory;
  mHasSwap = !memory || memory->swap > 0;
  snapshot.processors = mSources.machine.Processors();
  snapshot.processes = static_cast<std::int64_t>(entries.size());
  if (entries.back().pid == 0) {
    --snapshot.processes;
    snapshot.bootTime = entries.back().startTime;
  }
  return snapshot;
}

}  // namespace lurkwell
