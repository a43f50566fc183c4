#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell::helper::testing {

/// The user ids that the tests make up.
inline constexpr uid_t kUser = 61001;
inline constexpr uid_t kStranger = 61002;

/// A fresh folder that belongs to a user; gone with everything in it at the end, or before.
class Folder {
 public:
  explicit Folder(uid_t user, mode_t mode = 0700);
  ~Folder() { Remove(); }
  void Remove() const;
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::string& Path() const { return mPath; }
  std::string operator/(std::string_view name) const { return mPath + '/' + std::string(name); }

 private:
  std::string mPath;
};

/// As fork(), and throws where that fails: no test may signal "process" -1.
pid_t Fork();

/// Runs `body` in a child and gives its exit status, or the number of the signal that ended it with
/// a minus. A child that does not end in time is killed.
int InChild(const std::function<int()>& body, int seconds = 30);

/// Gives up root for `user`, with a group of the same number, in the calling process.
void BecomeUser(uid_t user);

/// The wait status of `pid` as InChild gives it; kills it after `seconds`.
int WaitFor(pid_t pid, int seconds = 30);

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

std::string ReadAll(const std::string& path);
void WriteAll(const std::string& path, std::string_view text);

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
  Folder mFolder;
  pid_t mPid = -1;
  int mRequests = -1;
  int mAnswers = -1;
  bool mIsOpen = false;
};

/// A process of `user` that does nothing until it is killed or goes away with this object.
class Canary {
 public:
  explicit Canary(uid_t user);
  ~Canary();
  Canary(const Canary&) = delete;
  Canary& operator=(const Canary&) = delete;
  pid_t Pid() const { return mPid; }
  /// One letter as in /proc/PID/stat.
  char State() const;
  /// Waits until the state is one of `states`; false after 10 s.
  bool Becomes(std::string_view states) const;
  /// The signal that ended it, 0 while it runs.
  int EndedBy();

 private:
  pid_t mPid;
  int mSignal = 0;
  bool mEnded = false;
};

}  // namespace lurkwell::helper::testing
