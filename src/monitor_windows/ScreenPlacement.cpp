#include "monitor_windows/ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdint>

#include "main_window/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr int kCascadeStep = 24;

int SpanWithin(std::int64_t span, int smallest, int largest) {
  return static_cast<int>(
      std::clamp(span, std::int64_t{smallest}, std::int64_t{std::max(smallest, largest)}));
}

}  // namespace

QRect AreaWithRoom(const QRect& free, const QRect& screen, QSize size) {
  for (const auto& area : {free, screen})
    if (size.width() < area.width() && size.height() < area.height()) return area;
  return {};
}

QRect AreaForNewWindow(QSize size) {
  const auto* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return AreaWithRoom(screen->availableGeometry(), screen->geometry(), size);
}

QRect PlaceOnScreen(const WindowRect& remembered, QSize smallest) {
  const auto* screen = QGuiApplication::screenAt({remembered.left, remembered.top});
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {QPoint(remembered.left, remembered.top), smallest};
  const QRect free = screen->availableGeometry();
  const int width =
      SpanWithin(std::int64_t{remembered.right} - remembered.left, smallest.width(), free.width());
  const int height = SpanWithin(std::int64_t{remembered.bottom} - remembered.top, smallest.height(),
                                free.height());
  const QRect place({remembered.left, remembered.top}, QPoint(remembered.right, remembered.bottom));
  if (IsGraspable(place)) return {remembered.left, remembered.top, width, height};
  const int left =
      std::clamp(remembered.left, free.left(), std::max(free.left(), free.right() + 1 - width));
  const int top =
      std::clamp(remembered.top, free.top(), std::max(free.top(), free.bottom() + 1 - height));
  return {left, top, width, height};
}

QPoint CascadeTopLeftFromPoint(QPoint& point, QSize size) {
  const auto* screen = QGuiApplication::primaryScreen();
  const QRect free = screen != nullptr ? screen->availableGeometry() : QRect();
  const QPoint first = free.topLeft() + QPoint(kCascadeStep, kCascadeStep);
  const bool fits = !point.isNull() && free.contains(QRect(point, size));
  const QPoint place = fits ? point : first;
  point = place + QPoint(kCascadeStep, kCascadeStep);
  return place;
}

}  // namespace lurkwell
