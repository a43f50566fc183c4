#pragma once

namespace lurkwell {

/// What can be chosen in a menu, as far as whether it may be chosen depends on something.
enum class MenuCommand {
  kNewCPUHistoryWindow,
  kNewLoggingWindow,
  kKill,
  kHighPriority,
  kNormalPriority,
  kLowPriority,
  kHalt,
  kContinue,
  kHide,
  kBringToFront,
  kReveal,
  kBuiltInColumn,
  kPSAvailableColumn,
  kOther,
};

}  // namespace lurkwell
