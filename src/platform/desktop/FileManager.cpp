#include "platform/desktop/FileManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QStringList>
#include <QUrl>

namespace lurkwell {
namespace {

constexpr int kFileManagerAnswers = 5000;

/// Our own connection; made anew when the bus has been started again.
QDBusConnection SessionBus(const std::string& address) {
  const QString name = QStringLiteral("lurkwell-file-manager");
  const QDBusConnection known(name);
  if (known.isConnected()) return known;
  QDBusConnection::disconnectFromBus(name);
  return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

}  // namespace

bool FileManager::Show(const std::string& path) const {
  if (mBusAddress.empty() || path.empty()) return false;
  const QDBusConnection bus = SessionBus(mBusAddress);
  if (!bus.isConnected()) return false;
  auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                                QStringLiteral("/org/freedesktop/FileManager1"),
                                                QStringLiteral("org.freedesktop.FileManager1"),
                                                QStringLiteral("ShowItems"));
  const QUrl file = QUrl::fromLocalFile(QFile::decodeName(path.c_str()));
  message << QStringList(QString::fromLatin1(file.toEncoded())) << QString();
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, kFileManagerAnswers));
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                   [watcher, path, failure = std::weak_ptr(mFailure)] {
                     watcher->deleteLater();
                     const auto tell = failure.lock();
                     if (watcher->isError() && tell && *tell) (*tell)(path);
                   });
  return true;
}

}  // namespace lurkwell
