#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/ProcessorSet.h"

namespace lurkwell {

/// What tells of a process without a look at any file, to everybody. `pid` is that of the caller's
/// own pid namespace. Nothing when there is no such process and where the calls are not allowed.
/// Any thread.

/// All its threads' time on a processor, ended ones' too, in nanoseconds. While it is the same none
/// of them has run.
std::optional<std::uint64_t> ReadRunTime(std::int32_t pid);

/// How it is scheduled, which others can change.
struct Scheduling {
  std::uint32_t policy = 0;
  std::int32_t nice = 0;

  bool operator==(const Scheduling&) const = default;
};

/// Nothing for real-time processes, too, whose nice value the kernel does not tell here.
std::optional<Scheduling> ReadScheduling(std::int32_t pid);

/// Where its first thread may run and how it stands at the disks, which others can change.
struct Assignment {
  ProcessorSet processors;
  /// Class and level, as the kernel packs them.
  std::int32_t ioPriority = 0;

  bool operator==(const Assignment&) const = default;
};

std::optional<Assignment> ReadAssignment(std::int32_t pid);

/// A process as the listing names it.
struct ListedProcess {
  std::int32_t pid = 0;
  /// The number of its folder. In the kernel's tree a process that has got the pid of another has
  /// another number, and that of the same changes at most when the kernel is short of memory.
  std::uint64_t folder = 0;

  friend auto operator<=>(const ListedProcess&, const ListedProcess&) = default;
};

/// The few ways in which the process table touches the proc file system; virtual, so that a test
/// can make processes vanish between any two of them. Main thread only, but for OpenFolder, ReadIn
/// and ReadLinkIn. A failed open gives no descriptor and leaves errno; a failed read gives -1 and
/// leaves errno.
class ProcFiles {
 public:
  /// `root` is "/proc" or a made-up tree of the same shape. A root that cannot be opened makes
  /// every call fail.
  explicit ProcFiles(const std::string& root);
  virtual ~ProcFiles() = default;
  ProcFiles(const ProcFiles&) = delete;
  ProcFiles& operator=(const ProcFiles&) = delete;

  /// An open file or folder of a process goes on meaning that very process, and fails once it has
  /// ended, whatever becomes of its pid. True of the kernel's tree, not of a made-up one.
  virtual bool FollowsProcesses() const { return mIsKernelTree; }

  /// Whether no access can ever hang. What a process has mapped into its arguments can.
  virtual bool NeverBlocks() const { return false; }

  /// Replaces `processes` by all that are listed, in the order of the listing. False when the root
  /// cannot be read.
  virtual bool List(std::vector<ListedProcess>& processes);

  /// The pid that was handed out last, to a process or a thread: while it is the same no
  /// process was born. Nothing where the tree does not tell.
  virtual std::optional<std::int32_t> LastPid();

  /// Has the kernel make room for so many descriptors at once: a table that doubles again and again
  /// makes a program of several threads wait for milliseconds each time. What the limit does not
  /// allow is left.
  void MakeRoomForDescriptors(std::size_t count) const;

  /// ReadRunTime, ReadScheduling and ReadAssignment where the tree's pids are those of the calling
  /// process's namespace, else nothing.
  virtual std::optional<std::uint64_t> RunTime(std::int32_t pid);
  virtual std::optional<Scheduling> SchedulingOf(std::int32_t pid);
  virtual std::optional<Assignment> AssignmentOf(std::int32_t pid);

  /// Milliseconds from some beginning, while the machine is awake.
  virtual std::int64_t Milliseconds() const;

  /// Since the start of the machine, asleep or awake.
  virtual std::int64_t MillisecondsSinceBoot() const;

  /// PID/stat, and the folder PID, for what follows.
  virtual FileDescriptor OpenStat(std::int32_t pid);
  virtual FileDescriptor OpenFolder(std::int32_t pid);

  /// The beginning of an open file; the bytes read.
  virtual std::ptrdiff_t Read(int file, std::span<char> buffer);

  /// The beginning of the file `name` in an open folder, and where the link `name` in it points.
  virtual std::ptrdiff_t ReadIn(int folder, const char* name, std::span<char> buffer);
  virtual std::ptrdiff_t ReadLinkIn(int folder, const char* name, std::span<char> buffer);

  /// Replaces `threads` by those of the process whose folder is open. False when they cannot be
  /// listed.
  virtual bool ListThreads(int folder, std::vector<std::int32_t>& threads);

  /// Replaces `numbers` by the entries of the folder `name` in an open folder that are numbers,
  /// four million at most. False, and errno, when it cannot be listed.
  virtual bool ListNumbers(int folder, const char* name, std::vector<std::int32_t>& numbers);

  /// A whole file below the root, at most 4 MiB of it; empty on failure.
  virtual std::string ReadText(const char* path);

 private:
  bool ListFolder(const FileDescriptor& folder, std::vector<ListedProcess>& listed);

  FileDescriptor mRoot;
  /// Kept open: it is read before every beat.
  FileDescriptor mLoad;
  bool mIsKernelTree = false;
  bool mHasOwnPids = false;
  std::vector<char> mListing;
  std::vector<ListedProcess> mListedNumbers;
};

/// The start, in ticks since boot, of the process that has `pid` now; 0 when there is none or it
/// cannot be told.
std::uint64_t CurrentStartStamp(ProcFiles& files, std::int32_t pid);

/// How many descriptors this process may have open (the soft limit of RLIMIT_NOFILE). Any thread.
std::size_t DescriptorLimit();

/// Raises the soft limit to the hard one, so that the process table can keep more files open. The
/// program calls it once, at its start; programs it starts inherit the raised limit. False when the
/// kernel refused.
bool RaiseDescriptorLimit();

}  // namespace lurkwell
