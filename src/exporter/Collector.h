#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "exporter/GroupBook.h"
#include "exporter/GroupRules.h"
#include "exporter/GroupSums.h"
#include "exporter/Snapshot.h"
#include "platform/Clock.h"
#include "platform/CostlyFigures.h"
#include "platform/HostStatistics.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessTable.h"

namespace lurkwell {

/// Reads the processes and the machine, when it is asked to, and sums them up by groups. Between
/// two readings it does nothing; only what takes long is then read in the background. Main thread.
class Collector {
 public:
  struct Sources {
    ProcessTable& processes;
    HostStatistics& machine;
    CostlyFigures& costly;
    Clock& clock;
  };

  /// How long a reading waits for figures of processes that are new.
  static constexpr std::chrono::milliseconds kPatience{100};

  Collector(Sources sources, GroupRules rules);

  /// Nothing when the processes cannot be listed.
  std::optional<Snapshot> Read();

 private:
  /// A control group, whose figures are those of its unit and its container.
  struct ControlGroup {
    std::string path;
    std::int64_t pass = 0;
    /// The process by which it is read.
    ProcessIdentity reader{-1, 0};
    bool hasReaderNow = false;
    Growth read, written, received, sent;
  };

  /// What was read in the background, as of the last time.
  struct Costly {
    FigureState state = FigureState::kUnread;
    std::int64_t value = 0;
    /// The process may have changed it since it was read.
    bool isDue = true;
    /// It is not asked for again before this pass.
    std::int64_t nextPass = 0;

    void Take(const ProcessFigures& figures, Figure figure, std::int64_t pass);
  };

  /// What is remembered of a process.
  struct Tracked {
    std::uint64_t startStamp = 0;
    std::int32_t parentPid = kInvalidPID;
    std::int64_t pass = 0;
    std::int64_t firstPass = 0;
    bool isKernelThread = false;
    bool hasMemory = true;
    bool isLineWanted = false;
    bool isReader = false;
    /// Null where it is in no group of that kind.
    std::array<Group*, kGroupKinds> groups{};
    ControlGroup* controlGroup = nullptr;
    Growth userTime, systemTime, diskRead, diskWritten, received, sent;
    Costly proportional, openFiles;
    FigureState networkState = FigureState::kUnread;
  };
  using Entries = std::span<const ProcessTableEntry>;

  FigureSources WantedOf(std::int32_t pid) const;
  void Track(Entries entries);
  void SortIn(const ProcessTableEntry& entry, const ProcessFigures& figures, Tracked& tracked);
  void FindGroups(const ProcessTableEntry& entry, const ProcessFigures& figures, Tracked& tracked);
  void EnterGroup(Tracked& tracked, GroupKind kind, std::string_view name);
  void EnterControlGroup(const ProcessTableEntry& entry, const ProcessFigures& figures,
                         Tracked& tracked);
  void FindReaders(Entries entries);
  std::unordered_map<std::int32_t, FigureSources> StillWanted(Entries entries) const;
  void ForgetTheGone();

  void TakeCostly();
  void TakeNetwork(const CostlyReading& reading, Tracked& tracked);
  void AskForCostly(Entries entries);
  CostlyWish WishFor(const ProcessTableEntry& entry, const Tracked& tracked) const;

  void Count(const ProcessTableEntry& entry, const ProcessFigures& figures, Tracked& tracked);
  void CountControlGroup(const ProcessFigures& figures, Tracked& tracked);
  Snapshot Summary(Entries entries);

  GroupBook& Book(GroupKind kind) { return *mBooks[static_cast<std::size_t>(kind)]; }
  template <typename Serve>
  void ForEachSum(const Tracked& tracked, std::span<const GroupKind> kinds, Serve serve);

  const Sources mSources;
  const GroupRules mRules;
  std::array<std::unique_ptr<GroupBook>, kGroupKinds> mBooks;
  std::int64_t mPass = 0;
  bool mHasSwap = true;
  std::unordered_map<std::int32_t, Tracked> mTracked;
  std::unordered_map<std::string, ControlGroup> mControlGroups;
};

}  // namespace lurkwell
