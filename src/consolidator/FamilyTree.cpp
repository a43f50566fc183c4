#include "consolidator/FamilyTree.h"

#include <utility>

namespace lurkwell {
namespace {

std::size_t Slot(int place) {
  const int slot = place + 1;
  return static_cast<std::size_t>(slot);
}

}  // namespace

FamilyTree::FamilyTree(std::vector<int> parents) : mParents(std::move(parents)) {
  CutCircles();
  const auto count = mParents.size();
  mFirst.assign(count + 3, 0);
  for (const int parent : mParents) ++mFirst[Slot(parent) + 2];
  for (std::size_t i = 2; i < mFirst.size(); ++i) mFirst[i] += mFirst[i - 1];
  mChildren.resize(count);
  // Each entry moves on to the beginning of the next one's.
  for (std::size_t i = 0; i < count; ++i)
    mChildren[mFirst[Slot(mParents[i]) + 1]++] = static_cast<int>(i);
  mFirst.pop_back();
}

void FamilyTree::CutCircles() {
  // By which walk upwards each one was met first.
  std::vector<int> metBy(mParents.size(), kNobody);
  for (std::size_t i = 0; i < mParents.size(); ++i) {
    const int walk = static_cast<int>(i);
    int place = walk;
    while (place != kNobody && metBy[static_cast<std::size_t>(place)] == kNobody) {
      metBy[static_cast<std::size_t>(place)] = walk;
      place = ParentOf(place);
    }
    if (place != kNobody && metBy[static_cast<std::size_t>(place)] == walk)
      mParents[static_cast<std::size_t>(place)] = kNobody;
  }
}

std::span<int> FamilyTree::ChildrenOf(int place) {
  return std::span(mChildren).subspan(mFirst[Slot(place)],
                                      mFirst[Slot(place) + 1] - mFirst[Slot(place)]);
}

std::span<const int> FamilyTree::ChildrenOf(int place) const {
  return std::span(mChildren).subspan(mFirst[Slot(place)],
                                      mFirst[Slot(place) + 1] - mFirst[Slot(place)]);
}

std::vector<int> FamilyTree::DepthFirst() const {
  std::vector<int> order;
  order.reserve(Count());
  const auto roots = ChildrenOf(kNobody);
  std::vector<int> waiting(roots.rbegin(), roots.rend());
  while (!waiting.empty()) {
    order.push_back(waiting.back());
    const auto children = ChildrenOf(waiting.back());
    waiting.pop_back();
    waiting.insert(waiting.end(), children.rbegin(), children.rend());
  }
  return order;
}

}  // namespace lurkwell
