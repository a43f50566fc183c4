// The bus between real programs.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <chrono>
#include <functional>
#include <thread>

#include "classic/ClassicRecords.h"
#include "desktop/TestBus.h"
#include "platform/FileDescriptor.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/DBusEventBus.h"
#include "platform/desktop/SessionBus.h"
#include "support/ChildProgram.h"
#include "support/EventLoop.h"

namespace lurkwell {
namespace {

constexpr FourCharCode kClass = {'T', 'e', 's', 't'};
constexpr FourCharCode kId = {'\x80', ' ', '"', '0'};
constexpr FourCharCode kPlainId = {'a', 'b', 'c', 'd'};

/// Two ends on one bus; the receiver is found as the nub.
struct Ends {
  explicit Ends(const std::string& address)
      : receiver({address, QStringLiteral("receiver"), classic::kNubService}),
        sender({address, QStringLiteral("sender"), QString()}) {
    for (const auto& id : {kId, kPlainId})
      receiver.InstallEventHandler(kClass, id,
                                   [this](const Event& event) { got.push_back(event); });
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

using Words = std::vector<std::string>;

/// Another program's call of Deliver.
void Deliver(const std::string& address, const Words& arguments, Words words = {}) {
  const Words call = {"gdbus",         "call",
                      "--address",     address,
                      "--dest",        "com.velquarin.ClassicProcessInfoNub",
                      "--object-path", "/com/velquarin/Events",
                      "--method",      "com.velquarin.Events.Deliver"};
  words.insert(words.end(), call.begin(), call.end());
  words.insert(words.end(), arguments.begin(), arguments.end());
  ChildProgram caller(words);
  EXPECT_TRUE(SoonTrue([&] { return caller.Ends(0); }));
}

std::string ManyParameters(int count) {
  std::string list;
  for (int i = 0; i < count; ++i) list += (i == 0 ? "[" : ",") + std::string("('data','long',<5>)");
  return list + "]";
}

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
  // What is dropped shows in what comes behind it.
  ends.Send({{{'d', 'a', 't', 'a'}, std::vector<std::byte>(DBusEventBus::kLargestEvent + 1)}});
  ends.Send({});
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() >= 2; }));
  EXPECT_TRUE(ends.got[1].parameters.empty());
  for (const Words& arguments : {Words{"'Tes'", "'abcd'", "@a(ssv) []"},
                                 {"'Test'", "'abcde'", "@a(ssv) []"},
                                 {"'Test'", "'ab\u20ACd'", "@a(ssv) []"},
                                 {"'Test'", "'abcd'"},
                                 {"'Test'", "'abcd'", "[('dat','long',<5>)]"},
                                 {"'Test'", "'abcd'", "[('data','long',<uint32 5>)]"},
                                 {"'Test'", "'abcd'", "[('data','psn ',<5>)]"},
                                 {"'Test'", "'abcd'", "[('data','****',<'text'>)]"},
                                 {"'Test'", "'abcd'", "[('data','shor',<5>)]"},
                                 {"'Test'", "'abcd'", ManyParameters(17)}}) {
    Deliver(bus.Address(), arguments);
  }
  Deliver(bus.Address(), {"'Test'", "'abcd'", ManyParameters(16)});
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() >= 3; }));
  EXPECT_EQ(ends.got[2].parameters.size(), 16U);
  ends.got.clear();
  // A flood: what is heard is what time allows.
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 2000; ++i) ends.Send({});
  // And afterwards it hears again.
  EXPECT_TRUE(SoonTrue([&] {
    ends.Send({{{'l', 'a', 's', 't'}, 1}});
    return !ends.got.empty() && !ends.got.back().parameters.empty();
  }));
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  EXPECT_LE(static_cast<double>(ends.got.size()), 21 + 20 * passed.count());
}

TEST(BusProbe, WaitsForOneThatIsBusyAndTriesEachAddress) {
  const TestBus bus;
  const std::string none = "unix:path=/nonexistent;";
  EXPECT_FALSE(DoesBusAnswer(none));
  EXPECT_TRUE(DoesBusAnswer(none + bus.Address()));

  // As many callers as it has room for, none of them served yet.
  const std::string name = "lurkwell-busy-bus-" + std::to_string(::getpid());
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  name.copy(place.sun_path + 1, name.size());
  const auto* address = reinterpret_cast<const sockaddr*>(&place);
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  const auto open = [] {
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  };
  const auto listener = open();
  ASSERT_EQ(::bind(listener.Get(), address, length), 0);
  ASSERT_EQ(::listen(listener.Get(), 0), 0);
  std::vector<FileDescriptor> callers;
  do {
    callers.push_back(open());
  } while (::connect(callers.back().Get(), address, length) == 0);
  const std::jthread server([&](const std::stop_token& stop) {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    std::vector<FileDescriptor> served;
    while (!stop.stop_requested()) {
      served.emplace_back(::accept4(listener.Get(), nullptr, nullptr, SOCK_CLOEXEC));
      if (served.back().IsOpen()) ::send(served.back().Get(), "R", 1, MSG_NOSIGNAL);
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  });
  EXPECT_TRUE(DoesBusAnswer("unix:abstract=" + name));
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

// Session buses refuse other users; this one does not, so that a stranger can try.
TEST(EventBus, HearsNobodyElsesPrograms) {
  ASSERT_EQ(::geteuid(), 0U) << "needs root to become another user";
  const OpenBus bus;
  const std::string& address = bus.Address();
  Ends ends(address);
  ASSERT_TRUE(ends.Connected());
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() == 1; }));
  const Words asStranger = {"setpriv", "--reuid=65534", "--clear-groups"};
  const Words wellFormed = {"'Test'", "'abcd'", "[('data','long',<5>)]"};
  Deliver(address, wellFormed, asStranger);
  Deliver(address, {"'Test'", "'abcd'", "[('data','long',<6>)]"});
  ASSERT_TRUE(SoonTrue([&] { return ends.got.size() >= 2; }));
  EXPECT_EQ(*ends.got[1].Find<std::int32_t>({'d', 'a', 't', 'a'}), 6);

  // Nor is anything sent to them, whatever they call themselves.
  const auto reachesGuest = [&] {
    return ends.sender.Send(ProcessSerialNumber{2, 1}, {kClass, kId, {}, {}}) == EventBus::kNoError;
  };
  const auto environmentOf = [&](Words words) {
    words.emplace_back(LURKWELL_ENVIRONMENT);
    return ChildProgram(words, {{"DBUS_SESSION_BUS_ADDRESS", address}});
  };
  auto theirs = environmentOf(asStranger);
  ASSERT_EQ(theirs.ReadLine(), "ready");
  EXPECT_FALSE(SoonTrue(reachesGuest, 0.5));
  theirs.End();
  auto ours = environmentOf({});
  ASSERT_EQ(ours.ReadLine(), "ready");
  EXPECT_TRUE(SoonTrue(reachesGuest));
}

}  // namespace
}  // namespace lurkwell
