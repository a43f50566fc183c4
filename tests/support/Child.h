#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

namespace lurkwell {

/// User ids that the tests make up.
inline constexpr uid_t kUser = 61001;
inline constexpr uid_t kStranger = 61002;

/// Gives up root for `user`, with a group of the same number, in the calling process.
inline void BecomeUser(uid_t user) {
  if (::setgroups(0, nullptr) != 0 || ::setresgid(user, user, user) != 0 ||
      ::setresuid(user, user, user) != 0)
    ::_exit(99);
  // As after an exec, from which a real application of the user comes.
  ::prctl(PR_SET_DUMPABLE, 1);
}

/// As fork(), and throws where that fails: no test may signal "process" -1.
inline pid_t Fork() {
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no child");
  return child;
}

/// Runs `body` in a child and gives its pid. The child ends with what `body` returns, or 96 when it
/// throws.
inline pid_t Fork(const std::function<int()>& body) {
  const pid_t child = Fork();
  if (child > 0) return child;
  int status = 96;
  try {
    status = body();
  } catch (const std::exception& thrown) {
    std::fprintf(stderr, "%s\n", thrown.what());
  }
  std::fflush(stderr);
  ::_exit(status);
}

/// Waits for a child and gives its exit status, or minus the signal that ended it; kills it after
/// `seconds`.
inline int WaitFor(pid_t pid, int seconds = 30) {
  if (pid <= 0) throw std::runtime_error("no process");
  int status = 0;
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  while (::waitpid(pid, &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() > end) ::kill(pid, SIGKILL);
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

inline int InChild(const std::function<int()>& body, int seconds = 30) {
  return WaitFor(Fork(body), seconds);
}

/// Runs `body` in a child and gives the complaint it returns; "" means that all was well.
inline std::string RunForked(const std::function<std::string()>& body) {
  std::array<int, 2> pipe{};
  if (::pipe(pipe.data()) != 0) return "no pipe";
  const pid_t pid = Fork([&] {
    ::close(pipe[0]);
    const std::string complaint = body();
    const auto written = ::write(pipe[1], complaint.data(), complaint.size());
    return written == static_cast<ssize_t>(complaint.size()) ? 0 : 1;
  });
  ::close(pipe[1]);
  std::string complaint;
  std::array<char, 4096> buffer;
  for (ssize_t bytes = 0; (bytes = ::read(pipe[0], buffer.data(), buffer.size())) > 0;)
    complaint.append(buffer.data(), static_cast<std::size_t>(bytes));
  ::close(pipe[0]);
  const int status = WaitFor(pid);
  if (status != 0) complaint += " (ended with status " + std::to_string(status) + ")";
  return complaint;
}

/// A child that has run `prepare` and then sleeps until its owner ends it, or goes.
class Child {
 public:
  explicit Child(const std::function<void()>& prepare = [] {}) {
    std::array<int, 2> ready{};
    EXPECT_EQ(::pipe(ready.data()), 0);
    mPid = Fork();
    if (mPid == 0) {
      ::close(ready[0]);
      prepare();
      // Only now: a change of the user would undo it.
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);
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

  /// How it ended, which it has to do by itself, as WaitFor gives it.
  int Wait() { return WaitFor(std::exchange(mPid, -1)); }

  /// Kills and collects it; how it ended.
  int End() {
    if (mPid <= 0) return 0;
    ::kill(mPid, SIGKILL);
    return Wait();
  }

 private:
  pid_t mPid = -1;
};

}  // namespace lurkwell
