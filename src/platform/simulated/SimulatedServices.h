#pragma once

#include <string>

#include "platform/HostStatistics.h"
#include "platform/Signals.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Figures of the machine that the engine assumes: every process maps 512 MiB of shared text and
/// data. The others are the test's to set.
class SimulatedHostStatistics final : public HostStatistics {
 public:
  std::int64_t SharedTextAndDataSize() const override { return 0x20000000; }
  std::optional<std::int64_t> PageSize() const override { return pageSize; }
  bool ReadVirtualMemory(VirtualMemoryStatistics& statistics) const override {
    if (virtualMemory) statistics = *virtualMemory;
    return virtualMemory.has_value();
  }
  std::int64_t PhysicalMemory() const override { return physicalMemory; }
  int Processors() const override { return processors; }
  MachineFigures Read(MachineSources) const override { return machine; }

  std::optional<std::int64_t> pageSize = 4096;
  std::optional<VirtualMemoryStatistics> virtualMemory =
      VirtualMemoryStatistics{131'072, 65'536, 32'768, 0};
  std::int64_t physicalMemory = 1'073'741'824;
  int processors = 1;
  MachineFigures machine;
};

/// Signals are recorded, never sent; a test may have them refused.
class SimulatedSignals final : public Signals {
 public:
  explicit SimulatedSignals(AccessLog& log) : mLog(log) {}

  bool Send(ProcessIdentity process, int signal) override {
    if (process.pid < 2) return false;
    mLog.Add("Signals.Send " + std::to_string(process.pid) + " " + std::to_string(signal));
    return !refuses;
  }

  bool refuses = false;

 private:
  AccessLog& mLog;
};

}  // namespace lurkwell
