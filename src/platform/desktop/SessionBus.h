#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <functional>
#include <string>

namespace lurkwell {

/// A connection of that name; not connected when `address` is "" or when no bus answers there
/// within two seconds. Main thread.
QDBusConnection ConnectToBus(const std::string& address, const QString& name);

/// Follows who owns a name on a bus, without waiting. Main thread only.
class ServiceOwner final : public QObject {
 public:
  ServiceOwner(const QDBusConnection& bus, const QString& service,
               std::function<void()> changed = {});

  /// The owner's unique name; "" while there is none, or none is known yet.
  const QString& Name() const { return mName; }

 private:
  void AskForOwner(const QDBusConnection& bus, const QString& service);
  void SetName(const QString& name);

  QDBusServiceWatcher mWatcher;
  std::function<void()> mChanged;
  QString mName;
  bool mHasHeard = false;
};

/// Tells the programs of this program's user from those of others, by what the bus says of their
/// connections. Main thread only.
class BusUsers final : public QObject {
 public:
  explicit BusUsers(const QDBusConnection& bus) : mBus(bus) {}

  /// Calls `done` with whether the connection of that unique name is this user's: at once when it
  /// is known, else when the bus has answered; who it does not answer for is a stranger. False,
  /// without a call ever, when too many are being asked for.
  bool Ask(const QString& connection, std::function<void(bool)> done);

 private:
  QDBusConnection mBus;
  QHash<QString, bool> mKnown;
  int mAsking = 0;
};

}  // namespace lurkwell
