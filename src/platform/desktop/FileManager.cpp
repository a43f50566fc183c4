#include "platform/desktop/FileManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QUrl>
#include <utility>

namespace lurkwell {
namespace {

constexpr int kFileManagerAnswers = 5000;

/// Our own connection; made anew when the bus has been started again.
QDBusConnection SessionBus(const std::string& address) {
  const QString name = QStringLiteral("lurkwell-file-manager");
  QDBusConnection known(name);
  if (known.isConnected()) return known;
  QDBusConnection::disconnectFromBus(name);
  return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

}  // namespace

void OpenByTheDesktop(const QString& folderOrAddress, const std::function<void()>& failed) {
  // It may run as long as what it has opened, and is left alone then.
  auto* opener = new QProcess;
  opener->setStandardInputFile(QProcess::nullDevice());
  opener->setStandardOutputFile(QProcess::nullDevice());
  opener->setStandardErrorFile(QProcess::nullDevice());
  QObject::connect(opener, &QProcess::errorOccurred, opener,
                   [opener, failed](QProcess::ProcessError error) {
                     if (error != QProcess::FailedToStart) return;
                     opener->deleteLater();
                     failed();
                   });
  QObject::connect(opener, &QProcess::finished, opener, [opener, failed](int status) {
    opener->deleteLater();
    if (status != 0) failed();
  });
  opener->start(QStringLiteral("xdg-open"), {folderOrAddress});
}

bool FileManager::Ask(const std::string& path, std::function<void()> failed) const {
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
                   [watcher, failed = std::move(failed)] {
                     watcher->deleteLater();
                     if (watcher->isError()) failed();
                   });
  return true;
}

bool FileManager::Show(const std::string& path) const {
  return Ask(path, [path, failure = std::weak_ptr(mFailure)] {
    const auto tell = failure.lock();
    if (tell && *tell) (*tell)(path);
  });
}

void FileManager::ShowFileOrFolder(const std::string& path, std::function<void()> failed) const {
  const auto openFolder = [folder = QFileInfo(QFile::decodeName(path.c_str())).path(),
                           failed = std::move(failed)] { OpenByTheDesktop(folder, failed); };
  if (!Ask(path, openFolder)) openFolder();
}

}  // namespace lurkwell
