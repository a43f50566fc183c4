#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <string>

#include "platform/EventBus.h"
#include "platform/desktop/DBusEventBus.h"

namespace lurkwell {

/// A guest of the Classic environment that tells one program, again and again, what the environment
/// says of its guests. Whom and how often is what the last control event said. It ends when it is
/// asked to quit, when the environment or the program that it serves has gone, and when nobody
/// wants to be served for a minute after its start. Main thread only.
class Nub final : public QObject {
 public:
  Nub(DBusEventBus& events, std::function<void()> quit);

 private:
  void Follow();
  void Register();
  void Obey(const Event& control);
  void Report();
  void SendRecords(const QByteArray& records);
  bool ServedProcessIsThere() const;

  DBusEventBus& mEvents;
  std::function<void()> mQuit;
  QDBusConnection mBus;
  ServiceOwner mEnvironment;
  QTimer mUnwanted;
  QTimer mNextReport;
  ProcessSerialNumber mServed;
  std::string mServedSender;
  bool mIsAsking = false;
  bool mHasHadEnvironment = false;
};

}  // namespace lurkwell
