#include "query/Query.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "platform/Clock.h"
#include "query/QueryKeys.h"

namespace lurkwell {
namespace {

/// Fractions are shown with one digit behind the point, and looked for as they are shown.
constexpr double kHalfOfLastDigit = 0.05;
constexpr std::string_view kBetweenNumbers = ", ";

std::optional<double> NumberIn(const TypedValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* time = std::get_if<TimeValue>(&value)) return InSeconds(*time);
  return std::nullopt;
}

std::optional<std::string> TextIn(const TypedValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  return std::nullopt;
}

/// A process that has no unit is not of the unit that is asked for.
std::optional<std::string> TextOrNothing(const TypedValue& value) {
  const auto* why = std::get_if<Missing>(&value);
  return why != nullptr && *why == Missing::kNone ? std::string() : TextIn(value);
}

/// Calls `take` with what stands between the separators.
template <typename Take>
void ForEachPart(std::string_view text, std::string_view separator, Take take) {
  while (!text.empty()) {
    const auto end = std::min(text.find(separator), text.size());
    take(text.substr(0, end));
    text.remove_prefix(std::min(end + separator.size(), text.size()));
  }
}

}  // namespace

bool Query::Term::Compares(double value, bool isFraction) const {
  const auto is = [&](double number) {
    return isFraction ? std::abs(value - number) < kHalfOfLastDigit : value == number;
  };
  switch (comparison) {
    case Comparison::kIs:
      return std::ranges::any_of(numbers, is);
    case Comparison::kIsNot:
      return std::ranges::none_of(numbers, is);
    case Comparison::kLess:
      return value < numbers.front();
    case Comparison::kLessOrIs:
      return value <= numbers.front();
    case Comparison::kMore:
      return value > numbers.front();
    case Comparison::kMoreOrIs:
      return value >= numbers.front();
  }
  return false;
}

bool Query::Term::ComparesOneIn(std::string_view text) const {
  const bool isNot = comparison == Comparison::kIsNot;
  bool holds = isNot;
  ForEachPart(text, kBetweenNumbers, [&](std::string_view part) {
    double number = 0;
    std::from_chars(part.data(), part.data() + part.size(), number);
    // "Is not 80" holds when none is.
    holds = isNot ? holds && Compares(number, false) : holds || Compares(number, false);
  });
  return holds;
}

bool Query::Term::MatchesOneIn(std::string_view text, std::string_view separator) const {
  bool matches = false;
  ForEachPart(text, separator, [&](std::string_view part) {
    matches = matches || std::ranges::any_of(patterns, [part](const TextPattern& pattern) {
                return pattern.Matches(part);
              });
  });
  return matches != (comparison == Comparison::kIsNot);
}

std::optional<bool> Query::Term::Verdict(const QuerySubject& subject) const {
  const auto anyPattern = [this](const auto& matches) {
    return std::ranges::any_of(patterns, matches) != (comparison == Comparison::kIsNot);
  };
  if (property.empty())
    return anyPattern([&](const TextPattern& pattern) { return subject.ShowsTextLike(pattern); });
  const TypedValue value = subject.ValueOf(property);
  if (const auto listed = ListedIn(property); listed != ListedValues::kNone) {
    const auto text = TextOrNothing(value);
    if (!text) return std::nullopt;
    if (!numbers.empty()) return ComparesOneIn(*text);
    return MatchesOneIn(*text, listed == ListedValues::kNumbers ? kBetweenNumbers : "\n");
  }
  if (!numbers.empty()) {
    const auto number = NumberIn(value);
    if (number) return Compares(*number, std::holds_alternative<double>(value));
  } else {
    const auto text = TextOrNothing(value);
    if (text) return anyPattern([&](const TextPattern& pattern) { return pattern.Matches(*text); });
  }
  return std::nullopt;
}

bool Query::Term::IsFulfilledBy(const QuerySubject& subject) const {
  const auto verdict = Verdict(subject);
  return verdict && *verdict != isNegated;
}

std::optional<bool> Query::Term::VerdictOn(const QuerySubject& subject) const {
  if (const auto verdict = Verdict(subject)) return *verdict != isNegated;
  const TypedValue value = subject.ValueOf(property);
  const auto* why = std::get_if<Missing>(&value);
  const bool isNothing = why == nullptr || *why == Missing::kNone;
  return isNothing ? std::optional(false) : std::nullopt;
}

std::optional<bool> Query::VerdictOn(const QuerySubject& subject) const {
  std::optional<bool> any = mAlternatives.empty();
  for (const auto& terms : mAlternatives) {
    std::optional<bool> all = true;
    for (const auto& term : terms) {
      const auto its = term.VerdictOn(subject);
      if (its != true) all = its;
      if (its == false) break;
    }
    if (all == true) return true;
    if (!all) any = all;
  }
  return any;
}

bool Query::IsFulfilledBy(const QuerySubject& subject) const {
  const auto holds = [&](const Term& term) { return term.IsFulfilledBy(subject); };
  return mAlternatives.empty() || std::ranges::any_of(mAlternatives, [&](const auto& terms) {
           return std::ranges::all_of(terms, holds);
         });
}

Query::Query() = default;
Query::~Query() = default;
Query::Query(Query&& other) noexcept = default;
Query& Query::operator=(Query&& other) noexcept = default;

std::string QueryError::Text() const {
  switch (kind) {
    case Kind::kUnknownKey:
      return "there is no '" + word + "' to look at" +
             (hint.empty() ? "; put it in quotation marks to look for it as a text"
                           : "; there is " + hint);
    case Kind::kNoValue:
      return "nothing stands behind '" + word + "'";
    case Kind::kNoTerm:
      return "something is missing beside '" + word + "'";
    case Kind::kNoEnd:
      return "a quotation mark has no second one";
    case Kind::kTextIsNotCompared:
      return "'" + word + "' is a text; ask for " + hint;
    case Kind::kNoNumber:
      return "'" + word + "' is no number such as " + hint;
    case Kind::kNoExpression:
      return "'" + word + "' is no regular expression: " + hint;
  }
  return {};
}

}  // namespace lurkwell
