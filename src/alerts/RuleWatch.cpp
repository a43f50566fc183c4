#include "alerts/RuleWatch.h"

#include <algorithm>
#include <limits>

#include "platform/Clock.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostNamedMeeting = 10;

std::optional<double> NumberOfFigure(const TypedValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* time = std::get_if<TimeValue>(&value)) return InSeconds(*time);
  return std::nullopt;
}

/// A sum as a value of the type that was added up.
TypedValue LikeSample(double sum, const TypedValue& sample) {
  if (std::holds_alternative<std::int64_t>(sample)) return static_cast<std::int64_t>(sum);
  if (std::holds_alternative<TimeValue>(sample))
    return TimeValue{static_cast<std::int64_t>(sum), 0};
  return sum;
}

/// A sum as a query looks at it.
class SumAsSubject final : public QuerySubject {
 public:
  explicit SumAsSubject(double sum) : mSum(sum) {}
  TypedValue ValueOf(const std::string&) const override { return mSum; }
  bool ShowsTextLike(const TextPattern&) const override { return false; }

 private:
  double mSum;
};

void Note(AlertGaps& gaps, AlertVerdict::Gap gap) {
  using enum AlertVerdict::Gap;
  if (gap == kNotAllowed) ++gaps.notAllowed;
  if (gap == kNotYetKnown) ++gaps.notYetKnown;
  if (gap == kNotCounted) ++gaps.notCounted;
}

AlertVerdict::Gap GapOf(const TypedValue& value) {
  using enum AlertVerdict::Gap;
  const auto* why = std::get_if<Missing>(&value);
  if (why == nullptr || *why == Missing::kNone) return AlertVerdict::Gap::kNone;
  return *why == Missing::kNotAllowed   ? kNotAllowed
         : *why == Missing::kNotCounted ? kNotCounted
                                        : kNotYetKnown;
}

}  // namespace

void RuleWatch::Begin(std::chrono::milliseconds elapsed) {
  mElapsed = elapsed;
  ++mTurn;
  mChanges.clear();
  mMeetingCount = mPending = mFiring = 0;
  mMeeting.clear();
  mLongestPending = {};
  mGaps = {};
  mSum = 0;
  mSample = Missing::kNone;
}

void RuleWatch::See(ProcessIdentity process, const AlertVerdict& verdict,
                    const TypedValue* figure) {
  Note(mGaps, verdict.gap);
  if (verdict.isMet != true && mWatched.empty()) return;
  const bool isMet = verdict.isMet == true;
  if (isMet && figure != nullptr) {
    Note(mGaps, GapOf(*figure));
    if (const auto number = NumberOfFigure(*figure)) {
      mSum += *number;
      mSample = *figure;
    }
  }
  if (isMet && mMeetingCount++ < kMostNamedMeeting) mMeeting.push_back(process);
  if (mRule.IsOfMachine()) return;
  auto found = mWatched.find(process);
  if (found == mWatched.end()) {
    if (!isMet) return;
    found = mWatched.try_emplace(process).first;
  }
  auto& [condition, atBegin, turn] = found->second;
  turn = mTurn;
  const auto change =
      condition.Turn({verdict.isMet, verdict.isOver}, mElapsed, {mRule.hold, mRule.calm});
  if (change != AlertCondition::Change::kNone) mChanges.emplace_back(process, change);
  if (condition.CurrentState() == AlertCondition::State::kCalm) {
    // What has ended is told at the end of the turn.
    if (change == AlertCondition::Change::kNone) mWatched.erase(found);
    return;
  }
  Count(condition);
}

void RuleWatch::Count(const AlertCondition& condition) {
  if (condition.CurrentState() == AlertCondition::State::kFiring) ++mFiring;
  if (condition.CurrentState() != AlertCondition::State::kPending) return;
  ++mPending;
  mLongestPending = std::max(mLongestPending, condition.Held());
}

std::vector<AlertEvent> RuleWatch::End(const Describe& describe) {
  std::vector<AlertEvent> events;
  if (mRule.IsOfMachine()) {
    EndOfMachine(describe, events);
  } else {
    EndOfProcesses(describe, events);
  }
  return events;
}

std::optional<double> RuleWatch::Total() const {
  return mRule.scope == AlertRule::Scope::kTotal ? std::optional(mSum) : std::nullopt;
}

/// What is not known can only add to the sum: where any sum from here on says the same, it holds.
std::optional<bool> RuleWatch::LimitHolds(const Query& limit) const {
  const bool holds = limit.IsFulfilledBy(SumAsSubject(mSum));
  const bool isWhole = mGaps.notAllowed + mGaps.notYetKnown + mGaps.notCounted == 0;
  if (isWhole) return holds;
  const bool wouldHold = limit.IsFulfilledBy(SumAsSubject(std::numeric_limits<double>::infinity()));
  return holds == wouldHold ? std::optional(holds) : std::nullopt;
}

AlertCondition::Sight RuleWatch::SightOfMachine() const {
  if (mRule.scope == AlertRule::Scope::kAbsent) {
    const bool isAnyUnclear = mGaps.notAllowed + mGaps.notYetKnown + mGaps.notCounted > 0;
    if (mMeetingCount > 0) return {false, true};
    if (isAnyUnclear) return {};
    return {true, false};
  }
  const auto isMet = LimitHolds(mRule.totalLimit);
  if (mRule.end) return {isMet, LimitHolds(*mRule.end)};
  return {isMet, isMet ? std::optional(!*isMet) : std::nullopt};
}

std::optional<bool> RuleWatch::IsMet() const {
  if (mRule.IsOfMachine()) return SightOfMachine().isMet;
  return mMeetingCount > 0;
}

void RuleWatch::EndOfMachine(const Describe& describe, std::vector<AlertEvent>& events) {
  using enum AlertCondition::Change;
  const auto change = mOfMachine.Turn(SightOfMachine(), mElapsed, {mRule.hold, mRule.calm});
  Count(mOfMachine);
  if (change == kNone) return;
  auto subject = describe(ProcessIdentity{});
  if (mRule.scope == AlertRule::Scope::kTotal) {
    subject.figures.emplace_back(mRule.totalProperty, LikeSample(mSum, mSample));
  }
  events.push_back(
      {change == kBegan ? AlertEvent::Kind::kBegan : AlertEvent::Kind::kEnded, std::move(subject)});
}

void RuleWatch::EndOfProcesses(const Describe& describe, std::vector<AlertEvent>& events) {
  using enum AlertCondition::Change;
  for (const auto& [process, change] : mChanges) {
    auto subject = describe(process);
    if (change == kBegan) {
      mWatched[process].atBegin = subject;
      events.push_back({AlertEvent::Kind::kBegan, std::move(subject)});
    } else {
      events.push_back({AlertEvent::Kind::kEnded, std::move(subject)});
      mWatched.erase(process);
    }
  }
  std::erase_if(mWatched, [&](const auto& entry) {
    const auto& watched = entry.second;
    if (watched.turn == mTurn) return false;
    if (watched.condition.CurrentState() == AlertCondition::State::kFiring)
      events.push_back({AlertEvent::Kind::kProcessEnded, watched.atBegin});
    return true;
  });
  if (mRule.scope != AlertRule::Scope::kAny) return;
  // One alert, of the process that was the first, until none is left.
  std::vector<AlertEvent> ofRule;
  if (!mFirst && mFiring > 0) {
    const auto began = std::ranges::find(events, AlertEvent::Kind::kBegan, &AlertEvent::kind);
    mFirst = began->subject;
    ofRule.push_back(std::move(*began));
  } else if (mFirst && mFiring == 0) {
    ofRule.push_back({events.empty() ? AlertEvent::Kind::kEnded : events.back().kind, *mFirst});
    mFirst.reset();
  }
  events = std::move(ofRule);
}

}  // namespace lurkwell
