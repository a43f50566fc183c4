#include "fleet/FleetFilter.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "query/QueryKeys.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

using Term = Query::Term;

constexpr char kName[] = "name";
constexpr char kMachine[] = "machine";
constexpr qsizetype kLongestFilter = 1000;

bool IsKind(std::string_view word) {
  return std::ranges::any_of(kFleetKinds, [word](const char* kind) { return word == kind; });
}

class FleetVocabulary final : public QueryVocabulary {
 public:
  std::optional<std::string> PropertyOf(std::string_view word) const override {
    const auto lower =
        QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size())).toLower().toStdString();
    if (lower == kName || lower == kMachine || IsKind(lower) || FleetFigureNamed(lower))
      return lower;
    return std::nullopt;
  }
  PropertyType TypeOf(const std::string& property) const override {
    const auto figure = FleetFigureNamed(property);
    return figure ? RowOf(*figure).type : kPropertyTypeString;
  }
  std::string Near(std::string_view word) const override {
    std::vector<std::string> names = {kName, kMachine};
    for (const char* kind : kFleetKinds) names.emplace_back(kind);
    for (const auto& row : FleetFigures()) names.emplace_back(row.key);
    return NearNames(word, names);
  }
};

QString Text(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ExpressionOf(const TextPattern& pattern) {
  const auto text = Text(pattern.Text());
  switch (pattern.HowItLooks()) {
    case TextPattern::Form::kPart:
      return QLatin1String(".*") + PromEscaped(text) + QLatin1String(".*");
    case TextPattern::Form::kWhole:
      return PromEscaped(text);
    case TextPattern::Form::kExpression:
      return QLatin1String(".*(?:") + text + QLatin1String(").*");
  }
  return {};
}

const char* SignOf(Term::Comparison comparison) {
  switch (comparison) {
    case Term::Comparison::kIs:
      return "==";
    case Term::Comparison::kIsNot:
      return "!=";
    case Term::Comparison::kLess:
      return "<";
    case Term::Comparison::kLessOrIs:
      return "<=";
    case Term::Comparison::kMore:
      return ">";
    case Term::Comparison::kMoreOrIs:
      return ">=";
  }
  return "";
}

Term::Comparison Opposite(Term::Comparison comparison) {
  switch (comparison) {
    case Term::Comparison::kIs:
      return Term::Comparison::kIsNot;
    case Term::Comparison::kIsNot:
      return Term::Comparison::kIs;
    case Term::Comparison::kLess:
      return Term::Comparison::kMoreOrIs;
    case Term::Comparison::kLessOrIs:
      return Term::Comparison::kMore;
    case Term::Comparison::kMore:
      return Term::Comparison::kLessOrIs;
    case Term::Comparison::kMoreOrIs:
      return Term::Comparison::kLess;
  }
  return comparison;
}

class FilterMaker {
 public:
  explicit FilterMaker(FleetLevel level) : mLevel(level) {}

  std::optional<FleetFilterError> Make(const Query& query) {
    const auto alternatives = query.Alternatives();
    if (alternatives.size() == 1)
      for (const auto& term : alternatives.front())
        if (!Add(term)) return mError;
    if (alternatives.size() > 1 && !AddAlike(alternatives)) return mError;
    return std::nullopt;
  }

  FleetFilter filter;

 private:
  bool Fail(const char* id, const QString& word) {
    mError = {LocalizedString(id).replace(QLatin1String("%1"), word)};
    return false;
  }

  /// Either of several texts of the same thing is one expression.
  bool AddAlike(std::span<const std::vector<Term>> alternatives) {
    const auto& first = alternatives.front().front();
    QStringList parts;
    for (const auto& terms : alternatives) {
      const auto& term = terms.front();
      const bool isAlike = terms.size() == 1 && term.property == first.property &&
                           !term.patterns.empty() && !IsNot(term);
      if (!isAlike) return Fail("fleet_filter_either", QStringLiteral("|"));
      for (const auto& pattern : term.patterns) parts.append(ExpressionOf(pattern));
    }
    return AddText(first.property, parts, false);
  }

  static bool IsNot(const Term& term) {
    return term.isNegated != (term.comparison == Term::Comparison::kIsNot);
  }

  bool Add(const Term& term) {
    if (!term.numbers.empty()) return AddBound(term);
    // No server looks at the digits of figures.
    if (FleetFigureNamed(term.property)) return Fail("fleet_filter_no_text", Text(term.property));
    QStringList parts;
    for (const auto& pattern : term.patterns) parts.append(ExpressionOf(pattern));
    return AddText(term.property, parts, IsNot(term));
  }

  bool AddText(const std::string& property, const QStringList& parts, bool isNot) {
    const auto expression =
        QLatin1String("(?is:") + parts.join(QLatin1Char('|')) + QLatin1Char(')');
    const auto matcher = QLatin1String(isNot ? "!~" : "=~") + PromLiteral(expression);
    const bool isOfMachine = property == kMachine || (property.empty() && RowsAreMachines(mLevel));
    if (isOfMachine) {
      filter.ofMachines.append(QLatin1String("instance") + matcher);
      return true;
    }
    if (IsKind(property)) {
      const auto kind = Text(property);
      if (!filter.kind.isEmpty() && filter.kind != kind)
        return Fail("fleet_filter_two_kinds", filter.kind + QLatin1String(", ") + kind);
      filter.kind = kind;
    }
    // Every machine has some program that is called otherwise.
    if (isNot && RowsAreMachines(mLevel)) return Fail("fleet_filter_not_groups", Text(property));
    filter.ofGroups.append(QLatin1String("group") + matcher);
    return true;
  }

  bool AddBound(const Term& term) {
    const auto key = Text(term.property);
    const auto figure = *FleetFigureNamed(term.property);
    const auto columns = ColumnsOf(mLevel);
    const auto& row = RowOf(figure);
    const bool isKnownHere =
        std::ranges::find(columns, figure) != columns.end() ||
        (mLevel == FleetLevel::kMachines ? row.ofMachine : row.ofGroup) != nullptr;
    if (!isKnownHere || figure == FleetFigure::kUp) return Fail("fleet_filter_not_here", key);
    const bool isOrder = term.comparison >= Term::Comparison::kLess;
    if (term.numbers.size() != 1) return Fail("fleet_filter_one_number", key);
    const double factor = row.unit == FleetUnit::kShare ? 0.01 : 1;
    // Fractions are shown rounded; no server finds one that is exactly so.
    if (!isOrder && row.unit != FleetUnit::kCount) return Fail("fleet_filter_order", key);
    const auto comparison = term.isNegated ? Opposite(term.comparison) : term.comparison;
    filter.bounds.push_back({figure, QLatin1String(SignOf(comparison)) + QLatin1Char(' ') +
                                         QString::number(term.numbers.front() * factor, 'g', 15)});
    return true;
  }

  FleetLevel mLevel;
  FleetFilterError mError;
};

}  // namespace

QString PromEscaped(const QString& text) {
  QString escaped;
  for (const QChar c : text) {
    if (QLatin1String("\\.+*?()|[]{}^$").contains(c)) escaped += QLatin1Char('\\');
    escaped += c;
  }
  return escaped;
}

QString PromLiteral(const QString& text) {
  QString literal(QLatin1Char('"'));
  for (const QChar c : text) {
    if (c == QLatin1Char('\n')) {
      literal += QLatin1String("\\n");
      continue;
    }
    if (c == QLatin1Char('"') || c == QLatin1Char('\\')) literal += QLatin1Char('\\');
    literal += c;
  }
  return literal + QLatin1Char('"');
}

std::variant<FleetFilter, QueryError, FleetFilterError> ReadFleetFilter(const QString& text,
                                                                        FleetLevel level) {
  if (text.size() > kLongestFilter)
    return FleetFilterError{LocalizedString("fleet_filter_too_long")};
  const auto bytes = text.toUtf8();
  auto read =
      Query::Read({bytes.data(), static_cast<std::size_t>(bytes.size())}, FleetVocabulary());
  if (auto* error = std::get_if<QueryError>(&read)) {
    const bool isOfProcesses =
        error->kind == QueryError::Kind::kUnknownKey && PropertyOfQueryKey(error->word).has_value();
    if (!isOfProcesses) return std::move(*error);
    return FleetFilterError{LocalizedString("fleet_filter_of_processes")
                                .replace(QLatin1String("%1"), Text(error->word))};
  }
  FilterMaker maker(level);
  if (auto error = maker.Make(std::get<Query>(read))) return std::move(*error);
  return std::move(maker.filter);
}

}  // namespace lurkwell
