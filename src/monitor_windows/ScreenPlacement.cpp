#include "monitor_windows/ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdint>

#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr int kCascadeStep = 24;
/// Between windows that are moved apart, with room for the narrow title bars of histories.
constexpr int kGap = 20;
constexpr int kLargestApart = 10'000;

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
  const auto span = [](std::int32_t from, std::int32_t to, int least) {
    return static_cast<int>(
        std::clamp<std::int64_t>(std::int64_t{to} - from, least, kLargestApart));
  };
  const auto corner = [](std::int32_t place) {
    return std::clamp<std::int32_t>(place, -kFarthest, kFarthest);
  };
  return FitOnScreens({corner(remembered.left), corner(remembered.top),
                       span(remembered.left, remembered.right, smallest.width()),
                       span(remembered.top, remembered.bottom, smallest.height())},
                      QSize(0, 0));
}

WindowRect PlaceApart(const WindowRect& wanted, const std::vector<QRect>& others, Overlap allowed) {
  const std::int64_t width = std::int64_t{wanted.right} - wanted.left;
  const std::int64_t height = std::int64_t{wanted.bottom} - wanted.top;
  // Records may hold any number; those that make no window are made to fit elsewhere.
  if (width <= 0 || height <= 0 || width > kLargestApart || height > kLargestApart) return wanted;
  const QRect frame(wanted.left, wanted.top, static_cast<int>(width), static_cast<int>(height));
  const auto area = [](const QRect& rect) {
    return rect.isEmpty() ? 0 : std::int64_t{rect.width()} * rect.height();
  };
  const bool isApart = std::ranges::none_of(others, [&](const QRect& other) {
    const auto covered = area(frame & other);
    return allowed == Overlap::kNone ? covered > 0
                                     : covered * 2 > std::min(area(frame), area(other));
  });
  const auto* screen = QGuiApplication::screenAt(frame.center());
  if (isApart || screen == nullptr) return wanted;
  const QRect free = screen->availableGeometry();
  QRect best;
  const auto distance = [&](const QRect& place) {
    return (place.topLeft() - frame.topLeft()).manhattanLength();
  };
  const auto consider = [&](int left, int top) {
    const QRect place(left, top, frame.width(), frame.height());
    if (!free.contains(place) || (!best.isNull() && distance(best) <= distance(place))) return;
    const QRect around = place.adjusted(-kGap, -kGap, kGap, kGap);
    if (std::ranges::none_of(others, [&](const QRect& other) { return around.intersects(other); }))
      best = place;
  };
  for (const auto& other : others) {
    for (const int top : {frame.top(), other.top()}) {
      consider(other.right() + 1 + kGap, top);
      consider(other.left() - kGap - frame.width(), top);
    }
    for (const int left : {frame.left(), other.left()}) {
      consider(left, other.bottom() + 1 + kGap);
      consider(left, other.top() - kGap - frame.height());
    }
  }
  // What may cover nothing is in a cascade already.
  if (best.isNull() && allowed == Overlap::kNone) return wanted;
  if (best.isNull()) best = frame.translated(kCascadeStep, kCascadeStep);
  return {best.left(), best.top(), best.left() + best.width(), best.top() + best.height()};
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
