#include "app/FleetMode.h"

#include <QApplication>
#include <QEvent>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <string>
#include <utility>

#include "app/WindowMode.h"
#include "fleet/FleetAddress.h"
#include "fleet_window/FleetWindow.h"
#include "main_window/HelpWindow.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "resources/Resources.h"
#include "windows/HelpKey.h"

namespace lurkwell {
namespace {

/// A server may take half a minute, and the history is asked for after the table.
constexpr int kLongestWaitForPicture = 70'000;
constexpr int kLookAgain = 200;
/// The history is asked for once a row has been selected for a while.
constexpr int kLooksUntilAsked = 5;

/// Ends the program with its last window, or when the desktop asks for it. Nothing is seen of what
/// a picture is taken of.
class FleetEnd final : public QObject {
 public:
  explicit FleetEnd(bool isForPicture) : mIsForPicture(isForPicture) {}

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget =
        mIsForPicture && event->type() == QEvent::Polish ? qobject_cast<QWidget*>(object) : nullptr;
    if (widget != nullptr && widget->isWindow()) widget->setAttribute(Qt::WA_DontShowOnScreen);
    if (event->type() == QEvent::Close && object->isWidgetType())
      QMetaObject::invokeMethod(
          this, [] { EndWithoutWindows(); }, Qt::QueuedConnection);
    if (event->type() != QEvent::Quit) return false;
    TheMachine().runLoop.Stop();
    return true;
  }

 private:
  static void EndWithoutWindows() {
    for (const auto* window : QApplication::topLevelWidgets())
      if (window->isVisible()) return;
    TheMachine().runLoop.Stop();
  }

  bool mIsForPicture;
};

/// Waits for the answers and writes the picture.
class FleetPhotographer final : public QObject {
 public:
  FleetPhotographer(FleetWindow& window, std::string file)
      : mWindow(&window), mFile(std::move(file)) {
    connect(&mLook, &QTimer::timeout, this, [this] { Look(); });
    mLook.start(kLookAgain);
  }

  int Status() const { return mStatus; }

 private:
  void Look() {
    auto& session = mWindow->Session();
    const bool isOver = ++mLooks * kLookAgain > kLongestWaitForPicture;
    const bool isAsked = session.Error() || mLooks >= kLooksUntilAsked;
    const bool isWaiting = session.IsAsking() || session.IsAskingHistory() || !isAsked;
    if (isWaiting && !isOver) return;
    mLook.stop();
    if (session.Error()) Diagnose("%s", session.Error()->Text().toUtf8().constData());
    const bool isWritten = mWindow->grab().save(QString::fromStdString(mFile), "PNG");
    if (!isWritten) Diagnose("cannot write '%s'", mFile.c_str());
    mStatus = isWritten && !session.Error() ? kExitSuccess : kExitFailure;
    TheMachine().runLoop.Stop();
  }

  QPointer<FleetWindow> mWindow;
  std::string mFile;
  QTimer mLook;
  int mLooks = 0;
  int mStatus = kExitFailure;
};

}  // namespace

std::optional<FleetChoice> ReadFleetChoice(const CommandLine& commandLine) {
  QString complaint;
  FleetChoice choice;
  const auto address = ReadFleetAddress(QString::fromStdString(commandLine.fleet), complaint);
  std::optional<FleetCredentials> credentials = FleetCredentials();
  if (address && !commandLine.credentials.empty())
    credentials =
        FleetCredentials::FromFile(QString::fromStdString(commandLine.credentials), complaint);
  if (!address || !credentials) {
    Diagnose("%s", complaint.toUtf8().constData());
    return std::nullopt;
  }
  return FleetChoice{*address, *credentials};
}

int RunFleetMode(const CommandLine& commandLine, const FleetChoice& choice) {
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(NamedImage("lurkwell"));
  ApplyTheme(commandLine.theme);
  FleetEnd end(commandLine.screenshot.has_value());
  qApp->installEventFilter(&end);
  auto& window = FleetWindow::Open(choice.address, choice.credentials);
  SetHelp([shown = QPointer<FleetWindow>(&window)](HelpSection section) {
    const auto page = HelpPage();
    if (shown != nullptr && !ShowHelp(page, QLatin1String(AnchorOf(section)), *shown))
      Diagnose("cannot read '%s'", page.toUtf8().constData());
  });
  std::unique_ptr<FleetPhotographer> photographer;
  if (commandLine.screenshot)
    photographer = std::make_unique<FleetPhotographer>(window, *commandLine.screenshot);
  TheMachine().runLoop.Run();
  const int status = photographer != nullptr ? photographer->Status() : kExitSuccess;
  photographer.reset();
  qApp->removeEventFilter(&end);
  FleetWindow::CloseAll();
  SetHelp(nullptr);
  return status;
}

}  // namespace lurkwell
