#include "platform/linux/ToolProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/FileDescriptor.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostOutput = 67'108'864;
constexpr std::size_t kPiece = 65536;
// As much as a busy program may have us read at a time.
constexpr int kMostPieces = 16;
constexpr const char* kNullDevice = "/dev/null";

/// What becomes of a program's descriptors and signals.
class SpawnSettings {
 public:
  explicit SpawnSettings(int output) {
    ::posix_spawn_file_actions_init(&actions);
    // The pipe first: its descriptor may be one of the two that are opened over.
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, kNullDevice, O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, kNullDevice, O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);

    ::posix_spawnattr_init(&attributes);
    sigset_t none;
    ::sigemptyset(&none);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    sigset_t all;
    ::sigfillset(&all);
    ::posix_spawnattr_setsigdefault(&attributes, &all);
    // In a group of its own, so that an interrupt from the terminal ends the program, not its
    // tools.
    ::posix_spawnattr_setpgroup(&attributes, 0);
    ::posix_spawnattr_setflags(
        &attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
  }
  ~SpawnSettings() {
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
};

/// Waits for one of them to have news; false when the deadline has come.
bool WaitForNews(std::vector<pollfd>& waits, ToolProcess::Deadline deadline) {
  const auto left = deadline - std::chrono::steady_clock::now();
  if (left <= left.zero()) return false;
  // Rounded up, so that the last wait does not end before the deadline.
  const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(left).count();
  const int limit = static_cast<int>(std::min<std::int64_t>(milliseconds, 60'000));
  return ::poll(waits.data(), waits.size(), limit) >= 0 || errno == EINTR;
}

}  // namespace

char* const* FixedEnvironment() {
  static char path[] = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
  static char language[] = "LC_ALL=C.UTF-8";
  static char* const environment[] = {path, language, nullptr};
  return environment;
}

std::vector<char*> ArgumentVector(const std::vector<std::string>& arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  // exec's signature is older than const; it changes nothing.
  for (const auto& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

ToolProcess::ToolProcess(const std::vector<std::string>& arguments) {
  std::array<int, 2> ends{-1, -1};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return;
  mPipe = FileDescriptor(ends[0]);
  const FileDescriptor output(ends[1]);
  ::fcntl(mPipe.Get(), F_SETFL, O_NONBLOCK);
  const SpawnSettings settings(output.Get());
  const auto vector = ArgumentVector(arguments);
  pid_t pid = -1;
  if (::posix_spawn(&pid, vector[0], &settings.actions, &settings.attributes, vector.data(),
                    FixedEnvironment()) != 0) {
    mPipe.Close();
    return;
  }
  mPid = pid;
}

int ToolProcess::WaitDescriptor() const {
  return mPipe.IsOpen() ? mPipe.Get() : mEnd.Get();
}

void ToolProcess::Serve() {
  if (mPipe.IsOpen()) ReadOutput();
  if (mPipe.IsOpen() || Reap()) return;
  // Everything has been said, but the program is not gone yet.
  if (!mEnd.IsOpen()) mEnd = OpenProcessHandle(mPid);
  if (!mEnd.IsOpen()) Kill();
}

void ToolProcess::ReadOutput() {
  for (int pieces = 0; pieces < kMostPieces && mPipe.IsOpen() && ReadPiece(); ++pieces) continue;
}

/// False when there is nothing to be read at present.
bool ToolProcess::ReadPiece() {
  std::string& text = mOutput.text;
  const std::size_t had = text.size();
  text.resize(had + kPiece);
  const auto bytes = ::read(mPipe.Get(), text.data() + had, kPiece);
  text.resize(had + static_cast<std::size_t>(std::max<ssize_t>(bytes, 0)));
  if (bytes < 0 && (errno == EAGAIN || errno == EINTR)) return false;
  mReachedEnd = bytes == 0;
  if (bytes <= 0) {
    mPipe.Close();
  } else if (text.size() > kMostOutput) {
    text.resize(kMostOutput);
    mPipe.Close();
    Kill();
  }
  return true;
}

void ToolProcess::Kill() {
  if (mPid > 0) ::kill(mPid, SIGKILL);
}

bool ToolProcess::Reap() {
  if (mPid <= 0) return true;
  int status = 0;
  const pid_t ended = ::waitpid(mPid, &status, WNOHANG);
  if (ended == 0 || (ended < 0 && errno == EINTR)) return false;
  // With ignored SIGCHLD the kernel has thrown the status away; the end of the output must do.
  mOutput.complete = mReachedEnd && (ended < 0 || WIFEXITED(status));
  mPid = -1;
  mEnd.Close();
  return true;
}

ToolOutput ToolProcess::TakeOutput() {
  return std::move(mOutput);
}

void ServeUntil(std::span<ToolProcess* const> processes, ToolProcess::Deadline deadline) {
  std::vector<pollfd> waits;
  std::vector<ToolProcess*> waiting;
  for (;;) {
    waits.clear();
    waiting.clear();
    for (auto* process : processes) {
      if (!process->IsRunning() || process->WaitDescriptor() < 0) continue;
      waits.push_back({process->WaitDescriptor(), POLLIN, 0});
      waiting.push_back(process);
    }
    if (waits.empty() || !WaitForNews(waits, deadline)) return;
    for (std::size_t i = 0; i < waits.size(); ++i) {
      if (waits[i].revents != 0) waiting[i]->Serve();
    }
  }
}

}  // namespace lurkwell
