// When clients are due, and their turns.
#include <algorithm>

#include "consolidator/ClientRegistryWalk.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/Unit.h"
#include "platform/Assertion.h"

namespace lurkwell {
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
