#include "platform/linux/LinuxNamedPipes.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

namespace lurkwell {
namespace {

// The helper takes paths of up to 1,023 bytes; this leaves room for a folder and a pipe below it.
constexpr std::size_t kLongestParent = 960;
constexpr std::string_view kPattern = "lurkwell-XXXXXX";
constexpr mode_t kMode = 0700;

/// Whether a folder of ours in there can be exchanged by root and ourselves alone.
bool IsSafeParent(const std::string& path) {
  struct stat info {};
  if (path.empty() || path[0] != '/' || path.size() > kLongestParent) return false;
  if (::stat(path.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) return false;
  if (info.st_uid != 0 && info.st_uid != ::geteuid()) return false;
  return (info.st_mode & (S_IWGRP | S_IWOTH)) == 0 || (info.st_mode & S_ISVTX) != 0;
}

/// An open folder of the user's alone that no other program has locked, or none.
FileDescriptor Lock(int parent, const std::string& name) {
  FileDescriptor folder(
      ::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat info {};
  if (::fstat(folder.Get(), &info) != 0 || info.st_uid != ::geteuid() ||
      (info.st_mode & 07777) != kMode || ::flock(folder.Get(), LOCK_EX | LOCK_NB) != 0)
    folder.Close();
  return folder;
}

std::vector<std::string> NamesIn(int folder) {
  std::vector<std::string> names;
  const int again = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(again), ::closedir);
  while (const dirent* entry = listing == nullptr ? nullptr : ::readdir(listing.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  return names;
}

void RemoveIfLeft(int parent, const std::string& name) {
  const FileDescriptor folder = Lock(parent, name);
  if (!folder.IsOpen()) return;
  const auto pipes = NamesIn(folder.Get());
  const auto isPipe = [&](const std::string& pipe) {
    struct stat info {};
    return ::fstatat(folder.Get(), pipe.c_str(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISFIFO(info.st_mode);
  };
  // An empty one may have been made just now, and not been locked yet.
  if (pipes.empty() || !std::ranges::all_of(pipes, isPipe)) return;
  for (const auto& pipe : pipes) ::unlinkat(folder.Get(), pipe.c_str(), 0);
  ::unlinkat(parent, name.c_str(), AT_REMOVEDIR);
}

void RemoveLeftFolders(const char* path) {
  const FileDescriptor parent(::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  const auto prefix = kPattern.substr(0, kPattern.find('X'));
  for (const auto& name : NamesIn(parent.Get()))
    if (name.size() == kPattern.size() && name.starts_with(prefix))
      RemoveIfLeft(parent.Get(), name);
}

std::string MakePrivateFolder() {
  for (const char* variable : {"XDG_RUNTIME_DIR", "TMPDIR", ""}) {
    const char* value = *variable == '\0' ? "/tmp" : ::getenv(variable);
    if (value == nullptr || !IsSafeParent(value)) continue;
    RemoveLeftFolders(value);
    std::string path = std::string(value) + '/' + std::string(kPattern);
    // Made with mode 0700. What an access list of the folder above grants by default would count
    // for the pipes, whatever their mode.
    if (::mkdtemp(path.data()) == nullptr) continue;
    ::removexattr(path.c_str(), "system.posix_acl_default");
    return path;
  }
  return {};
}

}  // namespace

bool PipeFolder::Make() {
  if (!mPath.empty() && ::access(mPath.c_str(), W_OK | X_OK) == 0) return true;
  mPath = MakePrivateFolder();
  mLock = mPath.empty() ? FileDescriptor() : Lock(AT_FDCWD, mPath);
  return !mPath.empty();
}

void PipeFolder::RemoveIfEmpty() {
  if (mPath.empty() || ::rmdir(mPath.c_str()) != 0) return;
  mPath.clear();
  mLock.Close();
}

namespace {

using std::chrono::steady_clock;

constexpr int kLowestCapacity = 8192;

std::string RandomSuffix() {
  constexpr std::string_view kLetters =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_-abcdefghijklmnopqrstuvwxyz";
  unsigned char bytes[8] = {};
  if (::getrandom(bytes, sizeof bytes, 0) != sizeof bytes) return {};
  std::string suffix;
  for (const unsigned char byte : bytes) suffix += kLetters[byte % kLetters.size()];
  return suffix;
}

int MillisecondsUntil(steady_clock::time_point deadline) {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(deadline - steady_clock::now()).count();
  return left > 0 ? static_cast<int>(left) : 0;
}

/// Whether the descriptor had news before the deadline; with errno set when not.
bool WaitFor(int descriptor, short events, steady_clock::time_point deadline) {
  for (;;) {
    pollfd wait{descriptor, events, 0};
    const int ready = ::poll(&wait, 1, MillisecondsUntil(deadline));
    if (ready > 0) return true;
    if (ready == 0) errno = ETIMEDOUT;
    if (ready == 0 || errno != EINTR) return false;
  }
}

/// The reader of the pipe learns from the lock which process writes.
void SignIn(int pipe) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  // Without it he does not know us, and would halt us if asked to.
  ::fcntl(pipe, F_SETLK, &lock);
}

/// The descriptor of one end, if it is a pipe that holds a whole answer; -1 and errno if not.
int OpenEnd(const std::string& path, int flags) {
  const int pipe = ::open(path.c_str(), flags | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
  if (pipe < 0) return -1;
  struct stat info {};
  if (::fstat(pipe, &info) == 0 && S_ISFIFO(info.st_mode) &&
      ::fcntl(pipe, F_GETPIPE_SZ) >= kLowestCapacity) {
    return pipe;
  }
  ::close(pipe);
  errno = EINVAL;
  return -1;
}

}  // namespace

LinuxNamedPipes::LinuxNamedPipes() {
  struct sigaction now {};
  if (::sigaction(SIGPIPE, nullptr, &now) == 0 && now.sa_handler == SIG_DFL)
    ::signal(SIGPIPE, SIG_IGN);
}

std::string LinuxNamedPipes::TemporaryName(std::string_view prefix) {
  const std::string suffix = RandomSuffix();
  if (suffix.empty() || !mFolder.Make()) return {};
  return mFolder.Path() + '/' + std::string(prefix) + suffix;
}

bool LinuxNamedPipes::MakeFifo(const std::string& path, unsigned mode) {
  // The helper takes no pipe that others could open, so nobody gets more than the owner.
  const mode_t before = ::umask(077);
  const bool made = ::mkfifo(path.c_str(), mode & 07777) == 0;
  ::umask(before);
  return made;
}

int LinuxNamedPipes::OpenForWriting(const std::string& path, Milliseconds limit) {
  constexpr std::chrono::microseconds kShortestPause{100}, kLongestPause{5000};
  const auto deadline = steady_clock::now() + limit;
  for (auto pause = kShortestPause;; pause = std::min(2 * pause, kLongestPause)) {
    const int pipe = OpenEnd(path, O_WRONLY);
    if (pipe >= 0) {
      SignIn(pipe);
      return pipe;
    }
    // ENXIO: there is no reader yet.
    if (errno != ENXIO && errno != EINTR) return -1;
    if (steady_clock::now() >= deadline) return -1;
    std::this_thread::sleep_for(pause);
  }
}

int LinuxNamedPipes::OpenForReading(const std::string& path, Milliseconds) {
  // Needs no writer: one that comes later is waited for by Read.
  return OpenEnd(path, O_RDONLY);
}

std::ptrdiff_t LinuxNamedPipes::Write(int descriptor, std::string_view text, Milliseconds limit) {
  const auto deadline = steady_clock::now() + limit;
  for (;;) {
    const ssize_t size = ::write(descriptor, text.data(), text.size());
    if (size >= 0) return size;
    if (errno == EINTR) continue;
    if (errno != EAGAIN || !WaitFor(descriptor, POLLOUT, deadline)) return -1;
    if (steady_clock::now() >= deadline) return -1;
  }
}

std::ptrdiff_t LinuxNamedPipes::Read(int descriptor, std::span<char> buffer, Milliseconds limit) {
  if (limit <= Milliseconds(0)) {
    // A look at a pipe that is most likely empty is one call. That it gives 0 does not tell whether
    // the other end has closed or never opened.
    const ssize_t size = ::read(descriptor, buffer.data(), buffer.size());
    if (size > 0) return size;
    if (size < 0 && errno == EAGAIN) {
      errno = ETIMEDOUT;
      return -1;
    }
  }
  const auto deadline = steady_clock::now() + limit;
  for (;;) {
    if (!WaitFor(descriptor, POLLIN, deadline)) return -1;
    const ssize_t size = ::read(descriptor, buffer.data(), buffer.size());
    if (size >= 0) return size;
    if (errno != EINTR && errno != EAGAIN) return -1;
    if (steady_clock::now() >= deadline) return -1;
  }
}

int LinuxNamedPipes::Close(int descriptor) {
  return descriptor < 0 ? -1 : ::close(descriptor);
}

void LinuxNamedPipes::Unlink(const std::string& path) {
  ::unlink(path.c_str());
  mFolder.RemoveIfEmpty();
}

}  // namespace lurkwell
