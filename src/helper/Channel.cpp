#include "helper/Channel.h"

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <cstring>

#include "helper/OwnFile.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

constexpr std::string_view kGreeting = "The helper is here.\n";
constexpr std::string_view kTooLong = "!Error request too long\n";
char gRequest[kRequestCapacity];

bool IsPrivatePipe(const struct stat& info, uid_t user) {
  return S_ISFIFO(info.st_mode) && info.st_uid == user && (info.st_mode & 077) == 0 &&
         info.st_nlink <= 1;
}

int OpenPipe(const char* path, int flags, uid_t user) {
  const int pipe = OpenChecked(AT_FDCWD, path, flags, user, IsPrivatePipe);
  if (pipe < 0 || fcntl(pipe, F_GETPIPE_SZ) >= kLowestPipeCapacity) return pipe;
  close(pipe);
  return -1;
}

ssize_t ReadRequest(int pipe) {
  for (;;) {
    const ssize_t size = read(pipe, gRequest, sizeof gRequest);
    if (size >= 0 || errno != EINTR) return size;
  }
}

/// Throws away what is left of a request that was too long. Its writer may still be at it, so the
/// pipe has to have been quiet for a moment.
void Drain(int pipe) {
  constexpr timespec kQuiet{0, 20000000};
  pollfd waiting{pipe, POLLIN, 0};
  while (ppoll(&waiting, 1, &kQuiet, nullptr) > 0 && ReadRequest(pipe) > 0) {
  }
}

/// Calls `visit` with each name in a folder until it says true.
template <typename Visit>
bool AnyName(int folder, Visit visit) {
  alignas(8) char entries[4096];
  for (;;) {
    const long size = syscall(SYS_getdents64, folder, entries, sizeof entries);
    if (size <= 0) return false;
    for (long place = 0; place < size;) {
      // Each entry: inode, offset, its own length, type, name.
      std::uint16_t length = 0;
      std::memcpy(&length, entries + place + 16, sizeof length);
      if (visit(entries + place + 19)) return true;
      place += length;
    }
  }
}

/// A pipe, and the path by which it was opened.
struct OpenedPipe {
  struct stat info;
  char path[kLongestPath + 1];
  ssize_t pathSize;
};

/// Whether descriptor `name` leads to `wanted`. Its path is compared first: what lies elsewhere, on
/// a server that is gone perhaps, is not looked at.
bool LeadsTo(int folder, const char* name, const OpenedPipe& wanted) {
  char path[sizeof wanted.path];
  const ssize_t size = readlinkat(folder, name, path, sizeof path);
  struct stat info;
  return size > 0 && size == wanted.pathSize &&
         std::memcmp(path, wanted.path, static_cast<std::size_t>(size)) == 0 &&
         fstatat(folder, name, &info, 0) == 0 && IsSameFile(info, wanted.info);
}

bool HoldsFile(int proc, const char* pid, const OpenedPipe& wanted) {
  PathWriter path;
  path.Add(pid);
  path.Add("/fd");
  const int folder = openat(proc, path.Terminated(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool holds = folder >= 0 && AnyName(folder, [&](const char* name) {
                       return IsDigit(name[0]) && LeadsTo(folder, name, wanted);
                     });
  close(folder);
  return holds;
}

}  // namespace

bool OpenChannel(const char* requests, const char* answers, uid_t user, Channel& channel) {
  alarm(kOpeningLimit);
  channel.requests = OpenPipe(requests, O_RDONLY, user);
  if (channel.requests < 0) return false;
  channel.answers = OpenPipe(answers, O_WRONLY, user);
  if (channel.answers < 0 || ReadRequest(channel.requests) <= 0) return false;
  alarm(0);
  return true;
}

pid_t FindPeer(int pipe) {
  OpenedPipe wanted;
  PathWriter self;
  self.Add("/proc/self/fd/");
  self.AddNumber(static_cast<std::uint64_t>(pipe));
  wanted.pathSize = readlink(self.Terminated(), wanted.path, sizeof wanted.path);
  const int proc = open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  pid_t peer = -1;
  if (fstat(pipe, &wanted.info) == 0 && proc >= 0)
    AnyName(proc, [&](const char* name) {
      std::string_view text(name);
      pid_t pid = 0;
      if (!TakeNumber(text, kHighestPid, pid) || pid == getpid() || !HoldsFile(proc, name, wanted))
        return false;
      peer = pid;
      return true;
    });
  close(proc);
  return peer;
}

void Serve(const Channel& channel, Session& session) {
  if (write(channel.answers, kGreeting.data(), kGreeting.size()) < 0) return;
  for (;;) {
    const ssize_t size = ReadRequest(channel.requests);
    if (size <= 0) return;
    std::string_view answer = kTooLong;
    if (static_cast<std::size_t>(size) < sizeof gRequest)
      answer = session.Answer({gRequest, static_cast<std::size_t>(size)});
    else
      Drain(channel.requests);
    if (write(channel.answers, answer.data(), answer.size()) < 0) return;
  }
}

}  // namespace lurkwell::helper
