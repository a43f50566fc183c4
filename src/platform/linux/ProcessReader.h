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
#include "platform/ProcStat.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessTable.h"
#include "platform/linux/FigureFiles.h"
#include "platform/linux/KnownProcess.h"
#include "platform/linux/NameReader.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// Reads what proc says of one process at a time, where it may have changed since it was last read.
/// Main thread.
class ProcessReader {
 public:
  /// No reading that is given as current is older, in milliseconds.
  static constexpr std::int64_t kLongestKept = 10'000;
  /// How much longer what seldom changes, and what others do not change, is kept while the process
  /// does not run.
  static constexpr std::int64_t kLongestKeptAsleep = 60'000;
  /// The same for kKeptForLong.
  static constexpr std::int64_t kLongestKeptAsleepAtAll = 300'000;

  /// `giveBack` closes some of the kept files and gives false when there are none left.
  /// `units` is where control groups are, see UnitFiles.
  ProcessReader(std::shared_ptr<ProcFiles> files, std::function<bool()> giveBack,
                const std::string& units = {});

  /// A pass begins.
  void BeginPass();
  /// How many processes the pass has.
  void Expect(std::size_t processes);

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

  /// Pids whose children may have another parent since the pass began.
  std::vector<std::int32_t>& LostParents() { return mLostParents; }
  /// Whether a process of this pass has another parent than it had.
  bool HaveParentsChanged() const { return mHaveParentsChanged; }

  /// The processes of this pass whose names, and those whose command lines have been asked for.
  std::vector<std::int32_t>& Unnamed() { return mUnnamed; }
  std::vector<std::int32_t>& Unlined() { return mUnlined; }
  void TakeCommandLine(ProcessTableEntry& entry, KnownProcess& known, std::string_view text);
  NameReader& Names() { return mNames; }

  TimeValue BootTime() const { return mBootTime; }

 private:
  FigureSources StaleOf(KnownProcess& known, FigureSources sources,
                        std::optional<std::uint64_t> runTime) const;
  FigureSources LookWithoutFiles(ProcessTableEntry& entry, KnownProcess& known,
                                 FigureSources sources);
  void ReadAssignmentOf(ProcessTableEntry& entry, KnownProcess& known,
                        std::optional<std::uint64_t> runTime);
  Outcome Read(ProcessTableEntry& entry, KnownProcess& known, FigureSources sources,
               FigureSources wanted, std::optional<std::uint64_t> runTime);
  void ReadFiles(const FileDescriptor& folder, ProcessTableEntry& entry, KnownProcess& known,
                 FigureSources sources, std::optional<std::uint64_t> runTime);
  static FigureSources ToldToBeOthers(const ProcStat& stat, const ProcStatFields& fields,
                                      KnownProcess& known, FigureSources wanted);
  std::ptrdiff_t ReadStat(std::int32_t pid, KnownProcess& known, FileDescriptor* folder);
  bool OpenFolder(std::int32_t pid, FileDescriptor* folder);
  void Take(const ProcStat& stat, ProcessTableEntry& entry, KnownProcess& known);
  void Name(const ProcStat& stat, KnownProcess& known, bool isSame, ProcessTableEntry& entry);
  void Note(ProcessTableEntry& entry, KnownProcess& known, FigureSource source,
            std::optional<std::uint64_t> runTime);
  std::string_view BufferText(std::ptrdiff_t bytes) const;
  TimeValue TimeOf(std::uint64_t ticks) const;
  void SetBootTime();

  const std::shared_ptr<ProcFiles> mFiles;
  const std::function<bool()> mGiveBack;
  NameReader mNames;
  FigureFiles mFigureFiles;
  TimeValue mBootTime;
  std::int64_t mTicksPerSecond;
  std::int64_t mNow = 0;
  std::int64_t mMillisecondsSinceBoot = 0;
  std::size_t mMostKept = 0;
  std::size_t mExpected = 0;
  std::size_t mKept = 0;
  bool mHaveParentsChanged = false;
  std::vector<std::int32_t> mLostParents;
  std::vector<std::int32_t> mUnnamed;
  std::vector<std::int32_t> mUnlined;
  std::array<char, 8192> mBuffer{};
};

/// For want of descriptors or memory, and so no word on the process.
bool IsShortage(int error);

}  // namespace lurkwell
