#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessReading.h"
#include "platform/HostStatistics.h"
#include "recording/RecordedBeat.h"
#include "recording/RecorderThread.h"
#include "recording/RecordingFile.h"

namespace lurkwell {

struct RecorderOptions {
  std::int32_t intervalInMilliseconds = 2000;
  RecordingLimits limits;
  /// Keep whole command lines instead of the programs alone.
  bool keepsArguments = false;
};

/// Records what the consolidator sees, with every turn of its own. Main thread.
class Recorder final : public ProcessInformationClient {
 public:
  /// What begins and ends between two turns is not seen, but the kernel counts it.
  struct Counts {
    std::uint64_t births = 0;
    std::uint64_t deaths = 0;
    /// Processes and threads that the kernel has begun and the recorder has not seen.
    std::uint64_t unseen = 0;
    /// The same of processes alone, as far as the kernel has told of each; else nothing.
    std::optional<std::int64_t> unseenProcesses;
  };

  /// Makes a recorder that writes to `path`, to be added to the consolidator's clients by the
  /// caller; or nothing, and why.
  static Recorder* Create(const std::string& path, const RecorderOptions& options,
                          std::string& words);

  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "Recorder"; }

  /// As of the beats that the disk has taken.
  RecordingProgress Progress() const { return mThread.Progress(); }
  /// Records no more, and waits as RecorderThread::Close does.
  RecordingProgress Close(std::chrono::milliseconds patience) { return mThread.Close(patience); }
  const Counts& Counted() const { return mCounts; }

 private:
  /// A process as it was last recorded.
  struct Known {
    RecordedProcess process;
    std::uint64_t changeStamp = 0;
    std::uint64_t turn = 0;
  };

  Recorder(std::unique_ptr<RecordingWriter> writer, const RecorderOptions& options);

  void Look(std::int32_t pid, Beat& beat);
  void Take(const ProcessReading& reading, RecordedProcess& process) const;
  void DropEnded(Beat& beat);
  void TakeMachine(BeatHeader& header);
  void CountUnseen(const MachineFigures& figures, BeatHeader& header);
  void CountUnseenProcesses();

  bool mKeepsArguments;
  RecorderThread mThread;
  std::unordered_map<std::int32_t, Known> mKnown;
  std::array<FigureReading, kRecordedFigures.size()> mFigures;
  std::uint64_t mTurn = 0;
  /// Threads that have begun since the last turn, as far as they are seen.
  std::int64_t mSeenThreads = 0;
  std::optional<std::int64_t> mBegunTasks;
  std::unique_ptr<ProcessBirths> mBirths;
  std::uint64_t mSeenBirths = 0;
  /// May be below what has ended unseen: what begins during a beat is seen with the next one.
  std::int64_t mUnseenBirths = 0;
  Counts mCounts;
};

}  // namespace lurkwell
