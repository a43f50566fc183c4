#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <string>

namespace lurkwell {

/// Whether the user has asked the desktop for less motion: what any of its settings says, as the
/// desktop's portal tells them now and when they change, and as KDE's and GTK's files say at the
/// start. Nothing is waited for: until the portal has answered, the files count. Main thread only.
class MotionWish final : public QObject {
  Q_OBJECT

 public:
  /// `configFolder` is that of the user's settings, as in $XDG_CONFIG_HOME.
  MotionWish(const QString& configFolder, const QDBusConnection& bus);

  bool IsLess() const;

 private Q_SLOTS:
  void TakeChange(const QDBusMessage& change);

 private:
  void Ask();
  void Take(const QString& group, const QString& key, const QVariant& value);

  QDBusConnection mBus;
  QDBusServiceWatcher mPortal;
  /// By which setting, and whether it is for less.
  QMap<QString, bool> mWishes;
};

}  // namespace lurkwell
