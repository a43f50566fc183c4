#include "alerts_window/AlertTexts.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

#include "consolidator/PI_Consolidator.h"
#include "platform/Machine.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/PropertyText.h"
#include "windows/QueryErrorWords.h"

namespace lurkwell {
namespace {

constexpr int kWidthOfDates = 24;
/// A process that takes so much of a processor is followed by that.
constexpr double kBusyShare = 5.0;
constexpr double kLeastProposedShare = 50.0;

QString TextWith(const char* id, const std::string& word) {
  return LocalizedString(id).replace(QLatin1String("%1"), QString::fromStdString(word));
}

QString NumberedText(const char* id, qlonglong number) {
  return LocalizedString(id).arg(LocalNumber(number));
}

/// As a rule has it: the filter's own marks lose their meaning.
QString InQuotationMarks(std::string text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return QString::fromStdString(quoted + '"');
}

}  // namespace

QString AlertErrorWords(const AlertRuleError& error) {
  using enum AlertRuleError::Kind;
  switch (error.kind) {
    case kQuery:
      return error.query ? QueryErrorWords(*error.query) : QString();
    case kNoCondition:
      return LocalizedString("alerts_no_condition");
    case kNoSpan:
      return TextWith("alerts_no_span", error.word);
    case kTooLong:
      return TextWith("alerts_too_long", error.word);
    case kTwice:
      return TextWith("alerts_twice", error.word);
    case kDoesNotFit:
      return TextWith("alerts_does_not_fit", error.word);
    case kUnknownWord:
      return TextWith("alerts_unknown_word", error.word);
    case kNoTotal:
      return LocalizedString("alerts_no_total");
    case kOtherTotal:
      return LocalizedString("alerts_other_total");
    case kTextIsTooLarge:
      return NumberedText("alerts_text_too_large", kLongestAlertRule);
  }
  return {};
}

QString AlertSpanText(std::chrono::milliseconds span) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(span).count();
  const auto two = [](const char* first, qlonglong a, const char* second, qlonglong b) {
    const auto text = LocalizedString(first).arg(a);
    return b == 0 ? text : text + QLatin1Char(' ') + LocalizedString(second).arg(b);
  };
  if (seconds < 60) return LocalizedString("alerts_seconds").arg(seconds);
  if (seconds < 600) return two("alerts_minutes", seconds / 60, "alerts_seconds", seconds % 60);
  if (seconds < 3600) return LocalizedString("alerts_minutes").arg(seconds / 60);
  if (seconds < 86'400)
    return two("alerts_hours", seconds / 3600, "alerts_minutes", seconds / 60 % 60);
  return two("alerts_days", seconds / 86'400, "alerts_hours", seconds / 3600 % 24);
}

QString AlertSubjectText(const AlertOccurrence& occurrence) {
  if (occurrence.scope == AlertRule::Scope::kAbsent) return LocalizedString("alerts_nothing_there");
  if (occurrence.scope == AlertRule::Scope::kTotal) return LocalizedString("alerts_together");
  return QStringLiteral("%1 (%2)").arg(PlainText(occurrence.subject.name),
                                       QString::number(occurrence.subject.process.pid));
}

QString AlertFiguresText(const AlertSubject& subject, int most) {
  QStringList texts;
  for (const auto& [property, value] : subject.figures) {
    if (texts.size() == most) break;
    const auto type = GetProcPropertyType(property.c_str(), nullptr);
    // Sums of whole numbers may be fractions.
    auto text = DisplayText(type, value, kWidthOfDates, subject.process.pid);
    if (type == kPropertyTypeShare) text += QLatin1String(" %");
    texts += LocalizedString(property.c_str()) + QLatin1Char(' ') + text;
  }
  return texts.join(QLatin1String(", "));
}

QString AlertGapsText(const AlertGaps& gaps) {
  QStringList texts;
  if (gaps.notAllowed > 0) texts += NumberedText("alerts_not_allowed", gaps.notAllowed);
  if (gaps.notCounted > 0) texts += NumberedText("alerts_not_counted", gaps.notCounted);
  if (gaps.notYetKnown > 0) texts += NumberedText("alerts_not_yet_known", gaps.notYetKnown);
  return texts.join(QLatin1String("; "));
}

QString AlertStateText(const AlertCentre::Rule& rule) {
  if (rule.setting.isDamaged) return LocalizedString("alerts_state_damaged");
  if (rule.error) return AlertErrorWords(*rule.error);
  if (rule.watch == nullptr) return LocalizedString("alerts_state_off");
  const auto& watch = *rule.watch;
  QStringList texts;
  if (watch.Firing() > 0) {
    const bool isOne = watch.Rule().IsOfMachine() || watch.Firing() == 1;
    texts += isOne
                 ? LocalizedString("alerts_state_firing")
                 : LocalizedString("alerts_state_firing_for", static_cast<qint64>(watch.Firing()));
  } else if (watch.Pending() > 0) {
    texts += LocalizedString("alerts_state_pending")
                 .arg(AlertSpanText(watch.LongestPending()), AlertSpanText(watch.Rule().hold));
  } else {
    texts += LocalizedString("alerts_state_calm");
  }
  // What was born in this moment is known in the next.
  auto gaps = watch.Gaps();
  gaps.notYetKnown = 0;
  if (const auto text = AlertGapsText(gaps); !text.isEmpty()) texts += text;
  if (rule.commandFailure) texts += AlertCommandText(*rule.commandFailure);
  return texts.join(QLatin1String("; "));
}

QString AlertCommandText(const AlertCommands::Failure& failure) {
  using enum AlertCommands::Failure::Kind;
  switch (failure.kind) {
    case kNotStarted:
      return TextWith("alerts_command_not_started", failure.words);
    case kStatus:
      return NumberedText("alerts_command_status", failure.status);
    case kTooLong:
      return NumberedText("alerts_command_too_long", AlertCommands::kLongest.count());
    case kLeftOut:
      return LocalizedString("alerts_command_left_out");
  }
  return {};
}

QString AlertLastedText(const AlertOccurrence& occurrence) {
  using enum AlertOccurrence::Ending;
  const bool goesOn = occurrence.ending == kNotYet;
  const auto lasted = AlertSpanText(std::chrono::milliseconds(
      goesOn ? MillisecondsBetween(occurrence.begunAt, TheMachine().clock.Now())
             : occurrence.lastedInMilliseconds));
  const char* id = goesOn                               ? "alerts_lasts"
                   : occurrence.ending == kProcessEnded ? "alerts_lasted_to_process_end"
                   : occurrence.ending == kRuleChanged  ? "alerts_lasted_to_rule_change"
                                                        : "alerts_lasted";
  return LocalizedString(id).arg(lasted);
}

QString AlertTrialText(const RuleWatch& watch) {
  QStringList texts;
  if (const auto total = watch.Total()) {
    AlertSubject sum;
    const auto type = GetProcPropertyType(watch.Rule().totalProperty.c_str(), nullptr);
    const bool isFraction = type == kPropertyTypeReal || type == kPropertyTypeShare;
    TypedValue value = *total;
    if (!isFraction) value = static_cast<std::int64_t>(*total);
    if (type == kPropertyTypeTime) value = TimeValue{static_cast<std::int64_t>(*total), 0};
    sum.figures.emplace_back(watch.Rule().totalProperty, std::move(value));
    texts += LocalizedString("alerts_trial_total", static_cast<qint64>(watch.Meeting()))
                 .arg(AlertFiguresText(sum));
  } else if (watch.Meeting() == 0) {
    texts += LocalizedString("alerts_trial_none");
  } else {
    QStringList names;
    for (const auto& process : watch.SomeMeeting()) {
      if (names.size() == 4) break;
      const auto subject = DescribeForAlert(watch.Rule(), process);
      auto name =
          QStringLiteral("%1 (%2)").arg(PlainText(subject.name), QString::number(process.pid));
      if (const auto figures = AlertFiguresText(subject, 1); !figures.isEmpty())
        name += QLatin1String(": ") + figures;
      names += name;
    }
    if (watch.Meeting() > static_cast<std::size_t>(names.size())) names += QStringLiteral("…");
    texts += NumberedText("alerts_trial_some", qlonglong(watch.Meeting())) + QLatin1Char('\n') +
             names.join(QLatin1Char('\n'));
  }
  const auto isMet = watch.IsMet();
  if (watch.Rule().IsOfMachine() && isMet)
    texts += LocalizedString(*isMet ? "alerts_trial_met" : "alerts_trial_not_met");
  if (const auto gaps = AlertGapsText(watch.Gaps()); !gaps.isEmpty()) texts += gaps;
  return texts.join(QLatin1Char('\n'));
}

QString ProposedAlertRule(std::int32_t pid) {
  const auto name = WholeNameOf(pid);
  if (name.empty()) return {};
  const auto share = NumberOf(GetPIDPropertyTypedValue(pid, "pid_cpu_share"));
  const auto memory = NumberOf(GetPIDPropertyTypedValue(pid, "pid_rsz"));
  // Above what there is, so that it does not fire at once.
  const auto figure =
      share >= kBusyShare || memory <= 0
          ? QStringLiteral("cpu>%1%").arg(
                std::max(kLeastProposedShare, std::ceil(share * 1.5 / 10) * 10))
          : QStringLiteral("mem>%1M").arg(std::ceil(memory * 1.5 / (1 << 20)), 0, 'f', 0);
  return QStringLiteral("name=%1 %2 for 5m").arg(InQuotationMarks(name), figure);
}

}  // namespace lurkwell
