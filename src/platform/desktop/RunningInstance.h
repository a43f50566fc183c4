#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <string>

namespace lurkwell {

/// The one instance of the program that a user's session has, found through the session bus. Main
/// thread; no call waits longer than a few seconds. Without a bus every instance is on its own.
class RunningInstance : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.velquarin.lurkwell.Instance")

 public:
  /// `busAddress` as in DesktopSettings; "" for no bus.
  explicit RunningInstance(const std::string& busAddress);
  ~RunningInstance() override;

  enum class Answer {
    kDone,    ///< the running instance has done it
    kNobody,  ///< none is running, or there is no bus
    kSilent,  ///< one is there, and does not answer
  };

  /// Asks an instance that is running to come to the front, or to change between the animated
  /// view's window and overlay.
  Answer BringToFront();
  Answer ToggleOverlay();

  /// Becomes the session's instance; false when another one is, or there is no bus. Others are
  /// served as long as this object lives.
  bool Become(std::function<void()> bringToFront, std::function<void()> toggleOverlay);

 public Q_SLOTS:
  // What other instances call.
  void Present();
  void Toggle();

 private:
  Answer Ask(const QString& method);

  QDBusConnection mBus;
  std::function<void()> mBringToFront;
  std::function<void()> mToggleOverlay;
};

}  // namespace lurkwell
