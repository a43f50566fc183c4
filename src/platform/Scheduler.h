#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "platform/ProcessIdentity.h"
#include "platform/ProcessorSet.h"

namespace lurkwell {

/// A policy in the kernel's numbers; the priority is that of real-time policies, 1 to 99, and 0 for
/// the others.
struct SchedulingPolicy {
  std::int32_t policy = 0;
  std::int32_t priority = 0;

  bool operator==(const SchedulingPolicy&) const = default;
};

/// Precedence at disks.
struct IOPriority {
  /// The kernel's number: none (as the nice value says), real time, best effort, idle.
  std::int32_t classNumber = 0;
  /// 0, which comes first, to 7; of real time and best effort only.
  std::int32_t level = 0;

  static constexpr int kClassShift = 13;
  /// As the kernel packs both.
  constexpr std::int32_t Packed() const { return classNumber << kClassShift | level; }
  static constexpr IOPriority OfPacked(std::int32_t packed) {
    return {packed >> kClassShift, packed & 7};
  }
  bool operator==(const IOPriority&) const = default;
};

/// How a process stands at processors and disks.
struct SchedulingState {
  SchedulingPolicy policy;
  IOPriority ioPriority;
  ProcessorSet processors;
};

using SchedulingChange = std::variant<SchedulingPolicy, IOPriority, ProcessorSet>;

enum class SchedulingAnswer : std::uint8_t {
  kDone,
  kGone,        ///< the process has ended
  kRefused,     ///< this user may not, or not without more rights
  kImpossible,  ///< there is no such policy or processor here
};

/// What others get of processors and disks, with the user's own rights. Main thread only.
class Scheduler {
 public:
  virtual ~Scheduler() = default;

  /// Of the first thread; nothing when the process has ended or the kernel does not tell.
  virtual std::optional<SchedulingState> StateOf(ProcessIdentity process) = 0;

  /// Applies the change to all threads of exactly that process. Pids below 2 are refused. What is
  /// refused for one thread may have been done for others.
  virtual SchedulingAnswer Change(ProcessIdentity process, const SchedulingChange& change) = 0;

  /// Those that there are and that this program may use.
  virtual ProcessorSet Processors() const = 0;
};

}  // namespace lurkwell
