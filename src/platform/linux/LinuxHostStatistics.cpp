#include "platform/linux/LinuxHostStatistics.h"

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <string_view>

namespace lurkwell {
std::optional<std::int64_t> LinuxHostStatistics::PageSize() const {
  const long size = ::sysconf(_SC_PAGESIZE);
  if (size <= 0) return {};
  return size;
}

bool LinuxHostStatistics::ReadVirtualMemory(VirtualMemoryStatistics& statistics) const {
  const std::int64_t pageKibibytes = std::max<std::int64_t>(PageSize().value_or(4096) / 1024, 1);
  const auto memory = mFiles.ReadText("meminfo");
  const auto pages = [&](std::string_view name) -> std::optional<std::int64_t> {
    const auto kibibytes = NumberOf(memory, name);
    if (!kibibytes) return {};
    return *kibibytes / pageKibibytes;
  };
  const auto free = pages("MemFree:");
  const auto available = pages("MemAvailable:");
  if (free) statistics.freePages = *free;
  if (free && available) statistics.inactivePages = std::max<std::int64_t>(*available - *free, 0);
  // A kernel without one of these has nothing of the kind.
  if (free)
    statistics.wiredPages = pages("SUnreclaim:").value_or(0) + pages("KernelStack:").value_or(0) +
                            pages("PageTables:").value_or(0) + pages("Unevictable:").value_or(0);
  const auto pageouts = NumberOf(mFiles.ReadText("vmstat"), "pswpout ");
  if (pageouts) statistics.pageouts = *pageouts;
  return free && available && pageouts;
}

std::int64_t LinuxHostStatistics::PhysicalMemory() const {
  const long pages = ::sysconf(_SC_PHYS_PAGES);
  return pages > 0 ? pages * PageSize().value_or(4096) : 0;
}

int LinuxHostStatistics::Processors() const {
  return static_cast<int>(std::max(::sysconf(_SC_NPROCESSORS_ONLN), 1L));
}

}  // namespace lurkwell
