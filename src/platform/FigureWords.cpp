#include "platform/FigureWords.h"

#include <array>
#include <bit>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace lurkwell {
namespace {

struct MeaningOf {
  std::int64_t number;
  std::string_view words;
};

std::string Meaning(std::span<const MeaningOf> meanings, std::int64_t number) {
  for (const auto& [known, words] : meanings)
    if (known == number) return std::string(words);
  return std::to_string(number);
}

/// By their numbers.
constexpr std::string_view kCapabilities[] = {"chown",
                                              "dac_override",
                                              "dac_read_search",
                                              "fowner",
                                              "fsetid",
                                              "kill",
                                              "setgid",
                                              "setuid",
                                              "setpcap",
                                              "linux_immutable",
                                              "net_bind_service",
                                              "net_broadcast",
                                              "net_admin",
                                              "net_raw",
                                              "ipc_lock",
                                              "ipc_owner",
                                              "sys_module",
                                              "sys_rawio",
                                              "sys_chroot",
                                              "sys_ptrace",
                                              "sys_pacct",
                                              "sys_admin",
                                              "sys_boot",
                                              "sys_nice",
                                              "sys_resource",
                                              "sys_time",
                                              "sys_tty_config",
                                              "mknod",
                                              "lease",
                                              "audit_write",
                                              "audit_control",
                                              "setfcap",
                                              "mac_override",
                                              "mac_admin",
                                              "syslog",
                                              "wake_alarm",
                                              "block_suspend",
                                              "audit_read",
                                              "perfmon",
                                              "bpf",
                                              "checkpoint_restore"};
constexpr std::uint64_t kAllCapabilities = (std::uint64_t{1} << std::size(kCapabilities)) - 1;
constexpr int kFewMissing = 4;

std::string NamesOf(std::uint64_t set) {
  std::string names;
  for (int number = 0; set >> number != 0; ++number) {
    if ((set >> number & 1) == 0) continue;
    const auto place = static_cast<std::size_t>(number);
    names += names.empty() ? "" : ", ";
    names += place < std::size(kCapabilities) ? std::string(kCapabilities[place])
                                              : std::to_string(number);
    if (number == 63) break;
  }
  return names;
}

}  // namespace

std::string StateInWords(std::int64_t letter) {
  constexpr MeaningOf kStates[] = {{'R', "running"}, {'S', "sleeping"}, {'D', "uninterruptible"},
                                   {'T', "stopped"}, {'t', "traced"},   {'Z', "zombie"},
                                   {'I', "idle"},    {'X', "dead"},     {'x', "dead"},
                                   {'P', "parked"},  {'K', "killable"}, {'W', "waking"}};
  return Meaning(kStates, letter);
}

std::string TerminalInWords(std::int64_t device) {
  if (device == 0) return {};
  const auto number = static_cast<std::uint64_t>(device);
  const std::uint64_t major = number >> 8 & 0xFFF;
  const std::uint64_t minor = (number & 0xFF) | (number >> 12 & 0xFFF00);
  constexpr std::uint64_t kFirstSerial = 64, kFirstPseudo = 136, kLastPseudo = 143;
  const auto named = [](std::string_view name, std::uint64_t count) {
    return std::string(name) + std::to_string(count);
  };
  if (major >= kFirstPseudo && major <= kLastPseudo)
    return named("pts/", (major - kFirstPseudo) << 8 | minor);
  if (major == 4)
    return minor < kFirstSerial ? named("tty", minor) : named("ttyS", minor - kFirstSerial);
  if (major == 5 && minor == 1) return "console";
  if (major == 166) return named("ttyACM", minor);
  if (major == 188) return named("ttyUSB", minor);
  if (major == 204 && minor >= kFirstSerial) return named("ttyAMA", minor - kFirstSerial);
  if (major == 229) return named("hvc", minor);
  return std::to_string(major) + ':' + std::to_string(minor);
}

std::string SchedulerInWords(std::int64_t policy) {
  constexpr MeaningOf kPolicies[] = {{0, "normal"},
                                     {1, "real time, first in first out"},
                                     {2, "real time, round robin"},
                                     {3, "batch"},
                                     {5, "idle"},
                                     {6, "deadline"},
                                     {7, "extensible"}};
  return Meaning(kPolicies, policy);
}

std::string IOPriorityInWords(std::int64_t priority) {
  constexpr std::int64_t kRealTime = 1, kBestEffort = 2, kIdle = 3;
  const std::int64_t level = priority & 7;
  switch (priority >> 13) {
    case 0:
      return "by nice value";
    case kRealTime:
      return "real time " + std::to_string(level);
    case kBestEffort:
      return "best effort " + std::to_string(level);
    case kIdle:
      return "idle";
    default:
      return std::to_string(priority);
  }
}

std::string CapabilitiesInWords(std::int64_t set) {
  const auto has = static_cast<std::uint64_t>(set);
  if (has == 0) return "none";
  const std::uint64_t missing = kAllCapabilities & ~has;
  // An older kernel's whole set lacks the newest ones.
  const bool lacksNewestAlone =
      std::countl_one(missing << std::countl_zero(kAllCapabilities)) == std::popcount(missing);
  if (lacksNewestAlone && std::popcount(missing) <= kFewMissing) return "all";
  if (std::popcount(missing) <= kFewMissing) return "all but " + NamesOf(missing);
  return NamesOf(has);
}

std::string SeccompInWords(std::int64_t mode) {
  constexpr MeaningOf kModes[] = {{0, "off"}, {1, "strict"}, {2, "filter"}};
  return Meaning(kModes, mode);
}

std::string YesOrNo(std::int64_t is) {
  return is != 0 ? "yes" : "no";
}

std::string ElevationInWords(std::int64_t elevation) {
  constexpr MeaningOf kElevations[] = {
      {kNotElevated, "no"}, {kHasCapabilities, "capabilities"}, {kIsRoot, "root"}};
  return Meaning(kElevations, elevation);
}

}  // namespace lurkwell
