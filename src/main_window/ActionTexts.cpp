#include "main_window/ActionTexts.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <csignal>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <variant>

#include "platform/FigureWords.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

/// Names after which a list goes on with dots.
constexpr qsizetype kNamesInReport = 4;

const char* CommandWord(const ActionPlan& plan) {
  switch (plan.command) {
    case ProcessCommand::kKill:
      return IsQuitAlone(plan) ? "quit" : "kill";
    case ProcessCommand::kHalt:
      return "halt";
    case ProcessCommand::kSignal:
      return "signal";
    case ProcessCommand::kNice:
    case ProcessCommand::kScheduling:
      return "scheduling";
    default:
      return "lower";
  }
}

QString Text(const char* prefix, const char* word, const char* suffix = "") {
  return LocalizedString((std::string(prefix) + word + suffix).c_str());
}

/// The same in the form for so many processes.
QString CountedText(const std::string& id, std::size_t count) {
  return LocalizedString(id.c_str(), static_cast<qint64>(count));
}

QString TimesText(int times) {
  if (times == 1) return LocalizedString("times_once");
  if (times == 2) return LocalizedString("times_twice");
  return LocalizedString("times_many", qint64{times});
}

const char* StepWord(KillStep step, int timesAsked) {
  switch (step) {
    case KillStep::kQuit:
      return "quit";
    case KillStep::kTerminate:
      return timesAsked == 0 ? "terminate" : "terminate_again";
    case KillStep::kTerminateByHelper:
      return timesAsked == 0 ? "terminate" : "helper";
    case KillStep::kForce:
      return timesAsked == 0 ? "force" : "force_at_last";
  }
  return "terminate";
}

/// The step in whole sentences.
QString StepSentences(const ActionTarget& target) {
  auto text = Text("action_next_", StepWord(target.step, target.timesAsked));
  if (target.timesAsked > 0) text = text.arg(TimesText(target.timesAsked));
  if (target.description.isStopped && target.step != KillStep::kForce)
    text += QLatin1Char(' ') + LocalizedString("action_next_halted");
  return text;
}

const char* OutcomeWord(const SchedulingChange& change) {
  if (std::holds_alternative<SchedulingPolicy>(change)) return "policy";
  return std::holds_alternative<IOPriority>(change) ? "io_priority" : "processors";
}

const char* OutcomeWord(const ActionPlan& plan, KillStep step) {
  switch (plan.command) {
    case ProcessCommand::kKill:
      return step == KillStep::kQuit ? "quit" : step == KillStep::kForce ? "force" : "terminate";
    case ProcessCommand::kHalt:
      return "halt";
    case ProcessCommand::kContinue:
      return "continue";
    case ProcessCommand::kHighPriority:
      return "high";
    case ProcessCommand::kNormalPriority:
      return "normal";
    case ProcessCommand::kLowPriority:
      return "low";
    case ProcessCommand::kSignal:
      return "signal";
    case ProcessCommand::kNice:
      return "nice";
    case ProcessCommand::kScheduling:
      return OutcomeWord(plan.argument.change);
  }
  return "terminate";
}

QString ArgumentText(const SchedulingChange& change) {
  if (const auto* policy = std::get_if<SchedulingPolicy>(&change)) {
    const auto word = QString::fromStdString(SchedulerInWords(policy->policy));
    return policy->priority == 0 ? word
                                 : word + QLatin1Char(' ') + QString::number(policy->priority);
  }
  if (const auto* priority = std::get_if<IOPriority>(&change))
    return QString::fromStdString(IOPriorityInWords(priority->Packed()));
  return QString::fromStdString(ListOfProcessors(std::get<ProcessorSet>(change)));
}

/// What a command was given besides the processes; "" for those that are given nothing.
QString ArgumentText(const ActionPlan& plan) {
  switch (plan.command) {
    case ProcessCommand::kSignal:
      return QLatin1String("SIG") + SignalName(plan.argument.number);
    case ProcessCommand::kNice:
      return QString::number(plan.argument.number);
    case ProcessCommand::kScheduling:
      return ArgumentText(plan.argument.change);
    default:
      return {};
  }
}

/// Why nothing was done, where the helper says nothing about it.
const char* ReasonWord(ActionResult result) {
  switch (result) {
    case ActionResult::kGone:
      return "gone";
    case ActionResult::kProtected:
      return "protected";
    case ActionResult::kKernelThread:
      return "kernel_thread";
    case ActionResult::kRefused:
      return "refused";
    case ActionResult::kNoHelper:
      return "no_helper";
    case ActionResult::kNoTime:
      return "no_time";
    case ActionResult::kImpossible:
      return "impossible";
    case ActionResult::kOutOfReach:
      return "out_of_reach";
    default:
      return "nobody";
  }
}

QString ReasonText(const ActionOutcome& outcome) {
  if (outcome.helperWords.empty()) return Text("action_reason_", ReasonWord(outcome.result));
  return LocalizedString("action_reason_in_words").arg(QString::fromStdString(outcome.helperWords));
}

QString NameAndPid(const ActionReport& report) {
  return LocalizedString("action_process").arg(PlainText(report.name), QString::number(report.pid));
}

/// "p300 (300)", or "5 processes (p300 (300), p301 (301) …)".
QString Whom(const std::vector<const ActionReport*>& reports) {
  if (reports.size() == 1) return NameAndPid(*reports.front());
  QStringList names;
  for (const auto* report : reports) {
    if (names.size() == kNamesInReport) break;
    names.append(NameAndPid(*report));
  }
  auto list = names.join(QLatin1String(", "));
  if (static_cast<std::size_t>(names.size()) < reports.size()) list += QLatin1String(" …");
  return CountedText("action_processes", reports.size()).arg(list);
}

}  // namespace

QString QuestionTitle(const ActionPlan& plan) {
  const auto* word = CommandWord(plan);
  if (plan.targets.size() != 1)
    return CountedText("action_ask_" + std::string(word) + "_several", plan.targets.size());
  const auto& target = plan.targets.front();
  return Text("action_ask_", word, "_one")
      .arg(QString::number(target.process.pid), PlainText(target.name));
}

QString QuestionText(const ActionPlan& plan) {
  if (plan.command != ProcessCommand::kKill) return Text("action_next_", CommandWord(plan));
  if (plan.targets.size() == 1) return StepSentences(plan.targets.front());
  const bool forces = std::ranges::any_of(
      plan.targets, [](const auto& target) { return target.step == KillStep::kForce; });
  return LocalizedString(forces ? "action_next_several_forced" : "action_next_several");
}

QString QuestionButton(const ActionPlan& plan) {
  return Text("action_button_", CommandWord(plan));
}

QString StepText(const ActionTarget& target) {
  return Text("action_step_", StepWord(target.step, target.timesAsked));
}

QString QuestionWarning(const ActionPlan& plan) {
  QStringList warnings;
  const auto own = static_cast<std::int32_t>(::getpid());
  const bool isOne = plan.targets.size() == 1;
  if (std::ranges::any_of(plan.targets, [own](const auto& t) { return t.process.pid == own; }))
    warnings.append(LocalizedString(isOne ? "action_warn_own" : "action_warn_own_among"));
  const auto others = CountOthers(plan);
  if (others > 0 && !isOne)
    warnings.append(LocalizedString("action_warn_others", static_cast<qint64>(others)));
  return warnings.join(QLatin1Char(' '));
}

QString ReportText(const ActionPlan& plan, const std::vector<ActionReport>& reports) {
  std::map<std::string, std::vector<const ActionReport*>> done;
  std::map<std::pair<ActionResult, QString>, std::vector<const ActionReport*>> failed;
  for (const auto& report : reports) {
    if (report.outcome == ActionResult::kDone)
      done[OutcomeWord(plan, report.step)].push_back(&report);
    else
      failed[{report.outcome.result, ReasonText(report.outcome)}].push_back(&report);
  }
  QStringList sentences;
  for (const auto& [why, whom] : failed)
    sentences.append(LocalizedString("action_failed").arg(Whom(whom), why.second));
  const auto argument = ArgumentText(plan);
  for (const auto& [word, whom] : done) {
    const auto text = CountedText("action_done_" + word, whom.size());
    sentences.append(argument.isEmpty() ? text.arg(Whom(whom)) : text.arg(Whom(whom), argument));
  }
  return sentences.join(QLatin1Char(' '));
}

QString SignalName(std::int32_t signal) {
  if (signal >= SIGRTMIN) return QStringLiteral("RTMIN+%1").arg(signal - SIGRTMIN);
  const char* name = ::sigabbrev_np(signal);
  return name != nullptr ? QString::fromLatin1(name) : QString::number(signal);
}

QString SignalText(std::int32_t signal) {
  if (signal >= SIGRTMIN) return LocalizedString("signal_realtime");
  return Text("signal_", SignalName(signal).toLower().toLatin1().constData());
}

}  // namespace lurkwell
