#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What can be read of one process beside its figures. All names, values and paths are others'
/// bytes.

struct ThreadDetails {
  std::int32_t tid = 0;
  std::string name;
  /// The kernel's letter, as StateInWords takes it.
  char state = '?';
  /// Processor time so far, user and system, in microseconds.
  std::int64_t cpuTime = 0;
  /// The processor it ran on last.
  std::int32_t processor = 0;
  std::int32_t nice = 0;
  /// As in ProcessIdentity.
  std::uint64_t startStamp = 0;
};

/// An open file, socket or anything else that has a descriptor.
struct DescriptorDetails {
  std::int32_t number = 0;
  /// "file", "directory", "device", "pipe", "TCP", "eventfd" and so on.
  std::string kind;
  /// A path, or the addresses of a socket with its state.
  std::string target;
  /// Bytes from the beginning; nothing where that has no meaning.
  std::optional<std::int64_t> position;
  /// "read", "write", "append" and so on, with blanks between them.
  std::string flags;
};

struct MappingDetails {
  std::uint64_t begin = 0;
  /// Behind its last byte.
  std::uint64_t end = 0;
  /// As the kernel writes them: "rw-p".
  std::string permissions;
  /// In bytes.
  std::int64_t resident = 0;
  std::int64_t proportional = 0;
  std::int64_t swapped = 0;
  /// Of the beginning in the file, in bytes.
  std::int64_t offset = 0;
  /// A path, or what the kernel calls it: "[heap]"; empty for anonymous memory.
  std::string file;
};

struct VariableDetails {
  /// Empty for a line without "=".
  std::string name;
  std::string value;
};

struct LimitDetails {
  /// As the kernel calls it: "Max open files".
  std::string name;
  /// Nothing: unlimited.
  std::optional<std::int64_t> soft;
  std::optional<std::int64_t> hard;
  /// "bytes", "us" and so on; empty for a plain number.
  std::string unit;
};

/// One figure of a control group, in use or limited.
struct ControlGroupDetails {
  /// The group's path from the root of the hierarchy, with a slash in front.
  std::string group;
  /// As the kernel calls its file: "memory", "memory.high", "cpu.stat nr_throttled".
  std::string figure;
  enum class Unit : std::uint8_t { kNumber, kBytes, kMicroseconds, kShareOfProcessor };
  Unit unit = Unit::kNumber;
  /// Shares are thousandths of one processor.
  std::optional<std::int64_t> inUse;
  /// Nothing: it is not limited there, or is no thing to be limited.
  std::optional<std::int64_t> limit;
};

/// Each is read by itself, in the order of the lists below.
enum class DetailsKind : std::uint8_t {
  kThreads,
  kDescriptors,
  kMappings,
  kEnvironment,  ///< as it was when the program was started
  kLimits,
  kControlGroup,  ///< its own first, then those above it that limit anything
};
inline constexpr std::size_t kDetailsKinds = 6;

using DetailsList = std::variant<std::vector<ThreadDetails>, std::vector<DescriptorDetails>,
                                 std::vector<MappingDetails>, std::vector<VariableDetails>,
                                 std::vector<LimitDetails>, std::vector<ControlGroupDetails>>;

enum class DetailsState : std::uint8_t {
  kKnown,
  kRefused,     ///< the machine would tell its owner, or root
  kKeptSecret,  ///< it is the user's own and all the same refused: it is not to be looked into
  kNone,        ///< this machine has nothing of the kind
  kEnded,       ///< there is no such process any more
  kFailed,      ///< the machine is short of something at the moment
};

struct DetailsAnswer {
  DetailsState state = DetailsState::kKnown;
  /// Of the kind that was asked for; empty unless known. At most kMostDetails, the first ones.
  DetailsList list;
  /// How many there are, shown or not.
  std::int64_t count = 0;
  /// When it was read, by a clock that neither steps nor stops, and how long that took, in
  /// microseconds.
  std::int64_t readAt = 0;
  std::int64_t taken = 0;
};

inline constexpr std::size_t kMostDetails = 10'000;

/// A question under way. Deleting it gives the question up and does not wait. Main thread only.
class DetailsReading {
 public:
  virtual ~DetailsReading() = default;
  /// The answer, once; nothing before there is one.
  virtual std::optional<DetailsAnswer> Take() = 0;
};

/// Reads the details of single processes in the background. Main thread only; nothing waits for the
/// machine.
class ProcessDetails {
 public:
  virtual ~ProcessDetails() = default;

  /// Begins to read. A process whose pid is another's by now has ended. Null when too much that was
  /// asked before hangs.
  virtual std::unique_ptr<DetailsReading> Begin(ProcessIdentity process, DetailsKind kind) = 0;
};

}  // namespace lurkwell
