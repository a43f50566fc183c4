#include "alerts/AlertRule.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>
#include <system_error>
#include <utility>

#include "consolidator/PropertyCatalogue.h"
#include "query/QueryKeys.h"

namespace lurkwell {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLongestHold = std::chrono::hours(24 * 30);
constexpr std::string_view kFor = "for";
constexpr std::string_view kUntil = "until";
constexpr std::string_view kAbsent = "absent";
constexpr std::string_view kAny = "any";
constexpr std::string_view kTotal = "total";
constexpr std::array kBehindConditions{kFor, kUntil, kAbsent};
constexpr std::string_view kBlanks = " \t\n\r";

std::optional<double> SecondsOfUnit(char letter) {
  switch (letter) {
    case 's':
      return 1.0;
    case 'm':
      return 60.0;
    case 'h':
      return 3600.0;
    case 'd':
      return 86'400.0;
    default:
      return std::nullopt;
  }
}

/// Whether numbers of the property can be added up.
bool CanBeAddedUp(const std::string& property) {
  if (property == "meta_pid" || property == "pid_parent_pid") return false;
  switch (GetProcPropertyType(property.c_str(), nullptr)) {
    case kPropertyTypeInteger:
    case kPropertyTypeReal:
    case kPropertyTypeMemory:
    case kPropertyTypeTime:
    case kPropertyTypeShare:
    case kPropertyTypeRate:
      return ListedIn(property) == ListedValues::kNone;
    default:
      return false;
  }
}

}  // namespace

std::optional<milliseconds> ReadSpan(std::string_view text) {
  double seconds = 0;
  if (text.empty()) return std::nullopt;
  for (bool isFirst = true; !text.empty(); isFirst = false) {
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error != std::errc{} || !(number >= 0 && number < 1e9)) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (text.empty()) {
      // "1h30" could be anything.
      if (!isFirst) return std::nullopt;
      seconds += number;
      break;
    }
    const auto unit = SecondsOfUnit(text.front());
    if (!unit) return std::nullopt;
    seconds += number * *unit;
    text.remove_prefix(1);
  }
  return milliseconds(static_cast<std::int64_t>(seconds * 1000));
}

/// Reads from left to right; the first mistake ends it.
class AlertRuleReader {
 public:
  explicit AlertRuleReader(std::string_view text) : mText(text) {}

  std::variant<AlertRule, AlertRuleError> Read() {
    if (mText.size() > kLongestAlertRule) {
      Fail(Kind::kTextIsTooLarge, kLongestAlertRule, mText.size() - kLongestAlertRule);
    } else {
      ReadBegin();
      while (!mError && !NextWord().empty()) ReadPart();
    }
    if (!mError && mRule.condition.IsEmpty() && mRule.scope != AlertRule::Scope::kTotal)
      Fail(Kind::kNoCondition, 0, 0);
    if (mError) return std::move(*mError);
    return std::move(mRule);
  }

 private:
  using Kind = AlertRuleError::Kind;
  using Scope = AlertRule::Scope;

  void Fail(Kind kind, std::size_t position, std::size_t length) {
    if (!mError)
      mError = AlertRuleError{kind, position, length, std::string(mText.substr(position, length)),
                              std::nullopt};
  }

  /// The word that comes next, which is not taken.
  std::string_view NextWord() {
    mAt = std::min(mText.find_first_not_of(kBlanks, mAt), mText.size());
    return mText.substr(mAt, std::min(mText.find_first_of(kBlanks, mAt), mText.size()) - mAt);
  }
  bool Take(std::string_view word) {
    if (NextWord() != word) return false;
    mAt += word.size();
    return true;
  }

  void ReadBegin() {
    if (Take(kAny)) {
      mRule.scope = Scope::kAny;
    } else if (Take(kTotal)) {
      mRule.scope = Scope::kTotal;
      ReadTotal(mRule.totalLimit);
      const auto properties = mRule.totalLimit.Properties();
      if (!properties.empty()) mRule.totalProperty = properties.front();
    }
    if (!mError) ReadQuery(mRule.condition, kBehindConditions);
  }

  void ReadQuery(Query& query, std::span<const std::string_view> ends) {
    auto read = Query::ReadPart(mText, mAt, ends);
    if (auto* error = std::get_if<QueryError>(&read)) {
      Fail(Kind::kQuery, error->position, error->length);
      mError->query = std::move(*error);
    } else {
      query = std::move(std::get<Query>(read));
    }
  }

  /// One comparison of a figure.
  void ReadTotal(Query& limit) {
    const auto word = NextWord();
    const std::size_t begin = mAt;
    const auto upToHere = mText.substr(0, begin + word.size());
    auto read = Query::ReadPart(upToHere, mAt, {});
    if (auto* error = std::get_if<QueryError>(&read)) {
      Fail(Kind::kQuery, error->position, error->length);
      mError->query = std::move(*error);
      return;
    }
    limit = std::move(std::get<Query>(read));
    const bool compares = word.find_first_of("<>") != word.npos && !word.starts_with('-');
    if (!compares || limit.Properties().size() != 1 || !CanBeAddedUp(limit.Properties().front()))
      Fail(Kind::kNoTotal, begin, word.size());
  }

  void ReadPart() {
    const auto word = NextWord();
    const std::size_t begin = mAt;
    const auto fail = [&](Kind kind) { Fail(kind, begin, word.size()); };
    if (Take(kFor)) {
      if (std::exchange(mHasHold, true)) return fail(Kind::kTwice);
      ReadHold(mRule.hold, begin);
    } else if (Take(kAbsent)) {
      if (mRule.scope == Scope::kAbsent) return fail(Kind::kTwice);
      if (mRule.scope != Scope::kEach || mRule.end) return fail(Kind::kDoesNotFit);
      mRule.scope = Scope::kAbsent;
    } else if (Take(kUntil)) {
      if (mRule.end) return fail(Kind::kTwice);
      // What is not there is either there again or not.
      if (mRule.scope == Scope::kAbsent) return fail(Kind::kDoesNotFit);
      ReadEnd(begin, word.size());
    } else {
      fail(Kind::kUnknownWord);
    }
  }

  void ReadEnd(std::size_t begin, std::size_t length) {
    mRule.end.emplace();
    if (mRule.scope == Scope::kTotal) {
      if (NextWord().empty()) return Fail(Kind::kNoTotal, begin, length);
      const std::size_t at = mAt;
      ReadTotal(*mRule.end);
      if (!mError && mRule.end->Properties().front() != mRule.totalProperty)
        Fail(Kind::kOtherTotal, at, mAt - at);
    } else {
      ReadQuery(*mRule.end, kBehindConditions);
      if (!mError && mRule.end->IsEmpty()) Fail(Kind::kNoCondition, begin, length);
    }
    mRule.calm = milliseconds(0);
    const std::size_t at = (NextWord(), mAt);
    if (!mError && Take(kFor)) ReadHold(mRule.calm, at);
  }

  void ReadHold(milliseconds& hold, std::size_t begin) {
    const auto word = NextWord();
    const auto span = ReadSpan(word);
    if (word.empty()) return Fail(Kind::kNoSpan, begin, kFor.size());
    if (!span) return Fail(Kind::kNoSpan, mAt, word.size());
    if (*span > kLongestHold) return Fail(Kind::kTooLong, mAt, word.size());
    hold = *span;
    mAt += word.size();
  }

  std::string_view mText;
  std::size_t mAt = 0;
  bool mHasHold = false;
  AlertRule mRule;
  std::optional<AlertRuleError> mError;
};

std::variant<AlertRule, AlertRuleError> AlertRule::Read(std::string_view text) {
  return AlertRuleReader(text).Read();
}

std::vector<std::string> AlertRule::Properties() const {
  std::vector<std::string> properties;
  const auto add = [&](const Query& query) {
    for (const auto& property : query.Properties())
      if (std::ranges::find(properties, property) == properties.end())
        properties.push_back(property);
  };
  add(totalLimit);
  add(condition);
  if (end) add(*end);
  return properties;
}

}  // namespace lurkwell
