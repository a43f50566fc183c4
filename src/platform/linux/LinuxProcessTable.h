#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ProcessTable.h"
#include "platform/linux/CommandName.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

struct ProcStat;

/// The process table from one pass over a proc file system, in order of pid; the idle task, which
/// proc does not list, is made up at its end ("swapper", pid 0, started at boot).
///
/// The stat files stay open from one pass to the next, because reading one again costs two thirds
/// of opening it anew; at most half of the limit of open files is used for this, and some are given
/// back whenever an open fails for want of descriptors. A process that cannot be opened even then
/// keeps its last entry, so that a shortage does not look like the end of processes.
class LinuxProcessTable final : public ProcessTable {
 public:
  /// `root` as in ProcFiles.
  explicit LinuxProcessTable(const std::string& root = "/proc");
  explicit LinuxProcessTable(std::unique_ptr<ProcFiles> files);

  std::span<const ProcessTableEntry> Read() override;

  /// As of the last Read.
  std::int32_t MaximumPid() const override { return mMaximumPid; }

  /// The process that has `pid` now, read afresh; nothing when there is none.
  std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid);

  /// How many stat files are open at present.
  std::size_t KeptDescriptors() const { return mKept; }

 private:
  /// What is remembered of a process beside its entry.
  struct Known {
    FileDescriptor stat;
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
  void ReadProcess(std::int32_t pid, Known* before, const ProcessTableEntry* entryBefore);
  std::ptrdiff_t ReadStat(std::int32_t pid, Known& known);
  FileDescriptor OpenStat(std::int32_t pid);
  bool GiveBackDescriptors();
  void Keep(FileDescriptor file, Known& known);
  void Forget(Known& known);
  ProcessTableEntry MakeEntry(const ProcStat& stat, Known& known, const ProcessTableEntry* before);
  void Name(const ProcStat& stat, Known& known, const ProcessTableEntry* before,
            ProcessTableEntry& entry);
  TimeValue CalendarTime(std::uint64_t startStamp) const;

  std::unique_ptr<ProcFiles> mFiles;
  TimeValue mBootTime;
  std::uint64_t mTicksPerSecond;
  std::int32_t mMaximumPid = 0;
  std::size_t mMostKept = 0;
  std::size_t mKept = 0;
  std::vector<std::int32_t> mPids;
  Pass mPass;
  Pass mPassBefore;
  std::array<char, 4096> mBuffer{};
};

}  // namespace lurkwell
