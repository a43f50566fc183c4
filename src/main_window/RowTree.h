#pragma once

#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

#include "main_window/ApplicationGroups.h"
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

  /// Puts siblings into the order that `rows` has; groups are sorted the same way. A null
  /// comparison leaves groups as they are.
  void Order(const std::vector<RowDictionary*>& rows, RowComparison comparison,
             const compareContextStructure& context);

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
    return row.node > above.node && row.node < mNodes[static_cast<std::size_t>(above.node)].end;
  }
  RowDictionary* FindGroup(const std::string& key) const { return mGroups.Find(key); }
  /// The largest of the totals that are shown; 0 for none.
  std::int64_t BiggestTotal(KeyId key) const;
  /// After the view has let go of rows.
  void TidyUp() { mGroups.TidyUp(); }

 private:
  struct Node {
    RowDictionary* row;
    /// -1 for none.
    int parent;
    /// One behind the last node below.
    int end;
  };

  std::size_t Count() const { return mNodes.size(); }
  void LinkToParents(const ProcessRows& rows);
  /// Puts the nodes into their order, those below a row right behind it.
  void Lay(const std::vector<RowDictionary*>& rows);
  void Walk(const std::vector<RowDictionary*>& rows, int root);
  void SetEnds();
  std::vector<ApplicationGroups::Member> Members() const;
  void Fold(RowDictionary& row, bool folded, bool all, bool looksBelow);
  bool IsFolded(const RowDictionary& row, bool looksBelow) const;
  void DecideFolds();
  void AddUp(KeyId key, bool forAll);
  void ShowWhatIsCommon(std::span<const KeyId> columns, std::span<const KeyId> addedUp);
  void CollectShown(const std::vector<bool>& matches);
  std::string NameForMemory(const RowDictionary& row) const;

  TableShape mShape = TableShape::kList;
  /// In the order of the table, as if nothing were folded.
  std::vector<Node> mNodes;
  ApplicationGroups mGroups;
  std::size_t mMatchCount = 0;
  FoldMemory mFolded{FoldMemory::Subject::kFoldedPrograms};
  FoldMemory mUnfolded{FoldMemory::Subject::kUnfoldedApplications};
  // While nodes are laid: what is below what, by the places in the list of rows.
  std::vector<int> mFirstBelow;
  std::vector<int> mBelow;
  std::vector<int> mStack;
  std::vector<RowValue> mSums;
};

}  // namespace lurkwell
