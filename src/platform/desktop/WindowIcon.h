#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// One picture within a window's list of icons: rows from the top, pixels 0xAARRGGBB.
struct WindowIcon {
  int width = 0;
  int height = 0;
  std::span<const std::uint32_t> pixels;
};

/// The icons of the first of these windows that carries any, as it has them, or as many as can be
/// asked for in reason.
std::vector<std::uint32_t> ReadWindowIcons(XConnection& connection,
                                           const std::vector<xcb_window_t>& windows);

/// The smallest icon of a list that is at least `size` pixels wide and high, else the largest one;
/// nothing when there is none. The list may hold anything: it counts up to the first icon that is
/// not wholly there or has no sensible size. Pure; any thread.
std::optional<WindowIcon> BestWindowIcon(std::span<const std::uint32_t> icons, int size);

}  // namespace lurkwell
