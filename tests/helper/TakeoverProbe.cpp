// A helper that is already in the hands of an attacker: confined as the helper is, it takes one
// step that is not allowed there. Exit status 0: refused with an error. 42: the step was possible.
#include <errno.h>
#include <fcntl.h>
#include <linux/landlock.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include "helper/Confinement.h"

namespace {

char gBuffer[256];
char* const* const kNothing = nullptr;

long P(const void* pointer) {
  return reinterpret_cast<long>(pointer);
}

/// Takes a step against `foreign`, a process of another user: a system call with its arguments. The
/// result, or the number of steps when `step` is negative.
long Take(int step, pid_t foreign) {
  // An allowed call; what follows from it is not.
  const long process = syscall(SYS_pidfd_open, foreign, 0);
  const long steps[][6] = {
      // Programs and processes.
      {SYS_execve, P("/bin/true"), P(kNothing), P(kNothing)},
      {SYS_execveat, AT_FDCWD, P("/bin/true"), 0, 0, 0},
      {SYS_clone, SIGCHLD},
      {SYS_clone3, P(gBuffer), 64},
      {SYS_unshare, CLONE_NEWUSER},
      {SYS_setns, 0, 0},
      {SYS_prctl, PR_SET_DUMPABLE, 1},
      {SYS_prctl, PR_SET_KEEPCAPS, 1},
      {SYS_seccomp, 0, 0, 0},
      // Identity and rights.
      {SYS_setuid, 0},
      {SYS_setresuid, 0, 0, 0},
      {SYS_setgid, 0},
      {SYS_setgroups, 0, 0},
      {SYS_setfsuid, 0},
      {SYS_capset, P(gBuffer), P(gBuffer)},
      {SYS_setsid},
      // Other processes.
      {SYS_ptrace, PTRACE_ATTACH, foreign},
      {SYS_process_vm_readv, foreign},
      {SYS_process_vm_writev, foreign},
      {SYS_kill, foreign, SIGUSR1},
      {SYS_tkill, foreign, SIGUSR1},
      {SYS_tgkill, foreign, foreign, SIGUSR1},
      {SYS_rt_sigqueueinfo, foreign, SIGUSR1, P(gBuffer)},
      {SYS_pidfd_send_signal, process, SIGUSR1, 0, 0},
      {SYS_pidfd_send_signal, process, 0, 0, 0},
      {SYS_pidfd_getfd, process, 0, 0},
      {SYS_setpriority, PRIO_USER, 0, -5},
      {SYS_setpriority, PRIO_PGRP, 0, -5},
      {SYS_sched_setscheduler, foreign, SCHED_IDLE, P(gBuffer)},
      {SYS_sched_setaffinity, foreign, 8, P(gBuffer)},
      {SYS_sched_setaffinity, 0, 8, P(gBuffer)},
      {SYS_clock_gettime, CLOCK_MONOTONIC, P(gBuffer)},
      {SYS_prlimit64, foreign, RLIMIT_CPU, P(gBuffer), 0},
      {SYS_ioprio_set, 1, foreign, 0},
      // Files: to read outside /proc, and to change anywhere.
      {SYS_openat, AT_FDCWD, P("/etc/passwd"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/proc/../etc/passwd"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/proc/self/root/etc/passwd"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/proc/self/exe"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/dev/null"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/sys/kernel/uevent_seqnum"), O_RDONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/proc/self/oom_score_adj"), O_RDWR | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/proc/sys/kernel/core_pattern"), O_WRONLY | O_CLOEXEC, 0600},
      {SYS_openat, AT_FDCWD, P("/tmp/lurkwell-takeover"), O_WRONLY | O_CREAT, 0600},
      {SYS_openat, AT_FDCWD, P("/tmp"), O_TMPFILE | O_RDWR, 0600},
      {SYS_openat, AT_FDCWD, P("/proc/self/stat"), O_RDONLY | O_TRUNC | O_CLOEXEC, 0600},
      {SYS_openat2, AT_FDCWD, P("/etc/passwd"), P(gBuffer), 24},
      {SYS_unlinkat, AT_FDCWD, P("/tmp/none"), 0},
      {SYS_renameat2, AT_FDCWD, P("/tmp/a"), AT_FDCWD, P("/tmp/b"), 0},
      {SYS_linkat, AT_FDCWD, P("/bin/sh"), AT_FDCWD, P("/tmp/b"), 0},
      {SYS_symlinkat, P("/"), AT_FDCWD, P("/tmp/lurkwell-takeover")},
      {SYS_mkdirat, AT_FDCWD, P("/tmp/lurkwell-takeover"), 0700},
      {SYS_fchmodat, AT_FDCWD, P("/tmp/none"), 04777},
      {SYS_fchownat, AT_FDCWD, P("/tmp/none"), 0, 0, 0},
      {SYS_fchmod, 0, 0777},
      {SYS_ftruncate, 0, 0},
      // The system.
      {SYS_mount, P("a"), P("/tmp"), P("tmpfs"), 0, 0},
      {SYS_umount2, P("/proc"), 0},
      {SYS_chroot, P("/proc")},
      {SYS_init_module, P(gBuffer), 0, P("")},
      {SYS_finit_module, 0, P(""), 0},
      {SYS_bpf, 0, P(gBuffer), 64},
      {SYS_perf_event_open, P(gBuffer), 0, -1, -1, 0},
      {SYS_reboot, 0, 0, 0, 0},
      {SYS_settimeofday, P(gBuffer), 0},
      {SYS_sethostname, P("x"), 1},
      {SYS_keyctl, 0, 0},
      {SYS_io_uring_setup, 1, P(gBuffer)},
      {SYS_memfd_create, P("x"), 0},
      {SYS_userfaultfd, 0},
      // The network, and memory that could hold new code.
      {SYS_socket, AF_INET, SOCK_STREAM, 0},
      {SYS_socket, AF_UNIX, SOCK_DGRAM, 0},
      {SYS_socketpair, AF_UNIX, SOCK_STREAM, 0, P(gBuffer)},
      {SYS_sendto, 0, P("x"), 1, 0, 0},
      {SYS_mmap, 0, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1},
      {SYS_mprotect, P(gBuffer) & ~4095l, 4096, PROT_READ | PROT_EXEC},
      {SYS_brk, 0},
      {SYS_ioctl, 0, 0x5412, P("x")},
      {SYS_fcntl, 0, F_DUPFD, 10},
      {SYS_dup, 0},
      {SYS_pipe2, P(gBuffer), 0},
      {SYS_ppoll, P(gBuffer), 1000, 0, 0}};
  if (step < 0) return static_cast<long>(sizeof steps / sizeof steps[0]);
  const auto& [call, a, b, c, d, e] = steps[step];
  return syscall(call, a, b, c, d, e);
}

}  // namespace

/// Without arguments prints nothing and exits with the number of steps; otherwise STEP and the pid
/// of another user's process.
int main(int argc, char** argv) {
  if (argc != 3) return static_cast<int>(Take(-1, getpid()));
  const pid_t foreign = atoi(argv[2]);
  if (!lurkwell::helper::Become({61001, 61001, true})) return 70;
  // No user id gives rights any more, no capability outlives a change of it or is handed on, and
  // none of that can be taken back.
  if (prctl(PR_GET_SECUREBITS, 0, 0, 0, 0) != 0xef) return 71;
  if (!lurkwell::helper::Confine()) return 70;
  if (argv[1][0] != 'r') return Take(atoi(argv[1]), foreign) < 0 ? 0 : 42;
  // What serving needs is still there.
  const int file = open("/proc/self/stat", O_RDONLY | O_CLOEXEC);
  const long process = syscall(SYS_pidfd_open, foreign, 0);
  const bool serves = file >= 0 && read(file, gBuffer, sizeof gBuffer) > 0 && process >= 0 &&
                      syscall(SYS_pidfd_send_signal, process, SIGCONT, 0, 0) == 0 &&
                      setpriority(PRIO_PROCESS, static_cast<id_t>(foreign), -3) == 0;
  return serves ? 42 : 0;
}
