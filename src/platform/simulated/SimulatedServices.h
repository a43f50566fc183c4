#pragma once

#include <string>

#include "platform/HostStatistics.h"
#include "platform/Signals.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Figures of the machine that the engine assumes: every process maps 512 MiB of shared text and
/// data.
class SimulatedHostStatistics final : public HostStatistics {
 public:
  std::int64_t SharedTextAndDataSize() const override { return 0x20000000; }
};

/// Signals are recorded, never sent.
class SimulatedSignals final : public Signals {
 public:
  explicit SimulatedSignals(AccessLog& log) : mLog(log) {}

  bool Send(ProcessIdentity process, int signal) override {
    if (process.pid < 2) return false;
    mLog.Add("Signals.Send " + std::to_string(process.pid) + " " + std::to_string(signal));
    return true;
  }

 private:
  AccessLog& mLog;
};

}  // namespace lurkwell
