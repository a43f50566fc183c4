#include <errno.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>

#include "helper/Protocol.h"
#include "helper/System.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

int gLog = -1;
std::uint32_t gLostLines = 0;
char gNote[80];
TextWriter gLossNote(gNote, sizeof gNote);

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

int OpenFolder(const char* path) {
  return OrError(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// Whether `thread` is one of another process than `pid`. Its descriptor shows that it exists also
/// where /proc hides it.
bool IsAnothers(std::int32_t thread, std::int32_t pid) {
  const int own = OpenFolder(PathWriter("/proc/", pid, "/task/", thread).Terminated());
  const int others = own < 0 ? OpenProcess(thread) : -ESRCH;
  close(own);
  close(others);
  return others != -ESRCH;
}

/// Each thread has a nice value of its own, the first one's being that of the process. A thread
/// that begins meanwhile has its creator's, and one that ends meanwhile needs none; but its number
/// may be another process's by then.
int SetNice(std::int32_t pid, int nice) {
  int result = SetNiceOfThread(pid, nice);
  if (result < 0) return result;
  const int threads = OpenFolder(PathWriter("/proc/", pid, "/task").Terminated());
  if (threads < 0) return threads;
  alignas(8) char entries[4096];
  for (long size = 0; (size = syscall(SYS_getdents64, threads, entries, sizeof entries)) > 0;) {
    for (long place = 0; place < size;) {
      // Each entry: inode, offset, its own length, type, name.
      std::uint16_t length = 0;
      std::memcpy(&length, entries + place + 16, sizeof length);
      std::string_view name(entries + place + 19);
      std::int32_t thread = 0;
      if (TakeNumber(name, kHighestPid, thread) && SetNiceOfThread(thread, nice) >= 0 &&
          IsAnothers(thread, pid))
        result = -ESTALE;
      place += length;
    }
  }
  close(threads);
  return result;
}

std::ptrdiff_t ReadFile(const char* path, char* buffer, std::size_t capacity) {
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return OrError(file);
  const ssize_t size = OrError(read(file, buffer, capacity));
  close(file);
  return size;
}

bool IsLogged(std::string_view line) {
  return write(gLog, line.data(), line.size()) >= 0;
}

/// A line that the log does not take is counted, and the number told in front of the next that it
/// does: only one of the two waits.
void Log(std::string_view line) {
  TellLostLines();
  if (gLostLines == 0 && IsLogged(line)) return;
  gLossNote = TextWriter(gNote, sizeof gNote);
  gLossNote.Add(line.substr(0, line.find(" verb=")), " lost=", ++gLostLines);
}

}  // namespace

void TellLostLines() {
  if (gLostLines > 0 && IsLogged(gLossNote.Text())) gLostLines = 0;
}

const System kRealSystem = {OpenProcess, SignalProcess, SetNice, ReadFile, close, Log};

/// A full log holds an action up for a moment only: the application waits 250 ms for its answer.
void ConnectLog() {
  constexpr sockaddr_un kAddress{AF_UNIX, "/dev/log"};
  constexpr timeval kPatience{0, 100000};
  const int log = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  setsockopt(log, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
  if (connect(log, reinterpret_cast<const sockaddr*>(&kAddress), sizeof kAddress) == 0)
    gLog = log;
  else
    close(log);
}

}  // namespace lurkwell::helper
