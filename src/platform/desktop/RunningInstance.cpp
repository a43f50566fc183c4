#include "platform/desktop/RunningInstance.h"

#include <unistd.h>

#include <QDBusError>
#include <QDBusMessage>
#include <QMetaObject>
#include <string>
#include <utility>

namespace lurkwell {
namespace {

const QString kConnection = RunningInstance::ConnectionName();
const QString kService = QStringLiteral("com.velquarin.lurkwell");
const QString kPath = QStringLiteral("/com/velquarin/lurkwell/Instance");
const QString kInterface = QStringLiteral("com.velquarin.lurkwell.Instance");
constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";
const QString kTokenName = QStringLiteral("activation-token");
constexpr int kInstanceAnswers = 3000;
constexpr int kBusTimeout = 1000;
// The bus's own numbers.
constexpr uint kNoFlags = 0;
constexpr uint kDoNotQueue = 4;
constexpr uint kIsOwner = 1;
constexpr uint kWasOwner = 4;

QDBusMessage AskBus(const QDBusConnection& bus, const QString& method,
                    const QVariantList& arguments) {
  auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                QStringLiteral("/org/freedesktop/DBus"),
                                                QStringLiteral("org.freedesktop.DBus"), method);
  message.setArguments(arguments);
  return bus.call(message, QDBus::Block, kBusTimeout);
}

/// What this program was told at its start about who wants its window.
QVariantMap StartOfThisProgram() {
  const auto token = qEnvironmentVariable(kTokenVariable);
  if (token.isEmpty()) return {};
  return {{kTokenName, token}};
}

/// Does what brings a window to the front as if this program had been started with the token: the
/// toolkit looks for it there, and only the compositor can tell whether it is good. What is left of
/// it is of no use to later windows.
void WithToken(const QVariantMap& start, const std::function<void()>& action) {
  const auto token = start.value(kTokenName).toString();
  if (!token.isEmpty()) qputenv(kTokenVariable, token.toUtf8());
  action();
  if (!token.isEmpty()) qunsetenv(kTokenVariable);
}

/// What the bus answers, "" or 0 for an error.
template <typename T>
T FirstOf(const QDBusMessage& answer) {
  const bool isReply = answer.type() == QDBusMessage::ReplyMessage;
  return isReply ? answer.arguments().value(0).value<T>() : T{};
}

bool IsOurs(const QDBusConnection& bus, const QString& connection) {
  const auto answer = AskBus(bus, QStringLiteral("GetConnectionUnixUser"), {connection});
  return answer.type() == QDBusMessage::ReplyMessage && FirstOf<uint>(answer) == ::geteuid();
}

}  // namespace

RunningInstance::RunningInstance(const std::string& busAddress)
    : mBus(ConnectToBus(busAddress, kConnection)) {}

RunningInstance::~RunningInstance() {
  QDBusConnection::disconnectFromBus(kConnection);
}

RunningInstance::Answer RunningInstance::Ask(const QString& method, const QVariantList& arguments) {
  if (!mBus.isConnected()) return Answer::kNobody;
  const auto owner = FirstOf<QString>(AskBus(mBus, QStringLiteral("GetNameOwner"), {kService}));
  if (owner.isEmpty() || !IsOurs(mBus, owner)) return Answer::kNobody;
  auto message = QDBusMessage::createMethodCall(owner, kPath, kInterface, method);
  message.setAutoStartService(false);
  message.setArguments(arguments);
  const QDBusMessage answer = mBus.call(message, QDBus::Block, kInstanceAnswers);
  if (answer.type() == QDBusMessage::ReplyMessage) return Answer::kDone;
  const QString error = answer.errorName();
  const bool hasNoOwner = error.endsWith(QLatin1String(".NameHasNoOwner")) ||
                          error.endsWith(QLatin1String(".ServiceUnknown")) ||
                          error.endsWith(QLatin1String(".Disconnected"));
  return hasNoOwner ? Answer::kNobody : Answer::kSilent;
}

RunningInstance::Answer RunningInstance::BringToFront() {
  return Ask(QStringLiteral("Present"), {StartOfThisProgram()});
}

RunningInstance::Answer RunningInstance::ToggleOverlay() {
  return Ask(QStringLiteral("Toggle"));
}

RunningInstance::Answer RunningInstance::ShowAddress(const std::string& address) {
  return Ask(QStringLiteral("Show"), {QString::fromStdString(address), StartOfThisProgram()});
}

bool RunningInstance::Become(std::function<void()> bringToFront,
                             std::function<void()> toggleOverlay,
                             std::function<void(const QString&)> showAddress) {
  mBringToFront = std::move(bringToFront);
  mToggleOverlay = std::move(toggleOverlay);
  mShowAddress = std::move(showAddress);
  // First the object, so that the name is never found without it.
  return mBus.isConnected() && mBus.registerObject(kPath, this, QDBusConnection::ExportAllSlots) &&
         RequestName(kDoNotQueue);
}

void RunningInstance::WaitInLine() {
  if (mBus.isConnected()) RequestName(kNoFlags);
}

bool RunningInstance::RequestName(uint flags) {
  const auto answer = FirstOf<uint>(AskBus(mBus, QStringLiteral("RequestName"), {kService, flags}));
  return answer == kIsOwner || answer == kWasOwner;
}

void RunningInstance::Serve(const std::function<void()>& action) {
  setDelayedReply(true);
  const auto call = message();
  const bool isAsking = mUsers.Ask(call.service(), [this, call, action](bool isOurs) {
    if (!isOurs) {
      mBus.send(call.createErrorReply(QDBusError::AccessDenied,
                                      QStringLiteral("only for the user of this instance")));
      return;
    }
    mBus.send(call.createReply());
    // Queued: the caller is answered before anything that may wait.
    QMetaObject::invokeMethod(
        this, [action] { action(); }, Qt::QueuedConnection);
  });
  if (!isAsking)
    mBus.send(call.createErrorReply(QDBusError::LimitsExceeded, QStringLiteral("too many calls")));
}

void RunningInstance::Present(const QVariantMap& start) {
  if (calledFromDBus()) Serve([this, start] { WithToken(start, mBringToFront); });
}

void RunningInstance::Toggle() {
  if (calledFromDBus()) Serve(mToggleOverlay);
}

void RunningInstance::Show(const QString& address, const QVariantMap& start) {
  if (!calledFromDBus()) return;
  Serve([this, address, start] { WithToken(start, [&] { mShowAddress(address); }); });
}

}  // namespace lurkwell
