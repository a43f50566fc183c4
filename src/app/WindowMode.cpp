#include "app/WindowMode.h"

#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <cstdio>

#include "app/SplashScreen.h"
#include "app/appDelegate.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "process_control/DaemonCommunication.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr int kUpdatesBeforePicture = 2;

QPalette DarkPalette() {
  QPalette palette(QColor(46, 49, 56), QColor(36, 39, 45));
  palette.setColor(QPalette::Base, QColor(27, 29, 34));
  palette.setColor(QPalette::Highlight, QColor(42, 98, 175));
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
  palette.setColor(QPalette::PlaceholderText, QColor(120, 120, 124));
  return palette;
}

/// Takes the picture after some updates and ends the run loop.
class Photographer : public QObject {
 public:
  Photographer(vqAppDelegate& delegate, const CommandLine& commandLine)
      : mDelegate(delegate), mCommandLine(commandLine) {
    connect(&delegate.mainWindow().controller(), &vqMainTableController::updated, this, [this] {
      if (++mUpdates == kUpdatesBeforePicture)
        QMetaObject::invokeMethod(this, &Photographer::Take, Qt::QueuedConnection);
    });
  }

  int Status() const { return mStatus; }

 private:
  void Take() {
    QWidget* window = &mDelegate.mainWindow();
    if (mCommandLine.window == "about") {
      ShowSplashScreen();
      window = SplashScreen::window();
    }
    const auto file = QString::fromStdString(*mCommandLine.screenshot);
    if (!window->grab().save(file, "PNG")) {
      std::fprintf(stderr, "lurkwell: cannot write '%s'\n", mCommandLine.screenshot->c_str());
      mStatus = kExitFailure;
    }
    TheMachine().runLoop.Stop();
  }

  vqAppDelegate& mDelegate;
  const CommandLine& mCommandLine;
  int mUpdates = 0;
  int mStatus = kExitSuccess;
};

}  // namespace

void ApplyTheme(CommandLine::Theme theme) {
  if (theme == CommandLine::Theme::kSystem) return;
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(theme == CommandLine::Theme::kDark ? DarkPalette() : LightPalette());
}

int RunWindowMode(const CommandLine& commandLine) {
  QApplication::setQuitOnLastWindowClosed(false);
  InstallResources(*qApp);
  ApplyTheme(commandLine.theme);
  SetHelperUnprivileged(commandLine.unprivileged);
  const bool picture = commandLine.screenshot.has_value();
  vqAppDelegate delegate(picture ? vqAppDelegate::Launch::kForPicture
                                 : vqAppDelegate::Launch::kUsual);
  delegate.init();
  std::unique_ptr<Photographer> photographer;
  if (picture) photographer = std::make_unique<Photographer>(delegate, commandLine);
  delegate.applicationDidFinishLaunching();
  if (picture) delegate.doShowMainWindow();
  TheMachine().runLoop.Run();
  const int status = photographer != nullptr ? photographer->Status() : kExitSuccess;
  photographer.reset();
  delegate.applicationWillTerminate();
  return status;
}

}  // namespace lurkwell
