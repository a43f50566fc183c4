#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desktop/MadeUpProcesses.h"
#include "platform/desktop/ApplicationScopes.h"
#include "platform/desktop/DesktopProcessManager.h"
#include "platform/desktop/ProcFolder.h"
#include "support/ChildProgram.h"

namespace lurkwell {
namespace {

std::string IdOf(const std::string& path) {
  const auto scope = ScopeOfControlGroups("1:name=systemd:/\n0::" + path + "\n");
  return scope ? scope->entryId : "-";
}

TEST(Scopes, NamesTellTheDesktopEntry) {
  const std::string slice = kAppSlice;
  EXPECT_EQ(IdOf(slice + "app-gnome-org.gnome.Nautilus-4711.scope"), "org.gnome.Nautilus");
  EXPECT_EQ(IdOf(slice + "app-org.kde.dolphin-0a1b2c.scope"), "org.kde.dolphin");
  EXPECT_EQ(IdOf(slice + "app-gnome-debian\\x2dxterm-12.scope/child"), "debian-xterm");
  EXPECT_EQ(IdOf(slice + "app-kde-org.kde.kate@7f00.service"), "org.kde.kate");
  EXPECT_EQ(IdOf(slice + "app-foo.service"), "foo");
  EXPECT_EQ(IdOf(slice + "app-a.slice/app-a-x\\x2gy\\x-9.scope"), "x\\x2gy\\x");
  for (const char* other : {"dbus.service", "app-.scope", "app-.service", "app-x.slice",
                            "app.scope", ".scope", "", "vte-spawn-app-1.scope"}) {
    EXPECT_EQ(IdOf(slice + other), "-") << other;
  }
  EXPECT_EQ(IdOf("/system.slice/app-foo-1.scope"), "-");
  for (const char* broken : {"", ":", "::", "0:", "\n\n", "no colons"}) {
    EXPECT_FALSE(ScopeOfControlGroups(broken)) << broken;
  }
}

std::vector<std::int32_t> Walk(ProcessManager& manager) {
  std::vector<std::int32_t> pids;
  ProcessSerialNumber psn;
  while (const auto next = manager.GetNextProcess(psn)) {
    psn = *next;
    pids.push_back(manager.GetProcessPID(psn).value_or(-1));
  }
  return pids;
}

TEST(Scopes, WithoutAnXServerTheFirstProcessOfAGroupIsTheApplication) {
  const MadeUpProcesses processes;
  const std::string slice = kAppSlice;
  const std::string editor = slice + "app-gnome-org.example.Editor-1.scope";
  processes.WriteEntry("org.example.Editor", "Name=Editor\nNoDisplay=true\n");
  processes.Write(10, 500, "/init.scope");
  processes.Write(21, 600, editor);
  processes.Write(20, 601, editor);
  processes.Write(30, 550, slice + "app-unknown-2.scope", "un (known");
  DesktopProcessManager manager(processes.Settings());
  EXPECT_EQ(Walk(manager), (std::vector{30, 21}));
  const ProcessSerialNumber psn{600, 21};
  EXPECT_EQ(manager.GetProcessForPID(21), psn);
  EXPECT_EQ(manager.GetProcessForPID(20), std::nullopt);
  EXPECT_EQ(manager.GetProcessInformation(psn)->name, "Editor");
  EXPECT_EQ(manager.GetProcessInformation({550, 30})->name, "un (known");
  EXPECT_EQ(manager.GetProcessInformation({550, 30})->signature,
            (FourCharCode{'u', 'n', 'k', 'n'}));
  EXPECT_FALSE(manager.Quit(psn) || manager.SetFrontProcess(psn) ||
               manager.ShowHideProcess(psn, false) || manager.Reveal(psn));

  // What is in stays, older members or not; a new one is found, also when moved after its start.
  processes.Write(19, 400, editor);
  processes.Write(40, 700, slice);
  EXPECT_EQ(Walk(manager), (std::vector{30, 21}));
  processes.Write(40, 700, slice + "app-late-3.scope");
  EXPECT_EQ(Walk(manager), (std::vector{30, 21, 40}));
  // The same pid, but another process.
  processes.Write(30, 900, "/init.scope");
  processes.End(21);
  EXPECT_TRUE(ComesTrue([&] { return Walk(manager) == std::vector{40, 19}; }));
  EXPECT_FALSE(manager.GetProcessInformation(psn).has_value());

  // Where the kernel tells of births, there is no listing before one.
  processes.TellLastPid(40);
  EXPECT_EQ(Walk(manager), (std::vector{40, 19}));
  processes.Write(50, 950, slice + "app-new-4.scope");
  EXPECT_EQ(Walk(manager), (std::vector{40, 19}));
  processes.TellLastPid(50);
  EXPECT_EQ(Walk(manager), (std::vector{40, 19, 50}));
  // The next of a group takes its first one's place all the same.
  processes.Write(51, 951, slice + "app-new-4.scope");
  processes.TellLastPid(51);
  EXPECT_EQ(Walk(manager), (std::vector{40, 19, 50}));
  processes.End(50);
  EXPECT_TRUE(ComesTrue([&] { return Walk(manager) == std::vector{40, 19, 51}; }));
}

TEST(Scopes, OtherUsersTakeNoApplicationsPlace) {
  const MadeUpProcesses processes;
  const std::string editor = "app-org.example.Editor-1.scope";
  const std::string theirs = "/user.slice/user-1001.slice/user@1001.service/app.slice/";
  constexpr std::uint32_t kOther = 1001;
  constexpr std::uint32_t kRoot = 0;
  // All of them older than the one that counts.
  processes.Write(10, 300, theirs + editor, "theirs", "", kOther);
  processes.Write(11, 310, theirs + "app-other-2.scope", "pretends", "", MadeUpProcesses::kUser);
  processes.Write(12, 320, kAppSlice + editor, "asRoot", "", kRoot);
  processes.Write(20, 400, kAppSlice + editor);
  // Groups of one name may stand below different ones, as they do for programs started by hand.
  processes.Write(30, 500, kAppSlice + std::string("app-outer.slice/") + editor);
  // A container shows no more of the path.
  processes.Write(40, 600, "/app.slice/app-inside-3.scope");
  processes.Write(41, 590, "/app.slice/app-inside-3.scope", "theirs", "", kOther);
  DesktopProcessManager manager(processes.Settings());
  EXPECT_EQ(Walk(manager), (std::vector{20, 30, 40}));
}

}  // namespace

}  // namespace lurkwell
