#include "consolidator/ProcessInformationClient.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <string_view>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/ProcessQueries.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/ProcessIdentity.h"
#include "platform/RunLoop.h"

namespace lurkwell {
namespace {

constexpr char kClientUnit[] = "ProcessInformationClient";

}  // namespace

void PidStack::Push(std::int32_t pid) {
  mPlaces.emplace(pid, mPids.size());
  mPids.push_back(pid);
}

std::int32_t PidStack::Pop() {
  TrimTop();
  const std::int32_t pid = mPids.back();
  const std::size_t place = mPids.size() - 1;
  mPids.pop_back();
  for (auto [at, end] = mPlaces.equal_range(pid); at != end; ++at) {
    if (at->second != place) continue;
    mPlaces.erase(at);
    break;
  }
  return pid;
}

bool PidStack::Remove(std::int32_t pid) {
  const auto [begin, end] = mPlaces.equal_range(pid);
  if (begin == end) return false;
  for (auto at = begin; at != end; ++at) mPids[at->second] = kInvalidPID;
  mPlaces.erase(begin, end);
  TrimTop();
  return true;
}

void PidStack::TrimTop() {
  while (!mPids.empty() && mPids.back() == kInvalidPID) mPids.pop_back();
}

/// A walk over the registry during which handlers may delete any client: nodes are swept when the
/// last walk ends, so that no iterator breaks. Clients that come during a walk stand before its
/// start and are not met.
class ProcessInformationClient::Walk {
 public:
  Walk() { ++zm_WalksInProgress; }
  ~Walk() {
    if (--zm_WalksInProgress == 0)
      zm_ListOfProcessInformationClients.remove_if(
          [](const ListNode& node) { return node.client == nullptr; });
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  auto begin() { return zm_ListOfProcessInformationClients.begin(); }
  auto end() { return zm_ListOfProcessInformationClients.end(); }
};

std::list<ProcessInformationClient::ListNode>
    ProcessInformationClient::zm_ListOfProcessInformationClients;
int ProcessInformationClient::zm_WalksInProgress = 0;

ProcessInformationClient::ProcessInformationClient(const Uuid* uuid, std::int32_t interval)
    : mInterval(interval), mUuid(uuid != nullptr ? *uuid : Uuid::Fresh()) {
  zm_ListOfProcessInformationClients.push_front({this, TheMachine().clock.Now(), false});
}

ProcessInformationClient::~ProcessInformationClient() {
  const Walk walk;
  auto& node = NodeOf(this);
  node.active = false;
  node.client = nullptr;
}

void ProcessInformationClient::NotifyPidHasBeenAdded(int) {}
void ProcessInformationClient::NotifyPidHasBeenRemoved(int) {}
void ProcessInformationClient::NotifyPidHasChangedAppreciably(int) {}
void ProcessInformationClient::NotifyPreferencesHaveBeenUpdated() {}
void ProcessInformationClient::NotifyPSColumnsHaveChanged() {}

ProcessInformationClient::NeedLevel ProcessInformationClient::NeedProcPropertiesForPid(int) {
  return kNeedSomeProcProperties;
}

ProcessInformationClient::NeedLevel ProcessInformationClient::NeedPidsForProcProperty(const char*) {
  return kNeedSomePids;
}

bool ProcessInformationClient::NotifyOptionalCleanup() {
  return false;
}

ProcessInformationClient::ListNode& ProcessInformationClient::NodeOf(
    const ProcessInformationClient* client) {
  for (auto& node : zm_ListOfProcessInformationClients)
    if (node.client == client) return node;
  FailAssertion(kClientUnit, __LINE__, "node");
}

void ProcessInformationClient::DeleteAllProcessInformationClients() {
  const auto cleanUpOne = [] {
    Walk walk;
    for (auto& node : walk)
      if (node.client != nullptr && node.client->NotifyOptionalCleanup()) return true;
    return false;
  };
  while (cleanUpOne()) {
  }
  while (!zm_ListOfProcessInformationClients.empty())
    delete zm_ListOfProcessInformationClients.front().client;
}

void ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(const char* typeName) {
  const std::string_view wanted(typeName);
  Walk walk;
  for (auto& node : walk) {
    if (!node.active) continue;
    if (wanted.starts_with('*') || std::string_view(node.client->TypeName()).starts_with(wanted))
      node.client->NotifyPreferencesHaveBeenUpdated();
  }
  // An interval that was an hour until now must not be waited for.
  if (gHeartbeatCFTimerRef != nullptr)
    SetNextHeartbeat(*gHeartbeatCFTimerRef, TheMachine().clock.Now());
}

void ProcessInformationClient::NotifyAllPSColumnsHaveChanged() {
  Walk walk;
  for (auto& node : walk)
    if (node.active) node.client->NotifyPSColumnsHaveChanged();
}

void ProcessInformationClient::NotifyAllPidHasBeenAdded(int pid) {
  Walk walk;
  for (auto& node : walk)
    if (node.active) node.client->RememberAddedPid(pid);
}

void ProcessInformationClient::NotifyAllPidHasChangedAppreciably(int pid) {
  Walk walk;
  for (auto& node : walk)
    if (node.active) node.client->RememberChangedPid(pid);
}

void ProcessInformationClient::NotifyAllPidHasBeenRemoved(int pid, bool immediately) {
  Walk walk;
  for (auto& node : walk) {
    if (!node.active) continue;
    if (immediately) {
      node.client->NotifyPidHasBeenRemoved(pid);
    } else {
      node.client->RememberRemovedPid(pid);
    }
  }
}

void ProcessInformationClient::RememberAddedPid(int pid) {
  // A turn tells additions before removals. When the kernel gives a pid out again before the client
  // has heard that its last holder ended, the end has to be told first.
  const bool reused = mRemovedPids.Remove(pid);
  mAddedPids.Push(pid);
  if (reused) NotifyPidHasBeenRemoved(pid);
}

void ProcessInformationClient::RememberChangedPid(int pid) {
  mChangedPids.Push(pid);
}

void ProcessInformationClient::RememberRemovedPid(int pid) {
  const bool wasAdded = mAddedPids.Remove(pid);
  mChangedPids.Remove(pid);
  if (!wasAdded) mRemovedPids.Push(pid);
}

void AddProcessInformationClient(ProcessInformationClient* client) {
  auto& node = ProcessInformationClient::NodeOf(client);
  Require(!node.active, kClientUnit, "!node->active");
  // What was pending when the client was last removed is told afresh now.
  client->mAddedPids = client->mChangedPids = client->mRemovedPids = {};
  for (const auto pid : PidBlob(kPidBlobAll)) client->NotifyPidHasBeenAdded(pid);
  node.active = true;
}

void RemoveProcessInformationClient(ProcessInformationClient* client) {
  ProcessInformationClient::NodeOf(client).active = false;
}

// ---- What the clients need, taken together

namespace {

using NeedLevel = ProcessInformationClient::NeedLevel;

/// A property that is computed from others.
struct Derivation {
  std::string_view derived;
  std::span<const char* const> sources;
};

constexpr std::array kNameSources = {"carbonpsn_name", "pid_p_comm"};
constexpr std::array kActiveTimeSources = {"pid_user_time", "pid_system_time",
                                           "classicpsn_active_time", "pid_terminated_user_time",
                                           "pid_terminated_system_time"};
constexpr Derivation kDerivations[] = {{"meta_name", kNameSources},
                                       {"meta_active_time", kActiveTimeSources}};

/// Calls `ask` for the property itself, then for each property whose need implies this one's, until
/// it gives true. `complaint` is printed for a "meta_" property that nothing is derived from.
template <typename Ask>
bool AskAlongDerivations(const char* property, const char* complaint, Ask ask) {
  if (ask(property)) return true;
  const std::string_view name(property);
  if (name.starts_with("meta_")) {
    const auto* derivation = std::ranges::find(kDerivations, name, &Derivation::derived);
    if (derivation == std::end(kDerivations)) {
      DiagnoseVerbatim("%s", complaint);
    } else if (std::ranges::any_of(derivation->sources, ask)) {
      return true;
    }
  }
  return std::ranges::any_of(kDerivations, [&](const Derivation& derivation) {
    return std::ranges::find(derivation.sources, name,
                             [](const char* source) { return std::string_view(source); }) !=
               derivation.sources.end() &&
           ask(derivation.derived.data());
  });
}

bool IsPidLevel(NeedLevel level) {
  return level >= ProcessInformationClient::kNeedNoPids &&
         level <= ProcessInformationClient::kNeedAllPids;
}

bool IsPropertyLevel(NeedLevel level) {
  return level >= ProcessInformationClient::kNeedNoProcProperties &&
         level <= ProcessInformationClient::kNeedAllProcProperties;
}

}  // namespace

NeedLevel ProcessInformationClient::AggregateNeedLevels(NeedLevel need1, NeedLevel need2) {
  if (IsPidLevel(need1)) {
    Require(IsPidLevel(need2), kClientUnit, "(need2 >= kNeedNoPids) && (need2 <= kNeedAllPids)");
  } else if (IsPropertyLevel(need1)) {
    Require(IsPropertyLevel(need2), kClientUnit,
            "(need2 >= kNeedNoProcProperties) && (need2 <= kNeedAllProcProperties)");
  } else {
    DiagnoseVerbatim("got to a bad place!!! ProcessInformationClient::AggregateNeedLevels");
    return kNeedNoPids;
  }
  return std::max(need1, need2);
}

NeedLevel ProcessInformationClient::NeedAnyProcPropertyForPid(int pid, const TimeValue* now) {
  NeedLevel level = kNeedNoProcProperties;
  for (const auto& node : zm_ListOfProcessInformationClients) {
    if (!UseNode(node, now)) continue;
    level = AggregateNeedLevels(level, node.client->NeedProcPropertiesForPid(pid));
    if (level == kNeedAllProcProperties) break;
  }
  return level;
}

NeedLevel ProcessInformationClient::NeedAnyPidForProcProperty(const char* property,
                                                              const TimeValue* now) {
  return NeedAnyPidForProcProperty(property, DueClients(now));
}

NeedLevel ProcessInformationClient::NeedAnyPidForProcProperty(const char* property,
                                                              const Clients& clients) {
  NeedLevel level = kNeedNoPids;
  AskAlongDerivations(property, "uh-oh. Unhandled meta type!", [&](const char* name) {
    for (auto* client : clients) {
      level = AggregateNeedLevels(level, client->NeedPidsForProcProperty(name));
      if (level == kNeedAllPids) return true;
    }
    return false;
  });
  return level;
}

bool ProcessInformationClient::NeedAnyPidProcProperty(int pid, const char* property,
                                                      const TimeValue* now) {
  return NeedAnyPidProcProperty(pid, property, DueClients(now));
}

ProcessInformationClient::Clients ProcessInformationClient::DueClients(const TimeValue* now) {
  Clients clients;
  for (const auto& node : zm_ListOfProcessInformationClients)
    if (UseNode(node, now)) clients.push_back(node.client);
  return clients;
}

bool ProcessInformationClient::NeedAnyPidProcProperty(int pid, const char* property,
                                                      const Clients& clients) {
  return AskAlongDerivations(
      property, "uh-oh. Unhandled meta type in NeedAnyPidProcProperty!", [&](const char* name) {
        return std::ranges::any_of(
            clients, [&](auto* client) { return client->NeedPidProcProperty(pid, name); });
      });
}

// ---- When clients are due, and their turns

namespace {

/// The heart still beats when there is no client.
constexpr std::int64_t kLongestRest = 15000;

/// Preferences are files that people edit: an interval of nothing must not keep a core busy.
constexpr std::int32_t kShortestInterval = 20;

std::int64_t ServedInterval(const ProcessInformationClient& client) {
  return std::max(client.Interval(), kShortestInterval);
}

}  // namespace

bool ProcessInformationClient::UseNode(const ListNode& node, const TimeValue* now) {
  if (!node.active) return false;
  return now == nullptr ||
         MillisecondsBetween(node.lastHeartbeat, *now) >= ServedInterval(*node.client);
}

std::int64_t ProcessInformationClient::GetMillisecondsToNextHeartbeat(const TimeValue* now) {
  Require(now != nullptr, kClientUnit, "curTime != NULL");
  std::int64_t milliseconds = kLongestRest;
  for (const auto& node : zm_ListOfProcessInformationClients) {
    if (!node.active) continue;
    const TimeValue due = AddMilliseconds(node.lastHeartbeat, ServedInterval(*node.client));
    milliseconds = std::min(milliseconds, MillisecondsBetween(*now, due));
  }
  return milliseconds;
}

void ProcessInformationClient::SetNextHeartbeat(RunLoopTimer& timer, TimeValue now) {
  const auto milliseconds = static_cast<double>(GetMillisecondsToNextHeartbeat(&now));
  timer.SetNextFireDate(TheMachine().clock.AbsoluteTime() + milliseconds / 1000.0);
}

void ProcessInformationClient::TakeEarlyOnesAlong(const TimeValue& now) {
  auto& nodes = zm_ListOfProcessInformationClients;
  const bool looksAtAll = std::ranges::any_of(nodes, [&now](const ListNode& node) {
    return UseNode(node, &now) &&
           node.client->NeedPidsForProcProperty("meta_active_time") == kNeedAllPids;
  });
  if (!looksAtAll) return;
  for (auto& node : nodes) {
    const auto early = node.active ? node.client->MayComeEarlyBy() : 0;
    if (early > 0 &&
        MillisecondsBetween(node.lastHeartbeat, now) >= ServedInterval(*node.client) - early)
      node.lastHeartbeat = {};
  }
}

void ProcessInformationClient::MakeDue(const ProcessInformationClient* client) {
  NodeOf(client).lastHeartbeat = {};
}

void ProcessInformationClient::NotifyAllProcessesHaveBeenUpdated(const TimeValue* now) {
  Require(now != nullptr, kClientUnit, "curTime != NULL");
  Walk walk;
  // A handler may remove or delete any client, so a node is asked again after every call.
  for (auto& node : walk)
    while (UseNode(node, now) && !node.client->mAddedPids.Empty())
      node.client->NotifyPidHasBeenAdded(node.client->mAddedPids.Pop());
  for (auto& node : walk)
    while (UseNode(node, now) && !node.client->mChangedPids.Empty())
      node.client->NotifyPidHasChangedAppreciably(node.client->mChangedPids.Pop());
  for (bool delivered = true; delivered;) {
    delivered = false;
    for (auto& node : walk) {
      if (!UseNode(node, now) || node.client->mRemovedPids.Empty()) continue;
      node.client->NotifyPidHasBeenRemoved(node.client->mRemovedPids.Pop());
      delivered = true;
    }
  }
  for (auto& node : walk) {
    if (!UseNode(node, now)) continue;
    node.lastHeartbeat = *now;
    node.client->NotifyProcessesHaveBeenUpdated();
  }
}

}  // namespace lurkwell
