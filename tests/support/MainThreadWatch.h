#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <string>
#include <string_view>
#include <thread>

#include "platform/FileDescriptor.h"

namespace lurkwell {

/// Fails a test in which the main thread stood still for longer than a tenth of a second: waiting
/// for anything but its events, without a break. What it computes, and what the machine gives other
/// programs meanwhile, does not count.
class MainThreadWatch final : public testing::EmptyTestEventListener {
 public:
  static constexpr std::chrono::milliseconds kLongest{100};

  /// On the main thread, once there is an application.
  MainThreadWatch() : mState(OpenFile("stat")), mSwitches(OpenFile("status")) {
    auto* dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, dispatcher,
                     [this] { mAwaitsEvents = true; });
    QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, dispatcher,
                     [this] { mAwaitsEvents = false; });
  }

  void OnTestStart(const testing::TestInfo&) override {
    mLongestSeen = {};
    mThread = std::jthread([this](const std::stop_token& stop) { Watch(stop); });
  }
  void OnTestEnd(const testing::TestInfo&) override {
    mThread = {};
    EXPECT_LE(mLongestSeen.count(), kLongest.count()) << "milliseconds without a sign of life";
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kLook{10};

  static FileDescriptor OpenFile(const char* name) {
    const auto path = "/proc/self/task/" + std::to_string(::getpid()) + "/" + name;
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  }
  static std::string_view Read(const FileDescriptor& file, std::array<char, 4096>& text) {
    const auto size = ::pread(file.Get(), text.data(), text.size(), 0);
    return {text.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
  }
  /// How often it has waited so far while it waits; empty while it does not.
  std::string Waits() {
    std::array<char, 4096> text{};
    const auto stat = Read(mState, text);
    const auto name = stat.rfind(')');
    if (name == std::string_view::npos || mAwaitsEvents) return {};
    const char state = stat.substr(name + 2, 1).front();
    if (state != 'S' && state != 'D') return {};
    const auto status = Read(mSwitches, text);
    const auto line = status.find("\nvoluntary_ctxt_switches:");
    return std::string(status.substr(line + 1, status.find('\n', line + 1) - line));
  }
  void Watch(const std::stop_token& stop) {
    std::string before;
    Clock::time_point since;
    for (auto last = Clock::now(); !stop.stop_requested(); last = Clock::now()) {
      std::this_thread::sleep_for(kLook);
      const auto now = Clock::now();
      const auto waits = Waits();
      // A machine that lets this thread wait lets others wait that the main thread waits for.
      const bool isOverloaded = now - last > 3 * kLook;
      if (waits != before || isOverloaded) {
        before = waits;
        since = now;
      }
      if (!waits.empty())
        mLongestSeen = std::max(mLongestSeen,
                                std::chrono::duration_cast<std::chrono::milliseconds>(now - since));
    }
  }

  FileDescriptor mState;
  FileDescriptor mSwitches;
  std::atomic<bool> mAwaitsEvents = false;
  /// The thread's while there is one.
  std::chrono::milliseconds mLongestSeen{0};
  std::jthread mThread;
};

}  // namespace lurkwell
