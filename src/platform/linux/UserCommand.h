#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/Tools.h"

namespace lurkwell {

/// A command of the user's in a process group of its own. Main thread only.
class UserCommand final : public RunningCommand {
 public:
  static Tools::CommandStart Start(const std::vector<std::string>& arguments,
                                   const std::vector<std::string>& variables);
  explicit UserCommand(pid_t pid) : mPid(pid) {}
  ~UserCommand() override;
  UserCommand(const UserCommand&) = delete;
  UserCommand& operator=(const UserCommand&) = delete;

  std::optional<int> Status() override;
  void End(bool atOnce) override;

 private:
  pid_t mPid;
  std::optional<int> mStatus;
};

}  // namespace lurkwell
