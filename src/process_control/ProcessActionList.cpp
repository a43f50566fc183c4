#include <algorithm>
#include <forward_list>
#include <unordered_map>

#include "process_control/ProcessActions.h"

namespace lurkwell {
namespace {

/// The entries of each pid, newest first.
std::unordered_map<std::int32_t, std::forward_list<ProcessAction>> gProcessActionHead;

bool Matches(const ProcessAction& action, std::int32_t kind) {
  return kind == kProcessActionAny || action.kind == kind;
}

}  // namespace

const ProcessAction* AddProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t value) {
  return &gProcessActionHead[pid].emplace_front(ProcessAction{pid, kind, value});
}

void RemoveProcessAction(std::int32_t pid, std::int32_t kind) {
  const auto found = gProcessActionHead.find(pid);
  if (found == gProcessActionHead.end()) return;
  found->second.remove_if([kind](const auto& action) { return Matches(action, kind); });
  if (found->second.empty()) gProcessActionHead.erase(found);
}

bool GetProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t* value) {
  const auto found = gProcessActionHead.find(pid);
  if (found == gProcessActionHead.end()) return false;
  const auto newest = std::ranges::find_if(
      found->second, [kind](const auto& action) { return Matches(action, kind); });
  if (newest == found->second.end()) return false;
  if (value != nullptr) *value = newest->value;
  return true;
}

const char* ProcessIndicatorImageName(std::int32_t pid) {
  std::int32_t nice = 0;
  GetProcessAction(pid, kProcessActionRenice, &nice);
  if (nice != 0) return nice < 0 ? "process_niced_high" : "process_niced_low";
  return GetProcessAction(pid, kProcessActionHalt, nullptr) ? "process_halted" : nullptr;
}

}  // namespace lurkwell
