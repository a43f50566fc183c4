#pragma once

#include "platform/IconServices.h"

namespace lurkwell {

/// A machine without a desktop has no pictures.
class NoIconServices final : public IconServices {
 public:
  std::shared_ptr<const Picture> ApplicationIcon(ProcessSerialNumber, int) override { return {}; }
};

}  // namespace lurkwell
