#pragma once

#include <QString>
#include <QStringList>
#include <variant>
#include <vector>

#include "fleet/FleetFigures.h"
#include "query/Query.h"

namespace lurkwell {

/// A filter as a server can answer it: matchers of labels and bounds of figures.
struct FleetFilter {
  struct Bound {
    FleetFigure figure;
    /// "> 0.5", in the query's language.
    QString comparison;
  };

  /// Of labels that all series of a machine have: `instance=~"…"`.
  QStringList ofMachines;
  /// Of the groups that are shown, or that machines have to have.
  QStringList ofGroups;
  /// The kind of group that it speaks of; empty for any.
  QString kind;
  std::vector<Bound> bounds;

  bool IsEmpty() const { return ofMachines.isEmpty() && ofGroups.isEmpty() && bounds.empty(); }
};

/// What a filter says that no server can be asked.
struct FleetFilterError {
  /// In the user's words.
  QString text;
};

/// Reads a filter, in the grammar of the table of processes. Texts: `name:` is a group's name, of
/// whatever kind is shown, `program:`, `unit:`, `container:` and `user:` one of that kind,
/// `machine:` a machine; a plain word is the name that a level's rows have. Figures are those of
/// FleetFigures, shares in per cent. Nobody can be asked for either of two unlike conditions.
/// Main thread.
std::variant<FleetFilter, QueryError, FleetFilterError> ReadFleetFilter(const QString& text,
                                                                        FleetLevel level);

/// A text as a regular expression that nothing else fulfils. Pure.
QString PromEscaped(const QString& text);

/// A text as a literal of the query's language, with the quotation marks. Pure.
QString PromLiteral(const QString& text);

}  // namespace lurkwell
