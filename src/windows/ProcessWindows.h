#pragma once

#include <cstdint>
#include <vector>

#include "windows/MonitorWindows.h"

namespace lurkwell {

/// Opens the windows that tell all about one process. Main thread.
class ProcessWindows {
 public:
  virtual ~ProcessWindows() = default;
  /// Of the process that has `pid` now: the window that is open comes to the front, or a new one is
  /// made. False for what is no process of the kernel: the idle task, a guest, one that has ended.
  virtual bool ShowDetails(std::int32_t pid) = 0;
  /// The oldest first.
  virtual std::vector<MonitorWindows::OpenWindow> OpenWindows() const = 0;
};

}  // namespace lurkwell
