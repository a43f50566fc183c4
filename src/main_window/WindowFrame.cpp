#include "main_window/WindowFrame.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {

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
  return std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* screen) {
    const auto free = screen->availableGeometry();
    const auto left = std::max(frame.left(), free.left());
    const auto right = std::min(frame.right(), free.right());
    const bool titleIsSeen =
        frame.top() >= free.top() - kGraspable / 2 && frame.top() <= free.bottom() - kGraspable / 2;
    return titleIsSeen && std::int64_t{right} - left >= kGraspable - 1;
  });
}

}  // namespace lurkwell
