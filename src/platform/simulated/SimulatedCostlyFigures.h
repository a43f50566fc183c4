#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/CostlyFigures.h"
#include "platform/simulated/AccessLog.h"
#include "platform/simulated/SimulatedProcessTable.h"

namespace lurkwell {

/// Answers every wish at the next collection, from the simulated processes as they are then; of
/// those that others own, memory is refused.
class SimulatedCostlyFigures final : public CostlyFigures {
 public:
  SimulatedCostlyFigures(SimulatedProcessTable& table, AccessLog& log) : mTable(table), mLog(log) {}

  void Ask(std::vector<CostlyWish> asked) override {
    if (!asked.empty()) mLog.Add("CostlyFigures.Ask " + std::to_string(asked.size()));
    wishes = std::move(asked);
  }

  std::vector<CostlyReading> Collect() override {
    std::vector<CostlyReading> readings = std::exchange(late, {});
    if (isBusy) return readings;
    for (const auto& wish : std::exchange(wishes, {})) {
      const auto* process = mTable.Find(wish.process.pid);
      if (process == nullptr || process->entry.startStamp != wish.process.startStamp) continue;
      CostlyReading reading{wish.process, wish.sources, {}, age};
      for (std::size_t i = 0; i < kFigureCount; ++i) {
        const auto figure = static_cast<Figure>(i);
        const auto source = kFigures[i].origin.source;
        if ((source & wish.sources) == 0) continue;
        if (kFigures[i].kind == FigureKind::kText) {
          reading.figures.SetText(figure, process->texts.Get(figure));
        } else if (source == kFromMemoryMap && process->owner != "user") {
          reading.figures.SetMissing(figure, FigureState::kRefused);
        } else {
          reading.figures.Set(figure, process->Tell(figure));
        }
      }
      readings.push_back(reading);
    }
    return readings;
  }

  /// Nothing is answered while it is.
  bool isBusy = false;
  /// Of the readings, in milliseconds.
  std::int64_t age = 0;
  /// What was asked for last and has not been answered.
  std::vector<CostlyWish> wishes;
  /// Readings that come with the next collection, whatever was asked.
  std::vector<CostlyReading> late;

 private:
  SimulatedProcessTable& mTable;
  AccessLog& mLog;
};

}  // namespace lurkwell
