#pragma once

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <vector>

namespace lurkwell {

/// Children that sleep until they are destroyed.
class IdleProcesses {
 public:
  explicit IdleProcesses(std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
      const pid_t pid = ::fork();
      if (pid == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (;;) ::pause();
      }
      if (pid < 0) break;
      mPids.push_back(pid);
    }
  }
  ~IdleProcesses() {
    for (const pid_t pid : mPids) ::kill(pid, SIGKILL);
    for (const pid_t pid : mPids) ::waitpid(pid, nullptr, 0);
  }
  IdleProcesses(const IdleProcesses&) = delete;
  IdleProcesses& operator=(const IdleProcesses&) = delete;

  /// How many there really are.
  std::int64_t Count() const { return static_cast<std::int64_t>(mPids.size()); }

 private:
  std::vector<pid_t> mPids;
};

}  // namespace lurkwell
