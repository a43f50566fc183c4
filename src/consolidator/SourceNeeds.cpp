#include "consolidator/SourceNeeds.h"

#include <algorithm>

#include "consolidator/ProcessActionList.h"
#include "consolidator/PropertyCatalogue.h"

namespace lurkwell {

using Client = ProcessInformationClient;

SourceNeeds::SourceNeeds(TimeValue now) {
  for (auto* client : Client::DueClients(&now)) {
    mNeedsEnds |= client->NeedsEnds();
    mClients.push_back(NeedsOf(client));
  }
}

SourceNeeds::OfClient SourceNeeds::NeedsOf(Client* client) {
  OfClient needs{.client = client, .itself = {client}, .ofAll = 0, .ofSome = {}};
  for (const auto& row : BuiltInProperties()) {
    // The name of its birth is there without a look.
    const bool isName = row.field == PidField{&PidBlock::commandName};
    if (row.sources == 0 || (isName && !client->NeedsRenamings())) continue;
    const auto level = Client::NeedAnyPidForProcProperty(row.name.data(), needs.itself);
    if (level == Client::kNeedAllPids) needs.ofAll |= row.sources;
    if (level == Client::kNeedSomePids) needs.ofSome.push_back({row.name.data(), row.sources});
  }
  return needs;
}

FigureSources SourceNeeds::Of(std::int32_t pid) const {
  // What was done to it is compared with what the kernel says.
  FigureSources sources =
      GetProcessAction(pid, kProcessActionAny, nullptr) ? kFromStat | kFromScheduler : 0;
  for (const auto& [client, itself, ofAll, ofSome] : mClients) {
    if (ofAll == 0 && ofSome.empty() && !client->NeedsEnds()) continue;
    const auto level = client->NeedProcPropertiesForPid(pid);
    if (level == Client::kNeedNoProcProperties) continue;
    if (level == Client::kNeedAllProcProperties) return kAllFigureSources;
    sources |= ofAll;
    for (const auto& [property, its] : ofSome)
      if ((its & ~sources) != 0 && Client::NeedAnyPidProcProperty(pid, property, itself))
        sources |= its;
  }
  return sources;
}

bool SourceNeeds::AreThereAny() const {
  return std::ranges::any_of(mClients, [](const OfClient& needs) {
    return needs.ofAll != 0 || !needs.ofSome.empty() || needs.client->NeedsEnds();
  });
}

}  // namespace lurkwell
