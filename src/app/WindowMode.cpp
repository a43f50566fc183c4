#include "app/WindowMode.h"

#include <unistd.h>

#include <QApplication>
#include <QGuiApplication>
#include <QPalette>
#include <QPixmap>
#include <QSessionManager>
#include <QStyle>
#include <QStyleFactory>
#include <QThread>
#include <QTimer>
#include <cstdlib>
#include <string>

#include "app/SplashScreen.h"
#include "app/appDelegate.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "platform/RunLoop.h"
#include "platform/Uuid.h"
#include "preferences_window/AllSettings.h"
#include "preferences_window/PreferencesUI.h"
#include "resources/Resources.h"
#include "windows/FocusStyle.h"

namespace lurkwell {
namespace {

constexpr int kUpdatesBeforePicture = 2;
/// So that a history has something to show.
constexpr int kUpdatesOfFollowing = 5;
/// Between two updates, whatever the user's interval is.
constexpr int kLongestInterval = 2000;
constexpr int kHistoryInterval = 50;
constexpr int kLoggingInterval = 200;
constexpr QSize kAnimatedSize(900, 640);

QPalette DarkPalette() {
  QPalette palette(QColor(46, 49, 56), QColor(36, 39, 45));
  palette.setColor(QPalette::Base, QColor(27, 29, 34));
  palette.setColor(QPalette::Highlight, QColor(52, 112, 196));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(110, 170, 255));
  palette.setColor(QPalette::PlaceholderText, QColor(150, 154, 162));
  return palette;
}

QPalette LightPalette() {
  QPalette palette(QColor(239, 240, 241), QColor(239, 240, 241));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(48, 110, 200));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, QColor(112, 112, 116));
  return palette;
}

/// Opens the window, takes its picture after some updates and ends the run loop. Nothing of it is
/// seen, and the user's preferences stay as they are.
class Photographer : public QObject {
 public:
  Photographer(vqAppDelegate& delegate, const CommandLine& commandLine)
      : mDelegate(delegate), mCommandLine(commandLine) {
    qApp->installEventFilter(this);
    // What is not on a screen need not fit it.
    delegate.mainWindow().resize(delegate.mainWindow().WantedSize());
    connect(&delegate.mainWindow().controller(), &vqMainTableController::updated, this, [this] {
      if (++mUpdates == 1) Open();
      if (mUpdates == (Follows() ? kUpdatesOfFollowing : kUpdatesBeforePicture))
        QMetaObject::invokeMethod(this, &Photographer::Take, Qt::QueuedConnection);
      mNextUpdate.start();
    });
    mNextUpdate.setSingleShot(true);
    mNextUpdate.setInterval(kLongestInterval);
    connect(&mNextUpdate, &QTimer::timeout, this,
            [this] { RequestUpdate(mDelegate.mainWindow().controller().synchronizer()); });
  }

  int Status() const { return mStatus; }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = event->type() == QEvent::Polish ? qobject_cast<QWidget*>(object) : nullptr;
    if (widget != nullptr && widget->isWindow()) widget->setAttribute(Qt::WA_DontShowOnScreen);
    return false;
  }

 private:
  bool Follows() const {
    return mCommandLine.window == "history" || mCommandLine.window == "logging" ||
           mCommandLine.window == "animated" || mCommandLine.window == "machine" ||
           mCommandLine.window == "alerts";
  }

  void Open() {
    // With an identifier of its own a window is not remembered.
    const auto uuid = Uuid::Fresh();
    auto& windows = mDelegate.monitorWindows();
    mBefore = QApplication::topLevelWidgets();
    if (mCommandLine.window == "about") ShowSplashScreen();
    if (mCommandLine.window == "machine") mDelegate.doShowMachineWindow();
    if (mCommandLine.window == "alerts") mDelegate.doShowAlerts();
    if (mCommandLine.window == "animated") mDelegate.quintessentialWindows().ShowForPicture();
    // With a page's number the remembered one is not asked for.
    if (mCommandLine.window == "preferences" || mCommandLine.window == "settings")
      vqPreferencesUI::runWithTab(0);
    if (mCommandLine.window == "settings" && gThePreferencesUI != nullptr)
      gThePreferencesUI->showAllSettings();
    if (mCommandLine.window == "history")
      windows.CreateCPUHistoryWindow(kHistoryInterval, ::getpid(), &uuid, nullptr);
    if (mCommandLine.window == "logging")
      windows.CreateLoggingWindow(kLoggingInterval, ::getpid(), &uuid, nullptr, -1);
  }

  /// What was opened, else the main window.
  QWidget* Window() {
    auto* main = &mDelegate.mainWindow();
    if (mCommandLine.window == "main") return main;
    auto* panel = gThePreferencesUI != nullptr ? &gThePreferencesUI->window() : nullptr;
    if (mCommandLine.window == "preferences") return panel;
    if (mCommandLine.window == "settings" && panel != nullptr)
      return panel->findChild<AllSettings*>();
    if (mCommandLine.window == "about") return SplashScreen::window();
    // Another question may have come up meanwhile.
    for (auto* window : QApplication::topLevelWidgets())
      if (!mBefore.contains(window) && window->isVisible() && !window->isModal()) return window;
    return nullptr;
  }

  static bool Fail(const std::string& why) {
    Diagnose("%s", why.c_str());
    return false;
  }

  bool FailToWrite() const { return Fail("cannot write '" + *mCommandLine.screenshot + "'"); }

  bool Save(const QString& file) {
    if (mCommandLine.window == "animated") {
      const auto picture =
          mDelegate.quintessentialWindows().TakePicture(kAnimatedSize, qApp->devicePixelRatio());
      if (picture.isNull()) return Fail("there is no OpenGL to draw with");
      return picture.save(file, "PNG") || FailToWrite();
    }
    auto* window = Window();
    if (window == nullptr) return Fail("there is no window " + mCommandLine.window);
    return window->grab().save(file, "PNG") || FailToWrite();
  }

  void Take() {
    const auto file = QString::fromStdString(*mCommandLine.screenshot);
    if (!Save(file)) mStatus = kExitFailure;
    // Closed, it would remember its page.
    if (gThePreferencesUI != nullptr) delete &gThePreferencesUI->window();
    TheMachine().runLoop.Stop();
  }

  vqAppDelegate& mDelegate;
  const CommandLine& mCommandLine;
  /// What was there before the window was opened.
  QWidgetList mBefore;
  int mUpdates = 0;
  QTimer mNextUpdate;
  int mStatus = kExitSuccess;
};

}  // namespace

void ApplyTheme(CommandLine::Theme theme) {
  const bool isSystems = theme == CommandLine::Theme::kSystem;
  const auto fusion = QStringLiteral("Fusion");
  if (!isSystems || QApplication::style()->name().compare(fusion, Qt::CaseInsensitive) == 0)
    QApplication::setStyle(new FocusStyle(QStyleFactory::create(fusion)));
  if (isSystems) return;
  QApplication::setPalette(theme == CommandLine::Theme::kDark ? DarkPalette() : LightPalette());
  if (theme != CommandLine::Theme::kDark) return;
  // The style draws an empty box by its ground alone.
  auto boxes = DarkPalette();
  boxes.setColor(QPalette::Base, QColor(88, 92, 100));
  boxes.setColor(QPalette::Text, Qt::white);
  for (const char* kind : {"QCheckBox", "QRadioButton"}) QApplication::setPalette(boxes, kind);
}

/// Registered while the program runs; does nothing after its regular end.
void EndAfterLostDisplay() {
  if (gAppDelegate == nullptr || !gAppDelegate->isRunning()) return;
  // Another thread that finds the connection gone may not touch what the main thread works on.
  if (QThread::currentThread() == qApp->thread()) gAppDelegate->displayWasLost();
  std::_Exit(kExitFailure);
}

int RunWindowMode(const CommandLine& commandLine, const std::function<void(MainWindow&)>& furnish) {
  QApplication::setQuitOnLastWindowClosed(false);
  InstallResources(*qApp);
  QApplication::setWindowIcon(NamedImage("lurkwell"));
  ApplyTheme(commandLine.theme);
  SetHelperUnprivileged(commandLine.unprivileged);
  const bool picture = commandLine.screenshot.has_value();
  const bool isRecorded = TheMachine().processTable.IsRecorded();
  vqAppDelegate delegate(isRecorded ? vqAppDelegate::Launch::kOfRecording
                         : picture  ? vqAppDelegate::Launch::kForPicture
                                    : vqAppDelegate::Launch::kUsual);
  delegate.init();
  if (furnish) furnish(delegate.mainWindow());
  std::atexit(&EndAfterLostDisplay);
  std::unique_ptr<Photographer> photographer;
  if (picture) photographer = std::make_unique<Photographer>(delegate, commandLine);
  delegate.applicationDidFinishLaunching();
  if (picture || isRecorded) delegate.doShowMainWindow();
  if (!commandLine.address.empty())
    delegate.doShowAddress(QString::fromLocal8Bit(commandLine.address.c_str()));
  TheMachine().runLoop.Run();
  const int status = photographer != nullptr ? photographer->Status() : kExitSuccess;
  photographer.reset();
  delegate.applicationWillTerminate();
  return status;
}

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
