#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "query/Query.h"

namespace lurkwell {

/// What is wrong with a rule, and where.
struct AlertRuleError {
  enum class Kind : std::uint8_t {
    kQuery,           ///< a condition has a mistake: `query` says which
    kNoCondition,     ///< there is nothing to wait for
    kNoSpan,          ///< `word` stands where a span of time has to
    kTooLong,         ///< `word` is a longer span than a rule can wait
    kTwice,           ///< `word` is there a second time
    kDoesNotFit,      ///< `word` means nothing in a rule of this kind
    kUnknownWord,     ///< `word` stands behind a part of the rule and begins no other
    kNoTotal,         ///< no comparison of a figure such as mem>8G stands behind "total"
    kOtherTotal,      ///< "until" is about another figure than "total"
    kTextIsTooLarge,  ///< the text is longer than kLongestAlertRule
  };
  Kind kind{};
  /// Which bytes of the rule it is about.
  std::size_t position = 0;
  std::size_t length = 0;
  std::string word;
  std::optional<QueryError> query;
};

/// In bytes.
inline constexpr std::size_t kLongestAlertRule = 1000;

/// What is waited for, written in one line around a query:
///
///     name:postgres mem>4G for 5m         each process by itself
///     any cpu>90% for 10m                 one alert, however many processes
///     unit:backup.service absent for 1h   no process fulfils it
///     total mem>8G name:firefox           the figures of all that fulfil the rest, added up
///     cpu>90% for 10m until cpu<70% for 1m
///
/// A condition has to hold for the span behind "for" without a break before it is an alert, and the
/// alert ends when what stands behind "until" has held for its span, or, where nothing stands
/// there, when the condition has not been met for half a minute.
struct AlertRule {
  enum class Scope : std::uint8_t { kEach, kAny, kAbsent, kTotal };

  /// What counts for an alert's end without "until".
  static constexpr std::chrono::milliseconds kUsualCalm = std::chrono::seconds(30);

  Scope scope = Scope::kEach;
  /// Of a total: which processes are added up.
  Query condition;
  /// Of a total: the property, and the comparison of its sum.
  std::string totalProperty;
  Query totalLimit;
  /// Behind "until".
  std::optional<Query> end;
  std::chrono::milliseconds hold{0};
  std::chrono::milliseconds calm = kUsualCalm;

  /// Whether there is one condition for the whole machine instead of one a process.
  bool IsOfMachine() const { return scope == Scope::kAbsent || scope == Scope::kTotal; }

  /// The properties that have to be known for it, each once, in the order of the text.
  std::vector<std::string> Properties() const;

  /// Main thread, as the properties are those that there are now.
  static std::variant<AlertRule, AlertRuleError> Read(std::string_view text);
};

/// A span such as 90, 90s, 5m, 1h30m, 2d; nothing for what is none. Pure.
std::optional<std::chrono::milliseconds> ReadSpan(std::string_view text);

}  // namespace lurkwell
