#include "app/SplashScreen.h"

#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QUiLoader>
#include <QVBoxLayout>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"

namespace lurkwell {

bool gHaveShownSplashScreen = false;
std::unique_ptr<SplashScreen> SplashScreen::gSplashScreen;

namespace {

constexpr double kSecondsOfFirstShowing = 3.0;
constexpr double kInterval = 0.01;
constexpr int kIconSize = 96;

void SetLabel(const QWidget& form, const char* name, const QString& text) {
  if (auto* label = form.findChild<QLabel*>(QLatin1String(name))) label->setText(text);
}

}  // namespace

MySplashScreenWindow::MySplashScreenWindow()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
  setAttribute(Qt::WA_QuitOnClose, false);
}

void MySplashScreenWindow::mousePressEvent(QMouseEvent*) {
  Q_EMIT clicked();
}

void MySplashScreenWindow::paintEvent(QPaintEvent*) {
  // There is no frame around it, and it may stand on its like.
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void MySplashScreenWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return) Q_EMIT clicked();
}

void SplashScreen::doit() {
  if (gSplashScreen == nullptr) gSplashScreen.reset(new SplashScreen);
  gSplashScreen->awakeFromNib();
}

void SplashScreen::destroy() {
  if (gSplashScreen != nullptr) delete gSplashScreen->fWindow;
  gSplashScreen.reset();
}

QWidget* SplashScreen::window() {
  return gSplashScreen != nullptr ? gSplashScreen->fWindow : nullptr;
}

void SplashScreen::awakeFromNib() {
  if (fWindow == nullptr) {
    auto* window = new MySplashScreenWindow;
    fWindow = window;
    fWindow->setWindowTitle(LocalizedString("about_title"));
    QFile form(QStringLiteral(":/forms/SplashScreen.ui"));
    auto* contents = form.open(QIODevice::ReadOnly) ? QUiLoader().load(&form, fWindow) : nullptr;
    if (contents != nullptr) {
      auto* layout = new QVBoxLayout(fWindow);
      layout->setContentsMargins(1, 1, 1, 1);
      layout->addWidget(contents);
      SetLabel(*contents, "nameLabel", LocalizedString("about_name"));
      SetLabel(*contents, "versionLabel",
               LocalizedString("about_version").arg(QLatin1String(LURKWELL_VERSION)));
      SetLabel(*contents, "textLabel", LocalizedString("about_text"));
      if (auto* icon = contents->findChild<QLabel*>(QStringLiteral("iconLabel")))
        icon->setPixmap(NamedImage("lurkwell")
                            .pixmap(QSize(kIconSize, kIconSize), fWindow->devicePixelRatioF()));
    }
    connect(window, &MySplashScreenWindow::clicked, this, &SplashScreen::mouseDown);
  }
  fWindow->adjustSize();
  if (const auto* screen = QGuiApplication::primaryScreen())
    fWindow->move(screen->availableGeometry().center() - fWindow->rect().center());
  fWindow->show();
  fWindow->raise();
  fWindow->activateWindow();
  if (gHaveShownSplashScreen || fTimer != nullptr) return;
  fTimer = TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime() + kSecondsOfFirstShowing,
                                         kInterval, [this] { maintainTheSplashWindow(); });
}

void SplashScreen::maintainTheSplashWindow() {
  gHaveShownSplashScreen = true;
  closeSplashScreen();
}

void SplashScreen::closeSplashScreen() {
  fTimer.reset();
  if (fWindow != nullptr) fWindow->close();
}

void SplashScreen::mouseDown() {
  if (gHaveShownSplashScreen) closeSplashScreen();
}

void ShowSplashScreen() {
  SplashScreen::doit();
}

void ShowSplashScreenAtStart() {
  char seen[64] = "";
  ReadText("ABOUT_PANEL_SEEN_VERSION", seen, sizeof seen);
  const bool isNew = std::string_view(seen) != LURKWELL_VERSION;
  if (isNew) StoreText("ABOUT_PANEL_SEEN_VERSION", LURKWELL_VERSION);
  const bool isWanted = ReadSwitch("ABOUT_PANEL_AT_EVERY_START");
  gHaveShownSplashScreen = !isNew && !isWanted;
  if (!gHaveShownSplashScreen) ShowSplashScreen();
}

}  // namespace lurkwell
