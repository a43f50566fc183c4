#pragma once

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariantList>
#include <chrono>
#include <map>
#include <optional>
#include <utility>

#include "platform/EventBus.h"
#include "platform/desktop/SessionBus.h"

namespace lurkwell {

/// Events as messages of the bus; see ClassicNames.h for their form. Any thread.

/// The arguments of Deliver.
QVariantList EventArguments(const Event& event);

/// What a call of Deliver carries; nothing when it is not of that form, has too many parameters or
/// is larger than `mostBytes` altogether.
std::optional<Event> ReadEvent(const QDBusMessage& message, std::size_t mostBytes);

/// A code of exactly four Latin-1 characters; nothing from another text.
std::optional<FourCharCode> CodeFromText(const QString& text);
QString TextOfCode(FourCharCode code);

/// Events over the session bus. Only programs of the same user are heard, at most 20 events a
/// second, each of at most 4,096 records; what is more is dropped and counted. Without a bus there
/// are no events, and a line on standard error says so once some are wanted. A bus that goes is
/// not looked for again. Main thread only; needs a QCoreApplication.
class DBusEventBus final : public QDBusVirtualObject, public EventBus {
 public:
  static constexpr std::size_t kLargestEvent = std::size_t{4096} * 396;
  static constexpr int kMostEventsPerSecond = 20;

  struct Settings {
    /// "" for no bus.
    std::string address;
    /// The connection to use; made, and ended with this, when there is none of that name yet.
    QString connection = QStringLiteral("lurkwell-events");
    /// The name to be found by; "" for none of its own.
    QString service;
  };

  explicit DBusEventBus(const Settings& settings);
  ~DBusEventBus() override;

  Status Send(const EventAddress& address, const Event& event) override;
  void InstallEventHandler(FourCharCode eventClass, FourCharCode id, Handler handler) override;
  std::string Address() const override { return mAddress; }

  const QDBusConnection& Connection() const { return mBus; }
  /// Whether Settings::service is this program's.
  bool HasItsName() const { return mHasItsName; }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  QString ServiceOf(const EventAddress& address) const;
  void Drop(const char* why);
  void HandleFrom(const QDBusMessage& message, bool isOurs);
  bool TakeTurn();

  std::string mAddress;
  bool mOwnsConnection;
  QDBusConnection mBus;
  bool mHasItsName = false;
  bool mHasSent = false;
  bool mHasToldOfDrops = false;
  BusUsers mUsers;
  ServiceOwner mNub;
  ServiceOwner mEnvironment;
  std::map<std::pair<FourCharCode, FourCharCode>, Handler> mHandlers;
  double mTurns = kMostEventsPerSecond;
  std::chrono::steady_clock::time_point mLastTurn = std::chrono::steady_clock::now();
};

}  // namespace lurkwell
