#include "animated_view/LabelCrowd.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace lurkwell {
namespace {

/// About as large as a label.
constexpr int kCellWidth = 64;
constexpr int kCellHeight = 16;
/// Labels are round at their ends and may touch.
constexpr int kTouch = 2;

/// The view in cells, each with the labels that stand in it.
class Cells {
 public:
  Cells(std::span<const LabelBox> labels, int width, int height)
      : mLabels(labels),
        mAcross(std::max(width, 0) / kCellWidth + 1),
        mDown(std::max(height, 0) / kCellHeight + 1),
        mStanding(static_cast<std::size_t>(mAcross) * static_cast<std::size_t>(mDown)) {}

  bool IsFree(std::size_t label) {
    return !Any(label, [&](const std::vector<std::size_t>& others) {
      return std::ranges::any_of(others, [&](auto other) { return Overlap(label, other); });
    });
  }
  void Stand(std::size_t label) {
    Any(label, [&](std::vector<std::size_t>& others) {
      others.push_back(label);
      return false;
    });
  }

 private:
  /// Whether it is so of any cell that the label lies in.
  template <typename Visit>
  bool Any(std::size_t label, Visit visit) {
    const auto& box = mLabels[label];
    const auto cell = [](int pixel, int size, int count) {
      return std::clamp(pixel / size, 0, count - 1);
    };
    for (int y = cell(box.top, kCellHeight, mDown);
         y <= cell(box.top + box.height, kCellHeight, mDown); ++y)
      for (int x = cell(box.left, kCellWidth, mAcross);
           x <= cell(box.left + box.width, kCellWidth, mAcross); ++x)
        if (visit(mStanding[static_cast<std::size_t>(y * mAcross + x)])) return true;
    return false;
  }
  bool Overlap(std::size_t one, std::size_t other) const {
    const auto& a = mLabels[one];
    const auto& b = mLabels[other];
    return a.left + kTouch < b.left + b.width && b.left + kTouch < a.left + a.width &&
           a.top + kTouch < b.top + b.height && b.top + kTouch < a.top + a.height;
  }

  std::span<const LabelBox> mLabels;
  int mAcross;
  int mDown;
  std::vector<std::vector<std::size_t>> mStanding;
};

}  // namespace

std::vector<bool> WhichLabelsStand(std::span<const LabelBox> labels, int viewWidth,
                                   int viewHeight) {
  std::vector<std::size_t> order(labels.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, std::ranges::greater{},
                           [&](std::size_t label) { return labels[label].importance; });
  std::vector<bool> stand(labels.size());
  Cells cells(labels, viewWidth, viewHeight);
  for (const auto label : order) {
    if (!cells.IsFree(label)) continue;
    cells.Stand(label);
    stand[label] = true;
  }
  return stand;
}

}  // namespace lurkwell
