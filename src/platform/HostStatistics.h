#pragma once

#include <cstdint>

namespace lurkwell {

/// Figures of the machine as a whole. Any thread.
class HostStatistics {
 public:
  virtual ~HostStatistics() = default;

  /// Bytes of text and data that the machine maps into every process, which a virtual size counts
  /// although nobody pays for them; 0 where there is no such region.
  virtual std::int64_t SharedTextAndDataSize() const = 0;
};

}  // namespace lurkwell
