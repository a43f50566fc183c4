#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What the desktop asks of /proc. Reads are small and bounded; nothing is kept. Main thread only.
class ProcFolder {
 public:
  explicit ProcFolder(std::string root) : mRoot(std::move(root)) {}

  /// All processes, in no order.
  std::vector<std::int32_t> Pids() const;

  /// The pid that was handed out last, to a process or a thread: while it is the same no
  /// process was born. Nothing where the folder does not tell, or tells of another pid namespace.
  std::optional<std::int32_t> LastPid() const;

  /// The process that has this pid now; nothing when there is none.
  std::optional<ProcessIdentity> Identify(std::int32_t pid) const;

  /// Whether the process is there still, be it a zombie. True also when that cannot be told for the
  /// moment (no descriptors left).
  bool IsThere(const ProcessIdentity& process) const;

  /// A handle that is readable once the process has ended, before it is reaped; none when it has
  /// been, where there are no handles, or where the folder is not the kernel's for the caller.
  FileDescriptor Follow(const ProcessIdentity& process) const;

  /// The name as the kernel has it; "" when it cannot be read.
  std::string CommandName(std::int32_t pid) const;

  /// The program's file, without the kernel's mark of deleted ones; "" when it cannot be read.
  std::string Executable(std::int32_t pid) const;

  /// Whose process it is, by the user who has started it; nothing when that cannot be read.
  std::optional<std::uint32_t> User(std::int32_t pid) const;

  /// The text of the control group file; "" when it cannot be read.
  std::string ControlGroups(std::int32_t pid) const;

 private:
  std::optional<std::string> Read(std::int32_t pid, const char* file) const;
  bool HasOwnPids() const;

  std::string mRoot;
};

/// The serial number of a process as an application: the low bits of its start, then its pid.
/// {0, 0} of none.
constexpr ProcessSerialNumber SerialNumberOf(const ProcessIdentity& process) {
  if (process.pid == kInvalidPID) return {};
  return {static_cast<std::uint32_t>(process.startStamp), static_cast<std::uint32_t>(process.pid)};
}

}  // namespace lurkwell
