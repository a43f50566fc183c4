#pragma once

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>

#include <bit>
#include <cstddef>
#include <cstdint>

namespace lurkwell::helper {

#if defined(__x86_64__)
inline constexpr std::uint32_t kArchitecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
inline constexpr std::uint32_t kArchitecture = AUDIT_ARCH_AARCH64;
#elif defined(__riscv)
inline constexpr std::uint32_t kArchitecture = AUDIT_ARCH_RISCV64;
#endif
static_assert(std::endian::native == std::endian::little);

/// An allowed system call; where `argument` is not negative, only with one of the `values` there.
struct Rule {
  long call;
  int argument;
  std::uint32_t values[4];
  unsigned valueCount;
};

inline constexpr Rule kRules[] = {
    {SYS_read, -1, {}, 0},
    {SYS_write, -1, {}, 0},
    {SYS_close, -1, {}, 0},
    {SYS_openat, 2, {O_RDONLY | O_CLOEXEC, O_RDONLY | O_DIRECTORY | O_CLOEXEC}, 2},
    {SYS_getdents64, -1, {}, 0},
    {SYS_pidfd_open, 1, {0}, 1},
    {SYS_pidfd_send_signal, 1, {SIGTERM, SIGKILL, SIGSTOP, SIGCONT}, 4},
    {SYS_setpriority, 0, {PRIO_PROCESS}, 1},
    {SYS_ppoll, 1, {1}, 1},
    {SYS_exit_group, -1, {}, 0},
};

/// The filter's program, which the kernel runs with every system call: what no rule allows ends the
/// process. The helper has it put together by the compiler.
struct CallFilter {
  sock_filter code[80] = {};
  unsigned short size = 0;

  constexpr void Add(std::uint16_t operation, std::uint32_t value, std::uint8_t yes = 0,
                     std::uint8_t no = 0) {
    code[size++] = {operation, yes, no, value};
  }
  constexpr void Load(std::size_t offset) {
    Add(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset));
  }
  constexpr void Return(std::uint32_t verdict) { Add(BPF_RET | BPF_K, verdict); }

  constexpr CallFilter() {
    constexpr std::uint16_t kIfEqual = BPF_JMP | BPF_JEQ | BPF_K;
    Load(offsetof(seccomp_data, arch));
    Add(kIfEqual, kArchitecture, 1, 0);
    Return(SECCOMP_RET_KILL_PROCESS);
    Load(offsetof(seccomp_data, nr));
    for (const Rule& rule : kRules) {
      // Over the load, one comparison and one verdict a value, and the refusal behind them.
      const auto length =
          static_cast<std::uint8_t>(rule.argument < 0 ? 1 : 2 + 2 * rule.valueCount);
      Add(kIfEqual, static_cast<std::uint32_t>(rule.call), 0, length);
      if (rule.argument >= 0) {
        Load(offsetof(seccomp_data, args) + 8 * static_cast<std::size_t>(rule.argument));
        for (unsigned value = 0; value < rule.valueCount; ++value) {
          Add(kIfEqual, rule.values[value], 0, 1);
          Return(SECCOMP_RET_ALLOW);
        }
      }
      Return(rule.argument < 0 ? SECCOMP_RET_ALLOW : SECCOMP_RET_KILL_PROCESS);
    }
    Return(SECCOMP_RET_KILL_PROCESS);
  }
};

}  // namespace lurkwell::helper
