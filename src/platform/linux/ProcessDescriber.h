#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/ProcessTable.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// Describes processes to people from what stands below /proc. What may hang (a command line, whose
/// memory its process can take away; a directory of users somewhere in the network) is read on a
/// thread of its own, which is waited for a moment; what is missing then is left out, users are
/// numbers. Main thread only.
class ProcessDescriber {
 public:
  explicit ProcessDescriber(std::shared_ptr<ProcFiles> files) : mFiles(std::move(files)) {}

  /// In the order of the pids, without those that are gone.
  std::vector<ProcessDescription> Describe(std::span<const std::int32_t> pids);

 private:
  const std::shared_ptr<ProcFiles> mFiles;
};

}  // namespace lurkwell
