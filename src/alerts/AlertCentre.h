#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "alerts/AlertCommands.h"
#include "alerts/AlertOccurrence.h"
#include "alerts/AlertRule.h"
#include "alerts/AlertSettings.h"
#include "alerts/AlertWatcher.h"
#include "platform/LogFiles.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// Hears of alerts. Main thread; none of these may delete the centre.
class AlertListener {
 public:
  virtual ~AlertListener() = default;
  virtual void AlertHasBegun(const AlertOccurrence&) {}
  virtual void AlertHasEnded(const AlertOccurrence&) {}
  /// A turn is over: what the rules say of the processes may be something else.
  virtual void AlertsHaveTurned() {}
  /// Rules, or what is said of them, are others.
  virtual void AlertRulesHaveChanged() {}
};

/// The user's rules, what they watch, and what has happened: keeps the rules in the preferences,
/// writes the log and runs the rules' commands. Begins with what is remembered. Main thread; goes
/// before the consolidator.
class AlertCentre {
 public:
  struct Rule {
    std::uint64_t id = 0;
    AlertSetting setting;
    /// What is wrong with the text, if anything.
    std::optional<AlertRuleError> error;
    /// Null while the rule is off or cannot be watched.
    std::shared_ptr<RuleWatch> watch;
    /// When its latest alert began, by the calendar.
    std::optional<TimeValue> lastBegan;
    std::optional<AlertCommands::Failure> commandFailure;
  };

  static constexpr std::size_t kMostOccurrences = 500;
  static constexpr std::int64_t kMostLogBytes = 1 << 20;

  enum class Duty : std::uint8_t {
    kAll,
    /// Nothing is logged, and no command is run: for a picture.
    kWatch,
  };

  explicit AlertCentre(Duty duty = Duty::kAll);
  ~AlertCentre();
  AlertCentre(const AlertCentre&) = delete;
  AlertCentre& operator=(const AlertCentre&) = delete;

  /// The listener goes after this, or takes itself away.
  void AddListener(AlertListener* listener) { mListeners.push_back(listener); }
  void RemoveListener(AlertListener* listener) { std::erase(mListeners, listener); }

  std::span<const Rule> Rules() const { return mRules; }
  /// How many rules are stored beyond those that are taken.
  std::size_t CountLeftOut() const { return mLeftOut; }
  bool MayAdd() const { return mRules.size() < kMostAlertRules && mLeftOut == 0; }

  /// The rule is on, and stored. Only when one more may be added.
  void Add(AlertSetting setting);
  void Change(std::size_t place, AlertSetting setting);
  void Remove(std::size_t place);

  /// The latest first.
  const std::deque<AlertOccurrence>& Occurrences() const { return mOccurrences; }
  std::size_t CountFiring() const;

  /// Where the log is; empty before the first alert.
  const std::string& LogPath() const { return mLogPath; }
  /// Why the latest line is not in it; empty when it is.
  const std::string& LogProblem() const { return mLogProblem; }

 private:
  void ReadRule(Rule& rule);
  void EndOccurrencesOf(const Rule& rule);
  void Watch();
  void AwaitColumns();
  void Happened(const RuleWatch& watch, const AlertEvent& event);
  void Begin(Rule& rule, const AlertEvent& event);
  void End(AlertOccurrence& occurrence, AlertOccurrence::Ending ending,
           const AlertSubject* subject);
  void Log(const AlertOccurrence& occurrence, TimeValue calendar);
  void RunCommand(Rule& rule, const AlertOccurrence& occurrence);
  Rule* FindRule(std::uint64_t id);
  template <typename Call>
  void Tell(Call call);

  Duty mDuty;
  AlertWatcher* mWatcher = nullptr;
  std::vector<Rule> mRules;
  std::size_t mLeftOut = 0;
  std::uint64_t mNextId = 1;
  std::uint64_t mNextNumber = 1;
  std::deque<AlertOccurrence> mOccurrences;
  std::vector<AlertListener*> mListeners;
  AlertCommands mCommands;
  std::unique_ptr<LogFile> mLog;
  std::string mLogPath;
  std::string mLogProblem;
  /// Until ps has told its columns, which rules may be about.
  std::unique_ptr<RunLoopTimer> mColumnsTimer;
};

}  // namespace lurkwell
