#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/desktop/SessionBus.h"

namespace lurkwell {

/// Keys that a desktop without a common X server gives away through its portal; the user may be
/// asked, and may choose other keys. A portal that is started anew is asked again. Main thread;
/// never waits for an answer.
class GlobalShortcutsPortal : public QObject {
  Q_OBJECT

 public:
  /// `complain` is called with a reason when the portal is missing, refuses or ends the session.
  GlobalShortcutsPortal(const std::string& busAddress,
                        std::function<void(const QString&)> complain);
  ~GlobalShortcutsPortal() override;

  /// False when there is no bus. Keys that are added before control returns to the run loop are
  /// asked for together.
  bool Add(const QString& id, const QString& trigger, std::function<void()> pressed);

 private Q_SLOTS:
  void HandleSession(uint response, const QVariantMap& results);
  void HandleBound(uint response, const QVariantMap& results);
  void HandleActivated(const QDBusObjectPath& session, const QString& id, qulonglong timestamp,
                       const QVariantMap& options);

  void HandleClosed();

 private:
  struct Shortcut {
    QString id;
    QString trigger;
    std::function<void()> pressed;
  };

  void FollowPortal();
  void CreateSession();
  void Bind();
  void Call(const QString& method, const QVariantList& arguments);
  /// Listens where the portal will answer a request of that token.
  void ExpectAnswer(const QString& token, const char* slot);

  QDBusConnection mBus;
  std::function<void(const QString&)> mComplain;
  std::vector<Shortcut> mShortcuts;
  QString mSession;
  bool mAsked = false;
  std::unique_ptr<ServiceOwner> mPortal;
  /// The last portal there was.
  QString mPortalName;
};

}  // namespace lurkwell
