#include "alerts/AlertCentre.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "consolidator/PI_Consolidator.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

constexpr char kAlertLogName[] = "alerts";
constexpr double kSecondsBetweenColumnLooks = 1.0;

}  // namespace

AlertCentre::AlertCentre(Duty duty)
    : mDuty(duty), mCommands([this](std::uint64_t ruleId, const auto& failure) {
        auto* rule = FindRule(ruleId);
        if (rule == nullptr) return;
        rule->commandFailure = failure;
        Tell([](AlertListener& listener) { listener.AlertRulesHaveChanged(); });
      }) {
  mWatcher = new AlertWatcher(
      {[this](const RuleWatch& watch, const AlertEvent& event) { Happened(watch, event); },
       [this] { Tell([](AlertListener& listener) { listener.AlertsHaveTurned(); }); },
       [this] { mWatcher = nullptr; }});
  for (auto& setting : ReadAlertSettings()) {
    auto& rule = mRules.emplace_back();
    rule.id = mNextId++;
    rule.setting = std::move(setting);
    ReadRule(rule);
  }
  mLeftOut = CountAlertSettings() - mRules.size();
  Watch();
  AwaitColumns();
}

AlertCentre::~AlertCentre() {
  delete mWatcher;
}

void AlertCentre::ReadRule(Rule& rule) {
  rule.watch.reset();
  rule.error.reset();
  if (rule.setting.isDamaged) return;
  auto read = AlertRule::Read(rule.setting.rule);
  if (auto* error = std::get_if<AlertRuleError>(&read)) {
    rule.error = std::move(*error);
  } else if (rule.setting.isOn) {
    rule.watch = std::make_shared<RuleWatch>(std::move(std::get<AlertRule>(read)));
  }
}

void AlertCentre::Watch() {
  AlertWatcher::Watches watches;
  for (const auto& rule : mRules)
    if (rule.watch != nullptr) watches.push_back(rule.watch);
  if (mWatcher != nullptr) mWatcher->SetWatches(std::move(watches));
}

void AlertCentre::AwaitColumns() {
  const bool lacksAny = std::ranges::any_of(mRules, [](const Rule& rule) { return !!rule.error; });
  if (!lacksAny || ArePSColumnsKnown()) return;
  auto& machine = TheMachine();
  mColumnsTimer = machine.runLoop.AddTimer(
      machine.clock.AbsoluteTime() + kSecondsBetweenColumnLooks, kSecondsBetweenColumnLooks,
      [this] {
        if (!ArePSColumnsKnown()) return;
        const auto timer = std::move(mColumnsTimer);
        for (auto& rule : mRules)
          if (rule.error) ReadRule(rule);
        Watch();
        Tell([](AlertListener& listener) { listener.AlertRulesHaveChanged(); });
      });
}

AlertCentre::Rule* AlertCentre::FindRule(std::uint64_t id) {
  const auto found = std::ranges::find(mRules, id, &Rule::id);
  return found != mRules.end() ? &*found : nullptr;
}

/// Listeners may take themselves away meanwhile.
template <typename Call>
void AlertCentre::Tell(Call call) {
  for (auto* listener : std::vector(mListeners))
    if (std::ranges::find(mListeners, listener) != mListeners.end()) call(*listener);
}

// ---- Rules

void AlertCentre::Add(AlertSetting setting) {
  auto& rule = mRules.emplace_back();
  rule.id = mNextId++;
  rule.setting = std::move(setting);
  ReadRule(rule);
  StoreAlertSetting(mRules.size() - 1, rule.setting);
  Watch();
  Tell([](AlertListener& listener) { listener.AlertRulesHaveChanged(); });
}

void AlertCentre::Change(std::size_t place, AlertSetting setting) {
  auto& rule = mRules[place];
  if (rule.setting == setting) return;
  const auto before = std::exchange(rule.setting, std::move(setting));
  rule.commandFailure.reset();
  // Another command is no reason to begin anew.
  if (before.rule != rule.setting.rule || before.isOn != rule.setting.isOn || before.isDamaged) {
    EndOccurrencesOf(rule);
    ReadRule(rule);
  }
  StoreAlertSetting(place, rule.setting);
  Watch();
  Tell([](AlertListener& listener) { listener.AlertRulesHaveChanged(); });
}

void AlertCentre::Remove(std::size_t place) {
  EndOccurrencesOf(mRules[place]);
  mRules.erase(mRules.begin() + static_cast<std::ptrdiff_t>(place));
  RemoveAlertSetting(place);
  Watch();
  Tell([](AlertListener& listener) { listener.AlertRulesHaveChanged(); });
}

void AlertCentre::EndOccurrencesOf(const Rule& rule) {
  for (auto& occurrence : mOccurrences)
    if (occurrence.ruleId == rule.id && occurrence.ending == AlertOccurrence::Ending::kNotYet)
      End(occurrence, AlertOccurrence::Ending::kRuleChanged, nullptr);
}

// ---- What happens

std::size_t AlertCentre::CountFiring() const {
  return static_cast<std::size_t>(
      std::ranges::count(mOccurrences, AlertOccurrence::Ending::kNotYet, &AlertOccurrence::ending));
}

void AlertCentre::Happened(const RuleWatch& watch, const AlertEvent& event) {
  // A listener may have changed the rules since the turn saw it.
  const auto found =
      std::ranges::find(mRules, &watch, [](const Rule& rule) { return rule.watch.get(); });
  if (found == mRules.end()) return;
  if (event.kind == AlertEvent::Kind::kBegan) return Begin(*found, event);
  const auto its = std::ranges::find_if(mOccurrences, [&](const AlertOccurrence& occurrence) {
    return occurrence.ruleId == found->id &&
           occurrence.ending == AlertOccurrence::Ending::kNotYet &&
           occurrence.subject.process == event.subject.process;
  });
  if (its == mOccurrences.end()) return;
  const bool isProcessGone = event.kind == AlertEvent::Kind::kProcessEnded;
  End(*its,
      isProcessGone ? AlertOccurrence::Ending::kProcessEnded : AlertOccurrence::Ending::kMetNoMore,
      &event.subject);
}

void AlertCentre::Begin(Rule& rule, const AlertEvent& event) {
  auto& clock = TheMachine().clock;
  AlertOccurrence occurrence;
  occurrence.number = mNextNumber++;
  occurrence.ruleId = rule.id;
  occurrence.rule = rule.setting.rule;
  occurrence.scope = rule.watch->Rule().scope;
  occurrence.subject = event.subject;
  occurrence.began = clock.CalendarNow();
  occurrence.begunAt = clock.Now();
  rule.lastBegan = occurrence.began;
  mOccurrences.push_front(occurrence);
  // Those that have ended are the first to be forgotten.
  if (mOccurrences.size() > kMostOccurrences) {
    const auto oldest = std::find_if(
        mOccurrences.rbegin(), mOccurrences.rend(),
        [](const auto& other) { return other.ending != AlertOccurrence::Ending::kNotYet; });
    mOccurrences.erase(oldest != mOccurrences.rend() ? std::next(oldest).base()
                                                     : std::prev(mOccurrences.end()));
  }
  Log(occurrence, occurrence.began);
  RunCommand(rule, occurrence);
  Tell([&](AlertListener& listener) { listener.AlertHasBegun(occurrence); });
}

void AlertCentre::End(AlertOccurrence& occurrence, AlertOccurrence::Ending ending,
                      const AlertSubject* subject) {
  auto& clock = TheMachine().clock;
  occurrence.ending = ending;
  occurrence.lastedInMilliseconds = MillisecondsBetween(occurrence.begunAt, clock.Now());
  auto atEnd = occurrence;
  if (subject != nullptr) atEnd.subject = *subject;
  Log(atEnd, clock.CalendarNow());
  Tell([&](AlertListener& listener) { listener.AlertHasEnded(atEnd); });
}

void AlertCentre::Log(const AlertOccurrence& occurrence, TimeValue calendar) {
  if (mDuty == Duty::kWatch) return;
  if (mLog == nullptr) {
    auto creation = TheMachine().logFiles.Continue(kAlertLogName, kAlertLogHeader, kMostLogBytes);
    mLog = std::move(creation.file);
    mLogProblem = std::move(creation.problem);
    if (mLog == nullptr) return;
    mLogPath = mLog->Path();
  }
  mLogProblem = mLog->Append(AlertLogLine(occurrence, calendar));
}

void AlertCentre::RunCommand(Rule& rule, const AlertOccurrence& occurrence) {
  if (rule.setting.command.empty() || mDuty == Duty::kWatch) return;
  auto arguments = SplitCommand(rule.setting.command);
  if (arguments && !arguments->empty())
    mCommands.Run(rule.id, std::move(*arguments), VariablesFor(occurrence));
}

}  // namespace lurkwell
