// The wish for less motion, by a portal of the test's own and by files.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QVariantMap>
#include <memory>
#include <string>

#include "desktop/TestBus.h"
#include "platform/desktop/MotionWish.h"
#include "platform/desktop/SessionBus.h"
#include "support/EventLoop.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

using Groups = QMap<QString, QVariantMap>;

class SettingsPortal final : public QDBusVirtualObject {
 public:
  SettingsPortal(const std::string& address, Groups groups)
      : mBus(QDBusConnection::connectToBus(QString::fromStdString(address), "portal")),
        mGroups(std::move(groups)) {
    qDBusRegisterMetaType<Groups>();
    EXPECT_TRUE(mBus.registerVirtualObject("/org/freedesktop/portal/desktop", this));
    EXPECT_TRUE(mBus.registerService("org.freedesktop.portal.Desktop"));
  }
  ~SettingsPortal() override { QDBusConnection::disconnectFromBus("portal"); }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    EXPECT_EQ(message.interface() + '.' + message.member(),
              "org.freedesktop.portal.Settings.ReadAll");
    EXPECT_EQ(message.signature(), "as");
    ++asked;
    return bus.send(message.createReply(QVariant::fromValue(mGroups)));
  }
  void Change(const char* group, const char* key, const QVariant& value) {
    auto message = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                              "org.freedesktop.portal.Settings", "SettingChanged");
    message << group << key << QVariant::fromValue(QDBusVariant(value));
    mBus.send(message);
  }

  int asked = 0;

 private:
  QDBusConnection mBus;
  Groups mGroups;
};

class MotionTest : public testing::Test {
 protected:
  ~MotionTest() override { QDBusConnection::disconnectFromBus("client"); }
  QString Folder() const { return QString::fromStdString(folder.Path()); }

  TemporaryFolder folder;
  TestBus bus;
  QDBusConnection client = ConnectToBus(bus.Address(), "client");
};

TEST_F(MotionTest, ThePortalTellsItNowAndWhenItChanges) {
  auto portal = std::make_unique<SettingsPortal>(
      bus.Address(), Groups{{"org.gnome.desktop.interface", {{"enable-animations", true}}},
                            {"org.freedesktop.appearance", {{"reduced-motion", 0u}}}});
  MotionWish wish(Folder(), client);
  EXPECT_FALSE(wish.IsLess());
  ASSERT_TRUE(SoonTrue([&] { return portal->asked == 1; }));
  const auto becomes = [&](bool less) { return SoonTrue([&] { return wish.IsLess() == less; }); };
  portal->Change("org.freedesktop.appearance", "reduced-motion", 1u);
  EXPECT_TRUE(becomes(true));
  portal->Change("org.freedesktop.appearance", "color-scheme", 1u);
  portal->Change("org.freedesktop.appearance", "reduced-motion", 0u);
  EXPECT_TRUE(becomes(false));
  portal->Change("org.gnome.desktop.interface", "enable-animations", false);
  EXPECT_TRUE(becomes(true));
  portal->Change("org.gnome.desktop.interface", "enable-animations", true);
  EXPECT_TRUE(becomes(false));
  portal->Change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0");
  EXPECT_TRUE(becomes(true));
  portal->Change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0.5");
  EXPECT_TRUE(becomes(false));
  // One that comes later is asked, too.
  portal.reset();
  portal = std::make_unique<SettingsPortal>(
      bus.Address(), Groups{{"org.freedesktop.appearance", {{"reduced-motion", 1u}}}});
  EXPECT_TRUE(becomes(true));
}

TEST_F(MotionTest, FilesTellItWithoutABus) {
  const QDBusConnection none("no-bus");
  EXPECT_FALSE(MotionWish(Folder(), none).IsLess());
  folder.Write("kdeglobals", "[KDE]\nAnimationDurationFactor=1\n");
  EXPECT_FALSE(MotionWish(Folder(), none).IsLess());
  folder.Write("kdeglobals", "[KDE]\nAnimationDurationFactor=0\n");
  EXPECT_TRUE(MotionWish(Folder(), none).IsLess());
  EXPECT_TRUE(MotionWish(Folder(), client).IsLess()) << "no portal, which nobody waits for";
  folder.Write("kdeglobals", "[KDE]\nAnimationDurationFactor=abc\n");
  EXPECT_FALSE(MotionWish(Folder(), none).IsLess());
  folder.Make("gtk-3.0");
  folder.Write("gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n");
  EXPECT_TRUE(MotionWish(Folder(), none).IsLess());
}

}  // namespace
}  // namespace lurkwell
