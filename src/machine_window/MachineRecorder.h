#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "machine_window/BusiestHistory.h"
#include "platform/Clock.h"
#include "platform/HostStatistics.h"
#include "windows/FigureHistory.h"

namespace lurkwell {

/// The series that every machine has, by their numbers in the history; those of its processors and
/// devices follow. Shares are from 0 to 1, sizes in bytes, rates in bytes per second.
enum MachineSeries : std::size_t {
  kProcessorsBusy,  ///< the mean of all processors
  kMemoryUsed,      ///< all that is not available
  kSwapUsed,
  kDiskRead,
  kDiskWritten,
  kReceived,
  kSent,
  kProcessorWaiting,  ///< pressure: for how much of the last 10 s some waited for a processor
  kMemoryWaiting,
  kDiskWaiting,
  kMemoryStalled,  ///< the same, but all did
  kDiskStalled,
  kMachineSeriesCount,
};

/// Keeps what the machine did during the last hour, and who was busiest, while it lives: the
/// consolidator's client behind the machine's window. It goes on while the window is closed, so
/// that the hour has no gap; then it lets the heart beat once in ten seconds by itself, and else
/// takes its turns with others, a second apart at least. One at most; the registry deletes it at
/// shutdown. Main thread.
class MachineRecorder final : public ProcessInformationClient {
 public:
  /// The one there is, started if need be.
  static MachineRecorder& Running();
  static MachineRecorder* IfRunning();

  static constexpr std::int64_t kKeptMilliseconds = 3'600'000;
  /// Between two moments.
  static constexpr std::int64_t kLeastMilliseconds = 1000;
  static constexpr std::size_t kMostMoments = kKeptMilliseconds / kLeastMilliseconds;

  ~MachineRecorder() override;

  /// Whether a window shows it now, which is told of each moment; null for none.
  void SetWatcher(std::function<void()> watcher);

  const FigureHistory& History() const { return mHistory; }
  const BusiestHistory& Busiest() const { return mBusiest; }
  /// What was read last. Load, temperatures, frequencies and limits are read while watched only.
  const MachineFigures& Figures() const { return mFigures; }

  struct Device {
    std::string name;
    std::size_t in, out;
  };
  /// The series of processors by their numbers; kNoSeries for a number that none has.
  static constexpr std::size_t kNoSeries = SIZE_MAX;
  std::span<const std::size_t> Processors() const { return mProcessors; }
  /// Disks and interfaces that count, as they were first seen.
  std::span<const Device> Disks() const { return mDisks; }
  std::span<const Device> Interfaces() const { return mInterfaces; }
  struct Graphics {
    std::string name;
    std::size_t busy;
  };
  std::span<const Graphics> GraphicsDevices() const { return mGraphics; }
  std::size_t Bytes() const { return mHistory.Bytes() + mBusiest.Bytes(); }

  void NotifyPidHasBeenAdded(int pid) override;
  void NotifyPidHasBeenRemoved(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  std::int32_t MayComeEarlyBy() const override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "MachineRecorder"; }

 private:
  MachineRecorder();

  /// The CPU time of a process as of its last reading.
  struct Reading {
    TimeValue active;
    TimeValue when;
    bool isThere = false;
  };

  void RecordFigures(TimeValue now);
  void RecordProcessors(const MachineActivity& activity);
  void RecordMemory();
  void RecordPressure();
  void RecordDevices(std::vector<Device>& devices, std::span<const MovedRates> rates);
  void RecordGraphics();
  void RecordBusiest(TimeValue now);
  std::optional<double> ShareOf(std::int32_t pid, Reading& reading, TimeValue now) const;
  void Put(std::size_t series, std::optional<double> value);

  FigureHistory mHistory{kMostMoments};
  BusiestHistory mBusiest{kMostMoments};
  MachineRates mRates;
  MachineFigures mFigures;
  /// The moment that is being put together, by series.
  std::vector<float> mValues;
  std::vector<std::size_t> mProcessors;
  std::vector<Device> mDisks, mInterfaces;
  std::vector<Graphics> mGraphics;
  std::unordered_map<std::int32_t, Reading> mReadings;
  TimeValue mLastTurn;
  std::function<void()> mWatcher;
};

}  // namespace lurkwell
