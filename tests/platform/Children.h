#pragma once

#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>

namespace lurkwell {

/// A child that has run `prepare` and then sleeps until its owner ends it.
class Child {
 public:
  explicit Child(const std::function<void()>& prepare = [] {}) {
    std::array<int, 2> ready{};
    EXPECT_EQ(::pipe(ready.data()), 0);
    mPid = ::fork();
    if (mPid == 0) {
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);
      ::close(ready[0]);
      prepare();
      ::close(ready[1]);
      for (;;) ::pause();
    }
    ::close(ready[1]);
    char nothing = 0;
    EXPECT_EQ(::read(ready[0], &nothing, 1), 0);
    ::close(ready[0]);
  }
  ~Child() { End(); }
  Child(Child&& other) noexcept : mPid(std::exchange(other.mPid, -1)) {}
  Child& operator=(Child&&) = delete;

  pid_t Pid() const { return mPid; }

  /// Kills and collects it; the status of its end.
  int End() {
    int status = 0;
    if (mPid <= 0) return status;
    ::kill(mPid, SIGKILL);
    ::waitpid(std::exchange(mPid, -1), &status, 0);
    return status;
  }

 private:
  pid_t mPid = -1;
};

/// Runs `body` in a forked process and gives the complaint it returns; "" means that all was well.
inline std::string RunForked(const std::function<std::string()>& body) {
  std::array<int, 2> pipe{};
  if (::pipe(pipe.data()) != 0) return "no pipe";
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::close(pipe[0]);
    const std::string complaint = body();
    const bool written = ::write(pipe[1], complaint.data(), complaint.size()) ==
                         static_cast<ssize_t>(complaint.size());
    ::_exit(written ? 0 : 1);
  }
  ::close(pipe[1]);
  std::string complaint;
  std::array<char, 4096> buffer;
  for (ssize_t bytes = 0; (bytes = ::read(pipe[0], buffer.data(), buffer.size())) > 0;) {
    complaint.append(buffer.data(), static_cast<std::size_t>(bytes));
  }
  ::close(pipe[0]);
  int status = 0;
  ::waitpid(pid, &status, 0);
  if (status != 0) complaint += " (ended with status " + std::to_string(status) + ")";
  return complaint;
}

/// RunForked as process 1 of new pid and mount namespaces, with a proc of its own mounted at
/// `folder` with `options`. Nothing of it is seen outside, and all its processes end with it.
inline std::string RunInPidNamespace(const std::string& folder, const char* options,
                                     const std::function<std::string()>& body) {
  return RunForked([&]() -> std::string {
    if (::unshare(CLONE_NEWPID | CLONE_NEWNS) != 0) return "no namespaces";
    return RunForked([&]() -> std::string {
      if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return "not private";
      if (::mount("proc", folder.c_str(), "proc", 0, options) != 0) return "no proc";
      return body();
    });
  });
}

}  // namespace lurkwell
