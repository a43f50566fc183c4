#include "windows/FrontmostWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/Machine.h"
#include "platform/Screen.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

/// Moves windows to the front of the list as they are used.
class WindowOrder : public QObject {
 public:
  static WindowOrder& Instance() {
    static WindowOrder order;
    return order;
  }

  void Watch(QWidget& window) {
    window.installEventFilter(this);
    mWindows.append(&window);
  }

  QList<QWidget*> Windows() {
    mWindows.removeIf([](const QPointer<QWidget>& window) { return window.isNull(); });
    return {mWindows.begin(), mWindows.end()};
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    const bool comesToFront =
        event->type() == QEvent::WindowActivate || event->type() == QEvent::Show;
    auto* window = comesToFront ? qobject_cast<QWidget*>(object) : nullptr;
    if (window != nullptr) {
      mWindows.removeAll(QPointer<QWidget>(window));
      mWindows.prepend(window);
    }
    return false;
  }

 private:
  QList<QPointer<QWidget>> mWindows;
};

}  // namespace

void WatchWindowOrder(QWidget& window) {
  WindowOrder::Instance().Watch(window);
}

void BringToFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

void KeepAboveManaged(QWindow& window) {
  // Nothing tells of windows that come above it.
  constexpr std::chrono::seconds kTimeBetween{1};
  auto* timer = new QTimer(&window);
  QObject::connect(timer, &QTimer::timeout, timer, [&window, timer] {
    if (!window.isVisible()) return timer->deleteLater();
    TheMachine().screen.PutAboveManaged(window.winId());
  });
  timer->start(kTimeBetween);
}

QList<QWidget*> orderedWindows() {
  return WindowOrder::Instance().Windows();
}

bool EnsureThatCocoaWindowIsFrontmostIfPossible(OrderChange change) {
  static constexpr const char* kTitles[] = {"main_window_title", "main_window_title_paused",
                                            "preferences_title"};
  for (auto* window : orderedWindows()) {
    const bool matches = std::ranges::any_of(kTitles, [window](const char* title) {
      return window->windowTitle().startsWith(LocalizedString(title));
    });
    // A minimised one counts as visible with the toolkit; its user has put it away.
    if (!window->isVisible() || window->isMinimized() || !matches) continue;
    // A user of another program keeps the keyboard there, and what is in front.
    if (change == OrderChange::kByUser ||
        QGuiApplication::applicationState() == Qt::ApplicationActive) {
      window->raise();
      window->activateWindow();
    }
    return true;
  }
  return false;
}

namespace {

std::function<void()> gShowMainWindow;

}  // namespace

void SetWayBack(std::function<void()> showMainWindow) {
  gShowMainWindow = std::move(showMainWindow);
}

void GoBackToMainWindow() {
  if (gShowMainWindow) gShowMainWindow();
}

}  // namespace lurkwell
