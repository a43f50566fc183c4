#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/desktop/SessionBus.h"

namespace lurkwell {

/// Keys that a desktop without a common X server gives away through its portal; the user may be
/// asked, and may choose other keys. A portal that is started anew is asked again. Main thread;
/// never waits for an answer.
class GlobalShortcutsPortal : public QObject {
  Q_OBJECT

 public:
  /// Called when it becomes known how it stands: with kGiven and, by the shortcut's id, what the
  /// desktop has bound to it in its own words, as far as it says; else with the reason.
  using Told =
      std::function<void(HotKeyStanding, const QString& reason, const QMap<QString, QString>&)>;

  GlobalShortcutsPortal(const std::string& busAddress, Told told);
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
  /// Portals know a program that no sandbox vouches for by the name that it gives itself, and by
  /// that name they remember its keys.
  void Introduce();
  void CreateSession();
  void Bind();
  void Call(const QString& method, const QVariantList& arguments);
  void Complain(HotKeyStanding standing, const QString& reason) { mTold(standing, reason, {}); }
  /// Listens where the portal will answer a request of that token.
  void ExpectAnswer(const QString& token, const char* slot);

  QDBusConnection mBus;
  Told mTold;
  std::vector<Shortcut> mShortcuts;
  QString mSession;
  bool mAsked = false;
  std::unique_ptr<ServiceOwner> mPortal;
  /// The last portal there was.
  QString mPortalName;
};

}  // namespace lurkwell
