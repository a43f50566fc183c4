#include "main_window/RowTree.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "main_window/RowTotals.h"

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
    row->above = parent != nullptr && MayBeParent(*parent, *row) ? parent : nullptr;
  }
}

void RowTree::Walk(const std::vector<RowDictionary*>& rows, int root) {
  mStack.push_back(root);
  while (!mStack.empty()) {
    const int place = mStack.back();
    mStack.pop_back();
    auto* row = rows[At(place)];
    // In a circle the way leads back to where it began.
    if (row->node >= 0) continue;
    row->node = static_cast<int>(mNodes.size());
    mNodes.push_back({row, row->above != nullptr ? row->above->node : -1, row->node + 1});
    for (int i = mFirstBelow[At(place) + 1]; i-- > mFirstBelow[At(place)];)
      mStack.push_back(mBelow[At(i)]);
  }
}

void RowTree::Lay(const std::vector<RowDictionary*>& rows) {
  const auto count = rows.size();
  for (std::size_t i = 0; i < count; ++i) rows[i]->node = static_cast<int>(i);
  mFirstBelow.assign(count + 2, 0);
  for (const auto* row : rows)
    if (row->above != nullptr) ++mFirstBelow[At(row->above->node) + 2];
  for (std::size_t i = 2; i < count + 2; ++i) mFirstBelow[i] += mFirstBelow[i - 1];
  mBelow.resize(count);
  // Each entry moves on to the next row's beginning.
  for (std::size_t i = 0; i < count; ++i)
    if (const auto* above = rows[i]->above)
      mBelow[At(mFirstBelow[At(above->node) + 1]++)] = static_cast<int>(i);
  for (auto* row : rows) row->node = -1;
  mNodes.clear();
  mNodes.reserve(count);
  for (std::size_t i = 0; i < count; ++i)
    if (rows[i]->above == nullptr) Walk(rows, static_cast<int>(i));
  for (std::size_t i = 0; i < count && mNodes.size() < count; ++i) {
    if (rows[i]->node >= 0) continue;
    rows[i]->above = nullptr;
    Walk(rows, static_cast<int>(i));
  }
  SetEnds();
}

void RowTree::SetEnds() {
  for (auto i = mNodes.size(); i-- > 0;)
    if (const auto& node = mNodes[i]; node.parent >= 0)
      mNodes[At(node.parent)].end = std::max(mNodes[At(node.parent)].end, node.end);
}

std::vector<ApplicationGroups::Member> RowTree::Members() const {
  std::vector<ApplicationGroups::Member> members;
  members.reserve(mNodes.size());
  for (const auto& node : mNodes) members.push_back({node.row, node.parent});
  return members;
}

void RowTree::Build(const ProcessRows& rows, TableShape shape) {
  mShape = shape;
  if (shape == TableShape::kList) {
    mNodes.clear();
    mGroups.Assign({});
    return;
  }
  LinkToParents(rows);
  Lay(rows.All());
  mGroups.Assign(shape == TableShape::kApplications ? Members()
                                                    : std::vector<ApplicationGroups::Member>());
  if (shape == TableShape::kApplications) Order(rows.All(), nullptr, {});
  DecideFolds();
}

void RowTree::Order(const std::vector<RowDictionary*>& rows, RowComparison comparison,
                    const compareContextStructure& context) {
  if (mShape != TableShape::kApplications) {
    Lay(rows);
  } else {
    std::vector<RowDictionary*> outer(mGroups.Rows());
    std::vector<RowDictionary*> inner;
    for (auto* row : rows) (row->above == nullptr ? outer : inner).push_back(row);
    if (comparison != nullptr) SortRows(outer, comparison, context);
    outer.insert(outer.end(), inner.begin(), inner.end());
    Lay(outer);
  }
  DecideFolds();
}

// ---- Folding ------------------------------------------------------------------------------------

std::string RowTree::NameForMemory(const RowDictionary& row) const {
  if (const auto* group = row.Group()) return group->key;
  const auto* name = std::get_if<std::string>(&row.Get(kMetaName));
  return name != nullptr ? *name : std::string();
}

void RowTree::DecideFolds() {
  for (std::size_t i = 0; i < Count(); ++i) {
    auto& row = *mNodes[i].row;
    if (row.isFolded.has_value() || At(mNodes[i].end) == i + 1) continue;
    row.isFolded = row.Group() != nullptr ? !mUnfolded.Has(NameForMemory(row))
                                          : mFolded.Has(NameForMemory(row));
  }
}

bool RowTree::IsFolded(const RowDictionary& row, bool looksBelow) const {
  return looksBelow ? row.isFoldedInFilter : row.isFolded.value_or(false);
}

void RowTree::Fold(RowDictionary& row, bool folded, bool all, bool looksBelow) {
  if (row.node < 0) return;
  const int end = all ? mNodes[At(row.node)].end : row.node + 1;
  for (int i = row.node; i < end; ++i) {
    auto& its = *mNodes[At(i)].row;
    if (mNodes[At(i)].end == i + 1) continue;
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
  for (std::size_t i = 0; i < Count(); i = At(mNodes[i].end))
    Fold(*mNodes[i].row, folded, true, looksBelow);
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

void RowTree::CollectShown(const std::vector<bool>& matches) {
  for (std::size_t i = 0; i < Count(); ++i) {
    auto* group = mNodes[i].row->Group();
    if (group == nullptr) continue;
    group->shown.clear();
    for (auto below = i + 1; below < At(mNodes[i].end); ++below)
      if (const auto& row = *mNodes[below].row; matches[below])
        group->shown.push_back({row.Pid(), row.origin.startStamp});
  }
}

std::vector<RowDictionary*> RowTree::Visible(const IsShown& isShown, bool looksBelow) {
  const auto count = Count();
  std::vector<bool> matches(count);
  std::vector<int> below(count, 0);
  for (auto i = count; i-- > 0;) {
    const auto& row = *mNodes[i].row;
    matches[i] = row.Group() == nullptr && (!isShown || isShown(row));
    // A row that is there for those below counts as well: it has a line of its own.
    if ((matches[i] || below[i] > 0) && mNodes[i].parent >= 0)
      below[At(mNodes[i].parent)] += below[i] + 1;
  }
  mMatchCount = static_cast<std::size_t>(std::ranges::count(matches, true));
  CollectShown(matches);
  std::vector<RowDictionary*> visible;
  std::vector<int> levels(count, 0);
  for (std::size_t i = 0; i < count;) {
    auto& row = *mNodes[i].row;
    const int parent = mNodes[i].parent;
    levels[i] = parent < 0 ? 0 : levels[At(parent)] + 1;
    if (!matches[i] && below[i] == 0) {
      i = At(mNodes[i].end);
      continue;
    }
    using Fold = RowStanding::Fold;
    const bool isFolded = below[i] > 0 && IsFolded(row, looksBelow);
    row.SetStanding({levels[i],
                     below[i] == 0 ? Fold::kNone
                     : isFolded    ? Fold::kFolded
                                   : Fold::kUnfolded,
                     below[i], !matches[i] && row.Group() == nullptr});
    row.ShowTotals(isFolded);
    visible.push_back(&row);
    i = isFolded ? At(mNodes[i].end) : i + 1;
  }
  return visible;
}

// ---- Totals -------------------------------------------------------------------------------------

void RowTree::AddUp(KeyId key, bool forAll) {
  mSums.assign(Count(), Missing::kNone);
  for (auto i = Count(); i-- > 0;) {
    const auto& node = mNodes[i];
    auto& row = *node.row;
    if (row.Group() == nullptr) AddTo(mSums[i], Addend(row, key));
    if (node.parent >= 0) AddTo(mSums[At(node.parent)], mSums[i]);
    if (At(node.end) == i + 1) {
      row.DropTotals();
      continue;
    }
    if (row.Group() != nullptr)
      row.Set(key, std::move(mSums[i]));
    else if (forAll || row.isFolded.value_or(false) || row.isFoldedInFilter)
      row.SetTotal(key, std::move(mSums[i]));
  }
}

void RowTree::ShowWhatIsCommon(std::span<const KeyId> columns, std::span<const KeyId> addedUp) {
  for (const KeyId key : columns) {
    if (key == kMetaName || key == kMetaPid || std::ranges::find(addedUp, key) != addedUp.end())
      continue;
    for (std::size_t i = 0; i < Count(); ++i) {
      auto& row = *mNodes[i].row;
      if (row.Group() == nullptr) continue;
      const auto& first = mNodes[i + 1].row->Get(key);
      auto next = i + 2;
      while (next < At(mNodes[i].end) && mNodes[next].row->Get(key) == first) ++next;
      row.Set(key, next == At(mNodes[i].end) ? first : RowValue(Missing::kNone));
    }
  }
}

void RowTree::AddUp(std::span<const KeyId> columns, KeyId sortKey) {
  const auto keys = KeysToAddUp(columns);
  for (const KeyId key : keys) AddUp(key, key == sortKey);
  if (mShape == TableShape::kApplications) ShowWhatIsCommon(columns, keys);
}

std::int64_t RowTree::BiggestTotal(KeyId key) const {
  std::int64_t biggest = 0;
  for (const auto& node : mNodes)
    if (node.row->Standing().fold == RowStanding::Fold::kFolded || node.row->Group() != nullptr)
      if (const auto* total = std::get_if<std::int64_t>(&node.row->Shown(key)))
        biggest = std::max(biggest, *total);
  return biggest;
}

}  // namespace lurkwell
