#include "platform/linux/LinuxNamedPipes.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>

namespace lurkwell {
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

/// The reader of the pipe learns from the lock who writes into it.
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
