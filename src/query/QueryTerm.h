#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "query/Query.h"
#include "query/TextPattern.h"

namespace lurkwell {

/// One condition of a query. It holds when one of its patterns or numbers does.
struct Query::Term {
  enum class Comparison : std::uint8_t { kIs, kIsNot, kLess, kLessOrIs, kMore, kMoreOrIs };

  bool isNegated = false;
  /// Empty for a plain word.
  std::string property;
  std::vector<TextPattern> patterns;
  Comparison comparison = Comparison::kIs;
  std::vector<double> numbers;

  bool IsFulfilledBy(const QuerySubject& subject) const;

 private:
  bool Compares(double value, bool isFraction) const;
  /// Whether it holds, apart from the negation; nothing where the value is missing.
  std::optional<bool> Verdict(const QuerySubject& subject) const;
};

}  // namespace lurkwell
