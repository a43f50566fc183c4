#include "consolidator/SourceNeeds.h"

#include <algorithm>
#include <variant>

#include "consolidator/ProcessActionList.h"
#include "consolidator/PropertyCatalogue.h"

namespace lurkwell {

using Client = ProcessInformationClient;

SourceNeeds::SourceNeeds(TimeValue now)
    : SourceNeeds(Client::DueClients(&now), kAllFigureSources) {}

SourceNeeds::SourceNeeds(const Client::Clients& clients, FigureSources among) : mAmong(among) {
  for (auto* client : clients) {
    if (client->NeedsOnlyBirths()) continue;
    mNeedsEnds |= client->NeedsEnds();
    mClients.push_back(NeedsOf(client));
  }
}

SourceNeeds::OfClient SourceNeeds::NeedsOf(Client* client) {
  OfClient needs{.client = client, .itself = {client}, .ofAll = 0, .ofSome = {}};
  for (const auto& row : BuiltInProperties()) {
    const auto sources = row.sources & mAmong;
    if (sources == 0) continue;
    const auto level = Client::NeedAnyPidForProcProperty(row.name.data(), needs.itself);
    if (level == Client::kNeedAllPids) needs.ofAll |= sources;
    if (level != Client::kNeedNoPids) NoteRate(row);
    if (level == Client::kNeedSomePids) needs.ofSome.push_back({row.name.data(), sources});
  }
  return needs;
}

void SourceNeeds::NoteRate(const CatalogueRow& row) {
  const auto* figure = std::get_if<Figure>(&row.field);
  if (figure != nullptr && IsRate(RowOf(*figure)) &&
      std::ranges::find(mRates, *figure) == mRates.end())
    mRates.push_back(*figure);
}

FigureSources SourceNeeds::Of(std::int32_t pid) const {
  // What was done to it is compared with what the kernel says.
  FigureSources sources =
      GetProcessAction(pid, kProcessActionAny, nullptr) ? kFromStat | kFromScheduler : 0;
  sources &= mAmong;
  for (const auto& [client, itself, ofAll, ofSome] : mClients) {
    if (ofAll == 0 && ofSome.empty() && !client->NeedsEnds()) continue;
    const auto level = client->NeedProcPropertiesForPid(pid);
    if (level == Client::kNeedNoProcProperties) continue;
    if (level == Client::kNeedAllProcProperties) return mAmong;
    sources |= ofAll;
    for (const auto& [property, its] : ofSome)
      if ((its & ~sources) != 0 && Client::NeedAnyPidProcProperty(pid, property, itself))
        sources |= its;
  }
  return sources;
}

bool SourceNeeds::AreThereAny() const {
  return mNeedsEnds || OfFigures();
}

bool SourceNeeds::OfFigures() const {
  return std::ranges::any_of(
      mClients, [](const OfClient& needs) { return needs.ofAll != 0 || !needs.ofSome.empty(); });
}

}  // namespace lurkwell
