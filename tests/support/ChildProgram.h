#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace lurkwell {

/// Asks again and again until it is so; false when it is not within `seconds`.
inline bool ComesTrue(const std::function<bool()>& condition, double seconds = 10) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

/// A program that ends with its owner, and with the test if that is killed. It reads from and
/// writes to us, by lines.
class ChildProgram {
 public:
  using Environment = std::vector<std::pair<std::string, std::string>>;

  explicit ChildProgram(std::vector<std::string> words, const Environment& environment = {}) {
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    EXPECT_EQ(::pipe2(input.data(), O_CLOEXEC), 0);
    EXPECT_EQ(::pipe2(output.data(), O_CLOEXEC), 0);
    mPid = ::fork();
    if (mPid == 0) {
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);
      ::dup2(input[0], STDIN_FILENO);
      ::dup2(output[1], STDOUT_FILENO);
      for (const auto& [name, value] : environment) ::setenv(name.c_str(), value.c_str(), 1);
      std::vector<char*> arguments;
      for (auto& word : words) arguments.push_back(word.data());
      arguments.push_back(nullptr);
      ::execvp(arguments[0], arguments.data());
      ::_exit(127);
    }
    ::close(input[0]);
    ::close(output[1]);
    mInput = input[1];
    mOutput = output[0];
  }
  ~ChildProgram() {
    End();
    ::close(mInput);
    ::close(mOutput);
  }
  ChildProgram(const ChildProgram&) = delete;
  ChildProgram& operator=(const ChildProgram&) = delete;

  pid_t Pid() const { return mPid; }

  void Say(const std::string& line) const {
    const std::string text = line + '\n';
    EXPECT_EQ(::write(mInput, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }

  /// The next line; "" when none comes in time or the program has closed its output.
  std::string ReadLine(int milliseconds = 20000) const {
    std::string line;
    char c = 0;
    pollfd output{mOutput, POLLIN, 0};
    while (::poll(&output, 1, milliseconds) > 0 && ::read(mOutput, &c, 1) == 1 && c != '\n') {
      line += c;
    }
    return line;
  }

  /// Whether it ends by itself within this time.
  bool Ends(double seconds = 10) {
    return ComesTrue([&] { return mPid <= 0 || HasEnded(); }, seconds);
  }

  /// Asks it to end and clear up after itself; kills it if it does not.
  void Terminate() {
    if (mPid <= 0) return;
    ::kill(mPid, SIGTERM);
    ::kill(mPid, SIGCONT);
    if (!Ends(5)) End();
  }

  /// Kills it, if it has not ended.
  void End() {
    if (mPid <= 0) return;
    ::kill(mPid, SIGKILL);
    ::waitpid(std::exchange(mPid, -1), nullptr, 0);
  }

 private:
  bool HasEnded() {
    if (::waitpid(mPid, nullptr, WNOHANG) != mPid) return false;
    mPid = -1;
    return true;
  }

  pid_t mPid = -1;
  int mInput = -1;
  int mOutput = -1;
};

}  // namespace lurkwell
