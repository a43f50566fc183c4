#include "platform/desktop/MotionWish.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QSettings>
#include <QStringList>
#include <algorithm>

#include "platform/desktop/SessionBus.h"

namespace lurkwell {
namespace {

const QString kSettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
constexpr int kSettingsAnswer = 20'000;

bool IsZero(const QVariant& value) {
  bool isNumber = false;
  return value.toString().toDouble(&isNumber) == 0.0 && isNumber;
}
bool IsOne(const QVariant& value) {
  return value.toUInt() == 1;
}
bool IsFalse(const QVariant& value) {
  return !value.toBool();
}

/// A setting of the portal's, and which of its values ask for less motion.
struct MotionSetting {
  const char* group;
  const char* key;
  bool (*isForLess)(const QVariant&);
};
constexpr MotionSetting kMotionSettings[] = {
    {"org.freedesktop.appearance", "reduced-motion", &IsOne},
    {"org.gnome.desktop.interface", "enable-animations", &IsFalse},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", &IsZero},
};

QVariant InFile(const QString& file, const char* key) {
  return QSettings(file, QSettings::IniFormat).value(QLatin1String(key));
}

}  // namespace

MotionWish::MotionWish(const QString& configFolder, const QDBusConnection& bus)
    : mBus(bus), mPortal(kPortalService, bus, QDBusServiceWatcher::WatchForRegistration) {
  const auto factor =
      InFile(configFolder + QLatin1String("/kdeglobals"), "KDE/AnimationDurationFactor");
  if (factor.isValid())
    Take(QLatin1String(kMotionSettings[2].group), QLatin1String(kMotionSettings[2].key), factor);
  for (const char* folder : {"/gtk-3.0", "/gtk-4.0"}) {
    const auto animates =
        InFile(configFolder + QLatin1String(folder) + QLatin1String("/settings.ini"),
               "Settings/gtk-enable-animations");
    if (animates.isValid()) mWishes[QLatin1String(folder)] = IsFalse(animates);
  }
  if (!mBus.isConnected()) return;
  mBus.connect(kPortalService, kPortalPath, kSettingsInterface, QStringLiteral("SettingChanged"),
               this, SLOT(TakeChange(QDBusMessage)));
  connect(&mPortal, &QDBusServiceWatcher::serviceRegistered, this, &MotionWish::Ask);
  Ask();
}

bool MotionWish::IsLess() const {
  return std::find(mWishes.begin(), mWishes.end(), true) != mWishes.end();
}

void MotionWish::Ask() {
  auto question = QDBusMessage::createMethodCall(kPortalService, kPortalPath, kSettingsInterface,
                                                 QStringLiteral("ReadAll"));
  QStringList groups;
  for (const auto& setting : kMotionSettings) groups.append(QLatin1String(setting.group));
  question << groups;
  // Where there is none, none is started for this.
  question.setAutoStartService(false);
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(question, kSettingsAnswer), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const auto reply = watcher->reply();
    if (watcher->isError() || reply.signature() != QLatin1String("a{sa{sv}}")) return;
    const auto told =
        qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().at(0).value<QDBusArgument>());
    for (auto group = told.begin(); group != told.end(); ++group)
      for (auto entry = group->begin(); entry != group->end(); ++entry)
        Take(group.key(), entry.key(), entry.value());
  });
}

void MotionWish::TakeChange(const QDBusMessage& change) {
  if (change.signature() != QLatin1String("ssv")) return;
  const auto told = change.arguments();
  Take(told[0].toString(), told[1].toString(), told[2].value<QDBusVariant>().variant());
}

void MotionWish::Take(const QString& group, const QString& key, const QVariant& value) {
  for (const auto& setting : kMotionSettings)
    if (group == QLatin1String(setting.group) && key == QLatin1String(setting.key))
      mWishes[group] = setting.isForLess(value);
}

}  // namespace lurkwell
