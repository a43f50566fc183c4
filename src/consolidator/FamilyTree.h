#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace lurkwell {

/// Who stands below whom in a list, by places in it. Plain value; everything takes time and memory
/// in proportion to the list, however deep it is.
class FamilyTree {
 public:
  static constexpr int kNobody = -1;

  FamilyTree() : FamilyTree(std::vector<int>()) {}
  /// The place of each one's parent in the list, kNobody for none. Whose ancestors lead back to
  /// themselves: one of each circle has no parent.
  explicit FamilyTree(std::vector<int> parents);

  std::size_t Count() const { return mParents.size(); }
  /// kNobody for none.
  int ParentOf(int place) const { return mParents[static_cast<std::size_t>(place)]; }

  /// In the order of the list, or in that which they have been put into since; of kNobody those
  /// without a parent. Valid until the tree ends.
  std::span<int> ChildrenOf(int place);
  std::span<const int> ChildrenOf(int place) const;

  /// All places: each one followed by all that is below it.
  std::vector<int> DepthFirst() const;

 private:
  void CutCircles();

  std::vector<int> mParents;
  /// Where the children begin of the one at the place before; the last one is the end.
  std::vector<std::size_t> mFirst;
  std::vector<int> mChildren;
};

}  // namespace lurkwell
