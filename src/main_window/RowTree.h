#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "consolidator/FamilyTree.h"
#include "main_window/ApplicationGroups.h"
#include "main_window/BranchTotals.h"
#include "main_window/FoldMemory.h"
#include "main_window/ProcessRows.h"
#include "main_window/TableShape.h"
#include "windows/RowSorting.h"

namespace lurkwell {

/// Rows below rows: which stands below which, what is folded, and the totals of what is. Takes time
/// and memory in proportion to the number of rows, however deep they lie. Main thread.
///
/// Rows are known to it from one Build to the next; a row that has gone from ProcessRows must not
/// be looked at any more, so Build comes before anything else once rows came or went.
class RowTree {
 public:
  using IsShown = std::function<bool(const RowDictionary&)>;

  /// Finds out what stands below what. A parent that started after its child is a later holder of
  /// the pid, and none; so is the idle task. What is its own ancestor stands below nothing.
  void Build(const ProcessRows& rows, TableShape shape);

  /// Adds up the columns for the rows that are folded, for groups, and by `sortKey` for all. What
  /// groups show besides is what all of their processes have in common.
  void AddUp(std::span<const KeyId> columns, KeyId sortKey);

  /// Sorts siblings; those that are in order already cost one comparison each. A null comparison
  /// leaves them as they are.
  void Order(RowComparison comparison, const compareContextStructure& context);

  /// The rows that can be seen, and how each of them stands. Rows that `isShown` does not take are
  /// there for those below them alone. While `looksBelow` everything is unfolded but what the user
  /// has folded meanwhile.
  std::vector<RowDictionary*> Visible(const IsShown& isShown, bool looksBelow);

  /// Folds or unfolds a row, with `all` everything below it, too, and remembers it for its name.
  void SetFolded(RowDictionary& row, bool folded, bool all, bool looksBelow);
  void SetAllFolded(bool folded, bool looksBelow);
  /// What a filter looks at is unfolded again; of processes their owner sees to it.
  void ForgetFoldsOfGroupsInFilter();
  /// Processes that the last Visible was asked for, folded away or not.
  std::size_t CountOfMatches() const { return mMatchCount; }
  /// Unfolds what stands above the rows, unremembered.
  static void Reveal(std::span<RowDictionary* const> rows);

  bool IsBelow(const RowDictionary& row, const RowDictionary& above) const {
    return row.place > above.place &&
           row.place < mPlaces.ends[static_cast<std::size_t>(above.place)];
  }
  RowDictionary* FindGroup(const std::string& key) const { return mGroups.Find(key); }
  /// The largest of the totals that are shown and not larger than `most`; 0 for none.
  std::int64_t BiggestTotal(KeyId key, std::int64_t most) const;
  /// After the view has let go of rows.
  void TidyUp() { mGroups.TidyUp(); }

 private:
  std::size_t Count() const { return mPlaces.rows.size(); }
  RowDictionary& RowAt(int place) const { return *mPlaces.rows[static_cast<std::size_t>(place)]; }
  void LinkToParents(const ProcessRows& rows);
  void Assign(const std::vector<RowDictionary*>& rows, const FamilyTree& family);
  /// Gives the rows their places, each behind the one that it stands below.
  void Settle(const std::vector<RowDictionary*>& rows, const FamilyTree& family);
  void Fold(RowDictionary& row, bool folded, bool all, bool looksBelow);
  bool IsFolded(const RowDictionary& row, bool looksBelow) const;
  void DecideFolds();
  /// By places: whether rows are looked for, and how many lines below each that makes.
  struct Matches {
    std::vector<bool> is;
    std::vector<int> below;
  };
  Matches FindMatches(const IsShown& isShown);
  void CollectShown(const Matches& matches);
  std::string NameForMemory(const RowDictionary& row) const;

  RowPlaces mPlaces;
  /// The same places; siblings in the order of the table.
  FamilyTree mFamily;
  BranchTotals mTotals;
  ApplicationGroups mGroups;
  std::size_t mMatchCount = 0;
  FoldMemory mFolded{FoldMemory::Subject::kFoldedPrograms};
  FoldMemory mUnfolded{FoldMemory::Subject::kUnfoldedApplications};
};

}  // namespace lurkwell
