#include <gtest/gtest.h>

#include <QCoreApplication>
#include <chrono>
#include <thread>

#include "desktop/TestBus.h"
#include "platform/desktop/RunningInstance.h"
#include "support/EventLoop.h"
#include "support/TestDisplay.h"

namespace lurkwell {
namespace {

using Answer = RunningInstance::Answer;

TEST(RunningInstance, IsFoundByTheNextOneAndDoesWhatItIsAsked) {
  TestBus bus;
  const auto program = [&] { return std::make_unique<RunningInstance>(bus.Address()); };
  EXPECT_EQ(program()->BringToFront(), Answer::kNobody);
  int fronts = 0;
  int toggles = 0;
  QString shown;
  auto first = program();
  QString token;
  ASSERT_TRUE(first->Become(
      [&] {
        ++fronts;
        token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
      },
      [&] { ++toggles; }, [&](const QString& address) { shown = address; }));
  // The others are programs of their own, as far as the bus can tell.
  const auto ask = [&](const std::string& method, std::vector<std::string> arguments = {}) {
    std::vector<std::string> words({"gdbus", "call", "--address", bus.Address(), "--dest",
                                    "com.velquarin.lurkwell", "--object-path",
                                    "/com/velquarin/lurkwell/Instance", "--method",
                                    "com.velquarin.lurkwell.Instance." + method});
    words.insert(words.end(), arguments.begin(), arguments.end());
    ChildProgram caller(words);
    EXPECT_TRUE(SoonTrue([&] { return caller.Ends(0); }));
  };
  ask("Show", {"lurkwell://pid/7", "{}"});
  // Only while the window comes to the front, the toolkit finds what the desktop gave the start.
  ask("Present", {"{'activation-token': <'from the panel'>}"});
  ask("Toggle");
  ask("Toggle");
  QCoreApplication::processEvents();
  EXPECT_EQ(fronts, 1);
  EXPECT_EQ(toggles, 2);
  EXPECT_EQ(shown, QLatin1String("lurkwell://pid/7"));
  EXPECT_EQ(token, QLatin1String("from the panel"));
  EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
  first.reset();
  EXPECT_EQ(program()->ToggleOverlay(), Answer::kNobody);
}

std::vector<std::string> As(uid_t user, std::vector<std::string> words) {
  words.insert(words.begin(), {"setpriv", "--reuid=" + std::to_string(user), "--clear-groups"});
  return words;
}

/// Takes the instance's name on a bus, and never answers.
constexpr char kHolder[] = R"(
import os, socket, struct, sys, time
def text(v): return struct.pack('<I', len(v)) + v + b'\0'
def pad(b, n): return b + b'\0' * (-len(b) % n)
def call(member, serial, body):
  fields = b''
  for code, kind, v in ((1, b'o', b'/org/freedesktop/DBus'), (2, b's', b'org.freedesktop.DBus'),
                        (3, b's', member), (6, b's', b'org.freedesktop.DBus')):
    fields = pad(fields, 8) + bytes([code, 1]) + kind + b'\0' + text(v)
  if body: fields = pad(fields, 8) + bytes([8, 1]) + b'g\0' + b'\2su\0'
  return pad(struct.pack('<BBBBIII', 108, 1, 0, 1, len(body), serial, len(fields)) + fields,
             8) + body
os.setuid(int(sys.argv[2]))
s = socket.socket(socket.AF_UNIX)
s.connect(sys.argv[1])
s.send(b'\0AUTH EXTERNAL ' + str(os.getuid()).encode().hex().encode() + b'\r\n')
s.recv(1000)
s.send(b'BEGIN\r\n' + call(b'Hello', 1, b'') + call(b'RequestName', 2,
       pad(text(b'com.velquarin.lurkwell'), 4) + struct.pack('<I', 4)))
got = b''
while b'NameAcquired' not in got or b'com.velquarin.lurkwell' not in got: got += s.recv(1000)
print('ready', flush=True)
time.sleep(60)
)";

TEST(RunningInstance, FollowsASilentOneAndNeitherHearsNorTrustsStrangers) {
  constexpr uid_t kStranger = 65534;
  ASSERT_EQ(::geteuid(), 0U) << "needs root to become another user";
  const OpenBus bus;
  const auto hold = [&](uid_t user) {
    auto holder = std::make_unique<ChildProgram>(
        std::vector<std::string>{"python3", "-c", kHolder, bus.Socket(), std::to_string(user)});
    EXPECT_EQ(holder->ReadLine(), "ready");
    return holder;
  };
  int toggles = 0;
  const auto toggle = [&](uid_t user) {
    ChildProgram caller(
        As(user,
           {"dbus-send", "--bus=" + bus.Address(), "--print-reply", "--dest=com.velquarin.lurkwell",
            "/com/velquarin/lurkwell/Instance", "com.velquarin.lurkwell.Instance.Toggle"}));
    EXPECT_TRUE(SoonTrue([&] { return caller.Ends(0); }));
    return caller.ReadLine().starts_with("method return");
  };
  auto holder = hold(0);
  auto instance = std::make_unique<RunningInstance>(bus.Address());
  EXPECT_EQ(instance->BringToFront(), Answer::kSilent);
  EXPECT_FALSE(instance->Become([] {}, [&] { ++toggles; }, [](const QString&) {}));
  instance->WaitInLine();
  holder.reset();
  EXPECT_TRUE(ComesTrue([&] { return toggle(0); }));
  EXPECT_FALSE(toggle(kStranger));
  QCoreApplication::processEvents();
  EXPECT_EQ(toggles, 1);
  instance.reset();
  holder = hold(kStranger);
  instance = std::make_unique<RunningInstance>(bus.Address());
  EXPECT_EQ(instance->BringToFront(), Answer::kNobody);
}

TEST(RunningInstance, NeverWaitsLongForABusThatHangsOrIsNotThere) {
  EXPECT_EQ(RunningInstance("").BringToFront(), Answer::kNobody);
  EXPECT_EQ(RunningInstance("unix:path=/nonexistent").BringToFront(), Answer::kNobody);
  // Accepts, and says nothing.
  ChildProgram silent({"python3", "-c",
                       "import socket,sys,time\n"
                       "s=socket.socket(socket.AF_UNIX); s.bind('\\0lurkwell-'+sys.argv[1])\n"
                       "s.listen(); print('ready',flush=True); time.sleep(60)",
                       std::to_string(::getpid())});
  ASSERT_EQ(silent.ReadLine(), "ready");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(RunningInstance("unix:abstract=lurkwell-" + std::to_string(::getpid())).BringToFront(),
            Answer::kNobody);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
}

}  // namespace
}  // namespace lurkwell
