#include "platform/desktop/DBusEventBus.h"

#include <QDBusMessage>
#include <algorithm>

#include "platform/Diagnostics.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/EventMessage.h"

namespace lurkwell {
namespace {

constexpr FourCharCode kNubSignature = {'z', 'r', 'N', 'v'};
/// Names the guest when the environment gets an event for one of its guests.
constexpr FourCharCode kAddressKeyword = {'a', 'd', 'd', 'r'};
constexpr int kLongestGoodbye = 500;

}  // namespace

DBusEventBus::DBusEventBus(const Settings& settings)
    : mAddress(settings.address),
      mOwnsConnection(!QDBusConnection(settings.connection).isConnected()),
      mBus(mOwnsConnection ? ConnectToBus(settings.address, settings.connection)
                           : QDBusConnection(settings.connection)),
      mUsers(mBus),
      mNub(mBus, classic::kNubService),
      mEnvironment(mBus, classic::kEnvironmentService) {
  if (!mBus.isConnected()) return;
  mBus.registerVirtualObject(classic::kEventPath, this);
  mHasItsName = !settings.service.isEmpty() && mBus.registerService(settings.service);
}

DBusEventBus::~DBusEventBus() {
  if (!mBus.isConnected()) return;
  // An answer of the bus means that it has everything that was sent before the question.
  if (mHasSent) {
    mBus.call(QDBusMessage::createMethodCall(
                  QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                  QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")),
              QDBus::Block, kLongestGoodbye);
  }
  mBus.unregisterObject(classic::kEventPath);
  if (mOwnsConnection) QDBusConnection::disconnectFromBus(mBus.name());
}

QString DBusEventBus::ServiceOf(const EventAddress& address) const {
  if (const auto* signature = std::get_if<FourCharCode>(&address))
    return *signature == kNubSignature ? mNub.Name() : QString();
  if (std::holds_alternative<ProcessSerialNumber>(address)) return mEnvironment.Name();
  return QString::fromStdString(std::get<std::string>(address));
}

EventBus::Status DBusEventBus::Send(const EventAddress& address, const Event& event) {
  const QString service = ServiceOf(address);
  if (service.isEmpty()) return kNoSuchProcess;
  auto message = QDBusMessage::createMethodCall(
      service, classic::kEventPath, classic::kEventInterface, QStringLiteral("Deliver"));
  message.setAutoStartService(false);
  Event sent = event;
  if (const auto* psn = std::get_if<ProcessSerialNumber>(&address))
    sent.parameters.push_back({kAddressKeyword, *psn});
  message.setArguments(EventArguments(sent));
  mHasSent = true;
  return mBus.send(message) ? kNoError : kCannotBeSent;
}

void DBusEventBus::InstallEventHandler(FourCharCode eventClass, FourCharCode id, Handler handler) {
  if (!mBus.isConnected() && mHandlers.empty())
    Diagnose("no session bus, so no events from other programs");
  mHandlers[{eventClass, id}] = std::move(handler);
}

bool DBusEventBus::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
  if (message.type() != QDBusMessage::MethodCallMessage ||
      message.member() != QLatin1String("Deliver"))
    return false;
  // A sender that waits for an answer is there still when the bus is asked whose it is.
  const auto answer = [this, message] {
    if (message.isReplyRequired()) mBus.send(message.createReply());
  };
  const bool isAsking = mUsers.Ask(message.service(), [this, message, answer](bool isOurs) {
    answer();
    HandleFrom(message, isOurs);
  });
  if (isAsking) return true;
  answer();
  Drop("too many unknown senders");
  return true;
}

void DBusEventBus::HandleFrom(const QDBusMessage& message, bool isOurs) {
  if (!isOurs) return Drop("another user's");
  if (!TakeTurn()) return Drop("too many");
  const auto event = ReadEvent(message, kLargestEvent);
  if (!event) return Drop("malformed or too large");
  const auto found = mHandlers.find({event->eventClass, event->id});
  if (found != mHandlers.end()) found->second(*event);
}

void DBusEventBus::Drop(const char* why) {
  ++mDropped;
  if (std::exchange(mHasToldOfDrops, true)) return;
  Diagnose("dropped an event (%s); further ones are dropped silently", why);
}

/// A second's worth may come at once.
bool DBusEventBus::TakeTurn() {
  const auto now = std::chrono::steady_clock::now();
  const std::chrono::duration<double> passed = now - mLastTurn;
  mLastTurn = now;
  mTurns = std::min<double>(kMostEventsPerSecond, mTurns + passed.count() * kMostEventsPerSecond);
  if (mTurns < 1) return false;
  mTurns -= 1;
  return true;
}

}  // namespace lurkwell
