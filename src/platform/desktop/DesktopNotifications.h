#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>

#include "platform/Notifications.h"

namespace lurkwell {

/// Notifications by the desktop's server for them (org.freedesktop.Notifications), which is asked
/// before each what it can show. One is shown after the other, 32 wait at most; a server that does
/// not answer within five seconds has failed. Main thread only; never waits.
class DesktopNotifications final : public QObject, public Notifications {
  Q_OBJECT

 public:
  /// `bus` may be without a connection; then all fail.
  explicit DesktopNotifications(const QDBusConnection& bus);

  void Show(const std::string& key, const Notification& notification,
            std::function<void()> chosen) override;
  void WhenOneFails(std::function<void(const std::string&)> failed) override {
    mFailed = std::move(failed);
  }

 private Q_SLOTS:
  void HandleAction(uint id, const QString& action);
  void HandleToken(uint id, const QString& token);
  void HandleClosed(uint id, uint reason);

 private:
  struct Waiting {
    std::string key;
    Notification notification;
    std::function<void()> chosen;
  };

  void Listen();
  void ShowNext();
  void Call(const QString& method, const QVariantList& arguments,
            std::function<void(const QDBusMessage& reply)> answered);
  void Notify(const QStringList& capabilities);
  void Fail(const QString& reason);

  QDBusConnection mBus;
  std::function<void(const std::string&)> mFailed;
  std::deque<Waiting> mWaiting;
  bool mIsShowing = false;
  bool mListens = false;
  /// Of those that are on the screen: the server's numbers by key, and what to do by number.
  QHash<QString, uint> mIds;
  QHash<uint, std::function<void()>> mChosen;
};

/// As the server may show it: without control characters but for line breaks, at most `most`
/// characters.
QString NotificationText(const std::string& text, int most);

}  // namespace lurkwell
