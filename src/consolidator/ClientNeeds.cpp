// What the clients need, taken together.
#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "consolidator/ClientRegistryWalk.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/Unit.h"
#include "platform/Assertion.h"
#include "platform/Diagnostics.h"

namespace lurkwell {
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

}  // namespace lurkwell
