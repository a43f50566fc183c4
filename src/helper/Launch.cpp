#include "helper/Launch.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

bool TakePath(const char* argument, char* path) {
  const std::size_t size = strnlen(argument, kLongestPath + 1);
  if (argument[0] != '/' || size > kLongestPath) return false;
  std::memcpy(path, argument, size + 1);
  return true;
}

/// The user id that `variable`, written as NAME=, has in the environment, or `otherwise`.
uid_t UserIn(std::string_view variable, uid_t otherwise) {
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    std::string_view text(*entry);
    std::int32_t number = 0;
    if (TakePrefix(text, variable) && TakeNumber(text, INT32_MAX, number) && text.empty())
      return static_cast<uid_t>(number);
  }
  return otherwise;
}

bool ResetDescriptors(Output output) {
  const int null = open("/dev/null", O_RDWR);
  if (null < 0) return false;
  for (int descriptor = 0; descriptor <= 2; ++descriptor)
    if (descriptor != null && (output == Output::kNone || fcntl(descriptor, F_GETFD) < 0) &&
        dup2(null, descriptor) < 0)
      return false;
  return syscall(SYS_close_range, 3, ~0u, 0) == 0;
}

void ResetSignals() {
  for (int number = 1; number < NSIG; ++number) signal(number, SIG_DFL);
  signal(SIGPIPE, SIG_IGN);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  constexpr itimerval kStopped{};
  for (const auto timer : {ITIMER_REAL, ITIMER_VIRTUAL, ITIMER_PROF})
    setitimer(timer, &kStopped, nullptr);
}

void ResetLimits() {
  for (int resource = 0; resource < RLIM_NLIMITS; ++resource) {
    const auto which = static_cast<__rlimit_resource_t>(resource);
    rlimit limit{};
    if (getrlimit(which, &limit) != 0) continue;
    limit.rlim_cur = limit.rlim_max;
    if (resource == RLIMIT_CORE) limit = {0, 0};
    setrlimit(which, &limit);
  }
}

}  // namespace

bool TakeArguments(int argc, char** argv, Arguments& arguments) {
  return argc == 3 && TakePath(argv[1], arguments.requests) && TakePath(argv[2], arguments.answers);
}

uid_t TakeAskingUser() {
  uid_t user = getuid();
  if (user == 0) user = UserIn("PKEXEC_UID=", UserIn("SUDO_UID=", user));
  environ = nullptr;
  return user;
}

bool ResetProcess(Output output) {
  prctl(PR_SET_DUMPABLE, 0);
  ResetSignals();
  ResetLimits();
  umask(077);
  return ResetDescriptors(output);
}

/// The arguments lie one behind the other, and their memory is what process lists show.
void NameProcess(int argc, char** argv) {
  prctl(PR_SET_NAME, kCommandName.data());
  char* const end = argv[argc - 1] + std::strlen(argv[argc - 1]);
  const auto room = static_cast<std::size_t>(end - argv[0]);
  std::memset(argv[0], 0, room);
  std::memcpy(argv[0], kCommandName.data(), std::min(room, kCommandName.size()));
}

}  // namespace lurkwell::helper
