#pragma once

#include <cstdint>

namespace lurkwell {

/// Questions about the processes that the consolidator knows. Any thread.

/// Whether the parent of `pid` is `candidate`. The process must be known.
bool PidIsParent(std::int32_t pid, std::int32_t candidate);

/// Whether `candidate` is the parent of `pid`, or its parent's parent and so on. A process is not
/// its own ancestor. The invalid pid, on either side, and an unknown `pid` are fatal assertions.
bool PidIsAncestor(std::int32_t pid, std::int32_t candidate);

/// How often the user has asked to kill the process; 0 for an unknown one.
std::int32_t GetPidsKillCount(std::int32_t pid);
void IncrementPidsKillCount(std::int32_t pid);

/// Which processes a list of pids takes.
enum PidBlobKind : int {
  kPidBlobAll = 0,
  kPidBlobChildrenOf = 1,     ///< those whose parent is the argument
  kPidBlobDescendantsOf = 2,  ///< those of which the argument is an ancestor
};

/// The pids of all valid processes of that kind, oldest record first, in an array for the caller,
/// who gives it back to DeleteBlobOfValidPIDs; `count` receives its length. A null `argument`
/// stands for kInvalidPID.
std::int32_t* CreateBlobOfValidPIDs(std::int32_t* count, int kind, const std::int32_t* argument);
void DeleteBlobOfValidPIDs(std::int32_t* blob);

/// A list of pids that frees itself.
class PidBlob {
 public:
  explicit PidBlob(int kind = kPidBlobAll, const std::int32_t* argument = nullptr)
      : mPids(CreateBlobOfValidPIDs(&mCount, kind, argument)) {}
  ~PidBlob() { DeleteBlobOfValidPIDs(mPids); }
  PidBlob(const PidBlob&) = delete;
  PidBlob& operator=(const PidBlob&) = delete;

  const std::int32_t* begin() const { return mPids; }
  const std::int32_t* end() const { return mPids + mCount; }
  std::int32_t size() const { return mCount; }

 private:
  std::int32_t mCount = 0;
  std::int32_t* mPids;
};

/// Process and pid are two things: the start stamp of the process that holds `pid` at present, 0
/// when it is not known. For actions on a process that was shown.
std::uint64_t GetPidsStartStamp(std::int32_t pid);

/// Whether the CPU times of a process were read in the latest heartbeat. Where they were not, which
/// happens when they could not be read, they are those of an earlier one and no share comes out of
/// them. Always true of what the kernel does not know.
bool AreCPUTimesFresh(std::int32_t pid);

}  // namespace lurkwell
