#pragma once

#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

namespace lurkwell {

/// Hands out pieces of rows of equal height on pages of equal size, in time that grows with the
/// logarithm of what is handed out. Any one thread at a time.
class SlotAllocator {
 public:
  struct Slot {
    int page = 0;
    int x = 0;
    int y = 0;
    int width = 0;
  };

  /// All in pixels; a page has at least one row. Not more than `mostPages` are used.
  SlotAllocator(int pageWidth, int pageHeight, int rowHeight, int mostPages);

  /// A piece of that width, from 1 to the page's; nothing when all pages are full.
  std::optional<Slot> Take(int width);
  void GiveBack(const Slot& slot);

  int RowHeight() const { return mRowHeight; }
  /// Pages that have been begun; they stay.
  int Pages() const { return mPages; }

 private:
  struct Row {
    int page;
    int y;
    /// Free pieces: where each begins, and its width.
    std::map<int, int> free;
  };

  bool AddPage();
  void AddFree(int row, int x, int width);
  void RemoveFree(int row, int x, int width);

  int mPageWidth;
  int mPageHeight;
  int mRowHeight;
  int mMostPages;
  int mPages = 0;
  std::vector<Row> mRows;
  /// Width, row, beginning: the smallest piece that fits is found without walking.
  std::set<std::tuple<int, int, int>> mFree;
};

}  // namespace lurkwell
