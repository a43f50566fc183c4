#pragma once

#include <cstdint>
#include <string_view>

#include "consolidator/PI_Consolidator.h"

namespace lurkwell {

/// Needs what the main table needs and reads it back for every process.
class TableLikeClient final : public ProcessInformationClient {
 public:
  explicit TableLikeClient(std::int32_t interval = 1000)
      : ProcessInformationClient(nullptr, interval) {}

  NeedLevel NeedPidsForProcProperty(const char* property) override {
    return NeedPidProcProperty(0, property) ? kNeedAllPids : kNeedNoPids;
  }
  bool NeedPidProcProperty(int, const char* property) override {
    const std::string_view name(property);
    return name == "meta_name" || name == "meta_active_time" || name == "pid_rsz" ||
           name == "pid_vsz";
  }
  void NotifyProcessesHaveBeenUpdated() override {
    const PidBlob pids;
    mProcesses = pids.size();
    for (const auto pid : pids) {
      char value[256];
      for (const auto* property : {"meta_active_time", "pid_rsz", "pid_vsz"})
        GetPIDPropertyValue(pid, property, value, sizeof value, nullptr);
    }
  }

  std::int32_t Processes() const { return mProcesses; }

 private:
  std::int32_t mProcesses = 0;
};

}  // namespace lurkwell
