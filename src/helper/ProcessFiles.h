#pragma once

#include <cstddef>
#include <cstdint>

#include "helper/System.h"

namespace lurkwell::helper {

/// The files of a process that figures come from.
enum ProcessFile : unsigned { kStatFile, kStatusFile, kIoFile, kProcessFileCount };

/// What /proc/PID/stat says of a process, with sizes in bytes and pages.
struct StatFigures {
  char state;
  std::uint32_t policy;
  std::uint64_t minorFaults, majorFaults, userTicks, systemTicks, virtualSize, residentPages;
};

/// What the helper remembers of the processes it reported: when each started, its figures, and
/// descriptors of its files, which cost less to read again than to open again. Fixed size: a
/// machine with more processes than places forgets some, and then reads them as if for the first
/// time.
class ProcessFiles {
 public:
  struct Place {
    std::int32_t pid;
    /// The moment of the last use, in units of kAgeUnit milliseconds.
    std::uint32_t used;
    /// Start of the process in ticks since boot as last reported; 0 when never reported.
    std::uint64_t start;
    /// Descriptor + 1, 0 for none, kClosedToUs for a file that we may not read.
    std::int32_t files[kProcessFileCount];
  };

  /// The figures of a process as last read.
  struct Memory : StatFigures {
    /// 0 for none.
    std::int32_t pid;
    /// What was read, and how many more times it may be given.
    std::uint8_t groups, uses;
    /// The time on processors before all was read, and the sums of calls and of context switches.
    std::uint64_t runTime, calls, switches;
  };

  /// `system` and `surroundings` outlive this.
  void Begin(const System& system, const Surroundings& surroundings);

  /// The place of `pid`, taken from a process not heard of for longest when it has none.
  Place& PlaceOf(std::int32_t pid);

  /// The only place for figures of `pid`, which may hold those of another process.
  Memory& MemoryOf(std::int32_t pid) { return mMemories[pid % kMemories]; }

  /// The start last reported for `pid`, 0 when there is no memory of it.
  std::uint64_t StartOf(std::int32_t pid) const;

  /// A descriptor of the process's file, opened when it is not open yet; negative on failure, and
  /// without a try when the file could not be read the last time. To be given back with Release.
  int Open(Place& place, ProcessFile file);

  /// Closes `descriptor` unless the place keeps it and it was of use.
  void Release(Place& place, ProcessFile file, int descriptor, bool wasRead);

  /// Closes all that the place keeps.
  void CloseAll(Place& place);

  /// Closes what some places have not used for long; to be called once a request.
  void Sweep();

 private:
  static constexpr std::int32_t kClosedToUs = -1;
  static constexpr std::size_t kWays = 4;
  static constexpr std::size_t kPlaces = 16384;
  static constexpr std::int32_t kMemories = 8192;
  static constexpr std::size_t kSwept = 16;
  static constexpr std::uint32_t kAgeUnit = 1024;
  static constexpr std::uint32_t kLongestAge = 30;

  static std::size_t FirstPlace(std::int32_t pid) {
    return static_cast<std::size_t>(pid) * kWays % kPlaces;
  }
  void Forget(std::int32_t& kept);
  std::uint32_t Now() const { return mSystem->milliseconds() / kAgeUnit; }

  const System* mSystem;
  std::uint32_t mLimit;
  std::uint32_t mKept;
  std::uint32_t mNow;
  std::size_t mHand;
  Place mPlaces[kPlaces];
  Memory mMemories[kMemories];
};

/// Opens /proc/PID/NAME.
int OpenProcessFile(const System& system, std::int32_t pid, ProcessFile file);

}  // namespace lurkwell::helper
