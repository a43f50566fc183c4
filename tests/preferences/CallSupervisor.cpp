#include "CallSupervisor.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/personality.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/uio.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "PreferenceTestSupport.h"

namespace lurkwell {
namespace {

constexpr unsigned long kToggle = 0xffffffff;  // asks personality() without changing it

FileDescriptor InstallFilter() {
  std::vector<sock_filter> program;
  program.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)));
  const std::array unasked = {SYS_brk,          SYS_mmap,           SYS_munmap,  SYS_mremap,
                              SYS_mprotect,     SYS_madvise,        SYS_futex,   SYS_rt_sigaction,
                              SYS_rt_sigreturn, SYS_rt_sigprocmask, SYS_sendmsg, SYS_exit_group,
                              SYS_getrandom,    SYS_clock_nanosleep};
  for (const long call : unasked) {
    program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1));
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  }
  program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
  const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
  prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  return FileDescriptor(static_cast<int>(
      syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &filter)));
}

union ControlBuffer {
  char bytes[CMSG_SPACE(sizeof(int))];
  cmsghdr align;
};

bool SendDescriptor(int socket, int descriptor) {
  char byte = 0;
  iovec data{&byte, 1};
  ControlBuffer control{};
  msghdr message{};
  message.msg_iov = &data;
  message.msg_iovlen = 1;
  message.msg_control = control.bytes;
  message.msg_controllen = sizeof control.bytes;
  cmsghdr* header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(sizeof(int));
  std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
  return sendmsg(socket, &message, 0) == 1;
}

FileDescriptor ReceiveDescriptor(int socket) {
  char byte = 0;
  iovec data{&byte, 1};
  ControlBuffer control{};
  msghdr message{};
  message.msg_iov = &data;
  message.msg_iovlen = 1;
  message.msg_control = control.bytes;
  message.msg_controllen = sizeof control.bytes;
  if (recvmsg(socket, &message, 0) != 1 || CMSG_FIRSTHDR(&message) == nullptr) return {};
  int descriptor = -1;
  std::memcpy(&descriptor, CMSG_DATA(CMSG_FIRSTHDR(&message)), sizeof descriptor);
  return FileDescriptor(descriptor);
}

// Makes a third of the child's write in its place; -1 when it is too short for that.
ssize_t WriteAThird(const seccomp_notif& asked) {
  const std::size_t length = asked.data.args[2] / 3;
  if (length == 0) return -1;
  const FileDescriptor process(
      static_cast<int>(syscall(SYS_pidfd_open, static_cast<pid_t>(asked.pid), 0)));
  const FileDescriptor file(static_cast<int>(
      syscall(SYS_pidfd_getfd, process.Get(), static_cast<int>(asked.data.args[0]), 0)));
  std::string bytes(length, '\0');
  iovec local{bytes.data(), length};
  iovec remote{reinterpret_cast<void*>(asked.data.args[1]), length};
  if (process_vm_readv(static_cast<pid_t>(asked.pid), &local, 1, &remote, 1, 0) !=
      static_cast<ssize_t>(length))
    throw std::runtime_error("cannot read the child");
  return write(file.Get(), bytes.data(), length);
}

void Reply(int listener, const seccomp_notif& asked, int answer) {
  seccomp_notif_resp reply{};
  reply.id = asked.id;
  const ssize_t written =
      answer == kWriteLess && asked.data.nr == SYS_write ? WriteAThird(asked) : -1;
  if (answer > 0)
    reply.error = -answer;
  else if (written >= 0)
    reply.val = written;
  else
    reply.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
  ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &reply);
}

}  // namespace

void ToggleSupervision() {
  personality(kToggle);
}

SupervisedEnd Supervise(const std::function<int()>& body,
                        const std::function<int(std::size_t index, int kind)>& answer) {
  int pair[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair) != 0)
    throw std::runtime_error("no socket");
  const FileDescriptor parentEnd(pair[0]);
  FileDescriptor childEnd(pair[1]);
  const pid_t child = Fork([&] {
    const FileDescriptor listener = InstallFilter();
    if (!listener.IsOpen() || !SendDescriptor(childEnd.Get(), listener.Get())) _exit(98);
    return body();
  });
  childEnd.Close();
  const FileDescriptor listener = ReceiveDescriptor(parentEnd.Get());
  SupervisedEnd end;
  bool isCounting = true;
  pollfd waiting{listener.Get(), POLLIN, 0};
  while (listener.IsOpen() && poll(&waiting, 1, -1) > 0 && (waiting.revents & POLLIN) != 0) {
    seccomp_notif asked{};
    if (ioctl(listener.Get(), SECCOMP_IOCTL_NOTIF_RECV, &asked) != 0) continue;
    int verdict = kLetItPass;
    if (asked.data.nr == SYS_personality)
      isCounting = !isCounting;
    else if (isCounting)
      verdict = answer(end.calls++, asked.data.nr);
    if (verdict == kKillBefore) {
      kill(child, SIGKILL);
      break;
    }
    Reply(listener.Get(), asked, verdict);
  }
  end.exit = WaitFor(child);
  return end;
}

}  // namespace lurkwell
