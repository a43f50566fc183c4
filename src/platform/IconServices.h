#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// A picture in memory: `height` rows from the top, each of `width` pixels 0xAARRGGBB whose colours
/// are multiplied with their alpha.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// The pictures that the desktop shows for applications. Main thread only. A picture is shared and
/// never changes; the caller may keep it.
class IconServices {
 public:
  virtual ~IconServices() = default;

  /// The icon of the application's file (on Linux its desktop entry's, from the icon theme), else
  /// the one that its windows carry; square, `size` pixels wide (8 to 512). Null when the
  /// application has gone or has no icon. Asking again costs next to nothing.
  virtual std::shared_ptr<const Picture> ApplicationIcon(ProcessSerialNumber psn, int size) = 0;
};

}  // namespace lurkwell
