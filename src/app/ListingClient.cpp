#include "app/ListingClient.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "consolidator/FamilyTree.h"
#include "consolidator/ProcessQueries.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"
#include "consolidator/WholeNames.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "query/TextPattern.h"

namespace lurkwell {
namespace {

constexpr char kParent[] = "pid_parent_pid";
constexpr double kPatienceInSeconds = 5;
constexpr std::int32_t kTurnWhileWaiting = 50;

class ListedSubject final : public QuerySubject {
 public:
  ListedSubject(std::int32_t pid, const std::vector<ListingColumn>& columns)
      : mPid(pid), mColumns(columns) {}

  TypedValue ValueOf(const std::string& property) const override {
    return GetPIDPropertyTypedValue(mPid, property.c_str());
  }
  bool ShowsTextLike(const TextPattern& pattern) const override {
    if (pattern.Matches(std::to_string(mPid)) || pattern.Matches(WholeNameOf(mPid))) return true;
    return std::ranges::any_of(mColumns, [&](const ListingColumn& column) {
      const auto value = ValueOf(column.key);
      const auto* text = std::get_if<std::string>(&value);
      return text != nullptr && pattern.Matches(*text);
    });
  }

 private:
  std::int32_t mPid;
  const std::vector<ListingColumn>& mColumns;
};

/// Values of one column: numbers before texts, which are there instead of one.
std::partial_ordering Compare(const TypedValue& a, const TypedValue& b) {
  if (a.index() != b.index()) return a.index() <=> b.index();
  return std::visit(
      [&b](const auto& value) -> std::partial_ordering {
        return value <=> std::get<std::decay_t<decltype(value)>>(b);
      },
      a);
}

}  // namespace

struct ListingClient::Candidate {
  std::int32_t pid;
  int depth = 0;
  TypedValue sortValue;
};

ListingClient::ListingClient(ListingPlan plan, std::FILE* out)
    : ProcessInformationClient(nullptr, plan.intervalInMilliseconds),
      mPlan(std::move(plan)),
      mFormat(MakeListingFormat(mPlan.form, mPlan.columns, mPlan.isTree)),
      mOut(out) {
  std::ranges::copy_if(mPlan.query.Properties(), std::back_inserter(mAwaited), IsReadInBackground);
}

ProcessInformationClient::NeedLevel ListingClient::NeedPidsForProcProperty(const char* property) {
  return NeedPidProcProperty(kInvalidPID, property) ? kNeedAllPids : kNeedNoPids;
}

bool ListingClient::NeedPidProcProperty(int, const char* property) {
  const std::string_view its(property);
  return std::ranges::find(mPlan.columns, its, &ListingColumn::key) != mPlan.columns.end() ||
         std::ranges::find(mPlan.query.Properties(), its) != mPlan.query.Properties().end() ||
         its == mPlan.sortKey || (mPlan.isTree && its == kParent);
}

std::vector<ListingClient::Candidate> ListingClient::Candidates() const {
  std::vector<Candidate> candidates;
  for (const auto pid : PidBlob(kPidBlobAll)) {
    if (!mPlan.query.IsFulfilledBy(ListedSubject(pid, mPlan.columns))) continue;
    auto& candidate = candidates.emplace_back(Candidate{.pid = pid, .sortValue = Missing::kNone});
    if (!mPlan.sortKey.empty())
      candidate.sortValue = GetPIDPropertyTypedValue(pid, mPlan.sortKey.c_str());
  }
  if (mPlan.sortKey.empty()) return candidates;
  std::ranges::stable_sort(candidates, [this](const Candidate& a, const Candidate& b) {
    const bool isAKnown = IsKnown(a.sortValue);
    if (!isAKnown || !IsKnown(b.sortValue)) return isAKnown && !IsKnown(b.sortValue);
    const auto order = Compare(a.sortValue, b.sortValue);
    return mPlan.isDescending ? order > 0 : order < 0;
  });
  return candidates;
}

std::vector<ListingClient::Candidate> ListingClient::AsTree(std::vector<Candidate> sorted) const {
  std::unordered_map<std::int32_t, int> places;
  for (const auto& candidate : sorted)
    places.emplace(candidate.pid, static_cast<int>(places.size()));
  const auto parentOf = [](std::int32_t pid) -> std::int32_t {
    const auto value = GetPIDPropertyTypedValue(pid, kParent);
    const auto* parent = std::get_if<std::int64_t>(&value);
    return parent == nullptr ? kInvalidPID : static_cast<std::int32_t>(*parent);
  };
  std::vector<int> parents;
  for (const auto& candidate : sorted) {
    // The nearest ancestor that is listed; a table that contradicts itself may have no end.
    std::int32_t parent = parentOf(candidate.pid);
    for (int steps = 0; parent > 0 && !places.contains(parent) && steps < 100; ++steps)
      parent = parentOf(parent);
    const auto found = parent > 0 ? places.find(parent) : places.end();
    parents.push_back(found != places.end() ? found->second : FamilyTree::kNobody);
  }
  const FamilyTree family(std::move(parents));
  std::vector<Candidate> tree;
  for (const int place : family.DepthFirst()) {
    auto& candidate = sorted[static_cast<std::size_t>(place)];
    if (const int parent = family.ParentOf(place); parent != FamilyTree::kNobody)
      candidate.depth = sorted[static_cast<std::size_t>(parent)].depth + 1;
    tree.push_back(candidate);
  }
  return tree;
}

bool ListingClient::MustWait() {
  if (mAwaited.empty()) return false;
  const auto now = TheMachine().clock.Now();
  if (!mFirstTurn) mFirstTurn = now;
  std::size_t unknown = 0;
  std::size_t refused = 0;
  for (const auto pid : PidBlob(kPidBlobAll)) {
    const auto lacks = [&](Missing why) {
      return std::ranges::any_of(mAwaited, [&](const std::string& property) {
        const auto value = GetPIDPropertyTypedValue(pid, property.c_str());
        return std::holds_alternative<Missing>(value) && std::get<Missing>(value) == why;
      });
    };
    if (lacks(Missing::kNotYetKnown)) ++unknown;
    if (lacks(Missing::kNotAllowed)) ++refused;
  }
  if (unknown > 0 && InSeconds(now - *mFirstTurn) < kPatienceInSeconds) {
    SetInterval(kTurnWhileWaiting);
    return true;
  }
  SetInterval(mPlan.intervalInMilliseconds);
  mAwaited.clear();
  if (refused > 0)
    Diagnose("not allowed to look into %zu of the processes, which are left out", refused);
  if (unknown > 0) Diagnose("%zu of the processes could not be looked into in time", unknown);
  return false;
}

void ListingClient::NotifyProcessesHaveBeenUpdated() {
  auto candidates = Candidates();
  if (mPlan.isTree) candidates = AsTree(std::move(candidates));
  if (mPlan.limit && candidates.size() > static_cast<std::size_t>(*mPlan.limit))
    candidates.resize(static_cast<std::size_t>(*mPlan.limit));
  Listing listing{.time = TheMachine().clock.CalendarNow(), .processes = {}};
  for (const auto& candidate : candidates) {
    auto& process = listing.processes.emplace_back(
        PrintedProcess{.pid = candidate.pid, .depth = candidate.depth, .values = {}});
    for (const auto& column : mPlan.columns)
      process.values.push_back(GetPIDPropertyValueForOutput(candidate.pid, column.key.c_str()));
  }
  mFormat->Write(listing, mOut);
  std::fflush(mOut);
}

}  // namespace lurkwell
