#pragma once

#include <unistd.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ProcessTable.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/ProcessDescriber.h"
#include "platform/linux/ProcessReader.h"

namespace lurkwell {

/// The process table from passes over a proc file system, in order of pid; the idle task, which
/// proc does not list, is made up at its end ("swapper", pid 0, started at boot).
///
/// A pass needs a list of the folders once a minute only: pids are given out in order, so that the
/// new ones are among a few numbers, and a process that has no clock any more has ended. It looks
/// at what a process has used of the processors only where a figure that running changes is wanted,
/// or ends are, and reads files only of those that ran, that are new, or whose files were last read
/// kLongestKept ago; those turns are spread over the passes. What changes without running is seen
/// all the same where it matters: the children of a process that ended are read anew in the very
/// pass that finds its end, the scheduling class and the nice value are asked for where they are
/// wanted. The rest (pages that were taken back, a priority while a lock is held for others) is
/// seen with the next turn.
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
class LinuxProcessTable final : public ProcessTable {
 public:
  /// `root` as in ProcFiles, `units` as in UnitFiles.
  explicit LinuxProcessTable(const std::string& root = "/proc", const std::string& units = {});
  explicit LinuxProcessTable(std::shared_ptr<ProcFiles> files, const std::string& units = {});

  FigureSources OpenSources() const override { return kAllFigureSources; }
  std::span<const ProcessTableEntry> Read(const Wanted& wanted) override;
  /// With all that stands in the entries.
  std::span<const ProcessTableEntry> Read();
  bool MayHaveBirths() override;
  std::optional<std::span<const ProcessTableEntry>> Refresh(const Wanted& wanted,
                                                            bool ends) override;
  const ProcessFigures& FiguresOf(const ProcessTableEntry& entry) override;
  std::optional<ProcessIdentity> CurrentIdentity(std::int32_t pid) override;

  /// As of the last Read that found a new process.
  std::int32_t OwnPid() const override { return ::getpid(); }
  std::int32_t MaximumPid() const override { return mMaximumPid; }

  std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids) override {
    return ProcessDescriber(mFiles).Describe(pids);
  }

 private:
  /// Entries in order of pid, the idle task last, and, at the same places, what is known beyond
  /// them.
  struct Pass {
    std::vector<ProcessTableEntry> entries;
    std::vector<KnownProcess> known;
  };

  void SetMaximumPid();
  void BeginPass();
  bool AreBirthsTold(std::optional<std::int32_t> last);
  bool IsInPass(std::int32_t pid) const;
  void NoteNewest(std::optional<std::int32_t> last);
  bool List();
  void ListWithoutListing();
  bool IsListedAlready() const;
  void TakeOverListed();
  void Drop(const ProcessTableEntry& entry, KnownProcess& known);
  bool LookAtAll(const Wanted& wanted, bool ends);
  void LeaveOutTheGone();
  void FinishPass();
  void ReadOrphansAgain();
  bool GiveBackDescriptors();
  template <typename Serve>
  void ForEachOf(std::vector<std::int32_t>& pids, Serve serve);
  void CompleteNames();
  std::span<const ProcessTableEntry> LastPassAgain();

  const std::shared_ptr<ProcFiles> mFiles;
  ProcessReader mReader;
  std::int32_t mMaximumPid = 0;
  std::vector<ListedProcess> mListed;
  /// Who was born since, as far as it is known.
  std::vector<ListedProcess> mBorn;
  /// The pid given out last when mNewestAt was, and the one before: all up to it have been found.
  std::optional<std::int32_t> mNewest;
  std::optional<std::int32_t> mSettled;
  /// By ProcFiles's clock.
  std::int64_t mNewestAt = 0;
  std::int64_t mListedAt = 0;
  /// How many listings have failed in a row.
  int mFailures = 0;
  /// A process came or went in this pass.
  bool mAreOthers = false;
  /// Names are still on their way.
  bool mIsUnfinished = false;
  /// What the last Refresh has read nobody has heard of, because one had ended.
  bool mIsUntold = false;
  Pass mPass;
  Pass mPassBefore;
};

}  // namespace lurkwell
