#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "platform/Alerts.h"
#include "platform/Bundle.h"
#include "platform/Clock.h"
#include "platform/LogFiles.h"
#include "platform/Signals.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// CLOCK_REALTIME at construction, carried on by CLOCK_BOOTTIME.
class LinuxClock final : public Clock {
 public:
  using Reader = TimeValue (*)();

  LinuxClock();
  /// On other clocks than the machine's, for tests.
  LinuxClock(Reader calendar, Reader sinceBoot);
  TimeValue Now() override;
  TimeValue CalendarNow() override;

 private:
  Reader mCalendar;
  Reader mSinceBoot;
  TimeValue mStart;
  TimeValue mBootTimeAtStart;
};

/// Signals through a pidfd, which means one process and no other. A kernel or a sandbox without
/// pidfds gets no signals sent at all.
class LinuxSignals final : public Signals {
 public:
  /// `root` is where proc is mounted, for the start stamps.
  explicit LinuxSignals(const std::string& root = "/proc") : mFiles(root) {}
  bool Send(ProcessIdentity process, int signal) override;

 private:
  ProcFiles mFiles;
};

/// The application as it is installed: the program in PREFIX/bin, everything else in
/// PREFIX/lib/lurkwell. The user's data are below $XDG_DATA_HOME or ~/.local/share.
///
/// A build tree has the same shape and is marked by a file Contents/build-tree. There the data lie
/// in "Application Support" beside bin, so that no build ever runs the helper of another.
class LinuxBundle final : public Bundle {
 public:
  /// `executable`: where the running program lies.
  explicit LinuxBundle(const std::string& executable = RunningExecutable());

  std::string Path() const override { return mPrefix + "/lib/lurkwell"; }
  std::optional<std::string> ApplicationSupportFolder() const override;

  static std::string RunningExecutable();

 private:
  std::string mPrefix;
};

/// Alerts of a program that has no windows and nobody to answer: each is printed on standard error
/// once, and the last of its buttons, the one that goes on without, is taken; a caller that can go
/// on without an answer is told that there is nobody.
class TerminalAlerts final : public Alerts {
 public:
  AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                            const std::string& defaultButton, const std::string& alternateButton,
                            const std::string& otherButton) override;
  std::unique_ptr<Alert> Ask(const AlertText& text,
                             std::function<void(AlertAnswer)> answered) override;

 private:
  void Print(const std::string& title, const std::string& message, const std::string& otherButton);

  std::set<std::string> mPrinted;
};

/// Log files in lurkwell/logs below $XDG_DATA_HOME, or below ~/.local/share where that is not an
/// absolute path. Folders that are missing are made, for the user alone. Main thread.
class LinuxLogFiles final : public LogFiles {
 public:
  Creation Create(std::string_view name) override;
  Creation Continue(std::string_view name, std::string_view header,
                    std::int64_t mostBytes) override;
};

}  // namespace lurkwell
