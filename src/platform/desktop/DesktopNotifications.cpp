#include "platform/desktop/DesktopNotifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariantMap>
#include <utility>

#include "platform/UserText.h"

namespace lurkwell {
namespace {

const QString kServer = QStringLiteral("org.freedesktop.Notifications");
const QString kServerPath = QStringLiteral("/org/freedesktop/Notifications");
constexpr int kServerAnswers = 5000;
constexpr std::size_t kMostWaiting = 32;
/// Servers keep them until the user has seen them.
constexpr qsizetype kMostKept = 200;
constexpr int kLongestTitle = 120;
constexpr int kLongestBody = 600;
constexpr uchar kNormalUrgency = 1;
const QString kShowAction = QStringLiteral("show");
const QString kDefaultAction = QStringLiteral("default");

}  // namespace

QString NotificationText(const std::string& text, int most) {
  QString shown;
  for (const QChar c : QString::fromStdString(text))
    if (c == QLatin1Char('\n') || c.category() != QChar::Other_Control) shown += c;
  if (shown.size() <= most) return shown;
  shown.truncate(most - 1);
  if (shown.back().isHighSurrogate()) shown.chop(1);
  return shown + QChar(0x2026);
}

DesktopNotifications::DesktopNotifications(const QDBusConnection& bus) : mBus(bus) {}

void DesktopNotifications::Listen() {
  if (std::exchange(mListens, true)) return;
  const auto listen = [this](const char* signal, const char* slot) {
    mBus.connect(kServer, kServerPath, kServer, QLatin1String(signal), this, slot);
  };
  listen("ActionInvoked", SLOT(HandleAction(uint, QString)));
  listen("ActivationToken", SLOT(HandleToken(uint, QString)));
  listen("NotificationClosed", SLOT(HandleClosed(uint, uint)));
}

void DesktopNotifications::Show(const std::string& key, const Notification& notification,
                                std::function<void()> chosen) {
  if (!mBus.isConnected())
    return Fail(
        QString::fromStdString(UserText("notifications_no_bus", "there is no session bus")));
  if (mWaiting.size() >= kMostWaiting)
    return Fail(QString::fromStdString(UserText("notifications_too_many", "too many at a time")));
  Listen();
  mWaiting.push_back({key, notification, std::move(chosen)});
  if (!mIsShowing) ShowNext();
}

void DesktopNotifications::ShowNext() {
  mIsShowing = !mWaiting.empty();
  if (!mIsShowing) return;
  Call(QStringLiteral("GetCapabilities"), {},
       [this](const QDBusMessage& reply) { Notify(reply.arguments().value(0).toStringList()); });
}

/// An error ends the one that is being shown.
void DesktopNotifications::Call(const QString& method, const QVariantList& arguments,
                                std::function<void(const QDBusMessage&)> answered) {
  auto message = QDBusMessage::createMethodCall(kServer, kServerPath, kServer, method);
  message.setArguments(arguments);
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(message, kServerAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [this, watcher, answered = std::move(answered)] {
            watcher->deleteLater();
            const auto reply = watcher->reply();
            if (reply.type() != QDBusMessage::ErrorMessage) return answered(reply);
            mWaiting.pop_front();
            Fail(reply.errorMessage());
            ShowNext();
          });
}

void DesktopNotifications::Notify(const QStringList& capabilities) {
  const auto& [key, notification, chosen] = mWaiting.front();
  const auto name = QString::fromStdString(key);
  QString body = NotificationText(notification.body, kLongestBody);
  if (capabilities.contains(QStringLiteral("body-markup"))) body = body.toHtmlEscaped();
  QStringList actions;
  if (!notification.button.empty() && capabilities.contains(QStringLiteral("actions"))) {
    const auto button = QString::fromStdString(notification.button);
    actions << kDefaultAction << button << kShowAction << button;
  }
  const QVariantMap hints{
      {QStringLiteral("urgency"), QVariant::fromValue(kNormalUrgency)},
      {QStringLiteral("desktop-entry"), QStringLiteral("com.velquarin.lurkwell")}};
  Call(QStringLiteral("Notify"),
       {QStringLiteral("Lurkwell"), mIds.value(name), QStringLiteral("com.velquarin.lurkwell"),
        NotificationText(notification.title, kLongestTitle), body, actions, hints, -1},
       [this, name](const QDBusMessage& reply) {
         const auto id = reply.arguments().value(0).toUInt();
         if (mChosen.size() >= kMostKept) {
           mChosen.clear();
           mIds.clear();
         }
         mIds[name] = id;
         mChosen[id] = std::move(mWaiting.front().chosen);
         mWaiting.pop_front();
         ShowNext();
       });
}

void DesktopNotifications::HandleAction(uint id, const QString& action) {
  if (action != kShowAction && action != kDefaultAction) return;
  const auto chosen = mChosen.value(id);
  if (chosen) chosen();
}

/// What lets a window come to the front on a desktop without a common X server.
void DesktopNotifications::HandleToken(uint id, const QString& token) {
  if (mChosen.contains(id)) qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

void DesktopNotifications::HandleClosed(uint id, uint) {
  mChosen.remove(id);
  mIds.removeIf([id](QHash<QString, uint>::iterator entry) { return entry.value() == id; });
}

void DesktopNotifications::Fail(const QString& reason) {
  if (mFailed) mFailed(reason.toStdString());
}

}  // namespace lurkwell
