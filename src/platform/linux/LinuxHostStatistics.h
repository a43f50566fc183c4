#pragma once

#include <string>

#include "platform/HostStatistics.h"
#include "platform/linux/MachineReader.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// From /proc/meminfo and /proc/vmstat. Free is MemFree; inactive is what is available besides;
/// wired is what cannot be reclaimed: slab, kernel stacks, page tables, locked pages. Pageouts are
/// pages that went to swap.
class LinuxHostStatistics final : public HostStatistics {
 public:
  /// Folders like /proc and /sys.
  explicit LinuxHostStatistics(const std::string& proc = "/proc", const std::string& sys = "/sys")
      : mFiles(proc), mMachine(proc, sys) {}

  /// Nothing is mapped into every process here that would be worth subtracting.
  std::int64_t SharedTextAndDataSize() const override { return 0; }
  std::optional<std::int64_t> PageSize() const override;
  bool ReadVirtualMemory(VirtualMemoryStatistics& statistics) const override;
  std::int64_t PhysicalMemory() const override;
  int Processors() const override;
  MachineFigures Read(MachineSources wanted) const override { return mMachine.Read(wanted); }

 private:
  mutable ProcFiles mFiles;
  mutable MachineReader mMachine;
};

}  // namespace lurkwell
