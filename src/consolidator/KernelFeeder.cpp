#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/Feeders.h"
#include "consolidator/PidReport.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/SourceNeeds.h"
#include "platform/CostlyFigures.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

using Client = ProcessInformationClient;

bool IsCostly(const CatalogueRow& row) {
  return (row.sources & kCostlyFigureSources) != 0;
}

void ReportReading(const CostlyReading& reading, TimeValue now,
                   const std::vector<Figure>& rates) LURKWELL_IN_REGION {
  const auto* record = gRecords.GetExistingPIDInformation(reading.process.pid);
  if (record == nullptr || !record->valid || record->pidInfo == nullptr ||
      record->pidInfo->startStamp != reading.process.startStamp)
    return;
  PidReport report(reading.process.pid);
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if ((kFigures[i].origin.source & reading.sources) != 0)
      report.TableFigure(static_cast<Figure>(i), reading.figures);
  const TimeValue when = now + TimeOfMicroseconds(-reading.age * 1000);
  auto& readAt = report.Block().costlyReadAt;
  for (std::size_t i = 0; i < readAt.size(); ++i)
    if ((reading.sources & CostlySource(i)) != 0) readAt[i] = when;
  FigureRates(when, rates).Derive(report, reading.sources);
}

/// The idle task has neither memory nor descriptors.
void ReportIdleTask() LURKWELL_IN_REGION {
  PidReport report(0);
  for (const auto& row : FigureProperties())
    if (IsCostly(row)) report.NoValue(row, Missing::kNotCounted);
}

/// The kernel counts processor time in hundredths of a second, its memory in pages.
std::optional<std::uint64_t> ActivityOf(const MetaProcessInformation& record) LURKWELL_IN_REGION {
  if (!AreTimesRead(record)) return std::nullopt;
  const auto size = static_cast<std::uint64_t>((*record.pidInfo)[FigureCalled("pid_rsz")]);
  return static_cast<std::uint64_t>(MicrosecondsOf(record.activeTime)) + (size << 16);
}

/// What all clients need, so that one with short turns does not push aside what others asked for.
std::vector<CostlyWish> WishesOf(const Client::Clients& clients,
                                 const SourceNeeds& needs) LURKWELL_IN_REGION {
  std::unordered_set<std::int32_t> inSight;
  for (auto* client : clients)
    for (const auto pid : client->PidsInSight()) inSight.insert(pid);
  std::vector<CostlyWish> wishes;
  for (const auto& record : gRecords.Records()) {
    if (!record.valid || record.pidInfo == nullptr || record.pid <= 0) continue;
    const auto sources = needs.Of(record.pid);
    if (sources == 0) continue;
    wishes.push_back({{record.pid, record.pidInfo->startStamp},
                      sources,
                      inSight.contains(record.pid),
                      ActivityOf(record)});
  }
  return wishes;
}

/// Reports the figures that were read in the background since the last beat, and has those read
/// that clients need, processes in sight first. Nothing happens unless a due client needs one of
/// them.
void FeedCostlyFigures(TimeValue now) LURKWELL_IN_REGION {
  if (!SourceNeeds(Client::DueClients(&now), kCostlyFigureSources).OfFigures()) return;
  auto& service = TheMachine().costlyFigures;
  const auto clients = Client::DueClients(nullptr);
  const SourceNeeds needs(clients, kCostlyFigureSources);
  for (const auto& reading : service.Collect()) ReportReading(reading, now, needs.OfRates());
  if (gRecords.GetExistingPIDInformation(0) != nullptr) ReportIdleTask();
  service.Ask(WishesOf(clients, needs));
}

}  // namespace

bool IsHelperAskedForFigures() {
  return TheMachine().processTable.OpenSources() == 0 || ReadSwitch("FIGURES_FROM_HELPER");
}

void PIDExtractProcessInformation(TimeValue now) {
  if (IsHelperAskedForFigures()) {
    FeedHelperFigures(now);
  } else {
    FeedOpenFigures(now);
  }
  FeedCostlyFigures(now);
}

}  // namespace lurkwell
