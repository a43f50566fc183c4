#include "platform/desktop/GlobalShortcutsPortal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include "platform/UserText.h"
#include "platform/desktop/SessionBus.h"

namespace lurkwell {
namespace {

const QString kPortalConnection = QStringLiteral("lurkwell-shortcuts");
const QString kPortalInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString kRegistryInterface = QStringLiteral("org.freedesktop.host.portal.Registry");
const QString kApplicationId = QStringLiteral("com.velquarin.lurkwell");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");
const QString kSessionInterface = QStringLiteral("org.freedesktop.portal.Session");
const QString kSessionToken = QStringLiteral("lurkwell_session");
constexpr int kPortalAnswers = 5000;

using ShortcutList = QList<std::pair<QString, QVariantMap>>;

}  // namespace

GlobalShortcutsPortal::GlobalShortcutsPortal(const std::string& busAddress, Told told)
    : mBus(DoesBusAnswer(busAddress) ? QDBusConnection::connectToBus(
                                           QString::fromStdString(busAddress), kPortalConnection)
                                     : QDBusConnection(QStringLiteral("lurkwell-no-bus"))),
      mTold(std::move(told)) {
  qDBusRegisterMetaType<std::pair<QString, QVariantMap>>();
  qDBusRegisterMetaType<ShortcutList>();
  mPortal = std::make_unique<ServiceOwner>(mBus, kPortalService, [this] { FollowPortal(); });
}

GlobalShortcutsPortal::~GlobalShortcutsPortal() {
  // The session ends with the connection.
  QDBusConnection::disconnectFromBus(kPortalConnection);
}

bool GlobalShortcutsPortal::Add(const QString& id, const QString& trigger,
                                std::function<void()> pressed) {
  if (!mBus.isConnected()) return false;
  mShortcuts.push_back({id, trigger, std::move(pressed)});
  if (!std::exchange(mAsked, true)) QTimer::singleShot(0, this, [this] { Introduce(); });
  return true;
}

void GlobalShortcutsPortal::ExpectAnswer(const QString& token, const char* slot) {
  const QString sender = mBus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  mBus.connect(kPortalService, kPortalPath + QStringLiteral("/request/%1/%2").arg(sender, token),
               kRequest, QStringLiteral("Response"), this, slot);
}

void GlobalShortcutsPortal::Call(const QString& method, const QVariantList& arguments) {
  auto message =
      QDBusMessage::createMethodCall(kPortalService, kPortalPath, kPortalInterface, method);
  message.setArguments(arguments);
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(message, kPortalAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    if (watcher->isError()) Complain(HotKeyStanding::kNoWay, watcher->error().message());
    watcher->deleteLater();
  });
}

/// Sessions end with the portal they were made by.
void GlobalShortcutsPortal::FollowPortal() {
  const QString& name = mPortal->Name();
  if (name.isEmpty()) {
    if (!mSession.isEmpty())
      Complain(HotKeyStanding::kNoWay,
               QStringLiteral("it has ended; it is asked anew if it returns"));
    mSession.clear();
    return;
  }
  const QString before = std::exchange(mPortalName, name);
  if (mAsked && !before.isEmpty() && before != name) Introduce();
}

void GlobalShortcutsPortal::Introduce() {
  auto message = QDBusMessage::createMethodCall(kPortalService, kPortalPath, kRegistryInterface,
                                                QStringLiteral("Register"));
  message.setArguments({kApplicationId, QVariantMap()});
  // Portals without it look the name up themselves, and those that know it already refuse.
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(message, kPortalAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    CreateSession();
  });
}

void GlobalShortcutsPortal::CreateSession() {
  const QString token = QStringLiteral("lurkwell_create");
  ExpectAnswer(token, SLOT(HandleSession(uint, QVariantMap)));
  mBus.connect(kPortalService, kPortalPath, kPortalInterface, QStringLiteral("Activated"), this,
               SLOT(HandleActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
  Call(QStringLiteral("CreateSession"),
       {QVariantMap{{QStringLiteral("handle_token"), token},
                    {QStringLiteral("session_handle_token"), kSessionToken}}});
}

void GlobalShortcutsPortal::HandleSession(uint response, const QVariantMap& results) {
  if (response != 0)
    return Complain(HotKeyStanding::kRefused, QStringLiteral("the desktop gives none"));
  mSession = results.value(QStringLiteral("session_handle")).toString();
  if (mSession.isEmpty())
    return Complain(HotKeyStanding::kRefused, QStringLiteral("the desktop names no session"));
  mBus.connect(kPortalService, mSession, kSessionInterface, QStringLiteral("Closed"), this,
               SLOT(HandleClosed()));
  Bind();
}

void GlobalShortcutsPortal::Bind() {
  const QString token = QStringLiteral("lurkwell_bind");
  ExpectAnswer(token, SLOT(HandleBound(uint, QVariantMap)));
  ShortcutList list;
  for (const auto& shortcut : mShortcuts)
    list.append(
        {shortcut.id,
         {{QStringLiteral("description"),
           QString::fromStdString(UserText("shortcut_overlay", "Animated view over the screen"))},
          {QStringLiteral("preferred_trigger"), shortcut.trigger}}});
  Call(QStringLiteral("BindShortcuts"),
       {QVariant::fromValue(QDBusObjectPath(mSession)), QVariant::fromValue(list), QString(),
        QVariantMap{{QStringLiteral("handle_token"), token}}});
}

void GlobalShortcutsPortal::HandleBound(uint response, const QVariantMap& results) {
  const auto bound =
      qdbus_cast<ShortcutList>(results.value(QStringLiteral("shortcuts")).value<QDBusArgument>());
  // Some answer that all is well when the user has taken none.
  const bool isRefused =
      response != 0 || (bound.isEmpty() && results.contains(QStringLiteral("shortcuts")));
  if (isRefused)
    return Complain(HotKeyStanding::kRefused,
                    QStringLiteral("the user or the desktop refused them"));
  QMap<QString, QString> triggers;
  for (const auto& [id, about] : bound)
    triggers[id] = about.value(QStringLiteral("trigger_description")).toString();
  mTold(HotKeyStanding::kGiven, {}, triggers);
}

/// Not asked anew: it may be the user who has taken the keys away.
void GlobalShortcutsPortal::HandleClosed() {
  if (std::exchange(mSession, {}).isEmpty()) return;
  Complain(HotKeyStanding::kRefused, QStringLiteral("the desktop has ended the session"));
}

void GlobalShortcutsPortal::HandleActivated(const QDBusObjectPath& session, const QString& id,
                                            qulonglong, const QVariantMap&) {
  if (session.path() != mSession) return;
  for (const auto& shortcut : mShortcuts) {
    if (shortcut.id != id) continue;
    const auto pressed = shortcut.pressed;
    pressed();
    return;
  }
}

}  // namespace lurkwell
