#include "platform/linux/ProcessDescriber.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/ProcStat.h"
#include "platform/linux/CommandName.h"
#include "platform/QuietThread.h"
#include "platform/linux/UserNames.h"

namespace lurkwell {
namespace {

constexpr auto kDescriptionPatience = std::chrono::milliseconds(300);
constexpr int kMostHangingDescribers = 4;
constexpr std::size_t kLongestCommandLine = 4096;
/// Field 9 of the stat file.
constexpr std::uint64_t kIsKernelThread = 0x0020'0000;

std::atomic<int> gReaders = 0;

template <typename Number>
std::optional<Number> NthNumber(std::string_view text, int n) {
  for (; n >= 0; --n) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const auto end = std::min(text.find_first_of(" \t\n"), text.size());
    Number number = 0;
    if (n == 0 && std::from_chars(text.data(), text.data() + end, number).ec == std::errc())
      return number;
    text.remove_prefix(end);
  }
  return std::nullopt;
}

std::string ReadFile(ProcFiles& files, int folder, const char* name) {
  std::string text(kLongestCommandLine, '\0');
  const auto bytes = files.ReadIn(folder, name, text);
  text.resize(bytes > 0 ? static_cast<std::size_t>(bytes) : 0);
  return text;
}

/// One who is to be described further.
struct Reading {
  ProcessDescription description;
  std::optional<::uid_t> user;
};

std::optional<Reading> ReadWhatIsQuick(ProcFiles& files, std::int32_t pid) {
  Reading reading;
  const auto folder = files.OpenFolder(pid);
  if (!folder.IsOpen()) return std::nullopt;
  const auto text = ReadFile(files, folder.Get(), "stat");
  const auto stat = ParseProcStat(text);
  if (!stat || stat->pid != pid) return std::nullopt;
  auto& description = reading.description;
  description.process = {pid, stat->startStamp};
  description.nice = stat->nice;
  description.isStopped = stat->state == 'T';
  description.isKernelThread =
      (NthNumber<std::uint64_t>(stat->fields, 6).value_or(0) & kIsKernelThread) != 0;
  const auto status = ReadFile(files, folder.Get(), "status");
  const auto line = status.find("\nUid:");
  if (line != std::string::npos)
    reading.user = NthNumber<::uid_t>(std::string_view(status).substr(line + 5), 1);
  description.isOwn = reading.user == ::geteuid();
  if (reading.user) description.owner = std::to_string(*reading.user);
  return reading;
}

/// What the main thread and the reader share; the last of them frees it.
struct Job {
  std::shared_ptr<ProcFiles> files;
  std::mutex mutex;
  std::condition_variable news;
  /// Owners and command lines are inside the mutex, the rest does not change.
  std::vector<Reading> readings;
  bool isDone = false;

  void Run() {
    std::map<::uid_t, std::string> names;
    for (auto& reading : readings)
      if (reading.user && !names.contains(*reading.user))
        names[*reading.user] = NameOfUser(*reading.user);
    {
      const std::lock_guard lock(mutex);
      for (auto& reading : readings)
        if (reading.user) reading.description.owner = names[*reading.user];
    }
    for (auto& reading : readings) {
      auto commandLine = ReadCommandLine(*files, reading.description.process.pid,
                                         reading.description.process.startStamp);
      const std::lock_guard lock(mutex);
      reading.description.commandLine = std::move(commandLine);
    }
    const std::lock_guard lock(mutex);
    isDone = true;
    news.notify_all();
  }
};

}  // namespace

std::vector<ProcessDescription> ProcessDescriber::Describe(std::span<const std::int32_t> pids) {
  const auto job = std::make_shared<Job>();
  job->files = mFiles;
  for (const auto pid : pids)
    if (auto reading = ReadWhatIsQuick(*mFiles, pid)) job->readings.push_back(std::move(*reading));
  if (gReaders < kMostHangingDescribers) {
    ++gReaders;
    auto reader = StartWithoutSignals([job] {
      job->Run();
      --gReaders;
    });
    if (reader.joinable()) {
      reader.detach();
    } else {
      --gReaders;
      job->isDone = true;
    }
    std::unique_lock lock(job->mutex);
    job->news.wait_for(lock, kDescriptionPatience, [&] { return job->isDone; });
  }
  const std::lock_guard lock(job->mutex);
  std::vector<ProcessDescription> descriptions;
  descriptions.reserve(job->readings.size());
  for (const auto& reading : job->readings) descriptions.push_back(reading.description);
  return descriptions;
}

}  // namespace lurkwell
