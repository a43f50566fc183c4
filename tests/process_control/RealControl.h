#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <thread>

#include "channel/DaemonChannel.h"
#include "channel/DaemonCommunication.h"
#include "process_control/RealMachine.h"
#include "support/Child.h"
#include "support/OpenChannel.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {

/// A test whose helpers, orphans by design, become its children and can be found and counted.
/// Pipes and data stand in folders of the test.
class RealControl : public testing::Test {
 protected:
  RealControl() {
    gDaemonLimits = {};
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    ::setenv("TMPDIR", folder.Make("pipes", 01777).c_str(), 1);
    ::unsetenv("XDG_RUNTIME_DIR");
    ::setenv("XDG_DATA_HOME", folder.Make("data").c_str(), 1);
    RealMachine::Install(folder.Path());
  }
  ~RealControl() override {
    EXPECT_TRUE(std::filesystem::is_empty(folder / "pipes")) << "pipes are left";
    EXPECT_TRUE(AllHelpersEnd()) << "a helper is left";
    SetHelperUnprivileged(false);
    ::unsetenv("TMPDIR");
  }

  std::string Installed() const { return folder / "data/Lurkwell/Lurkwell_helper"; }

  /// Starts the installed helper as the user, without any question.
  void OpenInstalled() {
    if (!std::filesystem::exists(Installed())) {
      std::filesystem::create_directories(folder / "data/Lurkwell");
      std::filesystem::copy_file(LURKWELL_TEST_HELPER, Installed());
    }
    OpenChannel(Installed());
  }

  /// Puts the program that misbehaves in the helper's place.
  void UseStandIn(const std::string& mode) {
    UseRealHelper();
    std::filesystem::create_directories(folder / "data/Lurkwell");
    std::filesystem::copy_file(LURKWELL_TEST_STAND_IN, Installed());
    WriteFile(folder / "data/Lurkwell/mode", mode);
  }
  void UseRealHelper() { std::filesystem::remove_all(folder / "data/Lurkwell"); }

  /// A signal to one process, whatever a look-up gave.
  static void Signal(pid_t pid, int signal) {
    ASSERT_GT(pid, 1);
    ::kill(pid, signal);
  }

  /// The running helper, which must have greeted; -1 for none.
  static pid_t HelperPid() { return ChildNamed("lkw_helper_daem"); }

  /// A child of that name that has not ended; -1 for none.
  static pid_t ChildNamed(const char* wanted) {
    pid_t found = -1;
    DIR* names = ::opendir("/proc");
    while (const dirent* entry = ::readdir(names)) {
      const pid_t pid = std::atoi(entry->d_name);
      if (pid > 0 && IsChildNamed(pid, wanted)) found = pid;
    }
    ::closedir(names);
    return found;
  }

  /// Without allocations: a sanitizer would keep what is freed, and each fork would copy it.
  static bool IsChildNamed(pid_t pid, const char* wanted) {
    char text[256] = "";
    std::snprintf(text, sizeof text, "/proc/%d/stat", pid);
    const int file = ::open(text, O_RDONLY | O_CLOEXEC);
    const auto size = file < 0 ? -1 : ::read(file, text, sizeof text - 1);
    if (file >= 0) ::close(file);
    text[std::max<ssize_t>(size, 0)] = '\0';
    char start[64];
    const int length = std::snprintf(start, sizeof start, "%d (%s) ", pid, wanted);
    const char* state = text + length;
    // The state is followed by the parent.
    return std::strncmp(text, start, static_cast<std::size_t>(length)) == 0 && *state != 'Z' &&
           std::atoi(state + 1) == ::getpid();
  }

  /// Whether all helpers end within ten seconds; collects them.
  static bool AllHelpersEnd() {
    for (int i = 0; i < 10'000; ++i) {
      const pid_t ended = ::waitpid(-1, nullptr, WNOHANG);
      if (ended < 0) return true;
      if (ended == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
  }

  static std::string Query(const char* request, std::int32_t capacity = 255) {
    std::string buffer(static_cast<std::size_t>(capacity) + 1, '#');
    QueryDaemon(request, buffer.data(), capacity);
    return buffer.c_str();
  }

  TemporaryFolder folder;
};

}  // namespace lurkwell
