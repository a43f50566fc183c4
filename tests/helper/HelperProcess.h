#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Child.h"
#include "support/TemporaryFolder.h"

namespace lurkwell::helper::testing {

/// The helper and its permission step as the build made them, in one folder.
std::string HelperPath();
std::string StepPath();

/// Makes a copy of `program` at `path` that belongs to `owner` and `group`.
void Install(const std::string& program, const std::string& path, uid_t owner, gid_t group,
             mode_t mode);

/// Runs the step `program` that gives `folder`'s copy its rights, for `user`; its exit status.
int RunPermissionStep(const std::string& program, const std::string& folder, uid_t user);

/// Runs a command that has to succeed.
void Shell(const std::string& command);

/// Lets a traced process go on until it has made that system call; false when it ends before.
bool RunBehind(pid_t pid, std::uint64_t call);

/// A helper started as a user, with the test as the application at the other end.
class HelperProcess {
 public:
  /// `prepare` runs in the helper's process before the program does. With `asRoot` the pipes are
  /// the user's, but it is root that starts the program.
  explicit HelperProcess(uid_t user, const std::string& program = HelperPath(),
                         const std::function<void()>& prepare = {}, bool asRoot = false);
  ~HelperProcess();
  HelperProcess(const HelperProcess&) = delete;
  HelperProcess& operator=(const HelperProcess&) = delete;

  /// Whether the helper answered the greeting. From then on the pipes have no names, so that
  /// nothing stays behind when the test is killed.
  bool IsOpen() const { return mIsOpen; }
  pid_t Pid() const { return mPid; }

  bool Send(std::string_view request);
  /// One read, empty when nothing came within 5 s or the helper is gone.
  std::string Receive();
  std::string Ask(std::string_view request);
  std::string Act(std::string_view verbLine);
  std::string Figures(std::string_view lines);
  /// Closes both ends; how the helper ended.
  int Close();

 private:
  TemporaryFolder mFolder;
  pid_t mPid = -1;
  int mRequests = -1;
  int mAnswers = -1;
  bool mIsOpen = false;
};

/// A process of `user` that does nothing until it is killed or goes away with this object.
class Canary : public Child {
 public:
  explicit Canary(uid_t user)
      : Child([user] {
          if (user != 0) BecomeUser(user);
        }) {}
  /// One letter as in /proc/PID/stat.
  char State() const;
  /// Waits until the state is one of `states`; false after 10 s.
  bool Becomes(std::string_view states) const;
};

}  // namespace lurkwell::helper::testing
