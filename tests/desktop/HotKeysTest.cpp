#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

#include "desktop/TestBus.h"
#include "platform/desktop/DesktopHotKeys.h"
#include "platform/desktop/XConnection.h"
#include "support/EventLoop.h"
#include "support/TestDisplay.h"

namespace lurkwell {
namespace {

constexpr std::uint32_t kF7Code = 98;
constexpr std::uint32_t kF8Code = 100;
constexpr std::uint32_t kF7Symbol = 0xffc4;
constexpr std::uint32_t kFreeKey = 93;
constexpr std::uint8_t kOtherFreeKey = 97;

/// A display with a window manager, nothing else on it, and keys pressed through the server's test
/// extension.
class HotKeysTest : public testing::Test {
 protected:
  DesktopSettings Settings() const {
    DesktopSettings settings;
    settings.display = display.Name();
    settings.retryInterval = std::chrono::milliseconds(0);
    return settings;
  }
  void Press(const std::string& combination) const {
    ChildProgram tool({"xdotool", "key", combination}, display.Environment());
    EXPECT_TRUE(tool.Ends());
  }

  TestDisplay display;
  DesktopHotKeys keys{Settings(), DesktopHotKeys::Source::kXServer};
  int plain = 0;
  int super = 0;
};

TEST_F(HotKeysTest, ReachAProgramWithoutAWindowWhateverLocksAreOn) {
  ASSERT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [&] { ++plain; }));
  ASSERT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kCommandModifier, [&] { ++super; }));
  Press("F7");
  EXPECT_TRUE(SoonTrue([&] { return plain == 1; }));
  Press("super+F7");
  EXPECT_TRUE(SoonTrue([&] { return super == 1; }));
  for (const auto* lock : {"Caps_Lock", "Num_Lock"}) {
    Press(lock);
    Press("F7");
    Press("super+F7");
  }
  EXPECT_TRUE(SoonTrue([&] { return plain == 3 && super == 3; })) << plain << " " << super;
  // Other keys, and other modifiers, are not ours.
  Press("F8");
  Press("ctrl+F7");
  Press("F7");
  EXPECT_TRUE(SoonTrue([&] { return plain == 4; }));
  EXPECT_EQ(super, 3);
}

TEST_F(HotKeysTest, FollowAKeyboardThatIsMappedAnew) {
  ASSERT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [&] { ++plain; }));
  const auto connection = XConnection::Open(display.Name());
  ASSERT_NE(connection, nullptr);
  xcb_change_keyboard_mapping(connection->Raw(), 1, kFreeKey, 1, &kF7Symbol);
  connection->ServerTime();
  EXPECT_TRUE(SoonTrue([&] {
    Press(std::to_string(kFreeKey));
    return plain > 0;
  }));
  // Another program has the key that this one moves to next; only that is said, and only once.
  testing::internal::CaptureStderr();
  xcb_grab_key(connection->Raw(), 0, connection->Root(), XCB_MOD_MASK_ANY, kOtherFreeKey,
               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  for (int i = 0; i < 2; ++i) {
    xcb_change_keyboard_mapping(connection->Raw(), 1, kOtherFreeKey, 1, &kF7Symbol);
    connection->ServerTime();
    const int before = plain;
    EXPECT_TRUE(SoonTrue([&] {
      Press(std::to_string(kFreeKey));
      return plain > before;
    }));
  }
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("no hot key F7: another"), std::string::npos) << said;
  EXPECT_EQ(said.find("no hot key"), said.rfind("no hot key")) << said;
}

TEST(HotKeysOfNoDesktop, AreRefusedThoughThereIsAnXServer) {
  const TestDisplay display(TestDisplay::Manager::kNone);
  DesktopSettings settings;
  settings.display = display.Name();
  // The test's own windows are not on it.
  DesktopHotKeys keys(settings);
  EXPECT_FALSE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
}

TEST_F(HotKeysTest, CountOnceWhileTheKeyIsHeld) {
  ASSERT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [&] { ++plain; }));
  const auto say = [&](const std::string& action) {
    ChildProgram tool({"xdotool", action, "F7"}, display.Environment());
    EXPECT_TRUE(tool.Ends());
  };
  say("keydown");
  EXPECT_TRUE(SoonTrue([&] { return plain == 1; }));
  // Several times the server's delay and interval.
  EXPECT_FALSE(SoonTrue([&] { return plain > 1; }, 1.5));
  say("keyup");
  Press("F7");
  EXPECT_TRUE(SoonTrue([&] { return plain == 2; }));
}

TEST_F(HotKeysTest, AreTakenAgainFromAServerThatDidNotAnswerForAWhile) {
  ASSERT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [&] { ++plain; }));
  display.Freeze(true);
  EXPECT_FALSE(keys.RegisterEventHotKey(kF7Code, HotKeys::kCommandModifier, [&] { ++super; }));
  DesktopHotKeys others(Settings(), DesktopHotKeys::Source::kXServer);
  int eights = 0;
  EXPECT_FALSE(others.RegisterEventHotKey(kF8Code, HotKeys::kNoModifiers, [&] { ++eights; }));
  display.Freeze(false);
  EXPECT_TRUE(SoonTrue([&] {
    Press("F7");
    Press("super+F7");
    Press("F8");
    return plain > 0 && super > 0 && eights > 0;
  })) << plain
      << " " << super << " " << eights;
}

TEST_F(HotKeysTest, SayWhenAKeyIsTakenOrUnknown) {
  DesktopHotKeys others(Settings(), DesktopHotKeys::Source::kXServer);
  ASSERT_TRUE(others.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
  EXPECT_FALSE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
  EXPECT_EQ(keys.State().standing, HotKeyStanding::kTaken);
  EXPECT_EQ(others.State().standing, HotKeyStanding::kGiven);
  EXPECT_FALSE(keys.RegisterEventHotKey(4242, HotKeys::kNoModifiers, [] {}));
  EXPECT_FALSE(keys.RegisterEventHotKey(kF7Code, 512, [] {}));
  display.EndServer();
  DesktopHotKeys nowhere(Settings(), DesktopHotKeys::Source::kXServer);
  EXPECT_FALSE(nowhere.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
  // The connection of the first one has gone, which is no reason to spin or to end.
  QCoreApplication::processEvents();
}

/// Plays the desktop's portal: gives a session, notes what is bound, and can press.
class FakePortal final : public QDBusVirtualObject {
 public:
  explicit FakePortal(const std::string& address)
      : mBus(QDBusConnection::connectToBus(QString::fromStdString(address), "portal")) {
    EXPECT_TRUE(mBus.registerVirtualObject("/org/freedesktop/portal/desktop", this));
    EXPECT_TRUE(mBus.registerService("org.freedesktop.portal.Desktop"));
  }
  ~FakePortal() override { QDBusConnection::disconnectFromBus("portal"); }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
    if (message.member() == "Register") {
      name = message.arguments().value(0).toString();
      mBus.send(message.createReply());
      return true;
    }
    const bool creates = message.member() == "CreateSession";
    if (!creates) bound = message.signature();
    const auto request = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                             .arg(message.service().mid(1).replace('.', '_'),
                                  creates ? "lurkwell_create" : "lurkwell_bind");
    mBus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    Signal(
        request, "org.freedesktop.portal.Request", "Response",
        {creates ? 0U : answer, creates ? QVariantMap{{"session_handle", "/session/1"}} : given});
    return true;
  }
  void Press(const QString& id) {
    Signal("/org/freedesktop/portal/desktop", "org.freedesktop.portal.GlobalShortcuts", "Activated",
           {QVariant::fromValue(QDBusObjectPath("/session/1")), id, qulonglong{1}, QVariantMap()});
  }
  void Close() {
    Signal("/session/1", "org.freedesktop.portal.Session", "Closed", {QVariantMap()});
  }

  /// What the program calls itself.
  QString name;
  QString bound;
  /// What it says of the keys.
  uint answer = 0;
  QVariantMap given;

 private:
  void Signal(const QString& path, const QString& interface, const QString& member,
              const QVariantList& arguments) {
    auto signal = QDBusMessage::createSignal(path, interface, member);
    signal.setArguments(arguments);
    mBus.send(signal);
  }

  QDBusConnection mBus;
};

TEST(HotKeysOfThePortal, AreBoundAndPressed) {
  TestBus bus;
  auto portal = std::make_unique<FakePortal>(bus.Address());
  DesktopSettings settings;
  settings.sessionBusAddress = bus.Address();
  DesktopHotKeys keys(settings, DesktopHotKeys::Source::kPortal);
  int presses = 0;
  EXPECT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [&] { ++presses; }));
  EXPECT_TRUE(SoonTrue([&] { return !portal->bound.isEmpty(); }));
  EXPECT_EQ(portal->bound.toStdString(), "oa(sa{sv})sa{sv}");
  EXPECT_EQ(portal->name, "com.velquarin.lurkwell");
  EXPECT_TRUE(SoonTrue([&] { return keys.State().standing == HotKeyStanding::kGiven; }));
  EXPECT_EQ(keys.State().trigger, "");
  EXPECT_TRUE(SoonTrue([&] {
    portal->Press("overlay-f7");
    return presses > 0;
  }));
  // One that is started anew knows nothing of the session.
  portal.reset();
  portal = std::make_unique<FakePortal>(bus.Address());
  // Its user wants another key.
  using Given = QList<std::pair<QString, QVariantMap>>;
  portal->given["shortcuts"] = QVariant::fromValue(
      Given{{"overlay-f7", {{"trigger_description", "Ctrl+Alt+V"}}}, {"overlay-logo-f7", {}}});
  EXPECT_TRUE(SoonTrue([&] { return keys.State().trigger == "Ctrl+Alt+V"; }));
  testing::internal::CaptureStderr();
  portal->Close();
  const int before = presses;
  portal->Press("overlay-f7");
  EXPECT_FALSE(SoonTrue([&] { return presses > before; }, 0.5));
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("has ended the session"), std::string::npos) << said;
  EXPECT_EQ(keys.State().standing, HotKeyStanding::kRefused);
  settings.sessionBusAddress.clear();
  DesktopHotKeys nowhere(settings, DesktopHotKeys::Source::kPortal);
  EXPECT_FALSE(nowhere.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
  EXPECT_EQ(nowhere.State().standing, HotKeyStanding::kNoWay);
}

TEST(HotKeysOfThePortal, AreRefusedOrMissing) {
  TestBus bus;
  DesktopSettings settings;
  settings.sessionBusAddress = bus.Address();
  testing::internal::CaptureStderr();
  {
    DesktopHotKeys keys(settings, DesktopHotKeys::Source::kPortal);
    EXPECT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
    EXPECT_EQ(keys.State().standing, HotKeyStanding::kAwaited);
    EXPECT_TRUE(SoonTrue([&] { return keys.State().standing == HotKeyStanding::kNoWay; }));
  }
  FakePortal portal(bus.Address());
  // The user has closed the desktop's question; or has taken none of the keys, which is no error.
  for (const bool isError : {true, false}) {
    portal.answer = isError ? 1 : 0;
    portal.given["shortcuts"] = QVariant::fromValue(QList<std::pair<QString, QVariantMap>>());
    DesktopHotKeys keys(settings, DesktopHotKeys::Source::kPortal);
    EXPECT_TRUE(keys.RegisterEventHotKey(kF7Code, HotKeys::kNoModifiers, [] {}));
    EXPECT_TRUE(SoonTrue([&] { return keys.State().standing == HotKeyStanding::kRefused; }));
  }
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("org.freedesktop.portal"), std::string::npos) << said;
  EXPECT_NE(said.find("refused them"), std::string::npos) << said;
}

}  // namespace
}  // namespace lurkwell
