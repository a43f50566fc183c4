#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ProcessManager.h"
#include "platform/desktop/DesktopSettings.h"

namespace lurkwell {

/// The desktop's applications. On X a process is one when it owns an ordinary window that the
/// window manager manages; without X, when it is the first process of a group that the session
/// manager made for an application. Once in, it stays until its process has ended, with or without
/// windows, also when the X server is lost.
///
/// The list is looked at when a walk starts, and stays as it is during the walk and after it. A
/// look costs one small read per application, and a round or two to the X server when something
/// there has changed; it never waits longer than about half a second at a time.
///
/// A serial number is the process's start (low 32 bits), then its pid. A name is the desktop
/// entry's, else the windows' class, else a title, else the command's name. The type is "APPL", or
/// "FNDR" for a file manager, whose signature is "MACS"; other signatures are the first four
/// characters of the entry's id or of the class. The mode is 0.
///
/// Main thread only; needs no graphical Qt, and for Reveal a QCoreApplication.
class DesktopProcessManager final : public ProcessManager {
 public:
  explicit DesktopProcessManager(DesktopSettings settings);
  ~DesktopProcessManager() override;

  std::optional<ProcessSerialNumber> GetNextProcess(ProcessSerialNumber previous) override;
  std::optional<ApplicationInformation> GetProcessInformation(ProcessSerialNumber psn) override;
  std::optional<std::int32_t> GetProcessPID(ProcessSerialNumber psn) override;
  std::optional<ProcessSerialNumber> GetProcessForPID(std::int32_t pid) override;
  bool Quit(ProcessSerialNumber psn) override;
  bool CanQuit(ProcessSerialNumber psn) override;
  bool ShowHideProcess(ProcessSerialNumber psn, bool show) override;
  bool SetFrontProcess(ProcessSerialNumber psn) override;
  bool Reveal(ProcessSerialNumber psn) override;
  void WhenRevealFails(std::function<void(const std::string& file)> tell) override;
  void ShowFile(const std::string& path, std::function<void()> failed) override;
  void ShowAddress(const std::string& url, std::function<void()> failed) override;

  /// Where an application's icon comes from.
  struct IconSource {
    /// The desktop entry's: a name for the icon theme or an absolute path; "" for none.
    std::string name;
    /// Another number whenever its windows' icons may be others.
    std::uint64_t windowRevision = 0;
  };
  /// Nothing when the application has gone.
  std::optional<IconSource> IconSourceOf(ProcessSerialNumber psn);

  /// The icons that a window of the application carries, as the window has them: width, height,
  /// then so many pixels 0xAARRGGBB, and so on. Empty when there are none.
  std::vector<std::uint32_t> WindowIconsOf(ProcessSerialNumber psn);

 private:
  class Desktop;
  std::unique_ptr<Desktop> mDesktop;
};

}  // namespace lurkwell
