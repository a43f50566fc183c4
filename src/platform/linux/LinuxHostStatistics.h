#pragma once

#include "platform/HostStatistics.h"

namespace lurkwell {

class LinuxHostStatistics final : public HostStatistics {
 public:
  /// Nothing is mapped into every process here that would be worth subtracting.
  std::int64_t SharedTextAndDataSize() const override { return 0; }
};

}  // namespace lurkwell
