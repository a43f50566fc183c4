#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "alerts/RuleWatch.h"
#include "platform/Clock.h"

namespace lurkwell {

/// One alert, from its beginning to its end.
struct AlertOccurrence {
  enum class Ending : std::uint8_t {
    kNotYet,
    kMetNoMore,
    kProcessEnded,
    kRuleChanged,  ///< the rule was changed, switched off or removed
  };

  /// Counted from 1.
  std::uint64_t number = 0;
  /// Of the rule, for as long as the program runs.
  std::uint64_t ruleId = 0;
  /// The rule's text.
  std::string rule;
  AlertRule::Scope scope{};
  AlertSubject subject;
  /// By the calendar.
  TimeValue began;
  /// By the clock that no one sets.
  TimeValue begunAt;
  Ending ending = Ending::kNotYet;
  /// How long it was, once it has ended.
  std::int64_t lastedInMilliseconds = 0;
};

/// The figures as PROPERTY=NUMBER or PROPERTY=TEXT, separated by blanks: sizes in bytes, times in
/// seconds, texts on one line.
std::string FiguresInLine(const AlertSubject& subject);

/// Local time with its distance from UTC: 2026-01-31T18:30:00+01:00.
std::string TimeInLine(TimeValue calendar);

/// The line that a log of alerts begins with.
extern const char* const kAlertLogHeader;

/// What the log says of its beginning, or, once it has ended, of its end: fields between tabs.
std::string AlertLogLine(const AlertOccurrence& occurrence, TimeValue calendar);

}  // namespace lurkwell
