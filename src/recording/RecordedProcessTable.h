#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "platform/ProcessFigures.h"
#include "platform/ProcessTable.h"
#include "recording/RecordingPlayer.h"

namespace lurkwell {

/// The processes at the player's beat. What was not recorded counts as not counted.
class RecordedProcessTable final : public ProcessTable {
 public:
  /// The player outlives this.
  explicit RecordedProcessTable(const RecordingPlayer& player) : mPlayer(player) {}

  FigureSources OpenSources() const override { return kAllFigureSources; }
  std::span<const ProcessTableEntry> Read(const Wanted& wanted) override;
  bool MayHaveBirths() override { return true; }
  std::optional<std::span<const ProcessTableEntry>> Refresh(const Wanted&, bool) override {
    return {};
  }
  const ProcessFigures& FiguresOf(const ProcessTableEntry& entry) override;
  std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid) override;
  std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids) override;
  bool IsRecorded() const override { return true; }
  /// This program was another process then, if any.
  std::int32_t OwnPid() const override { return kInvalidPID; }
  std::int32_t MaximumPid() const override { return INT32_MAX; }

 private:
  void CloseParents();
  void Derive(const RecordedProcess& process);

  const RecordingPlayer& mPlayer;
  std::vector<ProcessTableEntry> mEntries;
  std::unordered_map<std::int32_t, std::size_t> mPlaces;
  ProcessFigures mFigures;
};

}  // namespace lurkwell
