// The bus between real programs.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QCoreApplication>
#include <chrono>
#include <fstream>
#include <functional>

#include "classic/ClassicRecords.h"
#include "desktop/TestBus.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/DBusEventBus.h"
#include "platform/desktop/EventMessage.h"
#include "support/ChildProgram.h"

namespace lurkwell {
namespace {

constexpr FourCharCode kClass = {'T', 'e', 's', 't'};
constexpr FourCharCode kId = {'\x80', ' ', '"', '0'};

bool SoonTrue(const std::function<bool()>& condition, double seconds = 10) {
  return ComesTrue(
      [&] {
        QCoreApplication::processEvents();
        return condition();
      },
      seconds);
}

/// Two ends on one bus; the receiver is found as the nub.
struct Ends {
  explicit Ends(const std::string& address)
      : receiver({address, QStringLiteral("receiver"), classic::kNubService}),
        sender({address, QStringLiteral("sender"), QString()}) {
    receiver.InstallEventHandler(kClass, kId, [this](const Event& event) { got.push_back(event); });
  }
  EventBus::Status Send(std::vector<EventParameter> parameters) {
    return sender.Send(FourCharCode{'z', 'r', 'N', 'v'}, {kClass, kId, std::move(parameters), {}});
  }
  bool Connected() {
    return SoonTrue([&] { return Send({}) == EventBus::kNoError; });
  }

  DBusEventBus receiver;
  DBusEventBus sender;
  std::vector<Event> got;
};

TEST(EventBus, CarriesTypedParametersAndTheWayBack) {
  const TestBus bus;
  Ends ends(bus.Address());
  ASSERT_TRUE(ends.receiver.HasItsName());
  ASSERT_TRUE(ends.Connected());
  std::vector<std::byte> bytes(DBusEventBus::kLargestEvent - 100, std::byte{0xA5});
  ASSERT_EQ(ends.Send({{{'n', 'u', 'm', ' '}, -7},
                       {{'p', 's', 'n', '!'}, ProcessSerialNumber{0xFFFFFFFF, 3}},
                       {{'d', 'a', 't', 'a'}, bytes}}),
            EventBus::kNoError);
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() == 2; }));
  const auto& event = ends.got[1];
  EXPECT_EQ(*event.Find<std::int32_t>({'n', 'u', 'm', ' '}), -7);
  EXPECT_EQ(*event.Find<ProcessSerialNumber>({'p', 's', 'n', '!'}),
            (ProcessSerialNumber{0xFFFFFFFF, 3}));
  EXPECT_EQ(*event.Find<std::vector<std::byte>>({'d', 'a', 't', 'a'}), bytes);
  EXPECT_EQ(event.Find<std::int32_t>({'d', 'a', 't', 'a'}), nullptr);
  bool answered = false;
  ends.sender.InstallEventHandler(kClass, kId, [&](const Event&) { answered = true; });
  EXPECT_EQ(ends.receiver.Send(event.sender, {kClass, kId, {}, {}}), EventBus::kNoError);
  EXPECT_TRUE(SoonTrue([&] { return answered; }));
}

TEST(EventBus, DropsWhatIsTooLargeMalformedOrTooMuch) {
  const TestBus bus;
  Ends ends(bus.Address());
  ASSERT_TRUE(ends.Connected());
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() == 1; }));
  ends.Send({{{'d', 'a', 't', 'a'}, std::vector<std::byte>(DBusEventBus::kLargestEvent + 1)}});
  ASSERT_TRUE(SoonTrue([&] { return ends.receiver.Dropped() == 1; }));
  std::uint64_t dropped = 1;
  for (const std::string arguments :
       {"string:Tes string:abcd", "string:Test", "int32:5 int32:6", "string:Test string:abcdef"}) {
    ChildProgram caller({"sh", "-c",
                         "exec dbus-send --bus=" + bus.Address() +
                             " --type=method_call --dest=com.velquarin.ClassicProcessInfoNub "
                             "/com/velquarin/Events com.velquarin.Events.Deliver " +
                             arguments});
    EXPECT_TRUE(caller.Ends());
    EXPECT_TRUE(SoonTrue([&] { return ends.receiver.Dropped() == dropped + 1; })) << arguments;
    dropped = ends.receiver.Dropped();
  }
  // A flood: what is heard is what time allows.
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 2000; ++i) ends.Send({});
  ASSERT_TRUE(
      SoonTrue([&] { return ends.got.size() - 1 + ends.receiver.Dropped() - dropped >= 2000; }));
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  EXPECT_LE(static_cast<double>(ends.got.size()), 21 + 20 * passed.count());
  // And afterwards it hears again.
  const auto before = ends.got.size();
  EXPECT_TRUE(SoonTrue([&] {
    ends.Send({});
    return ends.got.size() > before;
  }));
}

TEST(EventBus, WithoutABusThereIsALineAndNothingElse) {
  testing::internal::CaptureStderr();
  DBusEventBus bus({"", QStringLiteral("none"), classic::kNubService});
  bus.InstallEventHandler(kClass, kId, [](const Event&) {});
  bus.InstallEventHandler(kClass, {'o', 't', 'h', 'r'}, [](const Event&) {});
  EXPECT_EQ(bus.Send(FourCharCode{'z', 'r', 'N', 'v'}, {kClass, kId, {}, {}}),
            EventBus::kNoSuchProcess);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lurkwell: no session bus, so no events from other programs\n");
}

// Session buses let nobody else in; this one does, so that a stranger can try.
TEST(EventBus, HearsNobodyElsesPrograms) {
  ASSERT_EQ(::geteuid(), 0U) << "needs root to become somebody else";
  const std::string folder = "/tmp/lurkwell-bus-" + std::to_string(::getpid());
  const std::string path = folder + ".conf";
  std::ofstream(path) << "<busconfig><type>session</type><listen>unix:path=" << folder
                      << ".socket</listen><policy context='default'><allow user='*'/>"
                         "<allow send_destination='*' eavesdrop='true'/><allow own='*'/>"
                         "<allow receive_sender='*'/></policy></busconfig>";
  ChildProgram daemon({"dbus-daemon", "--config-file=" + path, "--nofork", "--print-address=1"});
  const std::string address = daemon.ReadLine();
  Ends ends(address);
  ASSERT_TRUE(ends.Connected());
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() == 1; }));
  ChildProgram stranger({"setpriv", "--reuid=65534", "--clear-groups", "dbus-send",
                         "--bus=" + address, "--type=method_call",
                         "--dest=com.velquarin.ClassicProcessInfoNub", "/com/velquarin/Events",
                         "com.velquarin.Events.Deliver", "string:Test", "string:abcd"});
  EXPECT_TRUE(stranger.Ends());
  EXPECT_TRUE(SoonTrue([&] { return ends.receiver.Dropped() == 1; }));
  EXPECT_EQ(ends.got.size(), 1U);
  ::unlink(path.c_str());
  ::unlink((folder + ".socket").c_str());
}

}  // namespace
}  // namespace lurkwell
