#include "query/Query.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "platform/Clock.h"

namespace lurkwell {
namespace {

/// Fractions are shown with one digit behind the point, and looked for as they are shown.
constexpr double kHalfOfLastDigit = 0.05;

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

std::optional<bool> Query::Term::Verdict(const QuerySubject& subject) const {
  const auto anyPattern = [this](const auto& matches) {
    return std::ranges::any_of(patterns, matches) != (comparison == Comparison::kIsNot);
  };
  if (property.empty())
    return anyPattern([&](const TextPattern& pattern) { return subject.ShowsTextLike(pattern); });
  const TypedValue value = subject.ValueOf(property);
  if (!numbers.empty()) {
    const auto number = NumberIn(value);
    if (number) return Compares(*number, std::holds_alternative<double>(value));
  } else {
    // A process that has no unit is not of the unit that is asked for.
    const auto* why = std::get_if<Missing>(&value);
    const auto text = why != nullptr && *why == Missing::kNone ? std::string() : TextIn(value);
    if (text) return anyPattern([&](const TextPattern& pattern) { return pattern.Matches(*text); });
  }
  return std::nullopt;
}

bool Query::Term::IsFulfilledBy(const QuerySubject& subject) const {
  const auto verdict = Verdict(subject);
  return verdict && *verdict != isNegated;
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
