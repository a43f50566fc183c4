#include "platform/desktop/RunningInstance.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QMetaObject>
#include <string>
#include <utility>

#include "platform/desktop/BusProbe.h"

namespace lurkwell {
namespace {

const QString kConnection = QStringLiteral("lurkwell-instance");
const QString kService = QStringLiteral("com.velquarin.lurkwell");
const QString kPath = QStringLiteral("/com/velquarin/lurkwell/Instance");
const QString kInterface = QStringLiteral("com.velquarin.lurkwell.Instance");
constexpr int kAnswerTimeout = 3000;

/// One that is not connected, for no bus.
QDBusConnection Connected(const std::string& address) {
  if (!DoesBusAnswer(address)) return QDBusConnection(QStringLiteral("lurkwell-no-bus"));
  return QDBusConnection::connectToBus(QString::fromStdString(address), kConnection);
}

}  // namespace

RunningInstance::RunningInstance(const std::string& busAddress) : mBus(Connected(busAddress)) {}

RunningInstance::~RunningInstance() {
  QDBusConnection::disconnectFromBus(kConnection);
}

RunningInstance::Answer RunningInstance::Ask(const QString& method) {
  if (!mBus.isConnected()) return Answer::kNobody;
  auto message = QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
  message.setAutoStartService(false);
  const QDBusMessage answer = mBus.call(message, QDBus::Block, kAnswerTimeout);
  if (answer.type() == QDBusMessage::ReplyMessage) return Answer::kDone;
  const QString error = answer.errorName();
  const bool isNobody = error.endsWith(QLatin1String(".NameHasNoOwner")) ||
                        error.endsWith(QLatin1String(".ServiceUnknown")) ||
                        error.endsWith(QLatin1String(".Disconnected"));
  return isNobody ? Answer::kNobody : Answer::kSilent;
}

RunningInstance::Answer RunningInstance::BringToFront() {
  return Ask(QStringLiteral("Present"));
}

RunningInstance::Answer RunningInstance::ToggleOverlay() {
  return Ask(QStringLiteral("Toggle"));
}

bool RunningInstance::Become(std::function<void()> bringToFront,
                             std::function<void()> toggleOverlay) {
  mBringToFront = std::move(bringToFront);
  mToggleOverlay = std::move(toggleOverlay);
  // First the object, so that nobody finds the name without it.
  return mBus.isConnected() && mBus.registerObject(kPath, this, QDBusConnection::ExportAllSlots) &&
         mBus.registerService(kService);
}

// Queued: the caller is answered before anything that may wait.
void RunningInstance::Present() {
  QMetaObject::invokeMethod(
      this, [this] { mBringToFront(); }, Qt::QueuedConnection);
}

void RunningInstance::Toggle() {
  QMetaObject::invokeMethod(
      this, [this] { mToggleOverlay(); }, Qt::QueuedConnection);
}

}  // namespace lurkwell
