// What counters grow by in a second.
#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "consolidator/PidReport.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"

namespace lurkwell {
namespace {

/// A shorter time says nothing about a second.
constexpr std::int64_t kShortestSpan = 100'000;

struct Counters {
  Figure first{};
  std::optional<Figure> other;
};

constexpr std::optional<Figure> FigureNamed(std::string_view property) {
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if (kFigures[i].property == property) return static_cast<Figure>(i);
  return std::nullopt;
}

constexpr auto kCounters = [] {
  std::array<Counters, kRates.size()> counters{};
  for (std::size_t i = 0; i < kRates.size(); ++i) {
    const auto& origin = RowOf(kRates[i]).origin;
    counters[i] = {FigureNamed(origin.counter).value(), FigureNamed(origin.otherCounter)};
  }
  return counters;
}();

const CatalogueRow& CatalogueRowOf(Figure figure) {
  return FigureProperties()[static_cast<std::size_t>(figure)];
}

/// The sum of the counters, or why there is none.
TypedValue CountOf(const PidBlock& block, const Counters& counters) {
  std::int64_t count = 0;
  for (const auto figure : {std::optional(counters.first), counters.other}) {
    if (!figure) continue;
    const auto place = PlaceOf(CatalogueRowOf(*figure));
    if (!block.states.IsKnown(place)) return block.states.Why(place);
    count += block[*figure];
  }
  return count;
}

/// Bytes per second as they are; of processors' time, thousandths of a per cent.
std::int64_t PerSecondOf(Figure rate, std::int64_t growth, std::int64_t microseconds) {
  const double perSecond = static_cast<double>(growth) * 1e6 / static_cast<double>(microseconds);
  constexpr double kMicrosecondsInThousandth = 10;
  const bool isShare = RowOf(rate).kind == FigureKind::kCPUShare;
  return static_cast<std::int64_t>(isShare ? perSecond / kMicrosecondsInThousandth : perSecond);
}

}  // namespace

FigureRates::FigureRates(TimeValue now, std::vector<Figure> wanted)
    : mNow(MicrosecondsOf(now)), mWanted(std::move(wanted)) {
  const bool areShares = std::ranges::any_of(
      mWanted, [](Figure rate) { return RowOf(rate).kind == FigureKind::kCPUShare; });
  if (areShares) CountProcessorsForShares();
}

void FigureRates::Derive(PidReport& report, FigureSources current) const {
  auto& block = report.Block();
  for (const Figure rate : mWanted) {
    if ((SourcesOf(RowOf(rate)) & ~current) != 0) continue;
    const auto& row = CatalogueRowOf(rate);
    const auto place = static_cast<std::size_t>(std::ranges::find(kRates, rate) - kRates.begin());
    if (block.counters.empty()) block.counters.resize(kRates.size());
    auto& last = block.counters[place];
    const auto value = CountOf(block, kCounters[place]);
    const auto* count = std::get_if<std::int64_t>(&value);
    if (count == nullptr) {
      last = {};
      report.NoValue(row, std::get<Missing>(value));
      continue;
    }
    const bool isFirst = last.when == 0 || *count < last.count || mNow < last.when;
    if (!isFirst && mNow - last.when < kShortestSpan) continue;
    const auto before = std::exchange(last, {*count, mNow});
    if (isFirst) {
      report.NoValue(row, Missing::kNotYetKnown);
    } else {
      report.Integer(row, PerSecondOf(rate, *count - before.count, mNow - before.when));
    }
  }
}

}  // namespace lurkwell
