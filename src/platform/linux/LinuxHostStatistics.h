#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/HostStatistics.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/ProcessConnector.h"

namespace lurkwell {

/// Reads figures of the machine as a whole from /proc and /sys. Only files that everybody may read,
/// and no sensor of a device that sleeps, which reading would wake. Main thread.
class MachineReader {
 public:
  /// Folders like /proc and /sys.
  MachineReader(const std::string& proc, std::string sys);

  MachineFigures Read(MachineSources wanted);

 private:
  void ReadProcessorTimes(MachineFigures& figures);
  void ReadMemory(MachineFigures& figures);
  void ReadDisks(MachineFigures& figures);
  void ReadInterfaces(MachineFigures& figures);
  std::optional<PressureShares> ReadPressure(const char* file);
  void ReadLoad(MachineFigures& figures);
  void ReadTemperatures(MachineFigures& figures);
  void ReadFrequencies(MachineFigures& figures);
  void ReadGraphics(MachineFigures& figures);
  void ReadLimits(MachineFigures& figures);
  void ReadLimitsOf(const std::string& folder, const std::string& path, bool isUnified,
                    MachineLimits& limits);

  std::string Line(const std::string& path);
  std::optional<std::int64_t> Number(const std::string& path);

  ProcFiles mProc;
  const std::string mSys;
  ProcFiles mSysFiles;
};

/// The number behind `name` at the beginning of a line; nothing for a negative one.
std::optional<std::int64_t> NumberOf(std::string_view text, std::string_view name);

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
  std::unique_ptr<ProcessBirths> CountBirths() const override { return ProcessConnector::Open(); }

 private:
  mutable ProcFiles mFiles;
  mutable MachineReader mMachine;
};

}  // namespace lurkwell
