#pragma once

#include <string>

#include "platform/Scheduler.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// The kernel has no call that means a process for good here, so that between a look at its start
/// and the change another one could get its pid. It is looked for anew before each round of
/// threads.
class LinuxScheduler final : public Scheduler {
 public:
  /// `root` is where proc is mounted.
  explicit LinuxScheduler(std::string root = "/proc") : mRoot(std::move(root)), mFiles(mRoot) {}

  std::optional<SchedulingState> StateOf(ProcessIdentity process) override;
  SchedulingAnswer Change(ProcessIdentity process, const SchedulingChange& change) override;
  ProcessorSet Processors() const override;

 private:
  bool IsThere(ProcessIdentity process);

  std::string mRoot;
  ProcFiles mFiles;
};

}  // namespace lurkwell
