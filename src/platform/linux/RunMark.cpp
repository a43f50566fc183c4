#include "platform/linux/RunMark.h"

#include <sched.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cstddef>

namespace lurkwell {
namespace {

/// The kernel's sched_attr as it first was, which every kernel fills.
struct SchedulingAttributes {
  std::uint32_t size = 0;
  std::uint32_t policy = 0;
  std::uint64_t flags = 0;
  std::int32_t nice = 0;
  std::uint32_t priority = 0;
  std::uint64_t runtime = 0, deadline = 0, period = 0;
};
static_assert(sizeof(SchedulingAttributes) == 48);

constexpr std::uint32_t kDeadlinePolicy = 6;

/// The kernel's number for the clock of a process's time on processors. clock_getcpuclockid gives
/// the same, at the price of one more call.
constexpr clockid_t ProcessorClock(std::int32_t pid) {
  constexpr clockid_t kScheduled = 2;
  return static_cast<clockid_t>(~static_cast<unsigned>(pid) << 3) | kScheduled;
}

}  // namespace

std::optional<std::uint64_t> ReadRunTime(std::int32_t pid) {
  timespec time{};
  // Pid 0 would be the caller.
  if (pid <= 0 || ::clock_gettime(ProcessorClock(pid), &time) != 0) return std::nullopt;
  return static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000 +
         static_cast<std::uint64_t>(time.tv_nsec);
}

std::optional<Scheduling> ReadScheduling(std::int32_t pid) {
  SchedulingAttributes attributes;
  if (pid <= 0 || ::syscall(SYS_sched_getattr, pid, &attributes, sizeof attributes, 0) != 0 ||
      attributes.priority != 0 || attributes.policy == kDeadlinePolicy)
    return std::nullopt;
  return Scheduling{attributes.policy, attributes.nice};
}

std::optional<Assignment> ReadAssignment(std::int32_t pid) {
  constexpr int kOneProcess = 1;
  // 16,384 processors, more than the kernel knows.
  std::array<std::uint64_t, 256> set{};
  if (pid <= 0) return std::nullopt;
  const auto bytes = ::syscall(SYS_sched_getaffinity, pid, sizeof set, set.data());
  const auto priority = ::syscall(SYS_ioprio_get, kOneProcess, pid);
  if (bytes <= 0 || priority < 0) return std::nullopt;
  const auto words = (static_cast<std::size_t>(bytes) + sizeof set[0] - 1) / sizeof set[0];
  return Assignment{{set.begin(), set.begin() + static_cast<std::ptrdiff_t>(words)},
                    static_cast<std::int32_t>(priority)};
}

std::string ListOfProcessors(const std::vector<std::uint64_t>& set) {
  const std::size_t count = set.size() * 64;
  const auto has = [&](std::size_t number) {
    return number < count && (set[number / 64] >> number % 64 & 1) != 0;
  };
  std::string list;
  for (std::size_t first = 0; first < count; ++first) {
    if (!has(first)) continue;
    std::size_t last = first;
    while (has(last + 1)) ++last;
    if (!list.empty()) list += ',';
    list += std::to_string(first);
    if (last > first) list += '-' + std::to_string(last);
    first = last;
  }
  return list;
}

}  // namespace lurkwell
