#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "consolidator/TypedValue.h"
#include "query/QueryKeys.h"
#include "query/TextPattern.h"

namespace lurkwell {

class TextPattern;

/// A process as a query looks at it.
class QuerySubject {
 public:
  virtual ~QuerySubject() = default;

  virtual TypedValue ValueOf(const std::string& property) const = 0;
  /// Whether a text or the pid that is shown of the process matches: what plain words look for.
  virtual bool ShowsTextLike(const TextPattern& pattern) const = 0;
};

/// What is wrong with a query.
struct QueryError {
  enum class Kind : std::uint8_t {
    kUnknownKey,         ///< `word` is no key; `hint` has those that come near
    kNoValue,            ///< nothing stands behind the key `word`
    kNoTerm,             ///< nothing stands beside an "or", or behind "-"
    kNoEnd,              ///< a quotation mark without a second one
    kTextIsNotCompared,  ///< "<" or ">" with a key whose values are texts
    kNoNumber,           ///< `word` is no number; `hint` has some that would be
    kNoExpression,       ///< `word` is no regular expression; `hint` says why, in English
  };
  Kind kind;
  /// Which bytes of the query it is about.
  std::size_t position;
  std::size_t length;
  std::string word;
  std::string hint;

  /// A sentence without a point, in English.
  std::string Text() const;
};

/// A condition on processes, written in one line:
///
///     ssh                    a plain word: something that is shown has it, or the pid
///     name:post  unit=a.service  name:/^post/     a text has it, is it, matches it
///     cpu>5  mem>=500M  time<1h  started>2026-01-31
///     user:root,mail         one of several
///     -sleep  -user:root     not
///     port:443  file:/var/log  one of its sockets, one of its open files
///     a b                    both;  a | b   one of them, which binds less
///     "two words"            what would mean something else
///
/// Numbers may end in K, M, G, T (of 1024), times in s, m, h, d. A value that is missing because it
/// is not known, not allowed or not counted neither fulfils a condition nor its negation. One
/// thread at a time.
class Query {
 public:
  struct Term;

  /// Reads a query; one of blanks alone is fulfilled by every process. The keys are those that
  /// there are now, ps columns included, unless another vocabulary has them. Main thread.
  static std::variant<Query, QueryError> Read(
      std::string_view text, const QueryVocabulary& vocabulary = ProcessVocabulary());

  /// Reads a query that is part of a longer text: from the byte `at` up to the first of the words
  /// `ends` that stands by itself, or to the end of the text. `at` is then where it has stopped.
  /// Positions in an error are those in the whole text. Main thread.
  static std::variant<Query, QueryError> ReadPart(std::string_view text, std::size_t& at,
                                                  std::span<const std::string_view> ends);

  Query();
  ~Query();
  Query(Query&& other) noexcept;
  Query& operator=(Query&& other) noexcept;

  bool IsEmpty() const { return mAlternatives.empty(); }

  /// The properties that have to be known for it, each once.
  std::span<const std::string> Properties() const { return mProperties; }

  bool IsFulfilledBy(const QuerySubject& subject) const;

  /// Whether it is fulfilled; nothing when that depends on a value that is not known, not allowed
  /// or not counted. Where there is nothing of the kind, a condition on it is not fulfilled.
  std::optional<bool> VerdictOn(const QuerySubject& subject) const;

  /// Its conditions, for those who have others look: one list has to hold as a whole.
  std::span<const std::vector<Term>> Alternatives() const { return mAlternatives; }

 private:
  friend class QueryReader;

  std::vector<std::vector<Term>> mAlternatives;
  std::vector<std::string> mProperties;
};

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
  /// See Query::VerdictOn.
  std::optional<bool> VerdictOn(const QuerySubject& subject) const;

 private:
  bool Compares(double value, bool isFraction) const;
  /// The same of a text with several values, of which one has to.
  bool ComparesOneIn(std::string_view text) const;
  bool MatchesOneIn(std::string_view text, std::string_view separator) const;
  /// Whether it holds, apart from the negation; nothing where the value is missing.
  std::optional<bool> Verdict(const QuerySubject& subject) const;
};

}  // namespace lurkwell
