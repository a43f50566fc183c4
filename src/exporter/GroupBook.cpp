#include "exporter/GroupBook.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace lurkwell {

GroupBook::GroupBook(const GroupRules::OfKind& rules, std::size_t limit)
    : mRules(rules), mLimit(limit) {}

void GroupBook::BeginPass() {
  mOther.BeginPass();
  for (auto& [name, group] : mGroups) {
    group.sums.BeginPass();
    group.members = 0;
    group.weight = 0;
  }
}

Group& GroupBook::Find(std::string_view name) {
  const auto [at, isNew] = mGroups.try_emplace(std::string(name));
  auto& group = at->second;
  if (isNew) {
    group.name = name;
    group.isAdmitted = name != kOtherGroup && mRules.Admits(group.name);
  }
  return group;
}

void GroupBook::GivePlaces(std::int64_t now) {
  TakeBack(now);
  std::vector<Group*> newcomers;
  for (auto& [name, group] : mGroups)
    if (group.members > 0 && !group.hasPlace && group.isAdmitted) newcomers.push_back(&group);
  if (!newcomers.empty()) {
    std::ranges::sort(newcomers, {}, [](const Group* group) {
      return std::tuple(-group->weight, std::string_view(group->name));
    });
    newcomers.resize(std::min(newcomers.size(), FreePlaces(newcomers.size(), now)));
    for (auto* group : newcomers) group->hasPlace = group->hasEverHadPlace = true;
  }
  ForgetSome();
}

void GroupBook::TakeBack(std::int64_t now) {
  for (auto& [name, group] : mGroups) {
    if (group.members > 0) group.lastAlive = now;
    if (now - group.lastAlive >= kShownWithoutProcesses) group.hasPlace = false;
  }
  std::erase_if(mGroups, [](const auto& entry) {
    return entry.second.members == 0 && !entry.second.hasEverHadPlace;
  });
}

/// How many of the places are free; where fewer are than wanted, groups that have long had no
/// processes give theirs.
std::size_t GroupBook::FreePlaces(std::size_t wanted, std::int64_t now) {
  std::size_t taken = 0;
  std::vector<Group*> empty;
  for (auto& [name, group] : mGroups) {
    if (!group.hasPlace) continue;
    ++taken;
    if (now - group.lastAlive >= kKeptWithoutProcesses) empty.push_back(&group);
  }
  std::ranges::sort(empty, {}, &Group::lastAlive);
  for (auto* group : empty) {
    if (taken + wanted <= mLimit) break;
    group->hasPlace = false;
    --taken;
  }
  return mLimit - std::min(taken, mLimit);
}

void GroupBook::ForgetSome() {
  const auto most = mLimit * kRememberedFactor;
  std::vector<std::pair<std::int64_t, std::string>> silent;
  for (const auto& [name, group] : mGroups)
    if (group.members == 0 && !group.hasPlace) silent.emplace_back(group.lastAlive, name);
  if (silent.size() <= most) return;
  std::ranges::sort(silent);
  silent.resize(silent.size() - most);
  for (const auto& [lastAlive, name] : silent) mGroups.erase(name);
}

KindFigures GroupBook::Figures() const {
  KindFigures figures;
  bool hasOther = false;
  for (const auto& [name, group] : mGroups) {
    if (group.hasPlace) {
      figures.groups.push_back(group.sums.Figures(name));
    } else if (group.members > 0) {
      ++figures.leftOut;
      hasOther = true;
    }
  }
  // What was counted there stays, whether or not anybody is in it now.
  auto other = mOther.Figures(std::string(kOtherGroup));
  if (hasOther || other.userTime) figures.groups.push_back(std::move(other));
  std::ranges::sort(figures.groups, {}, &GroupFigures::name);
  return figures;
}

}  // namespace lurkwell
