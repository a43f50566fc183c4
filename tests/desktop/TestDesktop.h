#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktop/DesktopProcessManager.h"
#include "platform/desktop/XConnection.h"
#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"
#include "support/TestDisplay.h"

namespace lurkwell {

/// A desktop of its own: display, window manager, a folder of desktop entries; and its process
/// manager.
class TestDesktop {
 public:
  explicit TestDesktop(TestDisplay::Manager windowManager = TestDisplay::Manager::kOpenbox,
                       const std::vector<std::string>& serverWords = {})
      : display(windowManager, serverWords) {
    Restart();
  }

  DesktopSettings Settings() const {
    auto settings = DesktopSettings::FromEnvironment();
    settings.display = display.Name();
    settings.usesScopes = false;
    settings.applicationFolders = {files.Path() + "/applications"};
    settings.retryInterval = settings.entriesInterval = std::chrono::milliseconds(0);
    settings.sessionBusAddress.clear();
    settings.locale = "de_AT.UTF-8";
    return settings;
  }
  void Restart() { manager = std::make_unique<DesktopProcessManager>(Settings()); }

  void WriteEntry(const std::string& id, const std::string& lines) const {
    files.Write("applications/" + id + ".desktop", "[Desktop Entry]\nType=Application\n" + lines);
  }

  /// Starts an application and waits for its window to be there.
  std::unique_ptr<ChildProgram> StartClient(const std::string& instance,
                                            const std::string& windowClass) {
    auto client = std::make_unique<ChildProgram>(
        std::vector<std::string>{LURKWELL_WINDOW_CLIENT, instance, windowClass},
        display.Environment());
    const std::string line = client->ReadLine();
    EXPECT_TRUE(line.starts_with("ready ")) << line;
    if (line.size() > 6) lastWindow = static_cast<xcb_window_t>(std::stoul(line.substr(6)));
    return client;
  }
  static void Tell(const ChildProgram& client, const std::string& line) {
    client.Say(line);
    EXPECT_EQ(client.ReadLine(), "done");
  }

  /// Lists windows as a window manager would that supports nothing.
  void PretendToManage(const std::vector<xcb_window_t>& windows) const {
    const auto connection = XConnection::Open(display.Name());
    ASSERT_NE(connection, nullptr);
    xcb_change_property(connection->Raw(), XCB_PROP_MODE_REPLACE, connection->Root(),
                        connection->Atom(XAtom::kClientList), XCB_ATOM_WINDOW, 32,
                        static_cast<std::uint32_t>(windows.size()), windows.data());
    connection->ServerTime();
  }

  /// One walk.
  std::vector<ProcessSerialNumber> Walk() const {
    std::vector<ProcessSerialNumber> all;
    ProcessSerialNumber psn;
    while (const auto next = manager->GetNextProcess(psn)) all.push_back(psn = *next);
    return all;
  }
  /// The application that a process is as of a new walk.
  std::optional<ProcessSerialNumber> Find(pid_t pid) const {
    for (const auto& psn : Walk()) {
      if (manager->GetProcessPID(psn) == pid) return psn;
    }
    return {};
  }
  /// Waits for a process to be an application; its serial number, or none.
  ProcessSerialNumber Await(pid_t pid) const {
    std::optional<ProcessSerialNumber> found;
    EXPECT_TRUE(ComesTrue([&] { return (found = Find(pid)).has_value(); }));
    return found.value_or(ProcessSerialNumber{});
  }
  std::string NameOf(ProcessSerialNumber psn) const {
    const auto information = manager->GetProcessInformation(psn);
    return information ? information->name : "";
  }

  TestDisplay display;
  TemporaryFolder files;
  std::unique_ptr<DesktopProcessManager> manager;
  /// The first window of the client that was started last.
  xcb_window_t lastWindow = 0;
};

}  // namespace lurkwell
