#include "platform/desktop/FileManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
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
  bus.asyncCall(message, kFileManagerAnswers);
  return true;
}

}  // namespace lurkwell
