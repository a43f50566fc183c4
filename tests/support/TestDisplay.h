#pragma once

#include <gtest/gtest.h>
#include <signal.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {

/// An X server without a screen and, if wanted, a window manager on it: this test's own, under a
/// number of its own. Both end with their owner.
class TestDisplay {
 public:
  enum class Manager { kNone, kOpenbox };

  /// `serverWords` are further arguments for the server.
  explicit TestDisplay(Manager manager = Manager::kOpenbox,
                       const std::vector<std::string>& serverWords = {}) {
    // It writes its number to its standard output, which is us, when it is ready.
    std::vector<std::string> words = {"Xvfb",        "-displayfd", "1",   "-screen", "0",
                                      "1024x768x24", "-nolisten",  "tcp", "-noreset"};
    words.insert(words.end(), serverWords.begin(), serverWords.end());
    mServer = std::make_unique<ChildProgram>(words);
    const std::string number = mServer->ReadLine();
    EXPECT_NE(number, "") << "no Xvfb";
    mName = ':' + number;
    if (manager == Manager::kOpenbox) StartManager();
  }
  ~TestDisplay() {
    mManager.reset();
    EndServer();
  }

  /// As in $DISPLAY.
  const std::string& Name() const { return mName; }
  /// What a program needs to show its windows here and to touch nothing of the user's.
  ChildProgram::Environment Environment() const {
    return {{"DISPLAY", mName},
            {"HOME", mHome.Path()},
            {"XDG_CACHE_HOME", mHome.Path()},
            {"QT_QPA_PLATFORM", "xcb"}};
  }
  /// Ends the server under the windows that are there.
  void EndServer() {
    // Killed, it would leave its number taken.
    if (mServer) mServer->Terminate();
    mServer.reset();
  }
  /// Stops the server's process, or lets it go on.
  void Freeze(bool frozen) const { ::kill(mServer->Pid(), frozen ? SIGSTOP : SIGCONT); }

 private:
  void StartManager() {
    const std::string said = mHome / "started";
    mManager = std::make_unique<ChildProgram>(
        std::vector<std::string>{"openbox", "--sm-disable", "--startup", "touch " + said},
        Environment());
    // Run once it manages the display.
    EXPECT_TRUE(ComesTrue([&] { return std::filesystem::exists(said); }, 20)) << "no openbox";
  }

  TemporaryFolder mHome;
  std::string mName;
  std::unique_ptr<ChildProgram> mServer;
  std::unique_ptr<ChildProgram> mManager;
};

}  // namespace lurkwell
