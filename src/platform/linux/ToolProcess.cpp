#include "platform/linux/ToolProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/FileDescriptor.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostOutput = 67'108'864;
constexpr std::size_t kPiece = 65536;
/// Of a line; who reads a column keeps less.
constexpr std::size_t kLongestLine = 2048;
// As much as a busy program may have us read at a time.
constexpr int kMostPieces = 16;

/// The environment of every program that is started: a search path and a language, nothing of ours.
char* const* FixedEnvironment() {
  static char path[] = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
  static char language[] = "LC_ALL=C.UTF-8";
  static char* const environment[] = {path, language, nullptr};
  return environment;
}

/// The vector that exec wants; valid as long as the arguments are.
std::vector<char*> ArgumentVector(const std::vector<std::string>& arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  // Its signature is older than const; it changes nothing.
  for (const auto& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

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

SpawnSettings::SpawnSettings() {
  ::posix_spawn_file_actions_init(&mActions);
  ::posix_spawnattr_init(&mAttributes);
  sigset_t signals;
  ::sigemptyset(&signals);
  ::posix_spawnattr_setsigmask(&mAttributes, &signals);
  ::sigfillset(&signals);
  ::posix_spawnattr_setsigdefault(&mAttributes, &signals);
}

SpawnSettings::~SpawnSettings() {
  ::posix_spawnattr_destroy(&mAttributes);
  ::posix_spawn_file_actions_destroy(&mActions);
}

void SpawnSettings::SetOutput(int descriptor) {
  ::posix_spawn_file_actions_adddup2(&mActions, descriptor, STDOUT_FILENO);
}

void SpawnSettings::UseNullDevice(int standard) {
  ::posix_spawn_file_actions_addopen(&mActions, standard, "/dev/null",
                                     standard == STDIN_FILENO ? O_RDONLY : O_WRONLY, 0);
}

void SpawnSettings::SetFolder(const std::string& folder) {
  ::posix_spawn_file_actions_addchdir_np(&mActions, folder.c_str());
}

void SpawnSettings::SetOwnGroup() {
  ::posix_spawnattr_setpgroup(&mAttributes, 0);
  mFlags |= POSIX_SPAWN_SETPGROUP;
}

/// The last of the actions, which the others need descriptors for.
void SpawnSettings::Finish() {
  ::posix_spawn_file_actions_addclosefrom_np(&mActions, STDERR_FILENO + 1);
  ::posix_spawnattr_setflags(&mAttributes, mFlags);
}

int SpawnSettings::StartAsUser(const std::vector<std::string>& arguments,
                               const std::vector<std::string>& variables, pid_t& pid) {
  Finish();
  const auto vector = ArgumentVector(arguments);
  auto environment = ArgumentVector(variables);
  environment.pop_back();
  const auto isSet = [&](std::string_view ours) {
    const auto name = ours.substr(0, ours.find('=') + 1);
    return std::ranges::any_of(variables,
                               [name](const auto& its) { return its.starts_with(name); });
  };
  for (char** ours = ::environ; ours != nullptr && *ours != nullptr; ++ours)
    if (!isSet(*ours)) environment.push_back(*ours);
  environment.push_back(nullptr);
  return ::posix_spawnp(&pid, vector.front(), &mActions, &mAttributes, vector.data(),
                        environment.data());
}

int SpawnSettings::Start(const std::vector<std::string>& arguments, pid_t& pid) {
  Finish();
  const auto vector = ArgumentVector(arguments);
  return ::posix_spawn(&pid, vector.front(), &mActions, &mAttributes, vector.data(),
                       FixedEnvironment());
}

ToolProcess::ToolProcess(const std::vector<std::string>& arguments) {
  std::array<int, 2> ends{-1, -1};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return;
  mPipe = FileDescriptor(ends[0]);
  const FileDescriptor output(ends[1]);
  ::fcntl(mPipe.Get(), F_SETFL, O_NONBLOCK);
  SpawnSettings settings;
  // The pipe first: its descriptor may be one of the two that are opened over.
  settings.SetOutput(output.Get());
  settings.UseNullDevice(STDIN_FILENO);
  settings.UseNullDevice(STDERR_FILENO);
  // An interrupt from the terminal ends the program, not its tools.
  settings.SetOwnGroup();
  pid_t pid = -1;
  if (settings.Start(arguments, pid) != 0) {
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
  std::array<char, kPiece> piece;
  const auto bytes = ::read(mPipe.Get(), piece.data(), piece.size());
  if (bytes < 0 && (errno == EAGAIN || errno == EINTR)) return false;
  mReachedEnd = bytes == 0;
  if (bytes <= 0) {
    mPipe.Close();
    return true;
  }
  TakeIn({piece.data(), static_cast<std::size_t>(bytes)});
  if (mOutput.text.size() > kMostOutput) {
    mOutput.text.resize(kMostOutput);
    mPipe.Close();
    Kill();
  }
  return true;
}

/// A process may have megabytes of arguments, on which no other's column depends.
void ToolProcess::TakeIn(std::string_view piece) {
  while (!piece.empty()) {
    const auto newline = piece.find('\n');
    const auto part = piece.substr(0, newline);
    mOutput.text += part.substr(0, kLongestLine - std::min(mLine, kLongestLine));
    mLine += part.size();
    if (newline == std::string_view::npos) return;
    mOutput.text += '\n';
    mLine = 0;
    piece.remove_prefix(newline + 1);
  }
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

namespace {

// The descriptor after the standard three.
constexpr int kReport = 3;
constexpr int kLongestStartInMilliseconds = 2000;

// Between fork and exec only what may be called in a signal handler: other threads may have held
// any lock when the process was copied.

void Say(int report, int error) {
  // Where this fails, that cannot be told either.
  [[maybe_unused]] const auto written = ::write(report, &error, sizeof error);
}

void ResetSignals() {
  struct sigaction standard {};
  standard.sa_handler = SIG_DFL;
  for (int number = 1; number < NSIG; ++number) ::sigaction(number, &standard, nullptr);
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Runs the program, or says over `report` why not. Never returns.
[[noreturn]] void Become(char* const* arguments, char* const* environment, int report) {
  ResetSignals();
  // All but the standard three and the report, which exec closes.
  if (report != kReport) ::dup3(report, kReport, O_CLOEXEC);
  ::closefrom(kReport + 1);
  ::execve(arguments[0], arguments, environment);
  Say(kReport, errno);
  ::_exit(127);
}

/// The child only puts the program into a session of its own and ends.
[[noreturn]] void Launch(char* const* arguments, char* const* environment, int report) {
  ::setsid();
  const pid_t grandchild = ::_Fork();
  if (grandchild == 0) Become(arguments, environment, report);
  if (grandchild < 0) Say(report, errno);
  ::_exit(0);
}

/// The end of the pipe without a word means that exec has closed it.
bool HasStarted(int report) {
  pollfd wait{report, POLLIN, 0};
  if (::poll(&wait, 1, kLongestStartInMilliseconds) <= 0) return true;
  int error = 0;
  return ::read(report, &error, sizeof error) == 0;
}

}  // namespace

bool StartDetached(const std::vector<std::string>& arguments) {
  if (arguments.empty() || !arguments.front().starts_with('/')) return false;
  std::array<int, 2> ends{-1, -1};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return false;
  const FileDescriptor reading(ends[0]);
  FileDescriptor writing(ends[1]);
  // Never one of the standard three, should ours be closed.
  if (writing.Get() < kReport) {
    writing = FileDescriptor(::fcntl(writing.Get(), F_DUPFD_CLOEXEC, kReport));
    if (!writing.IsOpen()) return false;
  }
  const auto vector = ArgumentVector(arguments);
  char* const* environment = FixedEnvironment();

  const pid_t child = ::_Fork();
  if (child == 0) Launch(vector.data(), environment, writing.Get());
  if (child < 0) return false;
  writing.Close();
  // The child does nothing that could wait.
  while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
  return HasStarted(reading.Get());
}

}  // namespace lurkwell
