#include "platform/linux/BackgroundStart.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/FileDescriptor.h"
#include "platform/linux/ToolProcess.h"

namespace lurkwell {
namespace {

// The descriptor after the standard three.
constexpr int kReport = 3;
constexpr int kLongestStartInMilliseconds = 2000;

// Between fork and exec only what may be called in a signal handler: other threads may have held
// any lock when the process was copied.

void Say(int report, int error) {
  // If nobody can be told, there is nobody to tell that to either.
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
