#include "windows/QueryErrorWords.h"

#include "resources/Resources.h"

namespace lurkwell {
namespace {

QString Words(const char* id, const QueryError& error) {
  return LocalizedString(id)
      .replace(QLatin1String("%1"), QString::fromStdString(error.word))
      .replace(QLatin1String("%2"), QString::fromStdString(error.hint));
}

}  // namespace

QString QueryErrorWords(const QueryError& error) {
  using Kind = QueryError::Kind;
  switch (error.kind) {
    case Kind::kUnknownKey:
      return Words(error.hint.empty() ? "filter_unknown_key" : "filter_unknown_key_near", error);
    case Kind::kNoValue:
      return Words("filter_no_value", error);
    case Kind::kNoTerm:
      return Words("filter_no_term", error);
    case Kind::kNoEnd:
      return Words("filter_no_end", error);
    case Kind::kTextIsNotCompared:
      return Words("filter_text_is_not_compared", error);
    case Kind::kNoNumber:
      return Words("filter_no_number", error);
    case Kind::kNoExpression:
      return Words("filter_no_expression", error);
  }
  return {};
}

}  // namespace lurkwell
