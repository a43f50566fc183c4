#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <functional>
#include <string>

#include "platform/desktop/SessionBus.h"

namespace lurkwell {

/// The one instance of the program that a user's session has, found through the session bus. Main
/// thread; no call waits longer than a few seconds. Without a bus every instance is on its own.
/// Other users' programs are not heard, and an instance of theirs counts as none.
class RunningInstance : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.velquarin.lurkwell.Instance")

 public:
  /// `busAddress` as in DesktopSettings; "" for no bus.
  explicit RunningInstance(const std::string& busAddress);
  ~RunningInstance() override;

  /// The connection's name within this program, for other parts of it.
  static QString ConnectionName() { return QStringLiteral("lurkwell-instance"); }

  enum class Answer {
    kDone,    ///< the running instance has done it
    kNobody,  ///< none is running, or there is no bus
    kSilent,  ///< one is there, and does not answer
  };

  /// Asks an instance that is running to come to the front, or to change between the animated
  /// view's window and overlay. What whoever started this program said about that start, by which
  /// a desktop knows that it is the user who wants the window, is handed on.
  Answer BringToFront();
  Answer ToggleOverlay();
  /// Asks it to show an address; it says itself what is wrong with one.
  Answer ShowAddress(const std::string& address);

  /// Becomes the session's instance; false when another one is, or there is no bus. Others are
  /// served as long as this object lives.
  bool Become(std::function<void()> bringToFront, std::function<void()> toggleOverlay,
              std::function<void(const QString&)> showAddress);

  /// After Become has failed: becomes the instance once the other one has gone. Does nothing
  /// without a bus.
  void WaitInLine();

 public Q_SLOTS:
  // What other instances call.
  /// `start` has, as desktops call it, the "activation-token" of the start that asks for this.
  void Present(const QVariantMap& start);
  void Toggle();
  void Show(const QString& address, const QVariantMap& start);

 private:
  Answer Ask(const QString& method, const QVariantList& arguments = {});
  /// Does what the method that is being called is for, once the caller is known to be ours.
  void Serve(const std::function<void()>& action);
  /// Asks the bus for the name, with its own flags; true when it is ours.
  bool RequestName(uint flags);

  QDBusConnection mBus;
  BusUsers mUsers{mBus};
  std::function<void()> mBringToFront;
  std::function<void()> mToggleOverlay;
  std::function<void(const QString&)> mShowAddress;
};

}  // namespace lurkwell
