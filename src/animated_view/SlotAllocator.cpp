#include "animated_view/SlotAllocator.h"

#include <iterator>

namespace lurkwell {

SlotAllocator::SlotAllocator(int pageWidth, int pageHeight, int rowHeight, int mostPages)
    : mPageWidth(pageWidth),
      mPageHeight(pageHeight),
      mRowHeight(rowHeight),
      mMostPages(mostPages) {}

bool SlotAllocator::AddPage() {
  if (mPages == mMostPages) return false;
  for (int y = 0; y + mRowHeight <= mPageHeight; y += mRowHeight) {
    mRows.push_back({mPages, y, {}});
    AddFree(static_cast<int>(mRows.size()) - 1, 0, mPageWidth);
  }
  ++mPages;
  return true;
}

void SlotAllocator::AddFree(int row, int x, int width) {
  mRows[static_cast<std::size_t>(row)].free[x] = width;
  mFree.emplace(width, row, x);
}

void SlotAllocator::RemoveFree(int row, int x, int width) {
  mRows[static_cast<std::size_t>(row)].free.erase(x);
  mFree.erase({width, row, x});
}

std::optional<SlotAllocator::Slot> SlotAllocator::Take(int width) {
  if (width < 1 || width > mPageWidth) return {};
  auto best = mFree.lower_bound({width, 0, 0});
  if (best == mFree.end()) {
    if (!AddPage()) return {};
    best = mFree.lower_bound({width, 0, 0});
  }
  const auto [freeWidth, row, x] = *best;
  RemoveFree(row, x, freeWidth);
  if (freeWidth > width) AddFree(row, x + width, freeWidth - width);
  const auto& home = mRows[static_cast<std::size_t>(row)];
  return Slot{home.page, x, home.y, width};
}

void SlotAllocator::GiveBack(const Slot& slot) {
  const int row = slot.page * (mPageHeight / mRowHeight) + slot.y / mRowHeight;
  auto& free = mRows[static_cast<std::size_t>(row)].free;
  int x = slot.x;
  int width = slot.width;
  if (const auto after = free.find(x + width); after != free.end()) {
    width += after->second;
    RemoveFree(row, after->first, after->second);
  }
  if (auto before = free.lower_bound(x); before != free.begin()) {
    before = std::prev(before);
    if (before->first + before->second == x) {
      x = before->first;
      width += before->second;
      RemoveFree(row, before->first, before->second);
    }
  }
  AddFree(row, x, width);
}

}  // namespace lurkwell
