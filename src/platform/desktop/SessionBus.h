#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <chrono>
#include <functional>
#include <string>

namespace lurkwell {

/// Where the desktop's portal answers, on the session bus.
inline const QString kPortalService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");

/// A connection of that name; not connected when `address` is "" or when no bus answers there
/// within two seconds. Main thread.
QDBusConnection ConnectToBus(const std::string& address, const QString& name);

/// Tells the programs of this program's user from those of others, by what the bus says of their
/// connections. Main thread only.
class BusUsers final : public QObject {
 public:
  explicit BusUsers(const QDBusConnection& bus) : mBus(bus) {}

  /// Calls `done` with whether the connection of that unique name is this user's: at once when it
  /// is known, else when the bus has answered; a sender it does not know is a stranger. False,
  /// without a call ever, when too many are being asked for.
  bool Ask(const QString& connection, std::function<void(bool)> done);

 private:
  QDBusConnection mBus;
  QHash<QString, bool> mKnown;
  int mAsking = 0;
};

/// Follows which program of this user's owns a name on a bus, without waiting. Main thread only.
class ServiceOwner final : public QObject {
 public:
  ServiceOwner(const QDBusConnection& bus, const QString& service,
               std::function<void()> changed = {});

  /// The owner's unique name; "" while there is none, none is known yet, or it is a stranger's.
  const QString& Name() const { return mName; }

 private:
  void AskForOwner(const QDBusConnection& bus, const QString& service);
  void SetOwner(const QString& owner);
  void AskForUser();
  void SetName(const QString& name);

  QDBusServiceWatcher mWatcher;
  BusUsers mUsers;
  std::function<void()> mChanged;
  /// Its owner.
  QString mOwner;
  QString mName;
  bool mHasHeard = false;
  bool mIsAsking = false;
};

/// Whether something answers at the first of a message bus's addresses (";" between them) that does
/// not refuse, asked on a connection that is closed again. The bus library itself would wait for
/// one that hangs as long as it likes. Addresses other than sockets of this machine count as
/// answering. Waits `longest` at most.
bool DoesBusAnswer(const std::string& addresses,
                   std::chrono::milliseconds longest = std::chrono::seconds(2));

}  // namespace lurkwell
