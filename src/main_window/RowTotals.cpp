#include "main_window/RowTotals.h"

#include <algorithm>
#include <string_view>

#include "windows/CustomCells.h"

namespace lurkwell {
namespace {

const KeyId kPidPss = InternKey("pid_pss");

bool IsAddedUp(std::string_view key) {
  static constexpr std::string_view kAddedUp[] = {"meta_active_time",
                                                  "pid_user_time",
                                                  "pid_system_time",
                                                  "pid_cpu_wait",
                                                  "pid_cpu_share",
                                                  "pid_user_share",
                                                  "pid_system_share",
                                                  "pid_csw",
                                                  "pid_vsz",
                                                  "pid_rsz",
                                                  "pid_pss",
                                                  "pid_uss",
                                                  "pid_swap",
                                                  "pid_memory_share",
                                                  "pid_faults",
                                                  "pid_pageins",
                                                  "pid_threads",
                                                  "pid_descriptors",
                                                  "pid_syscalls_unix",
                                                  "pid_disk_read",
                                                  "pid_disk_written",
                                                  "pid_disk_read_rate",
                                                  "pid_bytes_read",
                                                  "pid_bytes_written",
                                                  "pid_read_rate",
                                                  "pid_disk_write_rate",
                                                  "pid_write_rate",
                                                  "pid_net_received",
                                                  "pid_net_sent",
                                                  "pid_net_send_rate",
                                                  "pid_connections",
                                                  "pid_net_receive_rate",
                                                  "pid_gpu_share",
                                                  "pid_gpu_memory",
                                                  "pid_messages_sent",
                                                  "pid_messages_received",
                                                  "internal_cpu_usage",
                                                  "pid_syscalls_mach",
                                                  "pid_cow_faults"};
  return std::ranges::find(kAddedUp, key) != std::end(kAddedUp);
}

void Append(std::vector<KeyId>& keys, KeyId key) {
  if (std::ranges::find(keys, key) == keys.end()) keys.push_back(key);
}

}  // namespace

std::vector<KeyId> KeysToAddUp(std::span<const KeyId> columns) {
  std::vector<KeyId> keys;
  for (const KeyId column : columns) {
    if (column == kInternalCPUPercent) Append(keys, kInternalCpuUsage);
    if (column == kInternalMemGraph) {
      Append(keys, kPidRsz);
      Append(keys, MemoryFigureKey());
    }
    if (IsAddedUp(KeyText(column))) Append(keys, column);
  }
  return keys;
}

const RowValue& Addend(const RowDictionary& row, KeyId key) {
  if (key == kPidRsz)
    if (const auto& proportional = row.Get(kPidPss); IsKnown(proportional)) return proportional;
  return row.Get(key);
}

void AddTo(RowValue& sum, const RowValue& value) {
  if (!IsKnown(value)) return;
  if (!IsKnown(sum)) {
    sum = value;
  } else if (auto* number = std::get_if<std::int64_t>(&sum)) {
    if (const auto* more = std::get_if<std::int64_t>(&value)) *number += *more;
  } else if (auto* fraction = std::get_if<double>(&sum)) {
    if (const auto* more = std::get_if<double>(&value)) *fraction += *more;
  } else if (auto* time = std::get_if<TimeValue>(&sum)) {
    if (const auto* more = std::get_if<TimeValue>(&value)) *time = *time + *more;
  }
}

}  // namespace lurkwell
