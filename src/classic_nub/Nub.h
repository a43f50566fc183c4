#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "platform/EventBus.h"
#include "platform/FileDescriptor.h"
#include "platform/desktop/DBusEventBus.h"

namespace lurkwell {

/// A guest of the Classic environment that tells one program, again and again, what the environment
/// says of its guests. Whom and how often is what the last control event said. It ends when it is
/// asked to quit, when the environment or the program that it serves has gone, and when no
/// program has wanted to be served for a minute. Main thread only.
class Nub final : public QObject {
 public:
  Nub(DBusEventBus& events, std::function<void()> quit);

 private:
  void Follow();
  void Register();
  void Obey(const Event& control);
  void Rest();
  void WatchServedProcess();
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
  FileDescriptor mServedHandle;
  std::unique_ptr<QSocketNotifier> mServedEnds;
  bool mIsAsking = false;
  bool mHasHadEnvironment = false;
};

}  // namespace lurkwell
