#include "main_window/RowTree.h"

#include <algorithm>
#include <unordered_set>
#include <utility>
#include <variant>

namespace lurkwell {
namespace {

std::size_t At(int place) {
  return static_cast<std::size_t>(place);
}

bool MayBeParent(const RowDictionary& parent, const RowDictionary& child) {
  return &parent != &child && parent.Pid() != 0 &&
         parent.origin.startStamp <= child.origin.startStamp;
}

}  // namespace

// ---- Which row stands below which ---------------------------------------------------------------

void RowTree::LinkToParents(const ProcessRows& rows) {
  for (auto* row : rows.All()) {
    auto* parent =
        row->origin.parentPid == kInvalidPID ? nullptr : rows.Find(row->origin.parentPid);
    const bool isThere = parent != nullptr && !parent->isWaiting;
    row->above = isThere && MayBeParent(*parent, *row) ? parent : nullptr;
  }
}

void RowTree::Assign(const std::vector<RowDictionary*>& rows, const FamilyTree& family) {
  std::vector<ApplicationGroups::Member> members;
  std::vector<int> orderOf(rows.size());
  members.reserve(rows.size());
  for (const int place : family.DepthFirst()) {
    const int parent = family.ParentOf(place);
    orderOf[At(place)] = static_cast<int>(members.size());
    members.push_back({rows[At(place)], parent < 0 ? -1 : orderOf[At(parent)]});
  }
  mGroups.Assign(members);
}

void RowTree::Settle(const std::vector<RowDictionary*>& rows, const FamilyTree& family) {
  mPlaces = {};
  for (const int at : family.DepthFirst()) {
    auto* row = rows[At(at)];
    const int parent = family.ParentOf(at);
    row->above = parent < 0 ? nullptr : rows[At(parent)];
    row->place = static_cast<int>(mPlaces.rows.size());
    const int above = row->above != nullptr ? row->above->place : FamilyTree::kNobody;
    mPlaces.rows.push_back(row);
    mPlaces.parents.push_back(above);
    mPlaces.levels.push_back(above < 0 ? 0 : mPlaces.levels[At(above)] + 1);
    mPlaces.ends.push_back(row->place + 1);
  }
  for (auto i = Count(); i-- > 0;)
    if (const int parent = mPlaces.parents[i]; parent >= 0)
      mPlaces.ends[At(parent)] = std::max(mPlaces.ends[At(parent)], mPlaces.ends[i]);
  for (std::size_t i = 0; i < Count(); ++i)
    if (At(mPlaces.ends[i]) > i + 1)
      mPlaces.inner.push_back(static_cast<int>(i));
    else
      mPlaces.rows[i]->DropTotals();
  mFamily = FamilyTree(mPlaces.parents);
  mTotals.Forget();
}

namespace {

FamilyTree FamilyOf(const std::vector<RowDictionary*>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i]->place = static_cast<int>(i);
  std::vector<int> parents;
  parents.reserve(rows.size());
  for (const auto* row : rows)
    parents.push_back(row->above != nullptr ? row->above->place : FamilyTree::kNobody);
  return FamilyTree(std::move(parents));
}

}  // namespace

void RowTree::Build(const ProcessRows& rows, TableShape shape) {
  if (shape == TableShape::kList) {
    mPlaces = {};
    mFamily = {};
    mGroups.Assign({});
    return;
  }
  LinkToParents(rows);
  const auto family = FamilyOf(rows.All());
  if (shape == TableShape::kTree) {
    mGroups.Assign({});
    Settle(rows.All(), family);
  } else {
    Assign(rows.All(), family);
    auto all = mGroups.Rows();
    all.insert(all.end(), rows.All().begin(), rows.All().end());
    Settle(all, FamilyOf(all));
  }
  DecideFolds();
}

void RowTree::Order(RowComparison comparison, const compareContextStructure& context) {
  if (comparison == nullptr) return;
  std::vector<RowDictionary*> siblings;
  const auto sort = [&](std::span<int> places) {
    if (places.size() < 2) return;
    siblings.clear();
    for (const int place : places) siblings.push_back(&RowAt(place));
    if (SortRows(siblings, comparison, context))
      std::ranges::transform(siblings, places.begin(), &RowDictionary::place);
  };
  sort(mFamily.ChildrenOf(FamilyTree::kNobody));
  for (const int place : mPlaces.inner) sort(mFamily.ChildrenOf(place));
}

// ---- Folding ------------------------------------------------------------------------------------

std::string RowTree::NameForMemory(const RowDictionary& row) const {
  if (const auto* group = row.Group()) return group->key;
  const auto* name = std::get_if<std::string>(&row.Get(kMetaName));
  return name != nullptr ? *name : std::string();
}

void RowTree::DecideFolds() {
  for (const int place : mPlaces.inner) {
    auto& row = RowAt(place);
    if (row.isFolded.has_value()) continue;
    row.isFolded = row.Group() != nullptr ? !mUnfolded.Has(NameForMemory(row))
                                          : mFolded.Has(NameForMemory(row));
  }
}

bool RowTree::IsFolded(const RowDictionary& row, bool looksBelow) const {
  return looksBelow ? row.isFoldedInFilter : row.isFolded.value_or(false);
}

void RowTree::Fold(RowDictionary& row, bool folded, bool all, bool looksBelow) {
  const int end = all ? mPlaces.ends[At(row.place)] : row.place + 1;
  for (int i = row.place; i < end; ++i) {
    auto& its = RowAt(i);
    if (mPlaces.ends[At(i)] == i + 1) continue;
    if (looksBelow) {
      its.isFoldedInFilter = folded;
    } else if (its.isFolded != folded) {
      its.isFolded = folded;
      its.isFoldChosen = true;
      if (its.Group() != nullptr)
        mUnfolded.Put(NameForMemory(its), !folded);
      else
        mFolded.Put(NameForMemory(its), folded);
    }
  }
}

void RowTree::SetFolded(RowDictionary& row, bool folded, bool all, bool looksBelow) {
  Fold(row, folded, all, looksBelow);
  mFolded.Store();
  mUnfolded.Store();
}

void RowTree::SetAllFolded(bool folded, bool looksBelow) {
  for (const int place : mFamily.ChildrenOf(FamilyTree::kNobody))
    Fold(RowAt(place), folded, true, looksBelow);
  mFolded.Store();
  mUnfolded.Store();
}

void RowTree::ForgetFoldsOfGroupsInFilter() {
  for (auto* row : mGroups.Rows()) row->isFoldedInFilter = false;
}

void RowTree::Reveal(std::span<RowDictionary* const> rows) {
  std::unordered_set<const RowDictionary*> met;
  for (const auto* row : rows) {
    for (auto* above = row->above; above != nullptr && met.insert(above).second;
         above = above->above) {
      above->isFolded = false;
      above->isFoldChosen = true;
      above->isFoldedInFilter = false;
    }
  }
}

// ---- What can be seen ---------------------------------------------------------------------------

void RowTree::CollectShown(const Matches& matches) {
  for (const auto* row : mGroups.Rows()) {
    auto& shown = row->Group()->shown;
    shown.clear();
    for (const int member : mFamily.ChildrenOf(row->place))
      if (const auto& its = RowAt(member); matches.is[At(member)])
        shown.push_back({its.Pid(), its.origin.startStamp});
  }
}

RowTree::Matches RowTree::FindMatches(const IsShown& isShown) {
  const auto count = Count();
  Matches matches{std::vector<bool>(count), std::vector<int>(count, 0)};
  mMatchCount = 0;
  for (auto i = count; i-- > 0;) {
    const auto& row = *mPlaces.rows[i];
    matches.is[i] = row.Group() == nullptr && (!isShown || isShown(row));
    if (matches.is[i]) ++mMatchCount;
    // A row that is there for those below it counts as well: it has a line of its own.
    if ((matches.is[i] || matches.below[i] > 0) && mPlaces.parents[i] >= 0)
      matches.below[At(mPlaces.parents[i])] += matches.below[i] + 1;
  }
  return matches;
}

std::vector<RowDictionary*> RowTree::Visible(const IsShown& isShown, bool looksBelow) {
  using Fold = RowStanding::Fold;
  const auto matches = FindMatches(isShown);
  CollectShown(matches);
  std::vector<RowDictionary*> visible;
  visible.reserve(Count());
  const auto roots = mFamily.ChildrenOf(FamilyTree::kNobody);
  std::vector<int> waiting(roots.rbegin(), roots.rend());
  while (!waiting.empty()) {
    const int place = waiting.back();
    waiting.pop_back();
    const bool isMatch = matches.is[At(place)];
    const int below = matches.below[At(place)];
    if (!isMatch && below == 0) continue;
    auto& row = RowAt(place);
    const bool isFolded = below > 0 && IsFolded(row, looksBelow);
    row.SetStanding({mPlaces.levels[At(place)],
                     below == 0 ? Fold::kNone
                     : isFolded ? Fold::kFolded
                                : Fold::kUnfolded,
                     below, !isMatch && row.Group() == nullptr});
    row.ShowTotals(isFolded);
    visible.push_back(&row);
    if (below == 0 || isFolded) continue;
    const auto children = mFamily.ChildrenOf(place);
    waiting.insert(waiting.end(), children.rbegin(), children.rend());
  }
  return visible;
}

// ---- Totals -------------------------------------------------------------------------------------

void RowTree::AddUp(std::span<const KeyId> columns, KeyId sortKey) {
  // A process may have got another name.
  DecideFolds();
  mTotals.Update(mPlaces, columns, sortKey);
}

std::int64_t RowTree::BiggestTotal(KeyId key, std::int64_t most) const {
  std::int64_t biggest = 0;
  for (const int place : mPlaces.inner) {
    const auto& row = RowAt(place);
    if (row.Standing().fold != RowStanding::Fold::kFolded && row.Group() == nullptr) continue;
    if (const auto* total = std::get_if<std::int64_t>(&row.Shown(key)); total && *total <= most)
      biggest = std::max(biggest, *total);
  }
  return biggest;
}

}  // namespace lurkwell
