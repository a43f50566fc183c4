#include "windows/Keys.h"

#include <deque>
#include <string>
#include <unordered_map>

namespace lurkwell {
namespace {

struct KeyTable {
  /// A deque: the index refers to the texts where they lie.
  std::deque<std::string> texts;
  std::unordered_map<std::string_view, KeyId> ids;
};

KeyTable& TheKeys() {
  static KeyTable keys;
  return keys;
}

}  // namespace

KeyId InternKey(std::string_view key) {
  auto& keys = TheKeys();
  if (const auto found = keys.ids.find(key); found != keys.ids.end()) return found->second;
  const auto id = static_cast<KeyId>(keys.texts.size());
  keys.ids.emplace(keys.texts.emplace_back(key), id);
  return id;
}

std::string_view KeyText(KeyId id) {
  return TheKeys().texts[static_cast<std::size_t>(id)];
}

bool IsInternalKey(std::string_view key) {
  return key.starts_with("internal_");
}

const KeyId kMetaPid = InternKey("meta_pid");
const KeyId kMetaName = InternKey("meta_name");
const KeyId kPidCommandName = InternKey("pid_p_comm");
const KeyId kMetaActiveTime = InternKey("meta_active_time");
const KeyId kInternalIcon = InternKey("internal_Icon");
const KeyId kInternalIndicator = InternKey("internal_Indicator");
const KeyId kInternalCPUPercent = InternKey("internal_CPUPercent");
const KeyId kInternalMemGraph = InternKey("internal_MemGraph");
const KeyId kInternalCpuUsage = InternKey("internal_cpu_usage");
const KeyId kPidRsz = InternKey("pid_rsz");
const KeyId kPidVsz = InternKey("pid_vsz");

}  // namespace lurkwell
