#include "platform/desktop/SessionBus.h"

#include <unistd.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "platform/desktop/BusProbe.h"

namespace lurkwell {
namespace {

/// It is not waited for; a sender that is not answered for stays unknown.
constexpr int kBusAnswers = 20'000;
/// Unique names are never given twice, so what is known stays true; only memory is bounded.
constexpr int kMostKnown = 256;
constexpr int kMostAsking = 8;

QDBusMessage BusMethod(const QString& method, const QString& argument) {
  auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                QStringLiteral("/org/freedesktop/DBus"),
                                                QStringLiteral("org.freedesktop.DBus"), method);
  message << argument;
  return message;
}

}  // namespace

QDBusConnection ConnectToBus(const std::string& address, const QString& name) {
  if (!DoesBusAnswer(address)) return QDBusConnection(QStringLiteral("lurkwell-no-bus"));
  return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

ServiceOwner::ServiceOwner(const QDBusConnection& bus, const QString& service,
                           std::function<void()> changed)
    : mWatcher(service, bus, QDBusServiceWatcher::WatchForOwnerChange),
      mUsers(bus),
      mChanged(std::move(changed)) {
  connect(&mWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString&, const QString& owner) {
            mHasHeard = true;
            SetOwner(owner);
          });
  if (bus.isConnected()) AskForOwner(bus, service);
}

void ServiceOwner::AskForOwner(const QDBusConnection& bus, const QString& service) {
  auto* watcher = new QDBusPendingCallWatcher(
      bus.asyncCall(BusMethod(QStringLiteral("GetNameOwner"), service), kBusAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<QString> reply = *watcher;
    // What was heard meanwhile is newer.
    if (!mHasHeard && reply.isValid()) SetOwner(reply.value());
  });
}

void ServiceOwner::SetOwner(const QString& owner) {
  mOwner = owner;
  SetName({});
  if (!mOwner.isEmpty() && !mIsAsking) AskForUser();
}

/// One question at a time, however often the owner changes meanwhile.
void ServiceOwner::AskForUser() {
  mIsAsking = true;
  mUsers.Ask(mOwner, [this, asked = mOwner](bool isOurs) {
    mIsAsking = false;
    if (asked != mOwner) {
      if (!mOwner.isEmpty()) AskForUser();
    } else if (isOurs) {
      SetName(mOwner);
    }
  });
}

void ServiceOwner::SetName(const QString& name) {
  if (std::exchange(mName, name) != name && mChanged) mChanged();
}

bool BusUsers::Ask(const QString& connection, std::function<void(bool)> done) {
  if (const auto known = mKnown.constFind(connection); known != mKnown.constEnd()) {
    done(*known);
    return true;
  }
  if (mAsking >= kMostAsking) return false;
  ++mAsking;
  const auto call = BusMethod(QStringLiteral("GetConnectionUnixUser"), connection);
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call, kBusAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [this, watcher, connection, done = std::move(done)] {
            watcher->deleteLater();
            --mAsking;
            const QDBusPendingReply<uint> reply = *watcher;
            const bool isOurs = reply.isValid() && reply.value() == ::geteuid();
            if (mKnown.size() >= kMostKnown) mKnown.clear();
            // No answer says nothing about the next time.
            if (reply.isValid()) mKnown.insert(connection, isOurs);
            done(isOurs);
          });
  return true;
}

}  // namespace lurkwell
