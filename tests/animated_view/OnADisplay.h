#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <string>

#include "resources/Resources.h"
#include "support/EventLoop.h"
#include "support/TestDisplay.h"

namespace lurkwell {

/// A test whose windows open on a display of its own. Each test is a process, so that each can have
/// its own application.
class OnADisplay : public testing::Test {
 protected:
  explicit OnADisplay(TestDisplay::Manager manager) : display(manager) {
    for (const auto& [variable, value] : display.Environment())
      ::setenv(variable.c_str(), value.c_str(), 1);
    ::setenv("LIBGL_ALWAYS_SOFTWARE", "1", 1);
    ::unsetenv("WAYLAND_DISPLAY");
    ::unsetenv("QT_SCALE_FACTOR");
    application = std::make_unique<QApplication>(argc, argv);
    InstallResources(*application);
  }

  /// Serves the windows until it is so.
  static bool Becomes(const std::function<bool()>& condition, double seconds = 10) {
    return SoonTrue(condition, seconds);
  }
  static void Serve(int milliseconds) {
    Becomes([] { return false; }, milliseconds / 1000.0);
  }

  /// What a program that is started on the display prints, its lines joined.
  std::string Output(const std::vector<std::string>& words) const {
    ChildProgram program(words, display.Environment());
    std::string all;
    for (std::string line; !(line = program.ReadLine(5000)).empty();) all += line + '\n';
    return all;
  }

  TestDisplay display;
  int argc = 1;
  char programName[5] = "test";
  char* argv[2] = {programName, nullptr};
  std::unique_ptr<QApplication> application;
};

}  // namespace lurkwell
