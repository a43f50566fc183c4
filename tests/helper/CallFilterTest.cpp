// What the filter of system calls says to each call, as the kernel would read its program.
#include <gtest/gtest.h>
#include <linux/bpf_common.h>

#include <cstring>
#include <memory>
#include <optional>
#include <set>

#include "helper/CallFilter.h"

namespace lurkwell::helper::testing {
namespace {

/// Runs the program on a call; nothing where the kernel would not take the program.
std::optional<std::uint32_t> Verdict(const CallFilter& filter, const seccomp_data& call) {
  std::uint32_t value = 0;
  for (std::size_t place = 0; place < filter.size; ++place) {
    const sock_filter& step = filter.code[place];
    switch (step.code) {
      case BPF_LD | BPF_W | BPF_ABS:
        if (step.k % 4 != 0 || step.k > sizeof call - sizeof value) return {};
        std::memcpy(&value, reinterpret_cast<const char*>(&call) + step.k, sizeof value);
        break;
      case BPF_JMP | BPF_JEQ | BPF_K:
        place += value == step.k ? step.jt : step.jf;
        break;
      case BPF_RET | BPF_K:
        return step.k;
      default:
        return {};
    }
  }
  return {};
}

/// What the helper's work takes, and nothing else.
bool IsNeeded(const seccomp_data& call) {
  const auto argument = [&call](int place) { return static_cast<std::uint32_t>(call.args[place]); };
  const auto isOneOf = [](std::uint32_t value, const std::set<std::uint32_t>& values) {
    return values.contains(value);
  };
  switch (call.nr) {
    case SYS_read:
    case SYS_write:
    case SYS_close:
    case SYS_getdents64:
    case SYS_exit_group:
      return true;
    case SYS_openat:
      return isOneOf(argument(2), {O_RDONLY | O_CLOEXEC, O_RDONLY | O_DIRECTORY | O_CLOEXEC});
    case SYS_pidfd_open:
      return argument(1) == 0;
    case SYS_pidfd_send_signal:
      return isOneOf(argument(1), {SIGTERM, SIGKILL, SIGSTOP, SIGCONT});
    case SYS_setpriority:
      return argument(0) == PRIO_PROCESS;
    case SYS_ppoll:
      return argument(1) == 1;
    default:
      return false;
  }
}

TEST(CallFilterTest, AllowsWhatTheWorkTakesAndEndsTheProcessForAllElse) {
  // Put together here, and not by the compiler as the helper's.
  const std::unique_ptr<const CallFilter> filter = std::make_unique<CallFilter>();
  int allowed = 0;
  const auto expect = [&](const seccomp_data& call, bool isNeeded) {
    const std::optional<std::uint32_t> verdict = Verdict(*filter, call);
    ASSERT_TRUE(verdict.has_value()) << call.nr;
    EXPECT_EQ(*verdict, isNeeded ? SECCOMP_RET_ALLOW : SECCOMP_RET_KILL_PROCESS)
        << call.nr << ' ' << call.args[0] << ' ' << call.args[1] << ' ' << call.args[2];
    allowed += isNeeded;
  };
  for (int number = -1; number < 1024; ++number)
    for (int place = 0; place < 3; ++place)
      for (const std::uint32_t value :
           {0u, 1u, 2u, 9u, 10u, 15u, 16u, 18u, 19u, ~0u, static_cast<unsigned>(O_CLOEXEC),
            static_cast<unsigned>(O_CLOEXEC | O_DIRECTORY),
            static_cast<unsigned>(O_CLOEXEC | O_RDWR), static_cast<unsigned>(O_DIRECTORY)}) {
        seccomp_data call{number, kArchitecture, 0, {~0u, ~0u, ~0u, ~0u, ~0u, ~0u}};
        call.args[place] = value;
        expect(call, IsNeeded(call));
        // A number of another kind of program's calls may mean anything.
        call.arch = AUDIT_ARCH_I386;
        expect(call, false);
        call.arch = kArchitecture;
        call.nr |= 0x40000000;
        expect(call, false);
      }
  // Five calls whatever is passed, and of five others the values named above.
  EXPECT_EQ(allowed, 5 * 3 * 14 + 2 + 1 + 4 + 1 + 1);
}

}  // namespace
}  // namespace lurkwell::helper::testing
