#include <algorithm>
#include <cctype>
#include <charconv>
#include <ctime>
#include <optional>
#include <utility>

#include "consolidator/PropertyCatalogue.h"
#include "platform/FigureWords.h"
#include "query/Query.h"
#include "query/QueryKeys.h"

namespace lurkwell {
namespace {

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool IsKeyLetter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '%' || c == '.';
}

/// What a number counts, by the type of its property.
enum class Scale : std::uint8_t { kPlain, kBytes, kSeconds, kDate };

std::optional<Scale> ScaleOf(PropertyType type) {
  switch (type) {
    case kPropertyTypeInteger:
    case kPropertyTypeReal:
    case kPropertyTypeShare:
      return Scale::kPlain;
    case kPropertyTypeMemory:
    case kPropertyTypeRate:
      return Scale::kBytes;
    case kPropertyTypeTime:
    case kPropertyTypeClock:
      return Scale::kSeconds;
    case kPropertyTypeDate:
      return Scale::kDate;
    case kPropertyTypeString:
    case kPropertyTypeHex:
      break;
  }
  return std::nullopt;
}

std::optional<Scale> ScaleOf(const std::string& property, const QueryVocabulary& vocabulary) {
  if (ListedIn(property) == ListedValues::kNumbers) return Scale::kPlain;
  return ScaleOf(vocabulary.TypeOf(property));
}

std::string ExampleOf(Scale scale) {
  switch (scale) {
    case Scale::kPlain:
      return "5, 0.5";
    case Scale::kBytes:
      return "500M";
    case Scale::kSeconds:
      return "90, 5m, 2h";
    case Scale::kDate:
      return "2026-01-31, 2026-01-31T18:30";
  }
  return {};
}

/// Local time.
std::optional<double> ReadDate(std::string_view text) {
  const std::string whole(text);
  for (const char* format : {"%Y-%m-%dT%H:%M:%S", "%Y-%m-%dT%H:%M", "%Y-%m-%d"}) {
    std::tm time{};
    const char* end = ::strptime(whole.c_str(), format, &time);
    if (end == nullptr || *end != '\0') continue;
    time.tm_isdst = -1;
    return static_cast<double>(std::mktime(&time));
  }
  return std::nullopt;
}

std::optional<double> FactorOf(std::string_view suffix, Scale scale) {
  if (suffix.empty()) return 1.0;
  if (scale == Scale::kPlain) return suffix == "%" ? std::optional(1.0) : std::nullopt;
  constexpr std::string_view kSizes = "BKMGTP";
  constexpr std::pair<char, double> kTimes[] = {
      {'s', 1.0}, {'m', 60.0}, {'h', 3600.0}, {'d', 86'400.0}};
  if (scale == Scale::kSeconds) {
    for (const auto& [letter, seconds] : kTimes)
      if (suffix.size() == 1 && suffix[0] == letter) return seconds;
    return std::nullopt;
  }
  const auto place =
      kSizes.find(static_cast<char>(std::toupper(static_cast<unsigned char>(suffix[0]))));
  const auto rest = suffix.substr(1);
  if (place == std::string_view::npos || !(rest.empty() || rest == "B" || rest == "iB"))
    return std::nullopt;
  return static_cast<double>(std::uint64_t{1} << 10 * place);
}

std::optional<double> ReadNumber(std::string_view text, Scale scale) {
  if (scale == Scale::kDate) return ReadDate(text);
  double number = 0;
  const char* end = text.data() + text.size();
  const auto [at, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || !(number - number == 0)) return std::nullopt;
  const auto factor = FactorOf({at, static_cast<std::size_t>(end - at)}, scale);
  if (!factor) return std::nullopt;
  return number * *factor;
}

constexpr std::string_view kState = "pid_state";

/// The kernel's letters stand for their words, as people who know ps write them.
std::string StateNamed(const std::string& text) {
  return text.size() == 1 && std::isalpha(static_cast<unsigned char>(text[0])) != 0
             ? StateInWords(text[0])
             : text;
}

/// A value as it was written.
struct Written {
  enum class Form : std::uint8_t { kBare, kQuoted, kExpression };
  Form form = Form::kBare;
  std::string text;
  std::size_t position = 0;
  std::size_t length = 0;
};

}  // namespace

/// Reads from left to right; the first mistake ends it.
class QueryReader {
 public:
  explicit QueryReader(std::string_view text, const QueryVocabulary& vocabulary, std::size_t at = 0,
                       std::span<const std::string_view> ends = {})
      : mText(text), mVocabulary(vocabulary), mAt(at), mEnds(ends) {}

  std::size_t StoppedAt() const { return mAt; }

  std::variant<Query, QueryError> Read() {
    for (SkipBlanks(); !mError && mAt < mText.size() && !IsAtEndWord(); SkipBlanks())
      ReadTermOrBar();
    if (!mError && mBarAt) Fail(QueryError::Kind::kNoTerm, *mBarAt, mBarLength, "|");
    if (mError) return std::move(*mError);
    return std::move(mQuery);
  }

 private:
  using Kind = QueryError::Kind;
  using Term = Query::Term;

  void Fail(Kind kind, std::size_t position, std::size_t length, std::string_view word,
            std::string hint = {}) {
    if (!mError) mError = QueryError{kind, position, length, std::string(word), std::move(hint)};
  }

  void SkipBlanks() {
    while (mAt < mText.size() && IsSpace(mText[mAt])) ++mAt;
  }
  bool IsAtEndWord() const {
    const auto word = mText.substr(mAt, WordEnd(mAt) - mAt);
    return std::ranges::find(mEnds, word) != mEnds.end();
  }
  bool IsAt(char c) const { return mAt < mText.size() && mText[mAt] == c; }
  std::size_t WordEnd(std::size_t from) const {
    while (from < mText.size() && !IsSpace(mText[from])) ++from;
    return from;
  }

  void ReadTermOrBar() {
    const auto word = mText.substr(mAt, WordEnd(mAt) - mAt);
    if (word == "|" || word == "OR") {
      if (mBarAt || mQuery.mAlternatives.empty())
        return Fail(Kind::kNoTerm, mAt, word.size(), word);
      mBarAt = mAt;
      mBarLength = word.size();
      mAt += word.size();
      return;
    }
    Term term;
    if (!ReadTerm(term)) return;
    if (mBarAt || mQuery.mAlternatives.empty()) mQuery.mAlternatives.emplace_back();
    mBarAt.reset();
    mQuery.mAlternatives.back().push_back(std::move(term));
  }

  bool ReadTerm(Term& term) {
    const std::size_t start = mAt;
    if (IsAt('-')) {
      term.isNegated = true;
      if (++mAt == mText.size() || IsSpace(mText[mAt])) {
        Fail(Kind::kNoTerm, start, 1, "-");
        return false;
      }
    }
    std::size_t keyEnd = mAt;
    while (keyEnd < mText.size() && IsKeyLetter(mText[keyEnd])) ++keyEnd;
    const bool begins = keyEnd > mAt && std::isdigit(static_cast<unsigned char>(mText[mAt])) == 0;
    constexpr std::string_view kOperators = ":=<>!";
    if (begins && keyEnd < mText.size() && kOperators.find(mText[keyEnd]) != kOperators.npos &&
        (mText[keyEnd] != '!' || mText.substr(keyEnd).starts_with("!=")))
      return ReadCondition(term, mText.substr(mAt, keyEnd - mAt));
    const auto written = ReadWritten(WordEnd(mAt));
    return written && AddPattern(term, *written, false);
  }

  bool ReadCondition(Term& term, std::string_view key) {
    const std::size_t keyAt = mAt;
    mAt += key.size();
    using enum Term::Comparison;
    constexpr std::pair<std::string_view, Term::Comparison> kOperators[] = {
        {"!=", kIsNot}, {"<=", kLessOrIs}, {">=", kMoreOrIs}, {"<", kLess},
        {">", kMore},   {":", kIs},        {"=", kIs}};
    const auto its = std::ranges::find_if(
        kOperators, [this](const auto& each) { return mText.substr(mAt).starts_with(each.first); });
    const bool isWhole = its->first != ":";
    mAt += its->first.size();
    term.comparison = its->second;
    const auto property = mVocabulary.PropertyOf(key);
    if (!property) {
      Fail(Kind::kUnknownKey, keyAt, key.size(), key, mVocabulary.Near(key));
      return false;
    }
    term.property = *property;
    if (std::ranges::find(mQuery.mProperties, *property) == mQuery.mProperties.end())
      mQuery.mProperties.push_back(*property);
    const auto scale = ScaleOf(*property, mVocabulary);
    const bool isOrder = term.comparison >= kLess;
    if (isOrder && !scale) {
      Fail(Kind::kTextIsNotCompared, keyAt, mAt - keyAt, key, std::string(key) + ":part");
      return false;
    }
    if (mAt == mText.size() || IsSpace(mText[mAt])) {
      Fail(Kind::kNoValue, keyAt, mAt - keyAt, mText.substr(keyAt, mAt - keyAt));
      return false;
    }
    return ReadValues(term, keyAt, scale, isWhole, isOrder);
  }

  bool ReadValues(Term& term, std::size_t keyAt, std::optional<Scale> scale, bool isWhole,
                  bool isOrder) {
    for (;;) {
      std::size_t end = WordEnd(mAt);
      if (!isOrder) end = std::min(end, std::min(mText.find(',', mAt), mText.size()));
      const auto written = ReadWritten(end);
      if (!written) return false;
      if (written->length == 0) {
        Fail(Kind::kNoValue, mAt, 0, mText.substr(keyAt, mAt - keyAt));
        return false;
      }
      // "pid:/^12/" looks at the digits.
      const bool isText = !scale || (!isOrder && written->form == Written::Form::kExpression);
      if (!(isText ? AddPattern(term, *written, isWhole) : AddNumber(term, *written, *scale)))
        return false;
      if (isOrder || !IsAt(',')) break;
      ++mAt;
    }
    if (!term.patterns.empty() && !term.numbers.empty())
      Fail(Kind::kNoNumber, mAt, 0, mText, "5, 0.5");
    return !mError;
  }

  /// What begins here: quoted, an expression between slashes, or all up to `end`.
  std::optional<Written> ReadWritten(std::size_t end) {
    Written written;
    written.position = mAt;
    if (IsAt('"')) {
      written.form = Written::Form::kQuoted;
      ++mAt;
      while (!IsAt('"')) {
        if (IsAt('\\')) ++mAt;
        if (mAt >= mText.size()) {
          Fail(Kind::kNoEnd, written.position, mText.size() - written.position, "\"");
          return std::nullopt;
        }
        written.text += mText[mAt++];
      }
      ++mAt;
    } else if (const auto slash = ExpressionEnd()) {
      written.form = Written::Form::kExpression;
      written.text = mText.substr(mAt + 1, *slash - mAt - 1);
      mAt = *slash + 1;
    } else {
      written.text = mText.substr(mAt, end - mAt);
      mAt = end;
    }
    written.length = mAt - written.position;
    return written;
  }

  /// The slash that ends an expression that begins here: the first before a blank, a comma or the
  /// end. A path has none.
  std::optional<std::size_t> ExpressionEnd() const {
    if (!IsAt('/')) return std::nullopt;
    for (std::size_t i = mAt + 1; i < mText.size(); ++i) {
      if (mText[i] == '\\') {
        ++i;
      } else if (mText[i] == '/' && i > mAt + 1 &&
                 (i + 1 == mText.size() || IsSpace(mText[i + 1]) || mText[i + 1] == ',')) {
        return i;
      }
    }
    return std::nullopt;
  }

  /// "file:/var/log/" is what people write who mean a folder.
  static bool IsFolder(const Term& term, std::string_view text) {
    return ListedIn(term.property) == ListedValues::kLines &&
           text.find_first_of("^$.*+?()[]{}|\\") == text.npos;
  }

  bool AddPattern(Term& term, const Written& written, bool isWhole) {
    std::string complaint = "it is no UTF-8";
    const std::string text = written.form == Written::Form::kBare && term.property == kState
                                 ? StateNamed(written.text)
                                 : written.text;
    const bool isFolder = written.form == Written::Form::kExpression && IsFolder(term, text);
    auto pattern = isFolder ? TextPattern::Part('/' + text + '/')
                   : written.form == Written::Form::kExpression
                       ? TextPattern::Expression(text, complaint)
                   : isWhole ? TextPattern::Whole(text)
                             : TextPattern::Part(text);
    if (!pattern) {
      Fail(Kind::kNoExpression, written.position, written.length, written.text, complaint);
      return false;
    }
    term.patterns.push_back(std::move(*pattern));
    return true;
  }

  bool AddNumber(Term& term, const Written& written, Scale scale) {
    const auto number = ReadNumber(written.text, scale);
    if (number) {
      term.numbers.push_back(*number);
    } else {
      Fail(Kind::kNoNumber, written.position, written.length, written.text, ExampleOf(scale));
    }
    return number.has_value();
  }

  std::string_view mText;
  const QueryVocabulary& mVocabulary;
  std::size_t mAt;
  std::span<const std::string_view> mEnds;
  /// An "or" that waits for what is behind it.
  std::optional<std::size_t> mBarAt;
  std::size_t mBarLength = 0;
  Query mQuery;
  std::optional<QueryError> mError;
};

std::variant<Query, QueryError> Query::Read(std::string_view text,
                                            const QueryVocabulary& vocabulary) {
  return QueryReader(text, vocabulary).Read();
}

std::variant<Query, QueryError> Query::ReadPart(std::string_view text, std::size_t& at,
                                                std::span<const std::string_view> ends) {
  QueryReader reader(text, ProcessVocabulary(), at, ends);
  auto query = reader.Read();
  at = reader.StoppedAt();
  return query;
}

}  // namespace lurkwell
