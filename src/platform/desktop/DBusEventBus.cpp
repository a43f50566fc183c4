#include "platform/desktop/DBusEventBus.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QList>
#include <algorithm>

#include "platform/Diagnostics.h"
#include "platform/desktop/ClassicNames.h"

namespace lurkwell {

/// A parameter as it travels. Out of the unnamed namespace for the library's sake.
struct WireParameter {
  QString keyword;
  QString type;
  QDBusVariant value;
};

struct WireSerialNumber {
  quint32 high = 0;
  quint32 low = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const WireParameter& parameter) {
  argument.beginStructure();
  argument << parameter.keyword << parameter.type << parameter.value;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, WireParameter& parameter) {
  argument.beginStructure();
  argument >> parameter.keyword >> parameter.type >> parameter.value;
  argument.endStructure();
  return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const WireSerialNumber& number) {
  argument.beginStructure();
  argument << number.high << number.low;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, WireSerialNumber& number) {
  argument.beginStructure();
  argument >> number.high >> number.low;
  argument.endStructure();
  return argument;
}

}  // namespace lurkwell

Q_DECLARE_METATYPE(lurkwell::WireParameter)
Q_DECLARE_METATYPE(lurkwell::WireSerialNumber)

namespace lurkwell {
namespace {

constexpr std::size_t kMostParameters = 16;
const QString kLong = QStringLiteral("long");
const QString kSerialNumber = QStringLiteral("psn ");
const QString kBytes = QStringLiteral("****");

void RegisterTypes() {
  [[maybe_unused]] static const bool done = [] {
    qDBusRegisterMetaType<WireParameter>();
    qDBusRegisterMetaType<QList<WireParameter>>();
    qDBusRegisterMetaType<WireSerialNumber>();
    return true;
  }();
}

struct ToWire {
  QString keyword;

  WireParameter operator()(std::int32_t value) const { return {keyword, kLong, Box(value)}; }
  WireParameter operator()(ProcessSerialNumber psn) const {
    return {keyword, kSerialNumber, Box(QVariant::fromValue(WireSerialNumber{psn.high, psn.low}))};
  }
  WireParameter operator()(const std::vector<std::byte>& bytes) const {
    return {keyword, kBytes,
            Box(QByteArray(reinterpret_cast<const char*>(bytes.data()),
                           static_cast<qsizetype>(bytes.size())))};
  }

 private:
  static QDBusVariant Box(const QVariant& value) { return QDBusVariant(value); }
};

std::optional<EventValue> FromWire(const QString& type, const QVariant& value, std::size_t most) {
  if (type == kLong && value.metaType() == QMetaType::fromType<int>())
    return EventValue(std::int32_t{value.toInt()});
  if (type == kBytes && value.metaType() == QMetaType::fromType<QByteArray>()) {
    const auto bytes = value.toByteArray();
    if (static_cast<std::size_t>(bytes.size()) > most) return {};
    const auto* start = reinterpret_cast<const std::byte*>(bytes.constData());
    return EventValue(std::vector<std::byte>(start, start + bytes.size()));
  }
  if (type == kSerialNumber && value.canConvert<QDBusArgument>()) {
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(uu)")) return {};
    const auto number = qdbus_cast<WireSerialNumber>(argument);
    return EventValue(ProcessSerialNumber{number.high, number.low});
  }
  return {};
}

std::size_t SizeOf(const EventValue& value) {
  const auto* bytes = std::get_if<std::vector<std::byte>>(&value);
  return bytes == nullptr ? sizeof(ProcessSerialNumber) : bytes->size();
}

std::optional<EventParameter> NextParameter(const QDBusArgument& list, std::size_t most) {
  WireParameter parameter;
  list >> parameter;
  const auto keyword = CodeFromText(parameter.keyword);
  auto value = FromWire(parameter.type, parameter.value.variant(), most);
  if (!keyword || !value || SizeOf(*value) > most) return {};
  return EventParameter{*keyword, std::move(*value)};
}

/// A message may hold millions of parameters, so what is too much is not read at all.
std::optional<std::vector<EventParameter>> ReadParameters(const QDBusArgument& list,
                                                          std::size_t most) {
  std::vector<EventParameter> parameters;
  while (!list.atEnd()) {
    auto parameter = parameters.size() < kMostParameters ? NextParameter(list, most) : std::nullopt;
    if (!parameter) return {};
    most -= SizeOf(parameter->value);
    parameters.push_back(std::move(*parameter));
  }
  return parameters;
}

}  // namespace

std::optional<FourCharCode> CodeFromText(const QString& text) {
  FourCharCode code{};
  if (text.size() != static_cast<qsizetype>(code.size())) return {};
  const auto latin = text.toLatin1();
  // Letters beyond Latin-1 become question marks.
  if (QString::fromLatin1(latin) != text) return {};
  std::copy(latin.begin(), latin.end(), code.begin());
  return code;
}

QString TextOfCode(FourCharCode code) {
  return QString::fromLatin1(code.data(), static_cast<qsizetype>(code.size()));
}

QVariantList EventArguments(const Event& event) {
  RegisterTypes();
  QList<WireParameter> parameters;
  for (const auto& parameter : event.parameters)
    parameters << std::visit(ToWire{TextOfCode(parameter.keyword)}, parameter.value);
  return {TextOfCode(event.eventClass), TextOfCode(event.id), QVariant::fromValue(parameters)};
}

std::optional<Event> ReadEvent(const QDBusMessage& message, std::size_t mostBytes) {
  RegisterTypes();
  if (message.signature() != QLatin1String("ssa(ssv)")) return {};
  const auto arguments = message.arguments();
  const auto eventClass = CodeFromText(arguments[0].toString());
  const auto id = CodeFromText(arguments[1].toString());
  if (!eventClass || !id) return {};
  const auto list = arguments[2].value<QDBusArgument>();
  list.beginArray();
  auto parameters = ReadParameters(list, mostBytes);
  // Without it the list's reader is never given back.
  list.endArray();
  if (!parameters) return {};
  return Event{*eventClass, *id, std::move(*parameters), message.service().toStdString()};
}

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
