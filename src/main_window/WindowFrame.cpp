#include "main_window/WindowFrame.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <string_view>

#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

/// So much of a window has to lie on a screen.
constexpr int kGraspable = 40;

}  // namespace

WindowFrame ReadWindowFrame(const char* key) {
  char text[64] = "";
  std::uint8_t found = 0;
  GetPrefString(key, text, sizeof text, &found, false, "");
  int x = 0, y = 0, width = 0, height = 0;
  if (found == 0 || std::sscanf(text, "%d %d %d %d", &x, &y, &width, &height) != 4) return {};
  if (width < 100 || height < 100 || width > 20000 || height > 20000) return {};
  if (x < -20000 || y < -20000 || x > 100000 || y > 100000) return {};
  return {{x, y, width, height}, std::string_view(text).ends_with(" maximised")};
}

void WriteWindowFrame(const char* key, const QRect& frame, bool isMaximised) {
  char text[64];
  std::snprintf(text, sizeof text, "%d %d %d %d%s", frame.x(), frame.y(), frame.width(),
                frame.height(), isMaximised ? " maximised" : "");
  char before[64] = "";
  GetPrefString(key, before, sizeof before, nullptr, false, "");
  if (std::string_view(text) != before) SetPrefString(key, text);
}

bool IsGraspable(const QRect& frame) {
  const QRect title(frame.x(), frame.y(), frame.width(), kGraspable);
  return std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* screen) {
    const auto seen = screen->availableGeometry() & title;
    return seen.width() >= kGraspable && seen.height() >= kGraspable / 2;
  });
}

}  // namespace lurkwell
