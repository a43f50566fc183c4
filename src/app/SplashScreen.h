#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "platform/RunLoop.h"

namespace lurkwell {

/// The about panel's window: floats above the others; a click closes it once the panel has had its
/// first showing.
class MySplashScreenWindow : public QWidget {
  Q_OBJECT

 public:
  MySplashScreenWindow();

 Q_SIGNALS:
  void clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

/// The about panel. The one of the start closes by itself after three seconds, clicks or not; later
/// ones stay until they are clicked. Main thread only.
class SplashScreen : public QObject {
  Q_OBJECT

 public:
  /// Shows the panel, making it at first use.
  static void doit();
  /// Closes it and forgets it; at the end of the program.
  static void destroy();
  static QWidget* window();

 private:
  SplashScreen() = default;
  void awakeFromNib();
  void maintainTheSplashWindow();
  void closeSplashScreen();
  void mouseDown();

  QPointer<QWidget> fWindow;
  std::unique_ptr<RunLoopTimer> fTimer;

  static std::unique_ptr<SplashScreen> gSplashScreen;
};

/// Whether the panel's time at the start is over: it has been shown to its end, or not at all.
extern bool gHaveShownSplashScreen;

void ShowSplashScreen();

/// Shows the panel at the first start of a version, which the preferences note, and at every start
/// where they want that.
void ShowSplashScreenAtStart();

}  // namespace lurkwell
