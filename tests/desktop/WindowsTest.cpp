#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "desktop/MadeUpProcesses.h"
#include "desktop/TestDesktop.h"
#include "platform/desktop/XConnection.h"

namespace lurkwell {
namespace {

/// Looks at the display as an independent observer.
class Observer {
 public:
  explicit Observer(const std::string& display)
      : mConnection(xcb_connect(display.c_str(), nullptr)) {
    mRoot = xcb_setup_roots_iterator(xcb_get_setup(mConnection)).data->root;
  }
  ~Observer() { xcb_disconnect(mConnection); }

  std::vector<std::uint32_t> Words(xcb_window_t window, const char* property) {
    const auto atom = Atom(property);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        mConnection, xcb_get_property(mConnection, 0, window, atom, XCB_ATOM_ANY, 0, 1024),
        nullptr));
    return PropertyWords(reply.get());
  }
  xcb_window_t Active() {
    const auto words = Words(mRoot, "_NET_ACTIVE_WINDOW");
    return words.empty() ? 0 : words.front();
  }
  std::vector<xcb_window_t> Stacking() { return Words(mRoot, "_NET_CLIENT_LIST_STACKING"); }
  bool IsIconic(xcb_window_t window) {
    const auto words = Words(window, "WM_STATE");
    return !words.empty() && words.front() == 3;
  }
  bool IsHidden(xcb_window_t window) {
    for (const auto atom : Words(window, "_NET_WM_STATE")) {
      if (atom == Atom("_NET_WM_STATE_HIDDEN")) return true;
    }
    return false;
  }

 private:
  xcb_atom_t Atom(const char* name) {
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        mConnection,
        xcb_intern_atom(mConnection, 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    return reply ? reply->atom : 0;
  }

  xcb_connection_t* mConnection;
  xcb_window_t mRoot = 0;
};

/// The client and the id of its first window.
struct Shown {
  std::unique_ptr<ChildProgram> program;
  xcb_window_t window = 0;
};

Shown Show(TestDesktop& desktop, const std::string& instance, const std::string& windowClass) {
  auto program = desktop.StartClient(instance, windowClass);
  return {std::move(program), desktop.lastWindow};
}

std::string Text(FourCharCode code) {
  return {code.data(), code.size()};
}

TEST(DesktopWindows, ApplicationsComeInOrderAndStayUntilTheirProcessEnds) {
  TestDesktop desktop;
  desktop.WriteEntry("org.example.Editor", "Name=Editor\nName[de]=Schreiber\nExec=foo %U\n");
  desktop.WriteEntry("files", "Name=Files\nStartupWMClass=Lurk-files\nMimeType=inode/directory;\n");
  EXPECT_EQ(desktop.Walk().size(), 0U);
  const auto editor = desktop.StartClient("editor", "Editor");
  const auto first = desktop.Await(editor->Pid());
  const auto files = desktop.StartClient("f", "Lurk-files");
  const auto second = desktop.Await(files->Pid());
  const auto plain = desktop.StartClient("plain", "Plain\xe2\x82\xac");
  const auto third = desktop.Await(plain->Pid());
  const auto panel = desktop.StartClient("dock", "Panel");
  TestDesktop::Tell(*panel, "dialog");

  EXPECT_EQ(first.low, static_cast<std::uint32_t>(editor->Pid()));
  EXPECT_NE(first.high, 0U);
  EXPECT_EQ(desktop.NameOf(first), "Schreiber");
  EXPECT_EQ(desktop.manager->GetProcessForPID(files->Pid()), second);
  const auto information = desktop.manager->GetProcessInformation(second);
  ASSERT_TRUE(information);
  EXPECT_EQ(Text(information->type) + Text(information->signature), "FNDRMACS");
  const auto plainInformation = desktop.manager->GetProcessInformation(third);
  ASSERT_TRUE(plainInformation);
  EXPECT_EQ(plainInformation->name, "Plain\xe2\x82\xac");
  EXPECT_EQ(Text(plainInformation->type) + Text(plainInformation->signature), "APPLPlai");

  // A new entry gives a new name; a window that goes leaves the application where it was.
  desktop.WriteEntry("plain", "Name=Not So Plain\n");
  TestDesktop::Tell(*editor, "withdraw");
  EXPECT_TRUE(ComesTrue([&] {
    desktop.Walk();
    return desktop.NameOf(third) == "Not So Plain" && !desktop.manager->Quit(first);
  }));
  EXPECT_EQ(desktop.Walk(), (std::vector{first, second, third}));
  EXPECT_EQ(desktop.NameOf(first), "Schreiber");

  // Its process is in the kernel's table until it has been reaped.
  ::kill(editor->Pid(), SIGKILL);
  siginfo_t end;
  ::waitid(P_PID, static_cast<id_t>(editor->Pid()), &end, WEXITED | WNOWAIT);
  EXPECT_EQ(desktop.Walk(), (std::vector{first, second, third}));
  editor->End();
  EXPECT_EQ(desktop.manager->GetProcessForPID(static_cast<std::int32_t>(first.low)), std::nullopt);
  EXPECT_EQ(desktop.Walk(), (std::vector{second, third}));
  EXPECT_EQ(desktop.manager->GetNextProcess(first), std::nullopt);
  EXPECT_FALSE(desktop.manager->Quit(first));
}

TEST(DesktopWindows, KnowsProgramsThatDoNotSayWhoTheyAre) {
  TestDesktop desktop;
  desktop.WriteEntry("debian-xterm", "Name=Terminal\nExec=env A=b \"/usr/bin/xterm\" -x\n");
  ChildProgram xterm({"xterm", "-class", "Odd", "-e", "sleep", "100"},
                     desktop.display.Environment());
  const auto psn = desktop.Await(xterm.Pid());
  EXPECT_EQ(desktop.NameOf(psn), "Terminal");
  EXPECT_TRUE(desktop.manager->Quit(psn));
  // A terminal that has only just shown its window does not listen to its first messages.
  EXPECT_TRUE(ComesTrue([&] {
    desktop.Walk();
    return !desktop.manager->Quit(psn);
  }));
  EXPECT_TRUE(xterm.Ends());
}

TEST(DesktopWindows, ActionsReachTheWindows) {
  TestDesktop desktop;
  Observer observer(desktop.display.Name());
  const auto one = Show(desktop, "one", "One");
  const auto first = desktop.Await(one.program->Pid());
  const auto two = Show(desktop, "two", "Two");
  const auto second = desktop.Await(two.program->Pid());
  auto& manager = *desktop.manager;
  const auto isFront = [&](xcb_window_t window) {
    return ComesTrue([&] {
      const auto stacking = observer.Stacking();
      return observer.Active() == window && !stacking.empty() && stacking.back() == window;
    });
  };
  for (const auto& [psn, window] : {std::pair(first, one.window), std::pair(second, two.window),
                                    std::pair(first, one.window)}) {
    EXPECT_TRUE(manager.SetFrontProcess(psn));
    EXPECT_TRUE(isFront(window));
  }

  EXPECT_TRUE(manager.ShowHideProcess(first, false));
  EXPECT_TRUE(
      ComesTrue([&] { return observer.IsIconic(one.window) && observer.IsHidden(one.window); }));
  EXPECT_FALSE(observer.IsIconic(two.window));
  desktop.Walk();
  EXPECT_TRUE(manager.ShowHideProcess(first, true));
  EXPECT_TRUE(
      ComesTrue([&] { return !observer.IsIconic(one.window) && !observer.IsHidden(one.window); }));

  // What is brought to the front is brought back as well.
  EXPECT_TRUE(manager.ShowHideProcess(second, false));
  EXPECT_TRUE(ComesTrue([&] { return observer.IsIconic(two.window); }));
  EXPECT_TRUE(manager.SetFrontProcess(second));
  EXPECT_TRUE(isFront(two.window));
  EXPECT_FALSE(observer.IsIconic(two.window));

  EXPECT_TRUE(manager.Quit(second));
  EXPECT_TRUE(two.program->Ends());
  EXPECT_EQ(desktop.Walk(), std::vector{first});
}

TEST(DesktopWindows, AllWindowsOfAProcessComeToTheFrontAndHideTogether) {
  TestDesktop desktop;
  Observer observer(desktop.display.Name());
  const auto one = Show(desktop, "one", "One");
  const auto psn = desktop.Await(one.program->Pid());
  TestDesktop::Tell(*one.program, "window");
  const auto other = Show(desktop, "other", "Other");
  desktop.Await(other.program->Pid());
  EXPECT_TRUE(ComesTrue([&] { return observer.Stacking().size() == 3; }));
  desktop.manager->SetFrontProcess(desktop.Await(other.program->Pid()));
  EXPECT_TRUE(ComesTrue([&] { return observer.Stacking().back() == other.window; }));
  desktop.Walk();
  EXPECT_TRUE(desktop.manager->SetFrontProcess(psn));
  EXPECT_TRUE(ComesTrue([&] { return observer.Stacking().front() == other.window; }));
  const auto wanting = observer.Stacking();
  // The keyboard goes past a window in front that does not want it.
  TestDesktop::Tell(*one.program, "mute");
  EXPECT_TRUE(ComesTrue([&] { return observer.Stacking().size() == 4; }));
  desktop.manager->SetFrontProcess(desktop.Await(other.program->Pid()));
  EXPECT_TRUE(ComesTrue([&] { return observer.Active() == other.window; }));
  desktop.Walk();
  EXPECT_TRUE(desktop.manager->SetFrontProcess(psn));
  EXPECT_TRUE(ComesTrue([&] {
    return observer.Stacking().front() == other.window &&
           std::ranges::count(wanting, observer.Active()) == 1;
  }));
  EXPECT_TRUE(desktop.manager->ShowHideProcess(psn, false));
  EXPECT_TRUE(ComesTrue([&] {
    int hidden = 0;
    for (const auto window : observer.Stacking()) hidden += observer.IsHidden(window) ? 1 : 0;
    return hidden == 3;
  }));
}

TEST(DesktopWindows, APlainWindowManagerWillDo) {
  TestDesktop desktop(TestDisplay::Manager::kNone);
  const auto client = desktop.StartClient("a", "A");
  EXPECT_FALSE(ComesTrue([&] { return !desktop.Walk().empty(); }, 0.2));
  // Most of them are no windows, and one is there twice.
  std::vector<xcb_window_t> windows(3000, 0x7fffffff);
  for (std::size_t i = 0; i < windows.size(); ++i) windows[i] -= static_cast<xcb_window_t>(i);
  windows.insert(windows.begin() + 100, {desktop.lastWindow, desktop.lastWindow, 0});
  desktop.PretendToManage(windows);
  const auto psn = desktop.Await(client->Pid());
  EXPECT_EQ(desktop.Walk(), std::vector{psn});
  EXPECT_TRUE(desktop.manager->Quit(psn));
  EXPECT_TRUE(client->Ends());
  EXPECT_EQ(desktop.Walk().size(), 0U);
}

TEST(DesktopWindows, WindowsAreBelievedOnlyIfTheServerDoesNotKnowAndTheyAreHere) {
  TestDesktop desktop(TestDisplay::Manager::kOpenbox, {"-extension", "X-Resource"});
  const auto client = desktop.StartClient("a", "A");
  const std::string pid = std::to_string(client->Pid());
  const std::string host = desktop.Settings().hostName;
  TestDesktop::Tell(*client, "pid " + pid + " elsewhere");
  EXPECT_FALSE(ComesTrue([&] { return !desktop.Walk().empty(); }, 0.2));
  TestDesktop::Tell(*client, "pid 4294967295 " + host);
  EXPECT_FALSE(ComesTrue([&] { return !desktop.Walk().empty(); }, 0.2));
  TestDesktop::Tell(*client, "pid " + pid + ' ' + host);
  EXPECT_FALSE(desktop.Await(client->Pid()).IsNone());

  TestDesktop knowing;
  const auto liar = knowing.StartClient("b", "B");
  TestDesktop::Tell(*liar, "pid 1 " + host);
  EXPECT_EQ(knowing.Walk(), std::vector{knowing.Await(liar->Pid())});
}

TEST(DesktopWindows, ScopesTellOfApplicationsThatTheServerDoesNotKnow) {
  TestDesktop desktop;
  const MadeUpProcesses processes;
  const auto client = desktop.StartClient("a", "A");
  processes.Write(client->Pid(), 5, kAppSlice + std::string("app-a-1.scope"));
  auto settings = desktop.Settings();
  settings.usesScopes = true;
  settings.user = MadeUpProcesses::kUser;
  settings.procFolder = processes.Settings().procFolder;
  desktop.manager = std::make_unique<DesktopProcessManager>(settings);
  const auto pid = static_cast<std::uint32_t>(client->Pid());
  const ProcessSerialNumber x{5, pid};
  const ProcessSerialNumber native{6, pid + 2};
  EXPECT_EQ(desktop.Await(client->Pid()), x);
  EXPECT_TRUE(ComesTrue([&] {
    desktop.Walk();
    return desktop.manager->SetFrontProcess(x);
  }));
  // It was started by a script, and there is one without X windows.
  processes.Write(client->Pid() + 1, 4, kAppSlice + std::string("app-a-1.scope"), "script");
  processes.Write(client->Pid() + 2, 6, kAppSlice + std::string("app-b-1.scope"), "native");
  EXPECT_EQ(desktop.Walk(), (std::vector{x, native}));
  EXPECT_EQ(desktop.NameOf(x), "A");
  EXPECT_EQ(desktop.NameOf(native), "native");
  EXPECT_FALSE(desktop.manager->Quit(native));
  EXPECT_TRUE(desktop.manager->Quit(x));
  EXPECT_TRUE(client->Ends());
}

TEST(DesktopWindows, AWindowsIdMayBeGivenToAnotherAtOnce) {
  TestDesktop desktop;
  Observer observer(desktop.display.Name());
  auto old = Show(desktop, "old", "Old");
  desktop.Await(old.program->Pid());
  old.program->End();
  EXPECT_TRUE(ComesTrue([&] { return observer.Stacking().empty(); }));
  const auto next = Show(desktop, "next", "Next");
  ASSERT_EQ(next.window, old.window);
  EXPECT_TRUE(ComesTrue([&] { return observer.Stacking().size() == 1; }));
  const auto psn = desktop.Await(next.program->Pid());
  EXPECT_EQ(desktop.NameOf(psn), "Next");
  EXPECT_EQ(desktop.Walk(), std::vector{psn});
}

TEST(DesktopWindows, SurvivesAServerThatGoesAway) {
  auto desktop = std::make_unique<TestDesktop>();
  const auto client = desktop->StartClient("a", "A");
  const auto psn = desktop->Await(client->Pid());
  desktop->display.EndServer();
  // It lives on without its windows, and with it the application.
  EXPECT_TRUE(ComesTrue([&] { return !desktop->manager->SetFrontProcess(psn); }));
  EXPECT_EQ(desktop->Walk(), std::vector{psn});
  EXPECT_FALSE(desktop->manager->Quit(psn));
  EXPECT_FALSE(desktop->manager->ShowHideProcess(psn, false));
  client->End();
  EXPECT_EQ(desktop->Walk().size(), 0U);
}

TEST(DesktopWindows, AServerThatHangsCostsLittleTime) {
  using Clock = std::chrono::steady_clock;
  TestDesktop desktop;
  const auto client = desktop.StartClient("a", "A");
  const auto psn = desktop.Await(client->Pid());
  desktop.display.Freeze(true);
  const auto start = Clock::now();
  desktop.manager->Quit(psn);
  desktop.Walk();
  desktop.Walk();
  desktop.Restart();
  desktop.Walk();
  desktop.Walk();
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
  desktop.display.Freeze(false);
  EXPECT_FALSE(desktop.Await(client->Pid()).IsNone());
}

}  // namespace
}  // namespace lurkwell
