#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "alerts/AlertCondition.h"
#include "alerts/AlertRule.h"
#include "consolidator/TypedValue.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// A property and what it was.
using AlertFigure = std::pair<std::string, TypedValue>;

/// Of which process an alert is, and what there was to see of it; no process for what is of the
/// machine.
struct AlertSubject {
  ProcessIdentity process;
  std::string name;
  /// Of the properties that the rule looks at, and that have a value.
  std::vector<AlertFigure> figures;
};

struct AlertEvent {
  enum class Kind : std::uint8_t {
    kBegan,
    kEnded,         ///< the condition is met no more
    kProcessEnded,  ///< the process is there no more
  };
  Kind kind{};
  /// The latest figures; of a process that has ended, those at the beginning.
  AlertSubject subject;
};

/// How many processes a rule could not judge in the latest turn, and why.
struct AlertGaps {
  int notAllowed = 0;
  int notYetKnown = 0;
  int notCounted = 0;
};

/// What one rule says of one process.
struct AlertVerdict {
  enum class Gap : std::uint8_t { kNone, kNotAllowed, kNotYetKnown, kNotCounted };
  std::optional<bool> isMet;
  /// What ends an alert; not asked of rules of the machine.
  std::optional<bool> isOver;
  /// Why it could not be told whether it is met.
  Gap gap = Gap::kNone;
  /// Whether figures that take long to read could change what it says.
  bool dependsOnCostly = false;
};

/// One rule and all that it waits for. Every turn is Begin, See for processes, and End. Main
/// thread.
class RuleWatch {
 public:
  explicit RuleWatch(AlertRule rule) : mRule(std::move(rule)) {}

  const AlertRule& Rule() const { return mRule; }

  /// Looks at a process: its figures, for what is told of it, or those of no process.
  using Describe = std::function<AlertSubject(ProcessIdentity)>;

  void Begin(std::chrono::milliseconds elapsed);
  /// Of a total, `figure` is what is added up where the verdict takes the process in.
  void See(ProcessIdentity process, const AlertVerdict& verdict, const TypedValue* figure);
  /// Whether the process is pending or fires: then it has to be seen in every turn, else only where
  /// its verdict is not plainly that it does not meet the condition.
  bool Watches(ProcessIdentity process) const {
    return !mWatched.empty() && mWatched.contains(process);
  }
  /// What has begun and ended.
  std::vector<AlertEvent> End(const Describe& describe);

  // ---- As of the latest turn

  /// How many processes meet the condition; of a total, are added up.
  std::size_t Meeting() const { return mMeetingCount; }
  /// The first of them, ten at most.
  const std::vector<ProcessIdentity>& SomeMeeting() const { return mMeeting; }
  /// Whether the condition is met by now: by any process, or of the machine.
  std::optional<bool> IsMet() const;
  std::size_t Pending() const { return mPending; }
  std::size_t Firing() const { return mFiring; }
  /// Of what has been pending for longest.
  std::chrono::milliseconds LongestPending() const { return mLongestPending; }
  const AlertGaps& Gaps() const { return mGaps; }
  /// Nothing for a rule that adds nothing up.
  std::optional<double> Total() const;

 private:
  struct Hash {
    std::size_t operator()(const ProcessIdentity& process) const {
      return std::hash<std::uint64_t>{}(process.startStamp * 0x9E3779B97F4A7C15u ^
                                        static_cast<std::uint32_t>(process.pid));
    }
  };
  struct Watched {
    AlertCondition condition;
    AlertSubject atBegin;
    std::uint64_t turn = 0;
  };

  void EndOfMachine(const Describe& describe, std::vector<AlertEvent>& events);
  void EndOfProcesses(const Describe& describe, std::vector<AlertEvent>& events);
  void Count(const AlertCondition& condition);
  std::optional<bool> LimitHolds(const Query& limit) const;
  AlertCondition::Sight SightOfMachine() const;

  AlertRule mRule;
  std::chrono::milliseconds mElapsed{0};
  std::uint64_t mTurn = 0;
  /// What is pending or fires: never more than there are processes.
  std::unordered_map<ProcessIdentity, Watched, Hash> mWatched;
  AlertCondition mOfMachine;
  /// Of a rule with "any": its first alert, while any fires.
  std::optional<AlertSubject> mFirst;
  std::vector<std::pair<ProcessIdentity, AlertCondition::Change>> mChanges;

  std::size_t mMeetingCount = 0;
  std::vector<ProcessIdentity> mMeeting;
  std::size_t mPending = 0;
  std::size_t mFiring = 0;
  std::chrono::milliseconds mLongestPending{0};
  AlertGaps mGaps;
  double mSum = 0;
  /// The type of what is added up.
  TypedValue mSample;
};

}  // namespace lurkwell
