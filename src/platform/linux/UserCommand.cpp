#include "platform/linux/UserCommand.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <system_error>

#include "platform/linux/LinuxTools.h"
#include "platform/linux/ToolProcess.h"

namespace lurkwell {
namespace {

constexpr int kUnknownStatus = 255;
constexpr int kSignalStatus = 128;
/// A killed program is gone within a moment, unless it waits for a disk.
constexpr int kMostLooks = 50;
constexpr useconds_t kBetweenLooks = 1000;

}  // namespace

Tools::CommandStart UserCommand::Start(const std::vector<std::string>& arguments,
                                       const std::vector<std::string>& variables) {
  SpawnSettings settings;
  for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    settings.UseNullDevice(standard);
  settings.SetFolder("/");
  settings.SetOwnGroup();
  pid_t pid = -1;
  const int error = arguments.empty() ? ENOENT : settings.StartAsUser(arguments, variables, pid);
  if (error != 0) return {nullptr, std::generic_category().message(error)};
  return {std::make_unique<UserCommand>(pid), {}};
}

std::optional<int> UserCommand::Status() {
  if (mStatus) return mStatus;
  int status = 0;
  const pid_t ended = ::waitpid(mPid, &status, WNOHANG);
  if (ended == 0 || (ended < 0 && errno == EINTR)) return std::nullopt;
  mStatus = ended < 0             ? kUnknownStatus
            : WIFSIGNALED(status) ? kSignalStatus + WTERMSIG(status)
                                  : WEXITSTATUS(status);
  return mStatus;
}

/// As long as it has not been collected, its group cannot be another's.
void UserCommand::End(bool atOnce) {
  if (!mStatus) ::kill(-mPid, atOnce ? SIGKILL : SIGTERM);
}

UserCommand::~UserCommand() {
  if (Status()) return;
  End(true);
  for (int looks = 0; looks < kMostLooks && !Status(); ++looks) ::usleep(kBetweenLooks);
}

Tools::CommandStart LinuxTools::StartCommand(const std::vector<std::string>& arguments,
                                             const std::vector<std::string>& variables) {
  return UserCommand::Start(arguments, variables);
}

}  // namespace lurkwell
