#include "fleet/FleetTable.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <utility>

namespace lurkwell {
namespace {

constexpr std::size_t kRoom = kMostRows + kMostDownRows;
constexpr double kMostCounted = 1e15;

class TableReader {
 public:
  explicit TableReader(const FleetView& view) { mTable.view = view; }

  FleetTable Read(const PrometheusAnswer& answer) {
    mTable.leftOut = answer.leftOut;
    mTable.warnings = answer.warnings;
    for (const auto& series : answer.series)
      if (!Take(series)) ++mTable.leftOut;
    // Nobody knows which of two is right.
    for (const auto& [row, figure] : mTwice) mTable.rows[row].Set(figure, kNoFigure);
    mTable.leftOut += static_cast<std::int64_t>(mTwice.size());
    for (auto& row : mTable.rows)
      if (row.IsDown()) ForgetPast(row);
    mTable.all = std::max<std::int64_t>(mTable.all, static_cast<std::int64_t>(mTable.rows.size()));
    return std::move(mTable);
  }

 private:
  bool Take(const PrometheusSeries& series) {
    const auto& key = series.labels[0];
    const auto& name = series.labels[1];
    const auto [time, value] = series.points.front();
    mTable.time = std::max(mTable.time, time);
    const bool isSensible = value >= 0 && (value < kMostCounted || name.size() > 0);
    if (key.isNull() || !isSensible) return false;
    if (key == QLatin1String(kCountOfAll)) return mTable.all = std::llround(value), true;
    if (key == QLatin1String(kCountOfDown)) return mTable.down = std::llround(value), true;
    const auto figure = FleetFigureNamed(key.toStdString());
    if (!figure || name.isEmpty()) return false;
    auto place = mPlaces.find(name);
    if (place == mPlaces.end()) {
      if (mTable.rows.size() >= kRoom) return false;
      place = mPlaces.insert(name, mTable.rows.size());
      auto& row = mTable.rows.emplace_back();
      row.name = name;
      row.figures.fill(kNoFigure);
    }
    auto& row = mTable.rows[*place];
    if (std::isfinite(row.Of(*figure))) {
      mTwice.emplace_back(*place, *figure);
      return true;
    }
    row.Set(*figure, value);
    return true;
  }

  /// For some minutes a server goes on telling the rates of a machine that has gone.
  static void ForgetPast(FleetRow& row) {
    for (const auto& figure : FleetFigures())
      if (figure.figure != FleetFigure::kUp && figure.figure != FleetFigure::kSeen)
        row.Set(figure.figure, kNoFigure);
  }

  FleetTable mTable;
  QHash<QString, std::size_t> mPlaces;
  std::vector<std::pair<std::size_t, FleetFigure>> mTwice;
};

}  // namespace

FleetTable ReadFleetTable(const PrometheusAnswer& answer, const FleetView& view) {
  return TableReader(view).Read(answer);
}

}  // namespace lurkwell
