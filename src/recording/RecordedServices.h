#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/CostlyFigures.h"
#include "platform/HostStatistics.h"
#include "platform/PreferenceDomain.h"
#include "platform/ProcessDetails.h"
#include "platform/Scheduler.h"
#include "platform/Signals.h"
#include "platform/Tools.h"
#include "recording/RecordingPlayer.h"

namespace lurkwell {

// What a recorded machine has in place of the services of a living one. Players outlive them.

/// The machine's figures at the player's beat; all processors are told as one.
class RecordedHostStatistics final : public HostStatistics {
 public:
  explicit RecordedHostStatistics(const RecordingPlayer& player) : mPlayer(player) {}

  std::int64_t SharedTextAndDataSize() const override { return 0; }
  std::optional<std::int64_t> PageSize() const override;
  bool ReadVirtualMemory(VirtualMemoryStatistics& statistics) const override;
  MachineFigures Read(MachineSources wanted) const override;
  std::int64_t PhysicalMemory() const override { return Number(recorded::kMemory); }
  int Processors() const override;

 private:
  std::int64_t Number(recorded::MachineNumber number) const {
    return mPlayer.Header().machine[number];
  }

  const RecordingPlayer& mPlayer;
};

/// For a program in a terminal: there is no ps that knows a recording, and nothing is started for
/// one.
class NoTools final : public Tools {
 public:
  std::unique_ptr<RunningTool> Start(const std::string&) override { return nullptr; }
  bool MayLookInto(std::int32_t) const override { return false; }
  void Await(std::span<RunningTool* const>, std::chrono::milliseconds) override {}
  bool StartInBackground(const std::vector<std::string>&) override { return false; }
  CommandStart StartCommand(const std::vector<std::string>&,
                            const std::vector<std::string>&) override {
    return {nullptr, "nothing is started for a recording"};
  }
  int Stat(const std::string&) override { return -1; }
};

/// What has been cannot be changed.
class NoSignals final : public Signals {
 public:
  bool Send(ProcessIdentity, int) override { return false; }
};
class NoScheduler final : public Scheduler {
 public:
  std::optional<SchedulingState> StateOf(ProcessIdentity) override { return {}; }
  SchedulingAnswer Change(ProcessIdentity, const SchedulingChange&) override {
    return SchedulingAnswer::kRefused;
  }
  ProcessorSet Processors() const override { return {}; }
};

/// Nothing of what takes long to read is recorded.
class UnrecordedFigures final : public CostlyFigures {
 public:
  void Ask(std::vector<CostlyWish> wishes) override { mWishes = std::move(wishes); }
  std::vector<CostlyReading> Collect() override;

 private:
  std::vector<CostlyWish> mWishes;
};
class UnrecordedDetails final : public ProcessDetails {
 public:
  std::unique_ptr<DetailsReading> Begin(ProcessIdentity, DetailsKind) override;
};

/// The user's settings, but for those that ask a living machine.
class RecordedMachinePreferences final : public PreferenceDomain {
 public:
  /// `own` outlives this.
  explicit RecordedMachinePreferences(PreferenceDomain& own) : mOwn(own) {}

  const PreferenceValue* Value(std::string_view key) override {
    return key == "FIGURES_FROM_HELPER" ? nullptr : mOwn.Value(key);
  }
  void SetValue(std::string_view key, PreferenceValue value) override {
    mOwn.SetValue(key, std::move(value));
  }
  void RemoveValue(std::string_view key) override { mOwn.RemoveValue(key); }
  bool Synchronize() override { return mOwn.Synchronize(); }
  std::string TakeComplaint() override { return mOwn.TakeComplaint(); }

 private:
  PreferenceDomain& mOwn;
};

}  // namespace lurkwell
