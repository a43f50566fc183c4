#include "helper/Channel.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <string_view>

#include "helper/OwnFile.h"

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

/// Throws away what is left of a request that was too long. Its writer may still be at it, so the
/// pipe has to have been quiet for a moment.
void Drain(int pipe) {
  constexpr timespec kQuiet{0, 20000000};
  pollfd waiting{pipe, POLLIN, 0};
  while (ppoll(&waiting, 1, &kQuiet, nullptr) > 0 && read(pipe, gRequest, sizeof gRequest) > 0) {
  }
}

}  // namespace

bool OpenChannel(const char* requests, const char* answers, uid_t user, Channel& channel) {
  alarm(kOpeningLimit);
  channel.requests = OpenPipe(requests, O_RDONLY, user);
  if (channel.requests < 0) return false;
  channel.answers = OpenPipe(answers, O_WRONLY, user);
  if (channel.answers < 0 || read(channel.requests, gRequest, sizeof gRequest) <= 0) return false;
  alarm(0);
  return true;
}

/// The application locks its end.
pid_t FindPeer(int pipe) {
  flock lock{F_WRLCK, SEEK_SET, 0, 0, 0};
  return fcntl(pipe, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK && lock.l_pid > 0 ? lock.l_pid
                                                                                      : -1;
}

void Serve(const Channel& channel, Session& session) {
  for (std::string_view answer = kGreeting;
       write(channel.answers, answer.data(), answer.size()) >= 0;) {
    const ssize_t size = read(channel.requests, gRequest, sizeof gRequest);
    if (size <= 0) return;
    if (static_cast<std::size_t>(size) < sizeof gRequest) {
      answer = session.Answer({gRequest, static_cast<std::size_t>(size)});
    } else {
      Drain(channel.requests);
      answer = kTooLong;
    }
  }
}

}  // namespace lurkwell::helper
