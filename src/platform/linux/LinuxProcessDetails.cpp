#include "platform/linux/LinuxProcessDetails.h"

#include <atomic>
#include <cstddef>
#include <utility>

#include "platform/QuietThread.h"
#include "platform/linux/DetailsReader.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostReaders = 16;

}  // namespace

/// Shared by the thread and the callers that wait for it; the last of them frees it.
struct LinuxProcessDetails::Job {
  /// Set last by the thread, which touches nothing afterwards.
  std::atomic<bool> isDone = false;
  DetailsAnswer answer;
};

class LinuxProcessDetails::Reading final : public DetailsReading {
 public:
  explicit Reading(std::shared_ptr<const Job> job) : mJob(std::move(job)) {}

  std::optional<DetailsAnswer> Take() override {
    if (mJob == nullptr || !mJob->isDone) return std::nullopt;
    return std::exchange(mJob, nullptr)->answer;
  }

 private:
  std::shared_ptr<const Job> mJob;
};

LinuxProcessDetails::LinuxProcessDetails(std::string proc, std::string units)
    : mProc(std::move(proc)), mUnits(std::move(units)) {}

LinuxProcessDetails::~LinuxProcessDetails() = default;

std::unique_ptr<DetailsReading> LinuxProcessDetails::Begin(ProcessIdentity process,
                                                           DetailsKind kind) {
  std::erase_if(mJobs, [](const auto& job) { return job.second->isDone.load(); });
  const Key key{process.pid, process.startStamp, kind};
  if (const auto same = mJobs.find(key); same != mJobs.end())
    return std::make_unique<Reading>(same->second);
  if (mJobs.size() >= kMostReaders) return nullptr;
  const auto job = std::make_shared<Job>();
  auto thread = StartWithoutSignals([job, process, kind, proc = mProc, units = mUnits] {
    job->answer = ReadDetails({proc, units}, process, kind);
    job->isDone = true;
  });
  if (!thread.joinable()) return nullptr;
  thread.detach();
  mJobs.emplace(key, job);
  return std::make_unique<Reading>(job);
}

}  // namespace lurkwell
