#include "helper/Channel.h"

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <cstring>

#include "helper/FolderNames.h"
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

/// Whether `pid` is another process of ours that has the file open.
bool HoldsFile(int proc, pid_t pid, const OpenedPipe& wanted) {
  PathWriter path;
  path.AddNumber(static_cast<std::uint64_t>(pid));
  path.Add("/fd");
  struct stat info;
  if (pid == getpid() || fstatat(proc, path.Terminated(), &info, 0) != 0 ||
      info.st_uid != geteuid())
    return false;
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
  if (fstat(pipe, &wanted.info) != 0) wanted.pathSize = -1;
  // The application locks its end, which tells who it is without a look at every process.
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  if (fcntl(pipe, F_GETLK, &lock) != 0) lock.l_pid = -1;
  pid_t peer = lock.l_pid;
  const bool found = HoldsFile(proc, peer, wanted) || AnyName(proc, [&](const char* name) {
                       std::string_view text(name);
                       return TakeNumber(text, kHighestPid, peer) && HoldsFile(proc, peer, wanted);
                     });
  close(proc);
  return found ? peer : -1;
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
