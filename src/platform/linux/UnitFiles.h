#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/FileDescriptor.h"
#include "platform/ProcessFigures.h"

namespace lurkwell {

/// A control group with processes, which service managers call a unit.
struct ControlGroup {
  /// From the hierarchy's root, with a slash in front.
  std::string path;
  /// Those of kFromUnit, as of the pass in which they were last asked for.
  ProcessFigures figures;
  std::uint64_t pass = 0;
  /// Another one, and one that no other group has, when a figure is another one.
  std::uint64_t stamp = 0;
};

/// What the control groups of the unified hierarchy count. Each is read once a pass at most,
/// however many processes it has, and forgotten with its last holder. Main thread.
class UnitFiles {
 public:
  /// Where the hierarchy is mounted, or a folder of the same shape. Empty: where this machine has
  /// it.
  explicit UnitFiles(const std::string& root = {});

  /// In place of a stamp where there is no group.
  static constexpr std::uint64_t kStampOfNone = 1;

  void BeginPass();

  /// The group of a process, by the text of its cgroup file; null when it has none.
  std::shared_ptr<ControlGroup> Find(std::string_view text);

  /// The number by which the kernel names the group; nothing when it is gone.
  std::optional<std::uint64_t> NumberOf(const ControlGroup& group) const;

  /// As they are in this pass. The groups that are not counted, or whose files may not be read,
  /// have figures that say so.
  const ProcessFigures& FiguresOf(ControlGroup& group);

 private:
  void Read(ControlGroup& group);

  FileDescriptor mRoot;
  std::uint64_t mPass = 1;
  std::uint64_t mLastStamp = kStampOfNone;
  std::unordered_map<std::string, std::weak_ptr<ControlGroup>> mGroups;
};

/// The folder of the unified hierarchy, or of one of the same shape at `root`; none where there is
/// no such hierarchy. Any thread.
FileDescriptor OpenUnifiedHierarchy(const std::string& root);

/// The path of the group in the unified hierarchy by the text of a cgroup file, with a slash in
/// front; nothing when it is in none that we see. Pure.
std::optional<std::string_view> UnifiedGroupOf(std::string_view text);

/// The sum of NAME=NUMBER over all lines, one of which is a device's.
std::int64_t SumOfNamed(std::string_view text, std::string_view name);

}  // namespace lurkwell
