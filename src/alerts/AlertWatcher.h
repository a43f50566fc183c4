#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "alerts/RuleWatch.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/WholeNames.h"
#include "platform/Clock.h"

namespace lurkwell {

/// Judges all processes by rules, with every turn of its own. Asks for the figures that its rules
/// look at, and judges anew only those processes of which something has changed; without rules it
/// is not served at all. The idle task is no process here, nor is what the kernel does not know.
/// Main thread; made with new, and deleted by its owner or with all other clients.
class AlertWatcher final : public ProcessInformationClient {
 public:
  using Watches = std::vector<std::shared_ptr<RuleWatch>>;

  /// What begins and ends, during a turn and in the order of the rules; then, once a turn,
  /// `turned`. Either may set other rules, and neither may delete the watcher.
  struct Handlers {
    std::function<void(const RuleWatch& watch, const AlertEvent& event)> happened;
    std::function<void()> turned;
    /// The watcher is being deleted.
    std::function<void()> gone;
  };

  explicit AlertWatcher(Handlers handlers);
  ~AlertWatcher() override;

  /// From the next turn on, which comes soon; what was pending and firing stays so in those that
  /// were there before.
  void SetWatches(Watches watches);

  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  std::int32_t MayComeEarlyBy() const override;
  void NotifyPSColumnsHaveChanged() override;
  void NotifyPreferencesHaveBeenUpdated() override { ForgetVerdicts(); }
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "AlertWatcher"; }

 private:
  /// A process as it was when the rules last judged it.
  struct Known {
    std::uint64_t startStamp = 0;
    std::uint64_t changeStamp = 0;
    std::uint64_t turn = 0;
    /// By rules.
    std::vector<AlertVerdict> verdicts;
    /// The rules that have to see it in every turn.
    std::vector<std::uint16_t> seenBy;
  };
  /// What a rule needs.
  struct Needs {
    std::vector<std::string> properties;
    bool readsCostly = false;
  };

  void ForgetVerdicts();
  void See(std::int32_t pid);
  void Judge(ProcessIdentity process, Known& known) const;
  std::chrono::milliseconds TimeSinceLastTurn();
  std::vector<std::pair<std::shared_ptr<RuleWatch>, AlertEvent>> EndTurn();

  Handlers mHandlers;
  Watches mWatches;
  /// By rules.
  std::vector<Needs> mNeeds;
  std::unordered_map<std::int32_t, Known> mKnown;
  NamesToLearn mNamesToLearn;
  bool mIsServed = false;
  std::uint64_t mTurn = 0;
  TimeValue mLastTurn;
};

/// What there is to say of a process that a rule looks at; of no process, nothing. Main thread.
AlertSubject DescribeForAlert(const AlertRule& rule, ProcessIdentity process);

}  // namespace lurkwell
