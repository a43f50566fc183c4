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

/// How one of kRates is made.
struct RateFacts {
  Figure first{};
  std::optional<Figure> other;
  FigureSources sources = 0;
};

constexpr std::optional<Figure> FigureNamed(std::string_view property) {
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if (kFigures[i].property == property) return static_cast<Figure>(i);
  return std::nullopt;
}

constexpr auto kFacts = [] {
  std::array<RateFacts, kRates.size()> facts{};
  for (std::size_t i = 0; i < kRates.size(); ++i) {
    const auto& row = RowOf(kRates[i]);
    facts[i] = {FigureNamed(row.origin.counter).value(), FigureNamed(row.origin.otherCounter),
                SourcesOf(row)};
  }
  return facts;
}();

std::size_t PlaceAmongRates(Figure rate) {
  return static_cast<std::size_t>(std::ranges::find(kRates, rate) - kRates.begin());
}

const CatalogueRow& CatalogueRowOf(Figure figure) {
  return FigureProperties()[static_cast<std::size_t>(figure)];
}

/// The sum of the counters, or why there is none.
std::variant<std::int64_t, Missing> CountOf(const PidBlock& block, const RateFacts& facts) {
  std::int64_t count = 0;
  for (const auto figure : {std::optional(facts.first), facts.other}) {
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
  for (const Figure rate : mWanted) mPlaces.push_back(PlaceAmongRates(rate));
  const bool areShares = std::ranges::any_of(
      mWanted, [](Figure rate) { return RowOf(rate).kind == FigureKind::kCPUShare; });
  if (areShares) CountProcessorsForShares();
}

void FigureRates::Derive(PidReport& report, FigureSources current) const {
  auto& block = report.Block();
  if (!mPlaces.empty() && block.counters.empty()) block.counters.resize(kRates.size());
  for (const std::size_t place : mPlaces) {
    if ((kFacts[place].sources & ~current) != 0) continue;
    const Figure rate = kRates[place];
    const auto& row = CatalogueRowOf(rate);
    auto& last = block.counters[place];
    const auto value = CountOf(block, kFacts[place]);
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
