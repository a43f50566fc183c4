#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <vector>

#include "fleet/FleetFigures.h"
#include "fleet/FleetQuery.h"
#include "fleet/PrometheusAnswer.h"

namespace lurkwell {

struct FleetRow {
  /// A machine or a group, as its label says: any text.
  QString name;
  /// By FleetFigure; kNoFigure where it is not known.
  std::array<double, kFleetFigures> figures;

  double Of(FleetFigure figure) const { return figures[static_cast<std::size_t>(figure)]; }
  void Set(FleetFigure figure, double value) { figures[static_cast<std::size_t>(figure)] = value; }
  /// Of a machine.
  bool IsDown() const { return Of(FleetFigure::kUp) == 0; }
};

/// What a server said to a TableQuery.
struct FleetTable {
  FleetView view;
  /// By the server's clock, epoch seconds; 0 when it said nothing.
  double time = 0;
  /// In no order.
  std::vector<FleetRow> rows;
  /// How many there are on the server.
  std::int64_t all = 0;
  std::int64_t down = 0;
  /// Values that made no sense: series without the labels that were asked for, two for one figure,
  /// negative ones. They are shown nowhere.
  std::int64_t leftOut = 0;
  QStringList warnings;
};

/// Pure; linear in the answer.
FleetTable ReadFleetTable(const PrometheusAnswer& answer, const FleetView& view);

}  // namespace lurkwell
