#include "platform/linux/ProcessDescriber.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <condition_variable>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Mutex.h"
#include "platform/ProcStat.h"
#include "platform/QuietThread.h"
#include "platform/linux/NameReader.h"
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

/// A process that is to be described further.
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
  std::string executable(kLongestCommandLine, '\0');
  const auto length = files.ReadLinkIn(folder.Get(), "exe", executable);
  if (length > 0) description.executable = executable.substr(0, static_cast<std::size_t>(length));
  const auto status = ReadFile(files, folder.Get(), "status");
  const auto line = status.find("\nUid:");
  if (line != std::string::npos)
    reading.user = NthNumber<::uid_t>(std::string_view(status).substr(line + 5), 1);
  description.isOwn = reading.user == ::geteuid();
  if (reading.user) description.owner = std::to_string(*reading.user);
  return reading;
}

/// What the main thread and the reader share; the last of them frees it.
class Job {
 public:
  /// What is quick is read at once.
  Job(std::shared_ptr<ProcFiles> files, std::span<const std::int32_t> pids)
      : mFiles(std::move(files)) {
    for (const auto pid : pids) {
      auto reading = ReadWhatIsQuick(*mFiles, pid);
      if (!reading) continue;
      mAsked.push_back({reading->description.process, reading->user});
      mDescriptions.push_back(std::move(reading->description));
    }
  }

  /// The rest: owners' names and command lines. The reader's thread.
  void Run() {
    std::map<::uid_t, std::string> names;
    for (const auto& asked : mAsked)
      if (asked.user && !names.contains(*asked.user)) names[*asked.user] = NameOfUser(*asked.user);
    {
      const MutexLock lock(mMutex);
      for (std::size_t i = 0; i < mAsked.size(); ++i)
        if (mAsked[i].user) mDescriptions[i].owner = names[*mAsked[i].user];
    }
    for (std::size_t i = 0; i < mAsked.size(); ++i) {
      const auto& process = mAsked[i].process;
      auto commandLine = ReadCommandLine(*mFiles, process.pid, process.startStamp);
      const MutexLock lock(mMutex);
      mDescriptions[i].commandLine = std::move(commandLine);
    }
    const MutexLock lock(mMutex);
    mIsDone = true;
    mNews.notify_all();
  }

  /// Gives it a moment.
  void Await() {
    MutexLock lock(mMutex);
    lock.WaitFor(mNews, kDescriptionPatience,
                 [this]() LURKWELL_REQUIRES(mMutex) { return mIsDone; });
  }

  /// As far as they have come.
  std::vector<ProcessDescription> Descriptions() {
    const MutexLock lock(mMutex);
    return mDescriptions;
  }

 private:
  struct Asked {
    ProcessIdentity process;
    std::optional<::uid_t> user;
  };

  const std::shared_ptr<ProcFiles> mFiles;
  /// One for each description.
  std::vector<Asked> mAsked;
  Mutex mMutex;
  std::condition_variable mNews;
  std::vector<ProcessDescription> mDescriptions LURKWELL_GUARDED_BY(mMutex);
  bool mIsDone LURKWELL_GUARDED_BY(mMutex) = false;
};

}  // namespace

std::vector<ProcessDescription> ProcessDescriber::Describe(std::span<const std::int32_t> pids) {
  const auto job = std::make_shared<Job>(mFiles, pids);
  if (gReaders < kMostHangingDescribers) {
    ++gReaders;
    auto reader = StartWithoutSignals([job] {
      job->Run();
      --gReaders;
    });
    if (reader.joinable()) {
      reader.detach();
      job->Await();
    } else {
      --gReaders;
    }
  }
  return job->Descriptions();
}

}  // namespace lurkwell
