#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProcessTable.h"
#include "platform/linux/CommandName.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/NameReader.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/ProcessDescriber.h"

namespace lurkwell {

struct ProcStat;

/// The process table from one pass over a proc file system, in order of pid; the idle task, which
/// proc does not list, is made up at its end ("swapper", pid 0, started at boot).
///
/// The stat files stay open from one pass to the next, because reading one again costs two thirds
/// of opening it anew; at most half of the limit of open files is used for this, and some are given
/// back whenever an open fails for want of descriptors. A process that cannot be opened even then
/// keeps its last entry, so that a shortage does not look like the end of processes.
///
/// A listing that fails gives the entries of the last pass again, three times at most.
///
/// A name of full length appears short until its last character has been read, which takes place on
/// a thread of its own and is mostly over within the same pass.
///
/// A process that has not run since its file was read, as its RunMark tells, keeps its last entry,
/// too: most of them in most passes, at a third of the price. What changes without running is seen
/// all the same: the scheduling class and the nice value are part of the mark, and the children of
/// a process that ended are read anew in the very pass that finds its end. What little remains (the
/// priority while a lock is held for others) is seen within kReadEvery passes, because each entry
/// is read anew that often, in turns.
class LinuxProcessTable final : public ProcessTable {
 public:
  /// `root` as in ProcFiles.
  explicit LinuxProcessTable(const std::string& root = "/proc");
  explicit LinuxProcessTable(std::shared_ptr<ProcFiles> files);

  /// No entry is older than this many passes.
  static constexpr std::uint8_t kReadEvery = 8;

  std::span<const ProcessTableEntry> Read() override;

  /// As of the last Read.
  std::int32_t MaximumPid() const override { return mMaximumPid; }

  std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid) override;
  std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids) override {
    return ProcessDescriber(mFiles).Describe(pids);
  }
  std::optional<ProcessFigures> FiguresOf(const ProcessTableEntry& entry) override;

  /// How many stat files are open at present.
  std::size_t KeptDescriptors() const { return mKept; }

 private:
  /// What is remembered of a process beside its entry.
  struct Known {
    FileDescriptor stat;
    /// From before the file was last read.
    std::optional<RunMark> mark;
    /// For how many more passes the entry may be kept.
    std::uint8_t keepable = 0;
    std::array<char, kKernelNameLength> kernelName{};
    char following = '\0';
    std::uint8_t namings = 0;
  };
  /// One pass: entries in order of pid and, at the same places, what is known beyond them.
  struct Pass {
    std::vector<ProcessTableEntry> entries;
    std::vector<Known> known;
  };

  void SetMaximumPid();
  void SetBootTime();
  void Drop(std::size_t before);
  void ReadProcess(std::int32_t pid, Known* before, const ProcessTableEntry* entryBefore);
  static bool IsUnchanged(Known& known, const std::optional<RunMark>& mark,
                          const ProcessTableEntry& before);
  std::optional<ProcessTableEntry> ReadEntry(std::int32_t pid, const std::optional<RunMark>& mark,
                                             Known& known, const ProcessTableEntry* before);
  void ReadOrphansAgain();
  std::string_view BufferText(std::ptrdiff_t bytes) const;
  std::ptrdiff_t ReadStat(std::int32_t pid, Known& known);
  FileDescriptor OpenStat(std::int32_t pid);
  bool GiveBackDescriptors();
  void Keep(FileDescriptor file, Known& known);
  void Forget(Known& known);
  ProcessTableEntry MakeEntry(const ProcStat& stat, Known& known, const ProcessTableEntry* before);
  void Name(const ProcStat& stat, Known& known, const ProcessTableEntry* before,
            ProcessTableEntry& entry);
  void CompleteNames();
  std::span<const ProcessTableEntry> LastPassAgain();
  TimeValue TimeOf(std::uint64_t ticks) const;

  const std::shared_ptr<ProcFiles> mFiles;
  NameReader mNames;
  TimeValue mBootTime;
  std::uint64_t mTicksPerSecond;
  std::uint64_t mPageSize;
  std::int32_t mMaximumPid = 0;
  std::size_t mMostKept = 0;
  std::size_t mKept = 0;
  std::vector<std::int32_t> mPids;
  /// How many listings have failed in a row.
  int mFailures = 0;
  /// Whose names have been asked for in this pass.
  std::vector<std::int32_t> mUnnamed;
  /// Pids whose children may have another parent by now.
  std::vector<std::int32_t> mLostParents;
  Pass mPass;
  Pass mPassBefore;
  std::array<char, 4096> mBuffer{};
};

}  // namespace lurkwell
