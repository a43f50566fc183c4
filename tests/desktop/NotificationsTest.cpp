// Notifications over a bus, to a server of the test's own.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariantMap>
#include <string>
#include <vector>

#include "desktop/TestBus.h"
#include "platform/desktop/DesktopNotifications.h"
#include "platform/desktop/SessionBus.h"
#include "support/EventLoop.h"

namespace lurkwell {
namespace {

const QString kServerName = QStringLiteral("org.freedesktop.Notifications");
const QString kServerObject = QStringLiteral("/org/freedesktop/Notifications");

/// Keeps what it is asked to show.
class NotificationServer final : public QDBusVirtualObject {
 public:
  explicit NotificationServer(const std::string& address)
      : mBus(QDBusConnection::connectToBus(QString::fromStdString(address), "server")) {
    EXPECT_TRUE(mBus.registerVirtualObject(kServerObject, this));
    EXPECT_TRUE(mBus.registerService(kServerName));
  }
  ~NotificationServer() override { QDBusConnection::disconnectFromBus("server"); }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() == QLatin1String("GetCapabilities"))
      return bus.send(message.createReply(QVariant(capabilities)));
    EXPECT_EQ(message.member(), "Notify");
    EXPECT_EQ(message.signature(), "susssasa{sv}i");
    shown.push_back(message.arguments());
    return bus.send(message.createReply(QVariant(++mLast)));
  }
  void Emit(const char* signal, const QVariantList& arguments) {
    auto message = QDBusMessage::createSignal(kServerObject, kServerName, QLatin1String(signal));
    message.setArguments(arguments);
    mBus.send(message);
  }

  QStringList capabilities{"body", "body-markup", "actions"};
  std::vector<QVariantList> shown;

 private:
  QDBusConnection mBus;
  uint mLast = 6;
};

class NotificationsTest : public testing::Test {
 protected:
  ~NotificationsTest() override { QDBusConnection::disconnectFromBus("client"); }
  TestBus bus;
  QDBusConnection client = ConnectToBus(bus.Address(), "client");
};

TEST_F(NotificationsTest, AreShownOneAfterTheOtherAndAnswered) {
  NotificationServer server(bus.Address());
  DesktopNotifications notifications(client);
  std::string chosen, failed;
  notifications.WhenOneFails([&](const std::string& reason) { failed += reason; });
  notifications.Show(
      "a", {"<b>one</b>", "<img src=x> & \x1b[31m\n\xFF" + std::string(5000, 'x'), "Show process"},
      [&] { chosen += 'a'; });
  notifications.Show("b", {"two", "", ""}, [&] { chosen += 'b'; });
  ASSERT_TRUE(SoonTrue([&] { return server.shown.size() == 2; })) << failed;
  const auto& first = server.shown[0];
  EXPECT_EQ(first[3].toString(), "<b>one</b>") << "titles have no markup";
  EXPECT_TRUE(first[4].toString().startsWith(
      QStringLiteral("&lt;img src=x&gt; &amp; [31m\n%1xxx").arg(QChar(0xFFFD))))
      << first[4].toString().left(60).toStdString();
  EXPECT_LT(first[4].toString().size(), 700);
  EXPECT_EQ(first[5].toStringList(),
            QStringList({"default", "Show process", "show", "Show process"}));
  EXPECT_TRUE(server.shown[1][5].toStringList().isEmpty());
  // In the place of the first; nothing for the one that is closed.
  notifications.Show("a", {"one again", "", ""}, [&] { chosen += 'A'; });
  ASSERT_TRUE(SoonTrue([&] { return server.shown.size() == 3; }));
  EXPECT_EQ(server.shown[2][1].toUInt(), 7u);
  server.Emit("NotificationClosed", {8u, 2u});
  server.Emit("ActionInvoked", {8u, QStringLiteral("show")});
  server.Emit("ActionInvoked", {9u, QStringLiteral("other")});
  server.Emit("ActionInvoked", {9u, QStringLiteral("default")});
  EXPECT_TRUE(SoonTrue([&] { return !chosen.empty(); }));
  EXPECT_EQ(chosen, "A");
  // A server that shows plain text and no buttons.
  server.capabilities = {"body"};
  notifications.Show("c", {"three", "a < b & c", "Show process"}, [] {});
  ASSERT_TRUE(SoonTrue([&] { return server.shown.size() == 4; }));
  EXPECT_EQ(server.shown[3][4].toString(), "a < b & c");
  EXPECT_TRUE(server.shown[3][5].toStringList().isEmpty());
  EXPECT_EQ(failed, "");
}

TEST_F(NotificationsTest, WithoutAServerOrABusTheySay) {
  int failures = 0;
  DesktopNotifications notifications(client);
  notifications.WhenOneFails([&](const std::string& reason) { failures += !reason.empty(); });
  for (int i = 0; i < 40; ++i) notifications.Show("a", {"one", "two", "three"}, [] {});
  EXPECT_TRUE(SoonTrue([&] { return failures == 40; })) << failures;
  bus.End();
  EXPECT_TRUE(SoonTrue([&] { return !client.isConnected(); }));
  notifications.Show("a", {"one", "two", "three"}, [] {});
  EXPECT_EQ(failures, 41);
}

}  // namespace
}  // namespace lurkwell
