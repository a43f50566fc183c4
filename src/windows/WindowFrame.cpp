#include "windows/WindowFrame.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <utility>

#include "platform/Machine.h"
#include "platform/Screen.h"
#include "preferences/Settings.h"

namespace lurkwell {

namespace {

/// The same, whatever the session does; `isPlaced` is whether a place is remembered.
WindowFrame ReadStoredFrame(TextSetting setting) {
  char text[64] = "";
  int x = 0, y = 0, width = 0, height = 0;
  if (!ReadText(setting, text, sizeof text)) return {};
  const bool isPlaced = std::sscanf(text, "%d %d %d %d", &x, &y, &width, &height) == 4;
  if (!isPlaced && std::sscanf(text, "- - %d %d", &width, &height) != 2) return {};
  if (width < 100 || height < 100 || width > 20000 || height > 20000) return {};
  if (x < -20000 || y < -20000 || x > 100000 || y > 100000) return {};
  return {{x, y, width, height}, std::string_view(text).ends_with(" maximised"), isPlaced};
}

}  // namespace

WindowFrame ReadWindowFrame(TextSetting setting) {
  auto stored = ReadStoredFrame(setting);
  stored.isPlaced = stored.isPlaced && TheMachine().screen.Abilities().places;
  return stored;
}

void WriteWindowFrame(TextSetting setting, const QRect& frame, bool isMaximised) {
  QPoint place = frame.topLeft();
  bool isPlaced = true;
  if (!TheMachine().screen.Abilities().places) {
    const auto stored = ReadStoredFrame(setting);
    place = stored.frame.topLeft();
    isPlaced = stored.isPlaced;
  }
  char text[80];
  char corner[32] = "- -";
  if (isPlaced) std::snprintf(corner, sizeof corner, "%d %d", place.x(), place.y());
  std::snprintf(text, sizeof text, "%s %d %d%s", corner, frame.width(), frame.height(),
                isMaximised ? " maximised" : "");
  char before[64] = "";
  ReadText(setting, before, sizeof before);
  if (std::string_view(text) != before) StoreText(setting, text);
}

QRect FitOnScreens(QRect frame, QSize borders) {
  frame = {std::clamp(frame.left(), -kFarthest, kFarthest),
           std::clamp(frame.top(), -kFarthest, kFarthest), std::clamp(frame.width(), 1, kFarthest),
           std::clamp(frame.height(), 1, kFarthest)};
  const auto* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return frame;
  const auto area = [](const QRect& rect) { return std::int64_t{rect.width()} * rect.height(); };
  std::int64_t seen = 0;
  std::int64_t most = 0;
  for (const auto* other : QGuiApplication::screens()) {
    const auto part = frame & other->availableGeometry();
    const auto size = part.isEmpty() ? 0 : area(part);
    seen += size;
    if (size <= most) continue;
    most = size;
    screen = other;
  }
  if (seen >= area(frame)) return frame;
  const QRect free = screen->availableGeometry();
  const QRect room(free.topLeft(), (free.size() - borders).expandedTo(QSize(1, 1)));
  const bool isTooLarge = frame.width() > free.width() || frame.height() > free.height();
  if (isTooLarge) frame.setSize(frame.size().boundedTo(room.size()));
  const auto within = [](int place, int size, int first, int span) {
    return std::clamp(place, first, std::max(first, first + span - size));
  };
  frame.moveTo(within(frame.left(), frame.width(), room.left(), room.width()),
               within(frame.top(), frame.height(), room.top(), room.height()));
  return frame;
}

QSize FitOnScreens(QSize size) {
  const auto* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? size.boundedTo(screen->availableSize() - kBorders) : size;
}

ControlledWindow::ControlledWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_QuitOnClose, false);
  // Not QKeySequence::Close, which some desktops have as another key.
  connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, &QWidget::close);
  connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this, [] {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
  });
}

void ControlledWindow::RestoreFrame(TextSetting setting, QSize usual) {
  const auto [frame, isMaximised, isPlaced] = ReadWindowFrame(setting);
  if (!frame.isValid()) return resize(FitOnScreens(usual));
  const auto place = FitOnScreens(frame);
  resize(place.size());
  if (isPlaced) move(place.topLeft());
  if (isMaximised) setWindowState(Qt::WindowMaximized);
}

void ControlledWindow::RememberFrame(TextSetting setting) const {
  const bool fills = isMaximized() || isFullScreen();
  WriteWindowFrame(setting, fills ? normalGeometry() : QRect(pos(), size()), fills);
}

void ControlledWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (const auto tell = std::exchange(willClose, nullptr)) tell();
}

}  // namespace lurkwell
