#include <errno.h>
#include <fcntl.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/un.h>
#include <time.h>
#include <unistd.h>

#include "helper/FolderNames.h"
#include "helper/Protocol.h"
#include "helper/System.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

int gLog = -1;

template <typename Result>
Result OrError(Result result) {
  return result < 0 ? static_cast<Result>(-errno) : result;
}

int OpenProcess(std::int32_t pid) {
  return OrError(static_cast<int>(syscall(SYS_pidfd_open, pid, 0)));
}

int SignalProcess(int process, int signal) {
  return OrError(static_cast<int>(syscall(SYS_pidfd_send_signal, process, signal, nullptr, 0)));
}

int SetNiceOfThread(std::int32_t thread, int nice) {
  return OrError(setpriority(PRIO_PROCESS, static_cast<id_t>(thread), nice));
}

/// Each thread has a nice value of its own, the first one's being that of the process. A thread
/// that begins meanwhile has its creator's, and one that ends meanwhile needs none.
int SetNice(std::int32_t pid, int nice) {
  const int result = SetNiceOfThread(pid, nice);
  if (result < 0) return result;
  PathWriter path;
  path.Add("/proc/");
  path.AddNumber(static_cast<std::uint64_t>(pid));
  path.Add("/task");
  const int threads = open(path.Terminated(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (threads < 0) return OrError(threads);
  AnyName(threads, [nice](const char* name) {
    std::string_view text(name);
    std::int32_t thread = 0;
    if (TakeNumber(text, kHighestPid, thread)) SetNiceOfThread(thread, nice);
    return false;
  });
  close(threads);
  return result;
}

int OpenFile(const char* path) {
  return OrError(open(path, O_RDONLY | O_CLOEXEC));
}

std::ptrdiff_t ReadFile(int file, char* buffer, std::size_t capacity) {
  return OrError(pread(file, buffer, capacity, 0));
}

void Close(int descriptor) {
  close(descriptor);
}

/// The clock has the kernel's number for a process's time; clock_getcpuclockid would be a call
/// more.
std::uint64_t RunTime(std::int32_t pid) {
  timespec time{};
  clock_gettime(static_cast<clockid_t>(~static_cast<unsigned>(pid) << 3 | 2), &time);
  return static_cast<std::uint64_t>(time.tv_sec * 1000000000 + time.tv_nsec);
}

std::uint32_t Milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return static_cast<std::uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1000000);
}

int StayOn(std::uint32_t processor) {
  cpu_set_t processors;
  CPU_ZERO(&processors);
  CPU_SET(processor, &processors);
  return OrError(sched_setaffinity(0, sizeof processors, &processors));
}

void Log(std::string_view line) {
  if (gLog >= 0 && write(gLog, line.data(), line.size()) < 0) return;
}

}  // namespace

const System kRealSystem = {OpenProcess, SignalProcess, SetNice,      OpenFile, ReadFile,
                            Close,       RunTime,       Milliseconds, StayOn,   Log};

/// A full log holds an action up for a moment only: the application waits 250 ms for its answer.
void ConnectLog() {
  constexpr sockaddr_un kAddress{AF_UNIX, "/dev/log"};
  constexpr timeval kPatience{0, 100000};
  const int log = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (log < 0) return;
  setsockopt(log, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
  if (connect(log, reinterpret_cast<const sockaddr*>(&kAddress), sizeof kAddress) == 0)
    gLog = log;
  else
    close(log);
}

}  // namespace lurkwell::helper
