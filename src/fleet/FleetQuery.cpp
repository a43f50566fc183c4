#include "fleet/FleetQuery.h"

#include <cmath>
#include <utility>

namespace lurkwell {
namespace {

/// How a counter's growth is taken.
struct Growth {
  const char* function;
  QString window;
};

/// Of the last two times that the server asked, however often that is.
Growth Present() {
  return {"irate", QStringLiteral("5m")};
}

QString Joined(const QStringList& matchers) {
  return matchers.join(QLatin1Char(','));
}

QString InBrackets(const QString& text) {
  return QLatin1Char('(') + text + QLatin1Char(')');
}

/// The label stands for the figure in an answer that has several.
QString Labelled(const QString& expression, const char* figure) {
  return QLatin1String("label_replace(") + expression +
         QStringLiteral(", \"%1\", \"%2\", \"\", \"\")")
             .arg(QLatin1String(kFigureLabel), QLatin1String(figure));
}

class Expressions {
 public:
  Expressions(const FleetView& view, const FleetFilter& filter, Growth growth)
      : mView(view), mGrowth(std::move(growth)) {
    auto matchers = filter.ofMachines;
    if (view.level == FleetLevel::kMachines) {
      mMatchers = Joined(matchers);
      return;
    }
    if (view.level == FleetLevel::kGroupsOfMachine)
      matchers.append(QLatin1String("instance=") + PromLiteral(view.machine));
    if (view.level == FleetLevel::kMachinesOfGroup) {
      matchers.append(QLatin1String("kind=") + PromLiteral(view.kind));
      matchers.append(QLatin1String("group=") + PromLiteral(view.group));
    } else {
      matchers.append(QLatin1String("kind=") +
                      PromLiteral(filter.kind.isEmpty() ? view.kind : filter.kind));
      matchers += filter.ofGroups;
    }
    mMatchers = Joined(matchers);
  }

  /// Empty where there is none.
  QString Of(FleetFigure figure) const {
    using enum FleetFigure;
    if (figure == kDisk) return Of(kDiskRead) + QLatin1String(" + ") + Of(kDiskWritten);
    if (figure == kNetwork) return Of(kReceived) + QLatin1String(" + ") + Of(kSent);
    const auto& row = RowOf(figure);
    const char* expression = mView.level == FleetLevel::kMachines ? row.ofMachine : row.ofGroup;
    if (expression == nullptr) return {};
    // What users typed comes last: it may look like one of the marks.
    return QString::fromLatin1(expression)
        .replace(QLatin1String("@by"), QLatin1String(RowLabel(mView.level)))
        .replace(QLatin1String("@rate"), QLatin1String(mGrowth.function))
        .replace(QLatin1String("@window"), mGrowth.window)
        .replace(QLatin1String("@m"), mMatchers);
  }

  /// Something that every row has.
  QString OfEveryRow() const {
    if (mView.level != FleetLevel::kMachines) return Of(FleetFigure::kProcesses);
    return Of(FleetFigure::kSeen) + QLatin1String(" or ") + Of(FleetFigure::kUp);
  }

 private:
  const FleetView& mView;
  Growth mGrowth;
  QString mMatchers;
};

/// What rows have to fulfil beyond their labels, to be put behind an expression in brackets.
QString Conditions(const FleetView& view, const FleetFilter& filter,
                   const Expressions& expressions) {
  const auto on =
      QLatin1String(" and on (") + QLatin1String(RowLabel(view.level)) + QLatin1String(") ");
  QString conditions;
  for (const auto& bound : filter.bounds)
    conditions += on + InBrackets(InBrackets(expressions.Of(bound.figure)) + QLatin1Char(' ') +
                                  bound.comparison);
  if (RowsAreMachines(view.level) && !filter.ofGroups.isEmpty()) {
    auto matchers = filter.ofGroups + filter.ofMachines;
    matchers.append(QLatin1String("kind=") +
                    PromLiteral(filter.kind.isEmpty() ? QString::fromLatin1(kFleetKinds.front())
                                                      : filter.kind));
    conditions += on + QStringLiteral("(lurkwell_group_processes{%1} > 0)").arg(Joined(matchers));
  }
  return conditions;
}

}  // namespace

QString TableQuery(const FleetView& view, const FleetFilter& filter) {
  const Expressions expressions(view, filter, Present());
  const auto conditions = Conditions(view, filter, expressions);
  const auto every = InBrackets(expressions.OfEveryRow());
  // Rows without the figure come last in either order.
  const auto wanted =
      InBrackets(expressions.Of(view.sortedBy)) + QLatin1String(" or ") +
      InBrackets(every + QLatin1String(view.isAscending ? " * 0 + Inf" : " * 0 - Inf"));
  auto rows = QStringLiteral("%1(%2, ")
                  .arg(QLatin1String(view.isAscending ? "bottomk" : "topk"))
                  .arg(kMostRows) +
              InBrackets(wanted) + conditions + QLatin1Char(')');
  const auto down =
      InBrackets(InBrackets(expressions.Of(FleetFigure::kUp)) + QLatin1String(" == 0"));
  const bool hasDown = view.level == FleetLevel::kMachines && conditions.isEmpty();
  if (hasDown) rows += QStringLiteral(" or topk(%1, ").arg(kMostDownRows) + down + QLatin1Char(')');
  QStringList figures;
  for (const auto figure : ColumnsOf(view.level))
    figures.append(Labelled(expressions.Of(figure), RowOf(figure).key));
  if (view.level == FleetLevel::kMachines)
    figures.append(Labelled(expressions.Of(FleetFigure::kUp), RowOf(FleetFigure::kUp).key));
  auto query = InBrackets(figures.join(QLatin1String(" or "))) + QLatin1String(" and on (") +
               QLatin1String(RowLabel(view.level)) + QLatin1String(") ") + InBrackets(rows);
  query = InBrackets(query) + QLatin1String(" or ") +
          Labelled(QLatin1String("count(") + every + conditions + QLatin1Char(')'), kCountOfAll);
  if (hasDown)
    query += QLatin1String(" or ") + Labelled(QLatin1String("count") + down, kCountOfDown);
  return query;
}

QString HistoryQuery(const FleetView& view, const QString& row,
                     std::span<const FleetFigure> figures, double window) {
  FleetFilter filter;
  const auto matcher = QLatin1String(RowLabel(view.level)) + QLatin1Char('=') + PromLiteral(row);
  (RowsAreMachines(view.level) ? filter.ofMachines : filter.ofGroups).append(matcher);
  const Growth growth{"rate", QString::number(std::ceil(window), 'f', 0) + QLatin1Char('s')};
  const Expressions expressions(view, filter, growth);
  QStringList parts;
  for (const auto figure : figures)
    parts.append(Labelled(expressions.Of(figure), RowOf(figure).key));
  return parts.join(QLatin1String(" or "));
}

QString SeenQuery(const QStringList& machines) {
  QStringList names;
  for (const auto& machine : machines) names.append(PromEscaped(machine));
  // Coarse steps over a whole day miss what has gone a moment ago, or was there for a moment.
  const auto within = [&](const char* steps) {
    return QStringLiteral(
               "max by (instance) (max_over_time(timestamp(lurkwell_machine_cpus{"
               "instance=~%1})[%2]))")
        .arg(PromLiteral(names.join(QLatin1Char('|'))), QLatin1String(steps));
  };
  return within("10m:5s") + QLatin1String(" or ") + within("1d:1m");
}

}  // namespace lurkwell
