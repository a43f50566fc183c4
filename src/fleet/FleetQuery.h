#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <vector>

#include "fleet/FleetFigures.h"
#include "fleet/FleetFilter.h"

namespace lurkwell {

/// What is looked at.
struct FleetView {
  FleetLevel level = FleetLevel::kMachines;
  /// Of groups, one of kFleetKinds.
  QString kind = QString::fromLatin1(kFleetKinds.front());
  /// Of kGroupsOfMachine.
  QString machine;
  /// Of kMachinesOfGroup.
  QString group;
  /// By what the server chooses the rows that there is room for.
  FleetFigure sortedBy = FleetFigure::kCpu;
  bool isAscending = false;

  bool operator==(const FleetView&) const = default;
};

/// How many rows the server is asked for at most. Machines that are down come besides.
inline constexpr int kMostRows = 500;
inline constexpr int kMostDownRows = 200;

/// The label of series in which their figure's key stands, or one of the next two.
inline constexpr char kFigureLabel[] = "figure";
inline constexpr char kCountOfAll[] = "all";
inline constexpr char kCountOfDown[] = "down";

/// The label whose values are the rows' names.
inline const char* RowLabel(FleetLevel level) {
  return RowsAreMachines(level) ? "instance" : "group";
}

/// The query for a whole table at one moment: the first rows by the view's order with all of their
/// figures, how many there would be, and how many machines are down. Pure, as all here.
QString TableQuery(const FleetView& view, const FleetFilter& filter);

/// The query for figures of one row of a view over time, each of them over `window` seconds.
QString HistoryQuery(const FleetView& view, const QString& row,
                     std::span<const FleetFigure> figures, double window);

/// When the server has heard of machines last, within a day, labelled by instance.
QString SeenQuery(const QStringList& machines);

}  // namespace lurkwell
