#include "consolidator/ProcessInformationClient.h"

#include <cstring>
#include <string_view>

#include "consolidator/ClientRegistryWalk.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/ProcessQueries.h"
#include "consolidator/Unit.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"

namespace lurkwell {
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
  RescheduleHeartbeat();
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

}  // namespace lurkwell
