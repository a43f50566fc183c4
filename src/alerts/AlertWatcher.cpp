#include "alerts/AlertWatcher.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "platform/Machine.h"
#include "query/TextPattern.h"

namespace lurkwell {
namespace {

using std::chrono::milliseconds;

constexpr std::string_view kNameProperty = "meta_name";
constexpr milliseconds kShortestInterval = std::chrono::seconds(2);
constexpr milliseconds kLongestInterval = std::chrono::seconds(5);
constexpr milliseconds kLeastBetweenTurns = std::chrono::seconds(1);
/// What a machine slept through, or a program that was halted, nobody has seen.
constexpr milliseconds kLongestTurn = std::chrono::seconds(30);

/// A process as a rule looks at it. Remembers why a value was missing.
class WatchedProcess final : public QuerySubject {
 public:
  WatchedProcess(std::int32_t pid, bool hidesCostly) : mPid(pid), mHidesCostly(hidesCostly) {}

  TypedValue ValueOf(const std::string& property) const override {
    if (property == kNameProperty) return WholeNameOf(mPid);
    if (mHidesCostly && IsReadInBackground(property)) return Missing::kNotYetKnown;
    auto value = GetPIDPropertyTypedValue(mPid, property.c_str());
    if (const auto* why = std::get_if<Missing>(&value); why != nullptr) Note(*why);
    return value;
  }
  bool ShowsTextLike(const TextPattern& pattern) const override {
    return pattern.Matches(std::to_string(mPid)) || pattern.Matches(WholeNameOf(mPid));
  }

  AlertVerdict::Gap MetGap() const { return mGap; }

 private:
  void Note(Missing why) const {
    using enum AlertVerdict::Gap;
    // What will never be known is said rather than what may be.
    if (why == Missing::kNotAllowed) mGap = kNotAllowed;
    if (why == Missing::kNotCounted && mGap != kNotAllowed) mGap = kNotCounted;
    if (why == Missing::kNotYetKnown && mGap == AlertVerdict::Gap::kNone) mGap = kNotYetKnown;
  }

  std::int32_t mPid;
  bool mHidesCostly;
  mutable AlertVerdict::Gap mGap = AlertVerdict::Gap::kNone;
};

AlertVerdict VerdictOf(const AlertRule& rule, std::int32_t pid, bool readsCostly) {
  AlertVerdict verdict;
  const WatchedProcess process(pid, false);
  verdict.isMet = rule.condition.VerdictOn(process);
  if (!verdict.isMet) verdict.gap = process.MetGap();
  if (rule.end && !rule.IsOfMachine()) {
    verdict.isOver = rule.end->VerdictOn(process);
  } else if (verdict.isMet) {
    verdict.isOver = !*verdict.isMet;
  }
  if (!readsCostly) return verdict;
  const WatchedProcess atOnce(pid, true);
  verdict.dependsOnCostly = rule.condition.VerdictOn(atOnce) != false ||
                            (rule.end && rule.end->VerdictOn(atOnce) != false);
  return verdict;
}

milliseconds IntervalFor(const AlertWatcher::Watches& watches) {
  auto shortest = kLongestInterval;
  for (const auto& watch : watches) shortest = std::min(shortest, watch->Rule().hold / 5);
  return std::max(shortest, kShortestInterval);
}

}  // namespace

AlertSubject DescribeForAlert(const AlertRule& rule, ProcessIdentity process) {
  AlertSubject subject;
  subject.process = process;
  if (process.pid == kInvalidPID) return subject;
  subject.name = WholeNameOf(process.pid);
  for (const auto& property : rule.Properties()) {
    if (property == kNameProperty || property == "meta_pid") continue;
    auto value = GetPIDPropertyValueForOutput(process.pid, property.c_str());
    if (IsKnown(value)) subject.figures.emplace_back(property, std::move(value));
  }
  return subject;
}

AlertWatcher::AlertWatcher(Handlers handlers)
    : ProcessInformationClient(nullptr, static_cast<std::int32_t>(kShortestInterval.count())),
      mHandlers(std::move(handlers)) {}

AlertWatcher::~AlertWatcher() {
  if (mHandlers.gone) mHandlers.gone();
}

void AlertWatcher::SetWatches(Watches watches) {
  mWatches = std::move(watches);
  mNeeds.clear();
  for (const auto& watch : mWatches) {
    Needs needs{watch->Rule().Properties(), false};
    needs.readsCostly = std::ranges::any_of(needs.properties, IsReadInBackground);
    mNeeds.push_back(std::move(needs));
  }
  SetInterval(static_cast<std::int32_t>(IntervalFor(mWatches).count()));
  ForgetVerdicts();
  const bool isServed = !mWatches.empty();
  if (isServed && !mIsServed) {
    mLastTurn = {};
    AddProcessInformationClient(this);
  } else if (!isServed && mIsServed) {
    RemoveProcessInformationClient(this);
    mKnown.clear();
  }
  mIsServed = isServed;
  if (isServed) RequestUpdate(this);
}

void AlertWatcher::ForgetVerdicts() {
  for (auto& [pid, known] : mKnown) known.changeStamp = 0;
}

/// What one process is judged by may have come for all.
void AlertWatcher::NotifyPSColumnsHaveChanged() {
  ForgetVerdicts();
}

ProcessInformationClient::NeedLevel AlertWatcher::NeedPidsForProcProperty(const char* property) {
  // Said of what an alert is about.
  if (kNameProperty == property) return kNeedAllPids;
  const auto needs = [property](const Needs& its) {
    return std::ranges::find(its.properties, std::string_view(property)) != its.properties.end();
  };
  if (std::ranges::none_of(mNeeds, needs)) return kNeedNoPids;
  return IsReadInBackground(property) ? kNeedSomePids : kNeedAllPids;
}

bool AlertWatcher::NeedPidProcProperty(int pid, const char* property) {
  if (!IsReadInBackground(property)) return NeedPidsForProcProperty(property) == kNeedAllPids;
  const auto found = mKnown.find(pid);
  if (found == mKnown.end()) return false;
  const auto& verdicts = found->second.verdicts;
  for (std::size_t i = 0; i < verdicts.size() && i < mNeeds.size(); ++i) {
    const auto& properties = mNeeds[i].properties;
    if (verdicts[i].dependsOnCostly &&
        std::ranges::find(properties, std::string_view(property)) != properties.end())
      return true;
  }
  return false;
}

std::int32_t AlertWatcher::MayComeEarlyBy() const {
  return Interval() - static_cast<std::int32_t>(kLeastBetweenTurns.count());
}

milliseconds AlertWatcher::TimeSinceLastTurn() {
  const auto now = TheMachine().clock.Now();
  const auto last = std::exchange(mLastTurn, now);
  if (last.IsZero()) return milliseconds(0);
  return std::clamp(milliseconds(MillisecondsBetween(last, now)), milliseconds(0), kLongestTurn);
}

void AlertWatcher::Judge(ProcessIdentity process, Known& known) const {
  known.verdicts.resize(mWatches.size());
  known.seenBy.clear();
  for (std::size_t i = 0; i < mWatches.size(); ++i) {
    auto& verdict = known.verdicts[i];
    verdict = VerdictOf(mWatches[i]->Rule(), process.pid, mNeeds[i].readsCostly);
    if (verdict.isMet != false || mWatches[i]->Watches(process))
      known.seenBy.push_back(static_cast<std::uint16_t>(i));
  }
}

void AlertWatcher::See(std::int32_t pid) {
  const auto glance = GlanceAt(pid);
  if (glance.changeStamp == 0) return;
  const ProcessIdentity process{pid, glance.startStamp};
  auto& known = mKnown[pid];
  known.turn = mTurn;
  if (known.startStamp != glance.startStamp || known.changeStamp != glance.changeStamp) {
    if (known.startStamp != glance.startStamp || known.changeStamp == 0) mNamesToLearn.Add(pid);
    known.startStamp = glance.startStamp;
    known.changeStamp = glance.changeStamp;
    Judge(process, known);
  }
  for (const std::size_t i : known.seenBy) {
    const auto& verdict = known.verdicts[i];
    const auto& property = mWatches[i]->Rule().totalProperty;
    if (verdict.isMet == true && !property.empty()) {
      const auto figure = GetPIDPropertyTypedValue(pid, property.c_str());
      mWatches[i]->See(process, verdict, &figure);
    } else {
      mWatches[i]->See(process, verdict, nullptr);
    }
  }
}

std::vector<std::pair<std::shared_ptr<RuleWatch>, AlertEvent>> AlertWatcher::EndTurn() {
  std::vector<std::pair<std::shared_ptr<RuleWatch>, AlertEvent>> events;
  for (const auto& watch : mWatches) {
    const auto describe = [&watch](ProcessIdentity process) {
      return DescribeForAlert(watch->Rule(), process);
    };
    for (auto& event : watch->End(describe)) events.emplace_back(watch, std::move(event));
  }
  return events;
}

void AlertWatcher::NotifyProcessesHaveBeenUpdated() {
  ++mTurn;
  // Rules are about what people see, so names are judged when they are whole.
  for (const auto pid : mNamesToLearn.LearnSome())
    if (const auto found = mKnown.find(pid); found != mKnown.end()) found->second.changeStamp = 0;
  const auto elapsed = TimeSinceLastTurn();
  for (const auto& watch : mWatches) watch->Begin(elapsed);
  for (const auto pid : PidBlob())
    if (pid > 0) See(pid);
  std::erase_if(mKnown, [this](const auto& entry) { return entry.second.turn != mTurn; });
  const auto events = EndTurn();
  for (const auto& [watch, event] : events) mHandlers.happened(*watch, event);
  if (mHandlers.turned) mHandlers.turned();
}

}  // namespace lurkwell
