#include "consolidator/ProcessActionList.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "consolidator/ProcessQueries.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

/// How long, in seconds, the kernel may take to show what it has accepted. A process that is
/// waiting for a disk stops only behind that; nice values are read every ten seconds.
constexpr double kHaltSettling = 3.0;
constexpr double kReniceSettling = 15.0;
/// What the kernel makes of 20.
constexpr std::int32_t kHighestNice = 19;

/// What is known of a pid's holder: its entries, oldest first, and how often it was asked to end.
struct Deeds {
  std::uint64_t startStamp = 0;
  std::vector<ProcessAction> actions;
  int timesAsked = 0;
};

std::unordered_map<std::int32_t, Deeds> gDeeds;
/// Those of ended processes go when there are as many.
std::size_t gSweepAt = 64;

void Sweep() {
  if (gDeeds.size() < gSweepAt) return;
  std::erase_if(gDeeds, [](const auto& entry) {
    return entry.second.startStamp != GetPidsStartStamp(entry.first);
  });
  gSweepAt = std::max<std::size_t>(64, 2 * gDeeds.size());
}

/// Null when nothing was done to the pid's present holder.
Deeds* FindDeeds(std::int32_t pid) {
  if (gDeeds.empty()) return nullptr;
  const auto found = gDeeds.find(pid);
  if (found == gDeeds.end()) return nullptr;
  if (found->second.startStamp == GetPidsStartStamp(pid)) return &found->second;
  gDeeds.erase(found);
  return nullptr;
}

Deeds& DeedsOf(std::int32_t pid) {
  if (auto* deeds = FindDeeds(pid)) return *deeds;
  Sweep();
  auto& deeds = gDeeds[pid];
  deeds.startStamp = GetPidsStartStamp(pid);
  return deeds;
}

bool Matches(const ProcessAction& action, std::int32_t kind) {
  return kind == kProcessActionAny || action.kind == kind;
}

/// Whether the kernel shows what the entry says.
bool IsSo(const ProcessAction& action, bool isStopped, std::int32_t nice) {
  if (action.kind == kProcessActionHalt) return isStopped;
  return std::min(action.value, kHighestNice) == nice;
}

}  // namespace

const ProcessAction* AddProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t value) {
  auto& deeds = DeedsOf(pid);
  const double settling = kind == kProcessActionHalt ? kHaltSettling : kReniceSettling;
  const double deadline = TheMachine().clock.AbsoluteTime() + settling;
  return &deeds.actions.emplace_back(
      ProcessAction{pid, kind, value, deeds.startStamp, false, deadline});
}

void RemoveProcessAction(std::int32_t pid, std::int32_t kind) {
  if (auto* deeds = FindDeeds(pid))
    std::erase_if(deeds->actions, [kind](const auto& action) { return Matches(action, kind); });
}

bool GetProcessAction(std::int32_t pid, std::int32_t kind, std::int32_t* value) {
  const auto* deeds = FindDeeds(pid);
  if (deeds == nullptr) return false;
  const auto newest = std::find_if(deeds->actions.rbegin(), deeds->actions.rend(),
                                   [kind](const auto& action) { return Matches(action, kind); });
  if (newest == deeds->actions.rend()) return false;
  if (value != nullptr) *value = newest->value;
  return true;
}

void NoteKernelState(std::int32_t pid, bool isStopped, std::int32_t nice) {
  auto* deeds = FindDeeds(pid);
  if (deeds == nullptr && !isStopped) return;
  if (isStopped && !GetProcessAction(pid, kProcessActionHalt, nullptr)) {
    DiagnoseVerbatim("detected a surreptitiously-halted process %d!", pid);
    AddProcessAction(pid, kProcessActionHalt, 0);
    deeds = FindDeeds(pid);
  }
  if (deeds == nullptr || deeds->actions.empty()) return;
  const double now = TheMachine().clock.AbsoluteTime();
  std::erase_if(deeds->actions, [&](ProcessAction& action) {
    if (IsSo(action, isStopped, nice)) {
      action.isConfirmed = true;
      return false;
    }
    return action.isConfirmed || now >= action.confirmBefore;
  });
}

const char* ProcessIndicatorImageName(std::int32_t pid) {
  std::int32_t nice = 0;
  GetProcessAction(pid, kProcessActionRenice, &nice);
  if (nice != 0) return nice < 0 ? "process_niced_high" : "process_niced_low";
  return GetProcessAction(pid, kProcessActionHalt, nullptr) ? "process_halted" : nullptr;
}

int TimesAskedToEnd(std::int32_t pid) {
  const auto* deeds = FindDeeds(pid);
  return deeds != nullptr ? deeds->timesAsked : 0;
}

void NoteAskedToEnd(std::int32_t pid) {
  ++DeedsOf(pid).timesAsked;
}

}  // namespace lurkwell
