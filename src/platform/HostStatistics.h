#pragma once

#include <cstdint>
#include <optional>

#include "platform/MachineFigures.h"

namespace lurkwell {

/// The machine's memory, in pages; `pageouts` counts since the machine started.
struct VirtualMemoryStatistics {
  std::int64_t freePages = 0;
  std::int64_t inactivePages = 0;  ///< could be had at once, but for what they hold
  std::int64_t wiredPages = 0;     ///< cannot be taken from their owners
  std::int64_t pageouts = 0;
};

/// Figures of the machine as a whole. Main thread.
class HostStatistics {
 public:
  virtual ~HostStatistics() = default;

  /// Bytes of text and data that the machine maps into every process, which a virtual size counts
  /// although nobody pays for them; 0 where there is no such region.
  virtual std::int64_t SharedTextAndDataSize() const = 0;

  /// Bytes in a page; nothing when the machine does not tell.
  virtual std::optional<std::int64_t> PageSize() const = 0;

  /// False when not all figures could be had; those that were are in `statistics`, others stay.
  virtual bool ReadVirtualMemory(VirtualMemoryStatistics& statistics) const = 0;

  /// What the machine tells of these; nothing else is read. Files that are missing or make no sense
  /// leave their figures out.
  virtual MachineFigures Read(MachineSources wanted) const = 0;

  /// Bytes; 0 when the machine does not tell.
  virtual std::int64_t PhysicalMemory() const = 0;

  /// Processors that run processes at present; at least 1.
  virtual int Processors() const = 0;
};

}  // namespace lurkwell
