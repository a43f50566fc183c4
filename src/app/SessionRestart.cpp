#include "app/SessionRestart.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace lurkwell {
namespace {

/// What Qt has not taken away: it reads "-session ID" itself.
QStringList RestartCommand(const QSessionManager& manager) {
  QStringList command = QCoreApplication::arguments();
  command.front() = QCoreApplication::applicationFilePath();
  // By this name the manager knows the instance again.
  command << QStringLiteral("-session")
          << manager.sessionId() + QLatin1Char('_') + manager.sessionKey();
  return command;
}

}  // namespace

void RestartWithSession(QGuiApplication& application) {
  QObject::connect(&application, &QGuiApplication::saveStateRequest, &application,
                   [](QSessionManager& manager) {
                     manager.setRestartHint(QSessionManager::RestartIfRunning);
                     manager.setRestartCommand(RestartCommand(manager));
                   });
}

void NeverRestartWithSession(QGuiApplication& application) {
  QObject::connect(
      &application, &QGuiApplication::saveStateRequest, &application,
      [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });
}

}  // namespace lurkwell
