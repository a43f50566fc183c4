#include "platform/desktop/WindowIcon.h"

#include <algorithm>

namespace lurkwell {
namespace {

constexpr std::uint32_t kMostIconWords = 1U << 20;
constexpr std::uint32_t kLargestSide = 1024;
constexpr std::size_t kMostWindowsAsked = 4;

bool IsBetter(const WindowIcon& icon, const WindowIcon& than, int size) {
  const int side = std::min(icon.width, icon.height);
  const int otherSide = std::min(than.width, than.height);
  return otherSide < size ? side > otherSide : side >= size && side < otherSide;
}

}  // namespace

std::vector<std::uint32_t> ReadWindowIcons(XConnection& connection,
                                           const std::vector<xcb_window_t>& windows) {
  for (std::size_t i = 0; i < std::min(windows.size(), kMostWindowsAsked); ++i) {
    const auto cookie =
        connection.AskProperty(windows[i], connection.Atom(XAtom::kWindowIcon), kMostIconWords);
    auto icons = PropertyWords(
        connection.Wait<xcb_get_property_reply_t>(cookie, XConnection::BatchDeadline()).get());
    if (!icons.empty()) return icons;
  }
  return {};
}

std::optional<WindowIcon> BestWindowIcon(std::span<const std::uint32_t> icons, int size) {
  std::optional<WindowIcon> best;
  while (icons.size() > 2) {
    const std::uint32_t width = icons[0];
    const std::uint32_t height = icons[1];
    icons = icons.subspan(2);
    if (width == 0 || height == 0 || width > kLargestSide || height > kLargestSide) break;
    const std::size_t pixels = std::size_t{width} * height;
    if (pixels > icons.size()) break;
    const WindowIcon icon{static_cast<int>(width), static_cast<int>(height), icons.first(pixels)};
    if (!best || IsBetter(icon, *best, size)) best = icon;
    icons = icons.subspan(pixels);
  }
  return best;
}

}  // namespace lurkwell
