#include "helper/Confinement.h"

#include <errno.h>
#include <fcntl.h>
#include <grp.h>
#include <linux/capability.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <linux/securebits.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

#include "helper/CallFilter.h"

namespace lurkwell::helper {

namespace {

constexpr std::uint32_t kKeptCapabilities = 1u << CAP_KILL | 1u << CAP_SYS_NICE;
constexpr unsigned long kLockedBits =
    SECBIT_NOROOT | SECBIT_NOROOT_LOCKED | SECBIT_NO_SETUID_FIXUP | SECBIT_NO_SETUID_FIXUP_LOCKED |
    SECBIT_KEEP_CAPS_LOCKED | SECBIT_NO_CAP_AMBIENT_RAISE | SECBIT_NO_CAP_AMBIENT_RAISE_LOCKED;

/// Of the two capabilities, those that the process may have.
std::uint32_t PermittedCapabilities() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct data[2] = {};
  return syscall(SYS_capget, &header, data) == 0 ? data[0].permitted & kKeptCapabilities : 0;
}

/// What is not in the process already cannot be kept.
bool KeepCapabilities(bool privileged) {
  const std::uint32_t kept = privileged ? PermittedCapabilities() : 0;
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  const __user_cap_data_struct data[2] = {{kept, kept, 0}, {0, 0, 0}};
  return syscall(SYS_capset, &header, data) == 0;
}

/// A user without privilege has no right to shrink the bounding set, and no need to. Numbers that
/// stand for no capability are not valid.
bool ShrinkBoundingSet(bool privileged) {
  for (unsigned long capability = 0; capability < 64; ++capability) {
    const bool kept = capability < 32 && (kKeptCapabilities >> capability & 1) != 0;
    if (!kept && prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) != 0 && privileged && errno != EINVAL)
      return false;
  }
  return true;
}

bool RestrictFiles() {
  constexpr std::uint64_t kRead = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
  // All rights of the kernel's version: 13 in the first, one more in the second, third and fifth.
  constexpr unsigned kRights[] = {0, 13, 14, 15, 15, 16};
  const long version =
      syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  if (version < 1) return version < 0 && (errno == ENOSYS || errno == EOPNOTSUPP);
  // Where /proc hides the processes of others, it shows the user's own only to who may trace them,
  // which a process with restricted files may not.
  const int process = open("/proc/1/stat", O_RDONLY | O_CLOEXEC);
  if (process < 0) return errno == ENOENT || errno == EPERM || errno == EACCES;
  close(process);
  landlock_ruleset_attr attributes{};
  attributes.handled_access_fs = (1ull << kRights[version < 5 ? version : 5]) - 1;
  const long rules = syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0);
  const int folder = open("/proc", O_PATH | O_DIRECTORY | O_CLOEXEC);
  const landlock_path_beneath_attr beneath{kRead, folder};
  const bool restricted =
      rules >= 0 && folder >= 0 &&
      syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &beneath, 0) == 0 &&
      syscall(SYS_landlock_restrict_self, rules, 0) == 0;
  close(folder);
  close(static_cast<int>(rules));
  return restricted;
}

bool RestrictCalls() {
  static constexpr CallFilter kFilter;
  const sock_fprog program{kFilter.size, const_cast<sock_filter*>(kFilter.code)};
  return syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) == 0;
}

}  // namespace

bool Become(const Identity& identity) {
  const auto& [user, group, privileged] = identity;
  // The change of user may make the process traceable again.
  return ShrinkBoundingSet(privileged) &&
         (!privileged || prctl(PR_SET_SECUREBITS, kLockedBits, 0, 0, 0) == 0) &&
         (!privileged || getuid() != 0 || setgroups(0, nullptr) == 0) &&
         setresgid(group, group, group) == 0 && setresuid(user, user, user) == 0 &&
         prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0) == 0 &&
         KeepCapabilities(privileged) && prctl(PR_SET_DUMPABLE, 0) == 0;
}

bool HasBothRights() {
  return PermittedCapabilities() == kKeptCapabilities;
}

bool Confine() {
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && RestrictFiles() && RestrictCalls();
}

}  // namespace lurkwell::helper
