#pragma once

#include <map>
#include <memory>
#include <string>
#include <tuple>

#include "platform/ProcessDetails.h"

namespace lurkwell {

/// Reads each on a thread of its own, since memory that is locked, or hangs on a file system that
/// does not answer, may keep any of them for ever. A caller that asks again for what is being read
/// waits for the same thread; there are sixteen at most.
class LinuxProcessDetails final : public ProcessDetails {
 public:
  /// Folders like /proc and that of the control groups (empty: where this machine has it).
  explicit LinuxProcessDetails(std::string proc = "/proc", std::string units = {});
  /// Waits for no reading.
  ~LinuxProcessDetails() override;

  std::unique_ptr<DetailsReading> Begin(ProcessIdentity process, DetailsKind kind) override;

 private:
  struct Job;
  class Reading;
  using Key = std::tuple<std::int32_t, std::uint64_t, DetailsKind>;

  std::string mProc;
  std::string mUnits;
  /// Those that no caller waits for any more stay until they end.
  std::map<Key, std::shared_ptr<Job>> mJobs;
};

}  // namespace lurkwell
