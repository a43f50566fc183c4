// A helper that is already in the hands of an attacker: confined as the helper is, it takes one
// step that nobody there may take. Exit status 0: refused with an error. 42: the step was possible.
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
pid_t gForeign;  // a process of another user
char* const* const kNothing = nullptr;

int Open(const char* path, int flags) {
  return open(path, flags, 0600);
}

long Call(long number, long a = 0, long b = 0, long c = 0, long d = 0, long e = 0) {
  return syscall(number, a, b, c, d, e);
}

long Pointer(const void* pointer) {
  return reinterpret_cast<long>(pointer);
}

using Step = long (*)();

constexpr Step kSteps[] = {
    // Programs and processes.
    [] { return Call(SYS_execve, Pointer("/bin/true"), Pointer(kNothing), Pointer(kNothing)); },
    [] { return Call(SYS_execveat, AT_FDCWD, Pointer("/bin/true"), 0, 0, 0); },
    [] { return Call(SYS_clone, SIGCHLD); },
    [] { return Call(SYS_clone3, Pointer(gBuffer), 64); },
    [] { return Call(SYS_unshare, CLONE_NEWUSER); },
    [] { return Call(SYS_setns, 0, 0); },
    [] { return Call(SYS_prctl, PR_SET_DUMPABLE, 1); },
    [] { return Call(SYS_prctl, PR_SET_KEEPCAPS, 1); },
    [] { return Call(SYS_seccomp, 0, 0, 0); },
    // Identity and rights.
    [] { return Call(SYS_setuid, 0); },
    [] { return Call(SYS_setresuid, 0, 0, 0); },
    [] { return Call(SYS_setgid, 0); },
    [] { return Call(SYS_setgroups, 0, 0); },
    [] { return Call(SYS_setfsuid, 0) * 0 - 1; },
    [] { return Call(SYS_capset, Pointer(gBuffer), Pointer(gBuffer)); },
    [] { return Call(SYS_setsid); },
    // Other processes.
    [] { return Call(SYS_ptrace, PTRACE_ATTACH, gForeign); },
    [] { return Call(SYS_process_vm_readv, gForeign); },
    [] { return Call(SYS_process_vm_writev, gForeign); },
    [] { return Call(SYS_kill, gForeign, SIGUSR1); },
    [] { return Call(SYS_tkill, gForeign, SIGUSR1); },
    [] { return Call(SYS_tgkill, gForeign, gForeign, SIGUSR1); },
    [] { return Call(SYS_rt_sigqueueinfo, gForeign, SIGUSR1, Pointer(gBuffer)); },
    [] {
      const long process = Call(SYS_pidfd_open, gForeign, 0);
      return Call(SYS_pidfd_send_signal, process, SIGUSR1, 0, 0);
    },
    [] {
      const long process = Call(SYS_pidfd_open, gForeign, 0);
      return Call(SYS_pidfd_send_signal, process, 0, 0, 0);
    },
    [] { return Call(SYS_pidfd_getfd, Call(SYS_pidfd_open, gForeign, 0), 0, 0); },
    [] { return Call(SYS_setpriority, PRIO_USER, 0, -5); },
    [] { return Call(SYS_setpriority, PRIO_PGRP, 0, -5); },
    [] { return Call(SYS_sched_setscheduler, gForeign, SCHED_IDLE, Pointer(gBuffer)); },
    [] { return Call(SYS_sched_setaffinity, gForeign, 8, Pointer(gBuffer)); },
    [] { return Call(SYS_prlimit64, gForeign, RLIMIT_CPU, Pointer(gBuffer), 0); },
    [] { return Call(SYS_ioprio_set, 1, gForeign, 0); },
    // Files: to read outside /proc, and to change anywhere.
    [] { return static_cast<long>(Open("/etc/passwd", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/proc/../etc/passwd", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/proc/self/root/etc/passwd", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/proc/self/exe", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/dev/null", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/sys/kernel/uevent_seqnum", O_RDONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/proc/self/oom_score_adj", O_RDWR | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/proc/sys/kernel/core_pattern", O_WRONLY | O_CLOEXEC)); },
    [] { return static_cast<long>(Open("/tmp/lurkwell-takeover", O_WRONLY | O_CREAT)); },
    [] { return static_cast<long>(Open("/tmp", O_TMPFILE | O_RDWR)); },
    [] { return static_cast<long>(Open("/proc/self/stat", O_RDONLY | O_TRUNC | O_CLOEXEC)); },
    [] { return Call(SYS_openat2, AT_FDCWD, Pointer("/etc/passwd"), Pointer(gBuffer), 24); },
    [] { return Call(SYS_unlinkat, AT_FDCWD, Pointer("/tmp/none"), 0); },
    [] { return Call(SYS_renameat2, AT_FDCWD, Pointer("/tmp/a"), AT_FDCWD, Pointer("/tmp/b"), 0); },
    [] { return Call(SYS_linkat, AT_FDCWD, Pointer("/bin/sh"), AT_FDCWD, Pointer("/tmp/b"), 0); },
    [] { return Call(SYS_symlinkat, Pointer("/"), AT_FDCWD, Pointer("/tmp/lurkwell-takeover")); },
    [] { return Call(SYS_mkdirat, AT_FDCWD, Pointer("/tmp/lurkwell-takeover"), 0700); },
    [] { return Call(SYS_fchmodat, AT_FDCWD, Pointer("/tmp/none"), 04777); },
    [] { return Call(SYS_fchownat, AT_FDCWD, Pointer("/tmp/none"), 0, 0, 0); },
    [] { return Call(SYS_fchmod, 0, 0777); },
    [] { return Call(SYS_ftruncate, 0, 0); },
    // The system.
    [] { return Call(SYS_mount, Pointer("a"), Pointer("/tmp"), Pointer("tmpfs"), 0, 0); },
    [] { return Call(SYS_umount2, Pointer("/proc"), 0); },
    [] { return Call(SYS_chroot, Pointer("/proc")); },
    [] { return Call(SYS_init_module, Pointer(gBuffer), 0, Pointer("")); },
    [] { return Call(SYS_finit_module, 0, Pointer(""), 0); },
    [] { return Call(SYS_bpf, 0, Pointer(gBuffer), 64); },
    [] { return Call(SYS_perf_event_open, Pointer(gBuffer), 0, -1, -1, 0); },
    [] { return Call(SYS_reboot, 0, 0, 0, 0); },
    [] { return Call(SYS_settimeofday, Pointer(gBuffer), 0); },
    [] { return Call(SYS_sethostname, Pointer("x"), 1); },
    [] { return Call(SYS_keyctl, 0, 0); },
    [] { return Call(SYS_io_uring_setup, 1, Pointer(gBuffer)); },
    [] { return Call(SYS_memfd_create, Pointer("x"), 0); },
    [] { return Call(SYS_userfaultfd, 0); },
    // The network, and memory that could hold new code.
    [] { return Call(SYS_socket, AF_INET, SOCK_STREAM, 0); },
    [] { return Call(SYS_socket, AF_UNIX, SOCK_DGRAM, 0); },
    [] { return Call(SYS_socketpair, AF_UNIX, SOCK_STREAM, 0, Pointer(gBuffer)); },
    [] { return Call(SYS_sendto, 0, Pointer("x"), 1, 0, 0); },
    [] { return Call(SYS_mmap, 0, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1); },
    [] { return Call(SYS_mprotect, Pointer(gBuffer) & ~4095l, 4096, PROT_READ | PROT_EXEC); },
    [] { return Call(SYS_brk, 0); },
    [] { return Call(SYS_ioctl, 0, 0x5412, Pointer("x")); },
    [] { return Call(SYS_fcntl, 0, F_DUPFD, 10); },
    [] { return Call(SYS_dup, 0); },
    [] { return Call(SYS_pipe2, Pointer(gBuffer), 0); },
    [] { return Call(SYS_ppoll, Pointer(gBuffer), 1000, 0, 0); },
};

}  // namespace

/// Without arguments prints nothing and exits with the number of steps; otherwise STEP and the pid
/// of another user's process.
int main(int argc, char** argv) {
  constexpr int kCount = sizeof kSteps / sizeof kSteps[0];
  if (argc != 3) return kCount;
  gForeign = atoi(argv[2]);
  if (!lurkwell::helper::Become({61001, 61001, true}) || !lurkwell::helper::Confine()) return 70;
  if (argv[1][0] == 'r') {
    // What serving needs is still there.
    const int file = open("/proc/self/stat", O_RDONLY | O_CLOEXEC);
    const long process = Call(SYS_pidfd_open, gForeign, 0);
    const bool serves = file >= 0 && pread(file, gBuffer, sizeof gBuffer, 0) > 0 && process >= 0 &&
                        Call(SYS_pidfd_send_signal, process, SIGCONT, 0, 0) == 0 &&
                        setpriority(PRIO_PROCESS, static_cast<id_t>(gForeign), -3) == 0;
    return serves ? 42 : 0;
  }
  return kSteps[atoi(argv[1])]() < 0 ? 0 : 42;
}
