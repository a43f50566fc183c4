#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessTable.h"
#include "platform/linux/CommandName.h"
#include "platform/linux/NameReader.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/ProcStat.h"
#include "platform/linux/UnitFiles.h"

namespace lurkwell {

/// What is remembered of a process beside its entry.
struct KnownProcess {
  /// When a file was last read.
  struct Reading {
    /// The time on processors before that; nothing when it must be read anew.
    std::optional<std::uint64_t> runTime;
    /// It is read again then, in milliseconds.
    std::int64_t due = 0;
  };

  /// Its stat file, if it is kept open.
  FileDescriptor stat;
  std::uint64_t folder = 0;
  /// As the kernel has it, whether or not that one is in the table.
  std::int32_t parentPid = kInvalidPID;
  /// Another process may have the pid by now.
  bool isInDoubt = true;
  /// Of stat, status, io, the threads and which group is its unit.
  std::array<Reading, 5> readings;
  std::shared_ptr<ControlGroup> unit;
  std::optional<Scheduling> scheduling;
  ProcessFigures figures;
  std::array<char, kKernelNameLength> kernelName{};
  char following = '\0';
  std::uint8_t namings = 0;
};

/// Reads what proc says of one process at a time, where it may have changed since it was last read.
/// Main thread.
class ProcessReader {
 public:
  /// No reading that is given as current is older, in milliseconds.
  static constexpr std::int64_t kLongestKept = 10'000;

  /// `giveBack` closes some of the kept files and gives false when there are none left.
  /// `units` is where control groups are, see UnitFiles.
  ProcessReader(std::shared_ptr<ProcFiles> files, std::function<bool()> giveBack,
                const std::string& units = {});

  /// A pass begins.
  void BeginPass();

  /// `kGone` also where the text is not understood; `kShort` when the machine has no descriptor or
  /// memory to spare: then all stays as it was.
  enum class Outcome { kCurrent, kGone, kShort };

  /// Sees to it that the sources are as they are now.
  Outcome Look(ProcessTableEntry& entry, KnownProcess& known, FigureSources sources);

  /// Reads the stat file, whatever is known.
  Outcome ReadAgain(ProcessTableEntry& entry, KnownProcess& known);

  void ReadIdleTask(ProcessTableEntry& entry, KnownProcess& known);

  FileDescriptor OpenStat(std::int32_t pid);
  void Forget(KnownProcess& known);
  /// No more files are kept in this pass.
  void KeepNoMore() { mMostKept = 0; }
  std::size_t Kept() const { return mKept; }

  /// Pids whose children may have another parent since the pass began.
  std::vector<std::int32_t>& LostParents() { return mLostParents; }
  /// Whether a process of this pass has another parent than it had.
  bool HaveParentsChanged() const { return mHaveParentsChanged; }

  /// The processes of this pass whose names have been asked for.
  std::vector<std::int32_t>& Unnamed() { return mUnnamed; }
  NameReader& Names() { return mNames; }

  TimeValue BootTime() const { return mBootTime; }

 private:
  Outcome Read(ProcessTableEntry& entry, KnownProcess& known, FigureSources sources,
               std::optional<std::uint64_t> runTime);
  std::ptrdiff_t ReadStat(std::int32_t pid, KnownProcess& known);
  std::optional<FileDescriptor> OpenFolderFor(std::int32_t pid, FigureSources sources);
  void ReadNamed(const FileDescriptor& folder, FigureSource source, const char* file,
                 KnownProcess& known);
  void ReadThreads(const FileDescriptor& folder, std::int64_t count, KnownProcess& known);
  void AddThread(std::string_view text);
  void ReadUnit(const FileDescriptor& folder, KnownProcess& known);
  void TakeUnitFigures(ProcessTableEntry& entry, KnownProcess& known);
  void Take(const ProcStat& stat, ProcessTableEntry& entry, KnownProcess& known);
  void Name(const ProcStat& stat, KnownProcess& known, bool isSame, ProcessTableEntry& entry);
  void Note(ProcessTableEntry& entry, KnownProcess& known, FigureSource source,
            std::optional<std::uint64_t> runTime);
  std::int64_t FigureOf(const FigureOrigin& origin, std::int64_t number) const;
  std::string_view BufferText(std::ptrdiff_t bytes) const;
  TimeValue TimeOf(std::uint64_t ticks) const;
  void SetBootTime();

  const std::shared_ptr<ProcFiles> mFiles;
  const std::function<bool()> mGiveBack;
  NameReader mNames;
  UnitFiles mUnits;
  TimeValue mBootTime;
  std::int64_t mTicksPerSecond;
  std::int64_t mPageSize;
  std::int64_t mNow = 0;
  std::size_t mMostKept = 0;
  std::size_t mKept = 0;
  bool mHaveParentsChanged = false;
  std::vector<std::int32_t> mLostParents;
  std::vector<std::int32_t> mUnnamed;
  std::vector<std::int32_t> mThreads;
  /// Of the threads that have been read, by the figures' places.
  std::array<std::int64_t, kFigureCount> mThreadSums{};
  std::array<char, 8192> mBuffer{};
};

/// For want of descriptors or memory, and so no word on the process.
bool IsShortage(int error);

}  // namespace lurkwell
